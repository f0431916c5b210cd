// A first line of defence: the platform looks at the scheme once more.
#include "partners/WebAddress.h"

#include "store/Text.h"

namespace kontorwerk {

std::string WebAddressToOpen(std::string_view text) {
  const std::string_view address = Trim(text);
  const std::string lower = LCase(address);
  for (const std::string_view scheme : {"http://", "https://", "mailto:"})
    if (lower.starts_with(scheme)) return std::string(address);
  return lower.starts_with("www.") ? Concat("http://", address) : std::string();
}

}  // namespace kontorwerk
