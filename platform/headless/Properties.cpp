#include "platform/headless/Properties.h"

#include <charconv>

#include "platform/ChoiceControls.h"
#include "platform/Desktop.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/headless/Script.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

std::string Truth(bool value) { return value ? "true" : "false"; }

std::string ColourText(const std::optional<Colour>& colour) { return colour ? colour->HexText() : std::string(); }

int NumberOf(std::string_view text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string result;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) result += '|';
    result += texts[i];
  }
  return result;
}

// True for the one control that the keyboard goes to: of the screen in front, where it has the focus or, before the
// first step on it, will begin.
bool HoldsFocus(const Control& control) {
  const Screen* active = control.Owner().Owner().ActiveScreen();
  return active == &control.Owner() && active->FocusedControl() == &control;
}

bool IsTextBox(const Control& control) {
  return control.Kind() == ControlKind::TextBox || control.Kind() == ControlKind::RichTextBox;
}

const CaptionControl* AsCaption(const Control& control) { return dynamic_cast<const CaptionControl*>(&control); }
const ChoiceControl* AsChoice(const Control& control) { return dynamic_cast<const ChoiceControl*>(&control); }

std::optional<std::string> ValueOf(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::CheckBox:
      return std::to_string(static_cast<const CheckBox&>(control).Value());
    case ControlKind::OptionButton:
      return Truth(static_cast<const OptionButton&>(control).Value());
    case ControlKind::MenuEntry:
      return std::to_string(static_cast<const MenuEntry&>(control).Checked() ? 1 : 0);
    case ControlKind::ProgressBar:
    case ControlKind::ScrollBar:
      return std::to_string(static_cast<const RangeControl&>(control).Value());
    default:
      return std::nullopt;
  }
}

// The shown cells of a row, or the shown headers for row 0.
std::string ShownCells(const ListView& list, int row) {
  std::vector<std::string> cells;
  for (std::size_t i = 0; i < list.Columns().size(); ++i) {
    const ListColumn& column = list.Columns()[i];
    if (!column.hidden) cells.push_back(row == 0 ? column.header : list.Cell(row, static_cast<int>(i) + 1));
  }
  return Joined(cells);
}

// Rows and entries are read alike, whether the form shows a list with columns, a list box or a combo box.
std::optional<std::string> EntryPropertyOf(const Control& control, const BracketedName& property) {
  const std::optional<std::vector<std::string>> entries = EntriesOf(control);
  if (!entries) return std::nullopt;
  const ChoiceControl* choice = AsChoice(control);
  const int selected = choice ? choice->ListIndex() + 1 : static_cast<const ListView&>(control).Selected();
  const int row = NumberOf(property.argument);
  const bool exists = row >= 1 && row <= static_cast<int>(entries->size());
  if (property.name == "rows") return std::to_string(entries->size());
  if (property.name == "list") return Joined(*entries);
  if (property.name == "selected") return std::to_string(selected);
  if (property.name == "listindex") return std::to_string(selected - 1);
  if (property.name == "row" && exists)
    return choice ? (*entries)[static_cast<std::size_t>(row - 1)]
                  : ShownCells(static_cast<const ListView&>(control), row);
  return property.name == "row" ? std::optional(std::string()) : std::nullopt;
}

std::optional<std::string> ListPropertyOf(const ListView& list, const BracketedName& property) {
  const int row = NumberOf(property.argument);
  const bool exists = row >= 1 && row <= list.RowCount();
  if (property.name == "columns") return ShownCells(list, 0);
  if (property.name == "ticked") return Truth(list.Ticked(row));
  if (property.name == "rowcolor")
    return exists ? ColourText(list.Rows()[static_cast<std::size_t>(row - 1)].colour) : std::string();
  return std::nullopt;
}

std::optional<std::string> KindPropertyOf(const Control& control, const BracketedName& property) {
  const std::string& name = property.name;
  if (name == "value") return ValueOf(control);
  // Whether a form shows a text in a field or on a label makes no difference to its reader.
  const bool shown = name == "text" || name == "caption";
  if (IsTextBox(control) && shown) return static_cast<const TextBox&>(control).Text();
  if (const CaptionControl* captioned = AsCaption(control); captioned && shown) return captioned->Caption();
  if (const ChoiceControl* choice = AsChoice(control); choice && name == "text") return choice->Text();
  if (const auto value = EntryPropertyOf(control, property)) return value;
  if (control.Kind() == ControlKind::ListView) return ListPropertyOf(static_cast<const ListView&>(control), property);
  if (control.Kind() == ControlKind::StatusBar && name == "panel")
    return static_cast<const StatusBar&>(control).Panel(NumberOf(property.argument));
  if (control.Kind() == ControlKind::MonthView) {
    const auto& calendar = static_cast<const MonthView&>(control);
    if (name == "date") return DateText(calendar.Value());
    if (name == "bold") {
      const auto day = ParseDate(property.argument);
      return Truth(day && calendar.Bold(*day));
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::vector<std::string>> EntriesOf(const Control& control) {
  if (const ChoiceControl* choice = AsChoice(control)) return choice->Items();
  if (control.Kind() != ControlKind::ListView) return std::nullopt;
  const auto& list = static_cast<const ListView&>(control);
  int shown = 1;
  for (const ListColumn& column : list.Columns()) {
    if (!column.hidden) break;
    ++shown;
  }
  std::vector<std::string> entries;
  for (int row = 1; row <= list.RowCount(); ++row) entries.push_back(list.Cell(row, shown));
  return entries;
}

std::string_view DefaultProperty(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::Label:
    case ControlKind::CommandButton:
    case ControlKind::MenuEntry:
    case ControlKind::Image:
      return "caption";
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::ProgressBar:
    case ControlKind::ScrollBar:
      return "value";
    case ControlKind::ListView:
      return "rows";
    case ControlKind::MonthView:
      return "date";
    case ControlKind::StatusBar:
      return "panel(4)";
    default:
      return "text";
  }
}

std::optional<std::string> PropertyOf(const Control& control, std::string_view property) {
  const BracketedName parsed = ParseBracketedName(property);
  if (parsed.name == "visible") return Truth(control.Visible());
  if (parsed.name == "enabled") {
    const bool locked = IsTextBox(control) && static_cast<const TextBox&>(control).Locked();
    return Truth(control.Enabled() && !locked);
  }
  if (parsed.name == "tooltip") return control.ToolTip();
  if (parsed.name == "color") return ColourText(control.ForeColour());
  if (parsed.name == "backcolor") return ColourText(control.BackColour());
  if (parsed.name == "focus") return Truth(HoldsFocus(control));
  return KindPropertyOf(control, parsed);
}

std::optional<std::string> PropertyOf(const Screen& screen, std::string_view property) {
  if (property == "visible") return Truth(screen.Visible());
  if (property == "caption") return screen.Caption();
  if (property == "focus") return screen.FocusedControl() ? FullName(*screen.FocusedControl()) : std::string();
  return std::nullopt;
}

std::string FullName(const Control& control) {
  if (control.Index() == Control::kNoIndex) return control.Name();
  return Concat(control.Name(), "(", std::to_string(control.Index()), ")");
}

}  // namespace kontorwerk
