// The table is plain data that the compiler sets quickly; texts become objects when the table is first asked for.
#include "tools/form-design/TableWriter.h"

#include <string>
#include <string_view>

namespace kontorwerk {
namespace {

// Lists stand in the table as one text, their entries joined by this byte.
constexpr char kJoin = '\x1F';

constexpr std::string_view kHead = R"(// Made from the forms by form-design; changes belong into the *.ui files.
#include <cstddef>

#include "platform/FormDesign.h"

namespace kontorwerk {
namespace {

struct ControlRow {
  const char *name, *kind, *caption, *text, *toolTip, *items, *columns, *group;
  bool visible, enabled, locked, checked;
  int value, minimum, maximum, tabIndex;
};

struct ScreenRow {
  const char *screen, *caption;
  int controls;
};

)";

constexpr std::string_view kTail = R"(
std::vector<std::string> Pieces(std::string_view joined) {
  std::vector<std::string> pieces;
  while (!joined.empty()) {
    const std::size_t end = joined.find('\x1F');
    pieces.emplace_back(joined.substr(0, end));
    joined.remove_prefix(end + 1);
  }
  return pieces;
}

ControlDesign MakeControl(const ControlRow& row) {
  ControlDesign control;
  control.name = row.name;
  control.kind = row.kind;
  control.caption = row.caption;
  control.text = row.text;
  control.toolTip = row.toolTip;
  control.visible = row.visible;
  control.enabled = row.enabled;
  control.locked = row.locked;
  control.checked = row.checked;
  control.items = Pieces(row.items);
  control.columns = Pieces(row.columns);
  control.value = row.value;
  control.minimum = row.minimum;
  control.maximum = row.maximum;
  control.tabIndex = row.tabIndex;
  control.group = row.group;
  return control;
}

std::vector<ScreenDesign> MakeDesigns() {
  std::vector<ScreenDesign> screens;
  const ControlRow* control = kControls;
  for (const ScreenRow* row = kScreens; row->screen != nullptr; ++row) {
    ScreenDesign& screen = screens.emplace_back();
    screen.screen = row->screen;
    screen.caption = row->caption;
    for (int i = 0; i < row->controls; ++i) screen.controls.push_back(MakeControl(*control++));
  }
  return screens;
}

}  // namespace

const std::vector<ScreenDesign>& FormDesigns() {
  static const std::vector<ScreenDesign> designs = MakeDesigns();
  return designs;
}

}  // namespace kontorwerk
)";

// Octal escapes have a fixed length, so that no following digit joins them.
std::string Literal(std::string_view text) {
  std::string literal = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte > 0x7E) {
      literal += '\\';
      for (const int shift : {6, 3, 0}) literal += static_cast<char>('0' + ((byte >> shift) & 7));
    } else {
      if (c == '"' || c == '\\' || c == '?') literal += '\\';
      literal += c;
    }
  }
  return literal + '"';
}

std::string Joined(const std::vector<std::string>& pieces) {
  std::string joined;
  for (const std::string& piece : pieces) joined += piece + kJoin;
  return Literal(joined);
}

std::string Row(const ControlDesign& control) {
  std::string row = "    {";
  for (const std::string& text : {control.name, control.kind, control.caption, control.text, control.toolTip})
    row += Literal(text) + ", ";
  row += Joined(control.items) + ", " + Joined(control.columns) + ", " + Literal(control.group) + ", ";
  for (const bool flag : {control.visible, control.enabled, control.locked, control.checked})
    row += flag ? "true, " : "false, ";
  for (const int number : {control.value, control.minimum, control.maximum}) row += std::to_string(number) + ", ";
  return row + std::to_string(control.tabIndex) + "},\n";
}

}  // namespace

QByteArray DesignTableSource(const std::vector<ScreenDesign>& screens) {
  std::string controls = "constexpr ControlRow kControls[] = {\n";
  std::string table = "constexpr ScreenRow kScreens[] = {\n";
  for (const ScreenDesign& screen : screens) {
    for (const ControlDesign& control : screen.controls) controls += Row(control);
    table += "    {" + Literal(screen.screen) + ", " + Literal(screen.caption) + ", " +
             std::to_string(screen.controls.size()) + "},\n";
  }
  controls += "    {},\n};\n\n";
  table += "    {},\n};\n";
  return QByteArray::fromStdString(std::string(kHead) + controls + table + std::string(kTail));
}

}  // namespace kontorwerk
