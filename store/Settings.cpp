// Reading and making the texts of config.txt; where the file lies and when it is read is for others to say.
#include "store/Settings.h"

#include <optional>

#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// How a rate is written: as a fraction already (or as no number at all), or as a percentage of one or two digits.
enum class RateForm { AsItStands, BelowTen, TenOrMore };

RateForm FormOf(std::string_view rate) {
  if (Left(rate, 2) == "0,") return RateForm::AsItStands;
  const std::optional<double> number = ToNumber(rate);
  if (!number) return RateForm::AsItStands;
  return *number < 10 ? RateForm::BelowTen : RateForm::TenOrMore;
}

std::string WithoutCommas(std::string_view text) { return Replace(text, ",", ""); }

bool IsFolderKey(std::string_view key) { return key == "RGPath" || key == "ABPath" || key == "DBPath"; }

bool IsOn(std::string_view switchText) {
  const std::string upper = UCase(switchText);
  return upper == "TRUE" || upper == "WAHR";
}

// Kept: an empty folder becomes a single backslash and counts as filled in.
std::string WithClosingBackslash(std::string_view folder) {
  return Right(folder, 1) == "\\" ? std::string(folder) : Concat(folder, "\\");
}

void TakeOverText(std::string_view key, std::string_view value, Settings& settings) {
  for (const TextSetting& setting : TextSettings()) {
    if (setting.key != key) continue;
    settings.*setting.value = IsFolderKey(key) ? WithClosingBackslash(value) : std::string(value);
    return;
  }
}

void TakeOverLine(std::string_view line, Settings& settings) {
  const std::string words = Replace(line, "=", " ");
  const std::string_view key = NthWord(words, 1);
  const std::string rest = WordsFrom(words, 2);
  const std::string_view value = Mid(rest, 2);
  if (key == "MWSTSatz") {
    settings.MWSTSatz = FirstRateText(LTrim(rest));
  } else if (key == "MWSTSatz2") {
    settings.MWSTSatz2 = SecondRateText(LTrim(rest), settings.MWSTSatz);
  } else if (key == "Sortieren") {
    settings.Sortieren = IsOn(value);
  } else if (key == "Einheitsbelege") {
    settings.Einheitsbelege = IsOn(value);
  } else {
    TakeOverText(key, value, settings);
  }
}

}  // namespace

const std::vector<TextSetting>& TextSettings() {
  static const std::vector<TextSetting> settings = {
      {"MWSTSatz", &Settings::MWSTSatz},
      {"MWSTSatz2", &Settings::MWSTSatz2},
      {"RGPath", &Settings::RGPath},
      {"ABPath", &Settings::ABPath},
      {"DBPath", &Settings::DBPath},
      {"RGZahlungsweise", &Settings::RGZahlungsweise},
      {"RGText1", &Settings::RGText1},
      {"RGText2", &Settings::RGText2},
      {"LFZahlungsweise", &Settings::LFZahlungsweise},
      {"LFText1", &Settings::LFText1},
      {"LFText2", &Settings::LFText2},
      {"ABZahlungsweise", &Settings::ABZahlungsweise},
      {"ABText1", &Settings::ABText1},
      {"ABText2", &Settings::ABText2},
      {"GSZahlungsweise", &Settings::GSZahlungsweise},
      {"GSText1", &Settings::GSText1},
      {"GSText2", &Settings::GSText2},
      {"FirmenAbsender", &Settings::FirmenAbsender},
      {"FirmenAdresse1", &Settings::FirmenAdresse1},
      {"FirmenAdresse2", &Settings::FirmenAdresse2},
      {"FirmenAdresse3", &Settings::FirmenAdresse3},
      {"FirmenAdresse4", &Settings::FirmenAdresse4},
      {"FirmenAdresse5", &Settings::FirmenAdresse5},
      {"FirmenAdresse6", &Settings::FirmenAdresse6},
      {"Bankdaten1", &Settings::Bankdaten1},
      {"Bankdaten2", &Settings::Bankdaten2},
      {"Bankdaten3", &Settings::Bankdaten3},
      {"Steuernummer", &Settings::Steuernummer},
      {"UmsatzsteuerIdentNr", &Settings::UmsatzsteuerIdentNr},
  };
  return settings;
}

bool SettingsIncomplete(const Settings& settings) {
  return settings.MWSTSatz.empty() || settings.MWSTSatz2.empty() || settings.RGPath.empty() ||
         settings.ABPath.empty() || settings.DBPath.empty();
}

void ReadConfigText(std::string_view text, Settings& settings) {
  for (const std::string_view line : Split(text, kLineEnd)) TakeOverLine(line, settings);
}

std::string ConfigText(const std::vector<std::string>& values, bool sortieren, bool einheitsbelege) {
  std::string text;
  const auto writeLine = [&text](std::string_view key, std::string_view value) {
    text.append(key).append("=").append(value).append(kLineEnd);
  };
  for (std::size_t i = 0; i < TextSettings().size(); ++i)
    writeLine(TextSettings()[i].key, i < values.size() ? std::string_view(values[i]) : std::string_view());
  writeLine("Sortieren", BooleanText(sortieren));
  writeLine("Einheitsbelege", BooleanText(einheitsbelege));
  return text;
}

bool ReadUpdateCheckText(std::string_view text, bool current) {
  bool result = current;
  for (const std::string_view line : Split(text, kLineEnd)) {
    const std::string words = Replace(line, "=", " ");
    if (NthWord(words, 1) == "Check") result = UCase(NthWord(words, 2)) == "TRUE";
  }
  return result;
}

std::string FirstRateText(std::string_view value) {
  switch (FormOf(value)) {
    case RateForm::BelowTen:
      return Concat("0,0", WithoutCommas(value));
    case RateForm::TenOrMore:
      return Concat("0,", WithoutCommas(value));
    case RateForm::AsItStands:
      break;
  }
  return std::string(value);
}

std::string SecondRateText(std::string_view value, std::string& firstRate) {
  switch (FormOf(value)) {
    case RateForm::BelowTen:
      return Concat("0,0", WithoutCommas(value));
    case RateForm::TenOrMore:
      // Kept: with a second rate of ten or more it is the first rate that loses its comma, and the second keeps
      // its own ("019" and "0,16,5"). Sums of older installations were made with these texts.
      firstRate = WithoutCommas(firstRate);
      return Concat("0,", value);
    case RateForm::AsItStands:
      break;
  }
  return std::string(value);
}

std::string RatePercent(std::string_view rate) {
  constexpr int kFirstPercentDigit = 3;  // behind "0,"
  std::string percent(Mid(rate, kFirstPercentDigit, 2));
  const std::string_view decimals = Mid(rate, kFirstPercentDigit + 2);
  if (!decimals.empty()) percent += Concat(",", decimals);
  if (percent.starts_with('0')) percent.erase(0, 1);
  return percent;
}

}  // namespace kontorwerk
