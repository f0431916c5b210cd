// Hostile scripts: the parser either gives steps or names a line, and target names are taken apart without loss.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/Key.h"
#include "platform/headless/Script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kontorwerk;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto parsed = ParseScript(text);
  if (const auto* steps = std::get_if<std::vector<Step>>(&parsed)) {
    int line = 0;
    for (const Step& step : *steps) {
      if (step.line <= line) std::abort();
      line = step.line;
      for (const Argument& argument : step.arguments) {
        std::size_t length = 0;
        const TargetName target = ParseTargetName(argument.text);
        for (const auto& part : target.parts) length += part.size() + 1;
        if (target.screen.size() + length != argument.text.size()) std::abort();
        (void)ParseBracketedName(argument.text);
        (void)ParseKey(argument.text);
      }
    }
  } else if (std::get<ScriptFault>(parsed).line < 1) {
    std::abort();
  }
  return 0;
}
