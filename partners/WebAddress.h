// Which text of a web-address box may be opened.
#pragma once

#include <string>
#include <string_view>

namespace kontorwerk {

// The address to hand to the platform: the text itself with the scheme http, https or mailto, "http://" in front of a
// text that begins with "www."; empty for everything else, which might name a file or a program.
[[nodiscard]] std::string WebAddressToOpen(std::string_view text);

}  // namespace kontorwerk
