#include "platform/Key.h"

#include <array>
#include <utility>

namespace kontorwerk {

namespace {

constexpr std::array<std::pair<std::string_view, KeyCode>, 15> kNames = {{
    {"Enter", KeyCode::Enter},
    {"Escape", KeyCode::Escape},
    {"Tab", KeyCode::Tab},
    {"Backspace", KeyCode::Backspace},
    {"Delete", KeyCode::Delete},
    {"Insert", KeyCode::Insert},
    {"Space", KeyCode::Space},
    {"Up", KeyCode::Up},
    {"Down", KeyCode::Down},
    {"Left", KeyCode::Left},
    {"Right", KeyCode::Right},
    {"Home", KeyCode::Home},
    {"End", KeyCode::End},
    {"PageUp", KeyCode::PageUp},
    {"PageDown", KeyCode::PageDown},
}};

bool TakePrefix(std::string_view& name, std::string_view prefix) {
  if (!name.starts_with(prefix) || name.size() == prefix.size()) return false;
  name.remove_prefix(prefix.size());
  return true;
}

bool IsLetterOrDigit(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); }

// 1 to 12 for "F1" to "F12", otherwise 0.
int FunctionKeyNumber(std::string_view name) {
  if (name.size() < 2 || name.size() > 3 || name[0] != 'F') return 0;
  int number = 0;
  for (const char c : name.substr(1)) {
    if (c < '0' || c > '9') return 0;
    number = number * 10 + (c - '0');
  }
  return name[1] != '0' && number <= 12 ? number : 0;
}

}  // namespace

std::optional<Key> ParseKey(std::string_view name) {
  Key key;
  for (bool more = true; more;) {
    more = false;
    if (TakePrefix(name, "Ctrl+")) more = key.ctrl = true;
    if (TakePrefix(name, "Shift+")) more = key.shift = true;
    if (TakePrefix(name, "Alt+")) more = key.alt = true;
  }
  for (const auto& [text, code] : kNames) {
    if (text != name) continue;
    key.code = code;
    return key;
  }
  if (const int number = FunctionKeyNumber(name); number > 0) {
    key.code = static_cast<KeyCode>(static_cast<int>(KeyCode::F1) + number - 1);
    return key;
  }
  if (name.size() == 1 && IsLetterOrDigit(name[0])) {
    key.code = KeyCode::Character;
    key.character = name[0] >= 'a' ? static_cast<char>(name[0] - 'a' + 'A') : name[0];
    return key;
  }
  return std::nullopt;
}

}  // namespace kontorwerk
