// Which text of a web-address box may be opened.
#pragma once

#include <string_view>

namespace kontorwerk {

// True for an address with the scheme http, https or mailto, and for the bare name of a host ("www.meier.example/shop",
// "meier.example"). False for everything else, which might name a file or a program.
[[nodiscard]] bool IsWebAddress(std::string_view text);

}  // namespace kontorwerk
