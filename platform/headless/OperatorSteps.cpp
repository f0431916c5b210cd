// The verbs of the operator, one function each.
#include <charconv>
#include <chrono>
#include <optional>
#include <thread>
#include <utility>

#include "platform/ChoiceControls.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/headless/Operator.h"
#include "platform/headless/Properties.h"
#include "store/CodePage.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

std::optional<int> TwoDigits(std::string_view text, std::size_t from) {
  if (from + 2 > text.size() || text[from] < '0' || text[from] > '9' || text[from + 1] < '0' || text[from + 1] > '9')
    return std::nullopt;
  return (text[from] - '0') * 10 + (text[from + 1] - '0');
}

// hh:mm:ss
std::optional<TimeOfDay> ParseClock(std::string_view text) {
  const auto hour = TwoDigits(text, 0);
  const auto minute = TwoDigits(text, 3);
  const auto second = TwoDigits(text, 6);
  if (text.size() != 8 || text[2] != ':' || text[5] != ':' || !hour || !minute || !second) return std::nullopt;
  if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
  return TimeOfDay{*hour, *minute, *second};
}

std::optional<Answer> ButtonNamed(std::string_view name) {
  if (name == "Ja") return Answer::Yes;
  if (name == "Nein") return Answer::No;
  if (name == "Abbrechen") return Answer::Cancel;
  if (name == "OK") return Answer::Ok;
  return std::nullopt;
}

// Line `number` of a file, counted from 1; negative from the last line end backwards.
std::optional<std::string_view> LineOf(std::string_view text, int number) {
  std::vector<std::string_view> lines;
  while (true) {
    const std::size_t end = text.find(kLineEnd);
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + kLineEnd.size());
  }
  const auto ended = static_cast<int>(lines.size()) - 1;  // lines with a line end
  if (number < 0) {
    const int index = ended + number;
    return index >= 0 ? std::optional(lines[static_cast<std::size_t>(index)]) : std::nullopt;
  }
  const bool exists = number >= 1 && (number <= ended || (number == ended + 1 && !lines.back().empty()));
  return exists ? std::optional(lines[static_cast<std::size_t>(number - 1)]) : std::nullopt;
}

}  // namespace

void Operator::DoNow(const Step& step) {
  NeedArguments(step, 1, 2);
  const auto date = ParseDate(ArgumentAt(step, 0));
  if (!date) Fault(Concat("no date: ", ArgumentAt(step, 0)));
  const auto time = step.arguments.size() > 1 ? ParseClock(ArgumentAt(step, 1)) : TimeOfDay{};
  if (!time) Fault(Concat("no time: ", ArgumentAt(step, 1)));
  platform_.SetNow({*date, *time});
}

void Operator::DoAdvance(const Step& step) {
  NeedArguments(step, 1, 1);
  const int milliseconds = NumberAt(step, 0);
  if (milliseconds < 0) Fault("the clock does not go backwards");
  platform_.Advance(milliseconds);
}

void Operator::DoRandom(const Step& step) {
  ArgumentAt(step, 0);
  std::vector<double> values;
  for (const Argument& argument : step.arguments) {
    const std::string& text = argument.text;
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    if (!whole || !(value >= 0 && value <= 1)) Fault(Concat("no number between 0 and 1: ", text));
    values.push_back(value);
  }
  platform_.SetRandom(std::move(values));
}

void Operator::DoStart(const Step& step) {
  NeedArguments(step, 0, 0);
  if (started_) Fault("the program has been started already");
  started_ = true;
  if (onStart) onStart();
}

void Operator::DoShow(const Step& step) {
  NeedArguments(step, 1, 1);
  ScreenNamed(ArgumentAt(step, 0)).Show();
}

void Operator::DoClose(const Step& step) {
  NeedArguments(step, 1, 1);
  Screen& screen = ScreenNamed(ArgumentAt(step, 0));
  if (!screen.Visible()) Fault(Concat("the screen is not visible: ", screen.Name()));
  driver_.CloseScreen(screen);
}

void Operator::DoClick(const Step& step) {
  NeedArguments(step, 1, 1);
  Control& control = UsableControl(step);
  if (TakeFocus(control)) driver_.Click(control);
}

