// The program's own folder, in which config.txt lies.
#pragma once

#include <string>

namespace kontorwerk {

// The folder of the executable if it can be written to, otherwise a folder of the user's own, which is made if it is
// missing. UTF-8, absolute, without a closing slash.
[[nodiscard]] std::string FindProgramFolder();

}  // namespace kontorwerk
