// Any bytes as config.txt and UpdateCheck.txt.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "store/Settings.h"

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

std::vector<std::string> ValuesOf(const kontorwerk::Settings& settings) {
  std::vector<std::string> values;
  for (const kontorwerk::TextSetting& setting : kontorwerk::TextSettings()) values.push_back(settings.*setting.value);
  return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  kontorwerk::Settings settings;
  kontorwerk::ReadConfigText(text, settings);
  for (const std::string& value : ValuesOf(settings)) {
    // Neither an equals sign nor a line end gets into a setting.
    Require(value.find('=') == std::string::npos);
    Require(value.find("\r\n") == std::string::npos);
  }
  for (const std::string* folder : {&settings.RGPath, &settings.ABPath, &settings.DBPath})
    Require(folder->empty() || folder->back() == '\\');
  // Texts come back from the file they are written to; the rates have a form of their own there.
  kontorwerk::Settings again;
  kontorwerk::ReadConfigText(kontorwerk::ConfigText(ValuesOf(settings), settings.Sortieren, settings.Einheitsbelege),
                             again);
  for (const kontorwerk::TextSetting& setting : kontorwerk::TextSettings()) {
    const bool rate = setting.key.substr(0, 8) == "MWSTSatz";
    const bool folderNotThere = (settings.*setting.value).empty() && again.*setting.value == "\\";
    Require(rate || folderNotThere || again.*setting.value == settings.*setting.value);
  }
  Require(again.Sortieren == settings.Sortieren && again.Einheitsbelege == settings.Einheitsbelege);
  static_cast<void>(kontorwerk::ReadUpdateCheckText(text, false));
  std::string firstRate(text.substr(0, size / 2));
  static_cast<void>(kontorwerk::SecondRateText(text.substr(size / 2), firstRate));
  return 0;
}
