// The version of the program, as the about box shows it and the update check compares it.
#pragma once

#include <string>

namespace kontorwerk {

struct Version {
  int major;
  int minor;
  int revision;
};

inline constexpr Version kProgramVersion{1, 0, 0};

// "1.0.0"
[[nodiscard]] inline std::string VersionText(const Version& version) {
  return std::to_string(version.major) + "." + std::to_string(version.minor) + "." + std::to_string(version.revision);
}

}  // namespace kontorwerk
