// Pictures of the program: line drawings from :/icons, drawn in a colour of the theme at the size that is asked for.
#pragma once

#include <QIcon>
#include <QString>

namespace kontorwerk {

enum class IconTone { Text, Accent, OnAccent, Danger, Muted };

// The picture `name`; it follows the theme by itself. A null icon for an unknown name.
[[nodiscard]] QIcon ThemeIcon(const QString& name, IconTone tone = IconTone::Text);

}  // namespace kontorwerk
