// The two tables of key codes side by side; letters and digits have the same code in both.
#include "platform/qt/Keys.h"

#include <array>
#include <utility>

namespace kontorwerk {
namespace {

constexpr std::array<std::pair<int, KeyCode>, 17> kCodes = {{
    {Qt::Key_Return, KeyCode::Enter},
    {Qt::Key_Enter, KeyCode::Enter},
    {Qt::Key_Escape, KeyCode::Escape},
    {Qt::Key_Tab, KeyCode::Tab},
    {Qt::Key_Backtab, KeyCode::Tab},
    {Qt::Key_Backspace, KeyCode::Backspace},
    {Qt::Key_Delete, KeyCode::Delete},
    {Qt::Key_Insert, KeyCode::Insert},
    {Qt::Key_Space, KeyCode::Space},
    {Qt::Key_Up, KeyCode::Up},
    {Qt::Key_Down, KeyCode::Down},
    {Qt::Key_Left, KeyCode::Left},
    {Qt::Key_Right, KeyCode::Right},
    {Qt::Key_Home, KeyCode::Home},
    {Qt::Key_End, KeyCode::End},
    {Qt::Key_PageUp, KeyCode::PageUp},
    {Qt::Key_PageDown, KeyCode::PageDown},
}};

bool IsLetterOrDigit(int code) {
  return (code >= Qt::Key_A && code <= Qt::Key_Z) || (code >= Qt::Key_0 && code <= Qt::Key_9);
}

}  // namespace

std::optional<Key> FromQtKey(const QKeyEvent& event) {
  Key key;
  key.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  key.shift = event.modifiers().testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab;
  key.alt = event.modifiers().testFlag(Qt::AltModifier);
  for (const auto& [code, known] : kCodes) {
    if (code != event.key()) continue;
    key.code = known;
    return key;
  }
  if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) {
    key.code = static_cast<KeyCode>(static_cast<int>(KeyCode::F1) + event.key() - Qt::Key_F1);
    return key;
  }
  if (!IsLetterOrDigit(event.key())) return std::nullopt;
  key.code = KeyCode::Character;
  key.character = static_cast<char>(event.key());
  return key;
}

QtKey ToQtKey(const Key& key) {
  QtKey result;
  if (key.ctrl) result.modifiers |= Qt::ControlModifier;
  if (key.shift) result.modifiers |= Qt::ShiftModifier;
  if (key.alt) result.modifiers |= Qt::AltModifier;
  if (key.code == KeyCode::Character) {
    result.code = static_cast<unsigned char>(key.character);
  } else if (key.code >= KeyCode::F1 && key.code <= KeyCode::F12) {
    result.code = Qt::Key_F1 + static_cast<int>(key.code) - static_cast<int>(KeyCode::F1);
  } else {
    for (const auto& [code, known] : kCodes)
      if (known == key.code && result.code == 0) result.code = code;
  }
  return result;
}

}  // namespace kontorwerk
