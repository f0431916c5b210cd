#include "admin/SettingsFields.h"

#include "store/RecordLine.h"
#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

bool IsOn(std::string_view value) {
  const std::string upper = UCase(value);
  return upper == "TRUE" || upper == "WAHR";
}

}  // namespace

SwitchFields ReadSettingsFields(std::string_view configText,
                                const std::function<void(std::string_view key, std::string_view text)>& fill) {
  SwitchFields switches;
  ForEachRow(configText, [&](std::string_view row) {
    const std::string line = Replace(row, "=", " ");
    const std::string_view key = NthWord(line, 1);
    const std::string rest = WordsFrom(line, 2);
    const std::string_view text = Mid(rest, 2);
    if (key == "MWSTSatz" || key == "MWSTSatz2")
      fill(key, RatePercentText(NthWord(line, 2)));
    else if (key == "Sortieren")
      switches.sortieren = IsOn(text);
    else if (key == "Einheitsbelege")
      switches.einheitsbelege = IsOn(text);
    else if (key != "GSText2")
      fill(key, text);
  });
  return switches;
}

std::string RatePercentText(std::string_view rate) {
  if (Left(rate, 2) != "0,") return std::string(rate);
  const std::string_view lastTwo = Right(rate, 2);
  return std::string(Left(lastTwo, 1) == "0" ? Right(lastTwo, 1) : lastTwo);
}

std::string WithClosingBackslash(std::string_view folder) {
  return Right(folder, 1) == "\\" ? std::string(folder) : Concat(folder, "\\");
}

}  // namespace kontorwerk
