// One key press as handlers see it.
#pragma once

#include <optional>
#include <string_view>

namespace kontorwerk {

enum class KeyCode {
  Enter,
  Escape,
  Tab,
  Backspace,
  Delete,
  Insert,
  Space,
  Up,
  Down,
  Left,
  Right,
  Home,
  End,
  PageUp,
  PageDown,
  F1,
  F2,
  F3,
  F4,
  F5,
  F6,
  F7,
  F8,
  F9,
  F10,
  F11,
  F12,
  Character,  // a letter or digit, see Key::character
};

struct Key {
  KeyCode code = KeyCode::Enter;
  char character = 0;  // upper case, for KeyCode::Character
  bool ctrl = false;
  bool shift = false;
  bool alt = false;
  // Set by a handler that has used the key up: the control then does nothing with it.
  bool handled = false;

  [[nodiscard]] bool Is(KeyCode wanted) const { return code == wanted && !ctrl && !shift && !alt; }
  [[nodiscard]] bool IsCtrl(KeyCode wanted) const { return code == wanted && ctrl && !shift && !alt; }
};

// "Enter", "PageUp", "F5", "A" with "Ctrl+", "Shift+", "Alt+" in front; nothing for other names.
[[nodiscard]] std::optional<Key> ParseKey(std::string_view name);

}  // namespace kontorwerk