void Operator::DoDoubleClick(const Step& step) {
  NeedArguments(step, 1, 2);
  Control& control = UsableControl(step);
  const int row = step.arguments.size() > 1 ? EntryAt(step, 1, control, 1) : 0;
  if (!TakeFocus(control)) return;
  // A list clicks the row itself.
  if (row > 0 && control.Kind() != ControlKind::ListView) ClickEntry(control, row);
  driver_.DoubleClick(control, row);
}

void Operator::DoSet(const Step& step) {
  NeedArguments(step, 2, 2);
  Control& control = UsableControl(step);
  if (!dynamic_cast<TextBox*>(&control) && control.Kind() != ControlKind::ComboBox)
    Fault(Concat("nothing can be typed into: ", ArgumentAt(step, 0)));
  if (TakeFocus(control)) driver_.SetText(control, ArgumentAt(step, 1));
}

void Operator::DoType(const Step& step) {
  NeedArguments(step, 2, 2);
  Control& control = UsableControl(step);
  if (!dynamic_cast<TextBox*>(&control) && control.Kind() != ControlKind::ComboBox)
    Fault(Concat("nothing can be typed into: ", ArgumentAt(step, 0)));
  if (TakeFocus(control)) driver_.SetText(control, *PropertyOf(control, "text") + ArgumentAt(step, 1));
}

void Operator::DoChoose(const Step& step) {
  NeedArguments(step, 2, 2);
  Control& control = UsableControl(step);
  const int index = EntryAt(step, 1, control, 0);
  if (TakeFocus(control)) ClickEntry(control, index + 1);
}

void Operator::DoTick(const Step& step) {
  NeedArguments(step, 3, 3);
  auto& list = UsableAs<ListView>(step);
  const int row = EntryAt(step, 1, list, 1);
  const std::string& state = ArgumentAt(step, 2);
  if (state != "on" && state != "off") Fault(Concat("neither on nor off: ", state));
  if (TakeFocus(list)) driver_.Tick(list, row, state == "on");
}

void Operator::DoSelect(const Step& step) {
  NeedArguments(step, 2, 2);
  Control& list = UsableControl(step);
  const int row = EntryAt(step, 1, list, 1);
  if (TakeFocus(list)) ClickEntry(list, row);
}

void Operator::DoSort(const Step& step) {
  NeedArguments(step, 2, 2);
  auto& list = UsableAs<ListView>(step);
  // Counted among the shown columns; the list itself counts the hidden ones too.
  int left = NumberAt(step, 1);
  int column = 0;
  while (left > 0 && column < static_cast<int>(list.Columns().size()))
    if (!list.Columns()[static_cast<std::size_t>(column++)].hidden) --left;
  if (left != 0 || column == 0) Fault(Concat("unknown column: ", ArgumentAt(step, 1)));
  if (TakeFocus(list)) driver_.Sort(list, column);
}

void Operator::DoDate(const Step& step) {
  NeedArguments(step, 2, 2);
  auto& calendar = UsableAs<MonthView>(step);
  const auto date = ParseDate(ArgumentAt(step, 1));
  if (!date) Fault(Concat("no date: ", ArgumentAt(step, 1)));
  if (TakeFocus(calendar)) driver_.PickDate(calendar, *date);
}

void Operator::DoKey(const Step& step) {
  NeedArguments(step, 2, 2);
  Control& control = UsableControl(step);
  const auto key = ParseKey(ArgumentAt(step, 1));
  if (!key) Fault(Concat("unknown key: ", ArgumentAt(step, 1)));
  if (TakeFocus(control)) driver_.PressKey(control, *key);
}

void Operator::DoFocus(const Step& step) {
  NeedArguments(step, 1, 1);
  TakeFocus(UsableControl(step));
}

void Operator::DoWheel(const Step& step) {
  NeedArguments(step, 2, 2);
  Screen& screen = ScreenNamed(ArgumentAt(step, 0));
  if (!screen.Visible()) Fault(Concat("the screen is not visible: ", screen.Name()));
  driver_.Wheel(screen, NumberAt(step, 1));
}

