#include "platform/FormDesign.h"

#include <algorithm>

namespace kontorwerk {

const ControlDesign* ScreenDesign::Find(std::string_view name) const {
  const auto found =
      std::find_if(controls.begin(), controls.end(), [&](const ControlDesign& c) { return c.name == name; });
  return found == controls.end() ? nullptr : &*found;
}

const ScreenDesign* FindFormDesign(std::string_view screen) {
  const auto& designs = FormDesigns();
  const auto found =
      std::find_if(designs.begin(), designs.end(), [&](const ScreenDesign& d) { return d.screen == screen; });
  return found == designs.end() ? nullptr : &*found;
}

}  // namespace kontorwerk
