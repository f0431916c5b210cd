// A first line of defence: the platform looks at the address once more.
#include "partners/WebAddress.h"

#include <algorithm>
#include <string>

#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kLettersOfAHost = "abcdefghijklmnopqrstuvwxyzäöüß0123456789-."_t;

// At least two names joined by a point, the last of them no suffix of a program.
bool IsHost(std::string_view name) {
  const std::size_t lastPoint = name.rfind('.');
  if (lastPoint == std::string_view::npos || lastPoint == 0 || name.front() == '-') return false;
  if (name.find_first_not_of(kLettersOfAHost) != std::string_view::npos) return false;
  const std::string_view suffix = name.substr(lastPoint + 1);
  constexpr std::string_view kPrograms[] = {"exe", "bat", "cmd", "pif", "scr", "lnk", "vbs", "msi"};
  return suffix.size() > 1 && std::find(std::begin(kPrograms), std::end(kPrograms), suffix) == std::end(kPrograms);
}

}  // namespace

bool IsWebAddress(std::string_view text) {
  const std::string address = LCase(text);
  for (const std::string_view scheme : {"http://", "https://", "mailto:"})
    if (address.starts_with(scheme)) return address.size() > scheme.size();
  return IsHost(std::string_view(address).substr(0, address.find('/')));
}

}  // namespace kontorwerk
