// Keys of the toolkit as handlers see them, and back.
#pragma once

#include <QKeyEvent>
#include <optional>

#include "platform/Key.h"

namespace kontorwerk {

// Nothing for keys that handlers know no name for.
[[nodiscard]] std::optional<Key> FromQtKey(const QKeyEvent& event);
// The toolkit's code and modifiers of a key.
struct QtKey {
  int code = 0;
  Qt::KeyboardModifiers modifiers;
};
[[nodiscard]] QtKey ToQtKey(const Key& key);

}  // namespace kontorwerk
