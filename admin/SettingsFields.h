// How the settings dialog reads config.txt for its fields. It is not quite the reader of the program's settings: a rate
// is turned back into a percentage, folders stay as they are written, and one key is never taken over.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kontorwerk {

// What config.txt says of the two switches; nothing where its key is missing.
struct SwitchFields {
  std::optional<bool> sortieren;
  std::optional<bool> einheitsbelege;
};

// Calls `fill(key, text)` for each text setting of the file, in the order of its lines, with what the field is to show.
// Kept: GSText2 is never among them, so that a save which does not type it anew loses it.
SwitchFields ReadSettingsFields(std::string_view configText,
                                const std::function<void(std::string_view key, std::string_view text)>& fill);

// The percentage of a rate as the file holds it: "0,19" gives "19", "0,07" gives "7", "19" stays. Kept: only the last
// two characters of a fraction count, so "0,165" gives "65".
[[nodiscard]] std::string RatePercentText(std::string_view rate);

// The folder with a backslash at its end; an empty text becomes a single backslash.
[[nodiscard]] std::string WithClosingBackslash(std::string_view folder);

}  // namespace kontorwerk
