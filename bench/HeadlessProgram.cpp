#include "bench/HeadlessProgram.h"

#include "bench/Fail.h"
#include "store/Text.h"

namespace kontorwerk::bench {
namespace {

constexpr DateTime kNow{{2026, 11, 16}, {9, 30, 0}};
// The day list follows the start by a timer.
constexpr std::int64_t kSettleMs = 150;

}  // namespace

HeadlessProgram::HeadlessProgram(const Firm& firm)
    : platform_(log_, firm.ProgramFolder().string(), nullptr), program_(desktop_, platform_, files_) {
  platform_.onFault = [](std::string_view message) { Fail(message); };
  platform_.SetNow(kNow);
  desktop_.AddObserver(platform_);
}

void HeadlessProgram::Start() {
  program_.Start();
  platform_.Advance(kSettleMs);
}

Screen& HeadlessProgram::Find(std::string_view name) {
  Screen* screen = desktop_.Find(name);
  if (screen == nullptr) Fail(Concat("no screen ", name));
  return *screen;
}

}  // namespace kontorwerk::bench
