// What the operator reads of controls and screens, as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

class Control;
class Screen;

// The property that is meant where a script names none.
[[nodiscard]] std::string_view DefaultProperty(const Control& control);
// The value of a property such as "text", "row(3)", "bold(01.02.2026)"; nothing if the control has no such property.
[[nodiscard]] std::optional<std::string> PropertyOf(const Control& control, std::string_view property);
[[nodiscard]] std::optional<std::string> PropertyOf(const Screen& screen, std::string_view property);
// The rows of a list by their first shown column, or the entries of a combo or list box; nothing for other kinds.
[[nodiscard]] std::optional<std::vector<std::string>> EntriesOf(const Control& control);
// "LGNr(0)"
[[nodiscard]] std::string FullName(const Control& control);

}  // namespace kontorwerk
