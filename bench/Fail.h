// The end of a run whose benchmark itself is at fault.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace kontorwerk::bench {

[[noreturn]] inline void Fail(std::string_view reason) {
  std::cerr << "kontorwerk-bench: " << reason << '\n';
  std::exit(1);
}

}  // namespace kontorwerk::bench
