// The settings of config.txt and the process-wide values beside them, as one object that is handed to every screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

struct Settings {
  std::string MWSTSatz;                // fraction text, "0,19"
  std::string MWSTSatz2;               // fraction text, "0,07"
  std::string RGPath, ABPath, DBPath;  // each with a closing backslash
  std::string RGZahlungsweise, RGText1, RGText2;
  std::string LFZahlungsweise, LFText1, LFText2;
  std::string ABZahlungsweise, ABText1, ABText2;
  std::string GSZahlungsweise, GSText1, GSText2;
  std::string FirmenAbsender;
  std::string FirmenAdresse1, FirmenAdresse2, FirmenAdresse3, FirmenAdresse4, FirmenAdresse5, FirmenAdresse6;
  std::string Bankdaten1, Bankdaten2, Bankdaten3;
  std::string Steuernummer, UmsatzsteuerIdentNr;
  bool Sortieren = false;
  bool Einheitsbelege = false;

  // Outcome of the settings dialog: empty while it is open, "1" just after a save, "2" closed after a save, "0" closed
  // without.
  std::string SettingsResult;
  // Outcome of the first-numbers dialog, in the same words.
  std::string NewTablesResult;
  // "1" after the year rollover was declined, otherwise "0"; lives for one run of the program.
  std::string DocumentYearOffset = "0";
  // Rows of the document grid, a multiple of a page's rows.
  int PositionRowCount = 17;
};

// A text setting: its key in config.txt and where it is held. The 29 of them, in the order in which they are written.
struct TextSetting {
  std::string_view key;
  std::string Settings::*value;
};
[[nodiscard]] const std::vector<TextSetting>& TextSettings();

// True if a rate or a folder is still missing, so that the first start must ask for it.
[[nodiscard]] bool SettingsIncomplete(const Settings& settings);
// Takes over what the text of config.txt holds, key by key; a key that is not there keeps its value.
// Every "=" of a line turns to a blank, also inside a value (kept: older files were read so).
void ReadConfigText(std::string_view text, Settings& settings);
// The text of config.txt: `values` in the order of TextSettings as given (rates as the user typed them), then the
// switches.
[[nodiscard]] std::string ConfigText(const std::vector<std::string>& values, bool sortieren, bool einheitsbelege);
// True if the text of UpdateCheck.txt switches the automatic check on; nothing is assumed of a text without the line.
[[nodiscard]] bool ReadUpdateCheckText(std::string_view text, bool current);
// The fraction text of a rate: "19" gives "0,19", "7,5" gives "0,075", "0,19" stays. A text that is no number stays.
// `firstRate` is touched by the second rate's rule only; see the comment in the source.
[[nodiscard]] std::string FirstRateText(std::string_view value);
[[nodiscard]] std::string SecondRateText(std::string_view value, std::string& firstRate);

// The percentage of a fraction text without its sign: "0,07" gives "7", "0,165" gives "16,5".
[[nodiscard]] std::string RatePercent(std::string_view rate);

}  // namespace kontorwerk