void Operator::DoAnswer(const Step& step) {
  const std::string& kind = ArgumentAt(step, 0);
  QueuedAnswer answer;
  if (const auto button = ButtonNamed(kind)) {
    NeedArguments(step, 1, 1);
    answer.button = *button;
  } else if (kind == "cancel") {
    NeedArguments(step, 1, 1);
    answer.kind = QueuedAnswer::Kind::Cancel;
  } else if (kind == "printer") {
    NeedArguments(step, 2, 3);
    answer.kind = QueuedAnswer::Kind::Printer;
    answer.printer = {ArgumentAt(step, 1), step.arguments.size() > 2 ? NumberAt(step, 2) : 1};
  } else if (kind == "file") {
    ArgumentAt(step, 1);
    answer.kind = QueuedAnswer::Kind::Files;
    for (std::size_t i = 1; i < step.arguments.size(); ++i) answer.paths.push_back(step.arguments[i].text);
  } else if (kind == "folder") {
    NeedArguments(step, 2, 2);
    answer.kind = QueuedAnswer::Kind::Folder;
    answer.paths.push_back(ArgumentAt(step, 1));
  } else if (kind == "colour") {
    NeedArguments(step, 2, 2);
    answer.kind = QueuedAnswer::Kind::Colour;
    answer.colour = NumberAt(step, 1);
  } else {
    Fault(Concat("unknown answer: ", kind));
  }
  platform_.PushAnswer(std::move(answer));
}

void Operator::DoGet(const Step& step) {
  NeedArguments(step, 1, 1);
  const Value value = ReadValue(step);
  log_.Emit("get", {{"name", value.name}, {"value", value.text}});
}

void Operator::DoExpect(const Step& step) {
  NeedArguments(step, 2, 2);
  const Value value = ReadValue(step);
  Expect(value.name, value.text, ArgumentAt(step, 1));
}

void Operator::DoExpectBox(const Step& step) {
  NeedArguments(step, 1, 1);
  Expect("box", platform_.LastBoxText(), ArgumentAt(step, 0));
}

void Operator::DoExpectTitle(const Step& step) {
  NeedArguments(step, 1, 1);
  Expect("title", platform_.LastBoxTitle(), ArgumentAt(step, 0));
}

void Operator::DoExpectBoxes(const Step& step) {
  NeedArguments(step, 1, 1);
  Expect("boxes", std::to_string(platform_.BoxCount()), std::to_string(NumberAt(step, 0)));
}

void Operator::DoExpectFile(const Step& step) {
  NeedArguments(step, 2, 2);
  const ReadResult file = files_.Read(ArgumentAt(step, 0));
  const std::string& wanted = ArgumentAt(step, 1);
  Expect(ArgumentAt(step, 0), file.text, wanted, file.status == ReadStatus::Read && file.text == wanted);
}

void Operator::DoExpectRow(const Step& step) {
  NeedArguments(step, 3, 3);
  const ReadResult file = files_.Read(ArgumentAt(step, 0));
  const auto line = LineOf(file.text, NumberAt(step, 1));
  const std::string& wanted = ArgumentAt(step, 2);
  Expect(ArgumentAt(step, 0), line.value_or(""), wanted, line && *line == wanted);
}

void Operator::DoExpectAbsent(const Step& step) {
  NeedArguments(step, 1, 1);
  const bool exists = files_.Exists(ArgumentAt(step, 0));
  Expect(ArgumentAt(step, 0), exists ? "present" : "absent", "absent");
}

void Operator::DoWrite(const Step& step) {
  NeedArguments(step, 2, 2);
  const std::string& path = ArgumentAt(step, 0);
  for (std::size_t slash = path.find_first_of("\\/", 1); slash != std::string::npos;
       slash = path.find_first_of("\\/", slash + 1))
    (void)files_.CreateFolder(std::string_view(path).substr(0, slash));
  if (!files_.Write(path, ArgumentAt(step, 1))) Fault(Concat("the file could not be written: ", path));
}

void Operator::DoWait(const Step& step) {
  NeedArguments(step, 3, 3);
  const std::string& wanted = ArgumentAt(step, 1);
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(NumberAt(step, 2));
  Value value = ReadValue(step);
  while (value.text != wanted && std::chrono::steady_clock::now() < end) {
    driver_.RunEvents();
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    value = ReadValue(step);
  }
  Expect(value.name, value.text, wanted);
}

void Operator::DoShot(const Step& step) {
  NeedArguments(step, 2, 2);
  Screen& screen = ScreenNamed(ArgumentAt(step, 0));
  if (options_.shotFolder.empty()) return;
  const std::string file = options_.shotFolder + "/" + ToUtf8(ArgumentAt(step, 1));
  if (!driver_.Shot(screen, file)) Fault(Concat("the picture could not be saved: ", ArgumentAt(step, 1)));
}

void Operator::DoEnd(const Step& step) {
  NeedArguments(step, 0, 0);
  Finish();
}

}  // namespace kontorwerk
