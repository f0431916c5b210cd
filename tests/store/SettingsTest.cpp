// The texts of config.txt and UpdateCheck.txt.
#include "store/Settings.h"

#include <gtest/gtest.h>

#include "store/Text.h"

namespace kontorwerk {
namespace {

Settings Read(std::string_view text) {
  Settings settings;
  ReadConfigText(text, settings);
  return settings;
}

TEST(ReadConfig, EmptyFolderBecomesABackslashAndCountsAsFilledIn) {
  const Settings settings = Read("MWSTSatz=19\r\nMWSTSatz2=7\r\nRGPath=\r\nABPath=\r\nDBPath=\r\n");
  EXPECT_EQ(settings.RGPath, "\\");
  EXPECT_EQ(settings.ABPath, "\\");
  EXPECT_EQ(settings.DBPath, "\\");
  EXPECT_FALSE(SettingsIncomplete(settings));
}

TEST(ReadConfig, FolderGetsAClosingBackslashOnce) {
  EXPECT_EQ(Read("DBPath=D:\\Daten").DBPath, "D:\\Daten\\");
  EXPECT_EQ(Read("DBPath=D:\\Daten\\").DBPath, "D:\\Daten\\");
  EXPECT_EQ(Read("DBPath=/srv/firma/daten").DBPath, "/srv/firma/daten\\");
}

TEST(ReadConfig, FolderWithBlanksSurvives) {
  EXPECT_EQ(Read("RGPath=C:\\Eigene  Dateien").RGPath, "C:\\Eigene  Dateien\\");
}

TEST(ReadConfig, FractionRateStays) {
  EXPECT_EQ(Read("MWSTSatz=0,19").MWSTSatz, "0,19");
  EXPECT_EQ(Read("MWSTSatz2=0,07").MWSTSatz2, "0,07");
}

TEST(ReadConfig, PercentRateTurnsIntoAFraction) {
  EXPECT_EQ(Read("MWSTSatz=19").MWSTSatz, "0,19");
  EXPECT_EQ(Read("MWSTSatz=7").MWSTSatz, "0,07");
  EXPECT_EQ(Read("MWSTSatz=7,5").MWSTSatz, "0,075");
  EXPECT_EQ(Read("MWSTSatz=16,5").MWSTSatz, "0,165");
  EXPECT_EQ(Read("MWSTSatz=100").MWSTSatz, "0,100");
  EXPECT_EQ(Read("MWSTSatz2=7").MWSTSatz2, "0,07");
  EXPECT_EQ(Read("MWSTSatz2=5,5").MWSTSatz2, "0,055");
}

TEST(ReadConfig, LeadingBlanksOfARateAreTrimmed) { EXPECT_EQ(Read("MWSTSatz=   19").MWSTSatz, "0,19"); }

TEST(ReadConfig, SecondRateOfTenOrMoreTakesTheCommaOfTheFirst) {
  const Settings settings = Read("MWSTSatz=19\r\nMWSTSatz2=16\r\n");
  EXPECT_EQ(settings.MWSTSatz, "019");
  EXPECT_EQ(settings.MWSTSatz2, "0,16");
}

TEST(ReadConfig, SecondRateOfTenOrMoreKeepsItsOwnComma) {
  const Settings settings = Read("MWSTSatz=19\r\nMWSTSatz2=16,5\r\n");
  EXPECT_EQ(settings.MWSTSatz, "019");
  EXPECT_EQ(settings.MWSTSatz2, "0,16,5");
}

TEST(ReadConfig, SecondRateReadBeforeTheFirstHarmsNothing) {
  const Settings settings = Read("MWSTSatz2=16\r\nMWSTSatz=19\r\n");
  EXPECT_EQ(settings.MWSTSatz, "0,19");
  EXPECT_EQ(settings.MWSTSatz2, "0,16");
}

TEST(Rates, FirstRate) {
  EXPECT_EQ(FirstRateText("0"), "0,00");
  EXPECT_EQ(FirstRateText("9,99"), "0,0999");
  EXPECT_EQ(FirstRateText("10"), "0,10");
  EXPECT_EQ(FirstRateText("-5"), "0,0-5") << "a negative number is below ten";
  EXPECT_EQ(FirstRateText("0,"), "0,");
  EXPECT_EQ(FirstRateText("1.000,5"), "0,1.0005");
}

TEST(Rates, TextThatIsNoNumberStays) {
  std::string first = "0,19";
  for (const char* text : {"", "neunzehn", "19%", "-"}) {
    EXPECT_EQ(FirstRateText(text), text);
    EXPECT_EQ(SecondRateText(text, first), text);
  }
  EXPECT_EQ(first, "0,19");
}

TEST(Rates, SecondRateBelowTenLeavesTheFirstAlone) {
  std::string first = "0,19";
  EXPECT_EQ(SecondRateText("7", first), "0,07");
  EXPECT_EQ(SecondRateText("0,07", first), "0,07");
  EXPECT_EQ(first, "0,19");
}

TEST(Rates, SecondRateOfTenOrMoreWithoutACommaInTheFirst) {
  std::string first = "019";
  EXPECT_EQ(SecondRateText("16", first), "0,16");
  EXPECT_EQ(first, "019");
  first.clear();
  EXPECT_EQ(SecondRateText("16", first), "0,16");
  EXPECT_EQ(first, "");
}

TEST(ReadConfig, EqualsSignsInsideAValueTurnToBlanks) {
  EXPECT_EQ(Read("RGText1=Zahlbar = sofort").RGText1, "Zahlbar   sofort");
}

TEST(ReadConfig, DoubleBlanksAndOuterBlanksOfAValueSurvive) {
  EXPECT_EQ(Read("RGText1=  a  b ").RGText1, "  a  b ");
  EXPECT_EQ(Read("FirmenAdresse4=Tel.: 01234/54321 ").FirmenAdresse4, "Tel.: 01234/54321 ");
}

TEST(ReadConfig, EmptyValueIsEmpty) {
  EXPECT_EQ(Read("RGText1=\r\n").RGText1, "");
  EXPECT_EQ(Read("RGText1\r\n").RGText1, "");
  EXPECT_EQ(Read("MWSTSatz=\r\n").MWSTSatz, "");
}

TEST(ReadConfig, SwitchIsOnForTrueAndWahrInAnyCase) {
  for (const char* text : {"Wahr", "WAHR", "wahr", "True", "TRUE", "true"}) {
    EXPECT_TRUE(Read(Concat("Sortieren=", text)).Sortieren) << text;
    EXPECT_TRUE(Read(Concat("Einheitsbelege=", text)).Einheitsbelege) << text;
  }
}

TEST(ReadConfig, SwitchIsOffForAnythingElse) {
  for (const char* text : {"1", "", "Falsch", "ja", " Wahr", "Wahr "}) {
    Settings settings;
    settings.Sortieren = true;
    ReadConfigText(Concat("Sortieren=", text), settings);
    EXPECT_FALSE(settings.Sortieren) << text;
  }
}

TEST(ReadConfig, UnknownKeyAndOtherCaseAreIgnored) {
  const Settings settings = Read("Farbe=blau\r\nrgtext1=x\r\n RGText1=y\r\n=z\r\n\r\nRGText2=da\r\n");
  EXPECT_EQ(settings.RGText1, "");
  EXPECT_EQ(settings.RGText2, "da");
}

TEST(ReadConfig, ValuesOfTheProcessAreNoKeys) {
  const Settings settings = Read("SettingsResult=1\r\nDocumentYearOffset=1\r\nPositionRowCount=34\r\n");
  EXPECT_EQ(settings.SettingsResult, "");
  EXPECT_EQ(settings.DocumentYearOffset, "0");
  EXPECT_EQ(settings.PositionRowCount, 17);
}

TEST(ReadConfig, KeyThatIsNotThereKeepsItsValue) {
  Settings settings;
  settings.RGText1 = "alt";
  settings.Sortieren = true;
  ReadConfigText("RGText2=neu\r\n", settings);
  EXPECT_EQ(settings.RGText1, "alt");
  EXPECT_EQ(settings.RGText2, "neu");
  EXPECT_TRUE(settings.Sortieren);
}

TEST(ReadConfig, LastOfTwoEqualKeysHolds) { EXPECT_EQ(Read("RGText1=a\r\nRGText1=b\r\n").RGText1, "b"); }

TEST(ReadConfig, LinesAreSplitAtCrLfOnly) { EXPECT_EQ(Read("RGText1=a\nRGText2=b").RGText1, "a\nRGText2 b"); }

TEST(ReadConfig, EmptyTextLeavesEverythingAndIsIncomplete) {
  const Settings settings = Read("");
  EXPECT_TRUE(SettingsIncomplete(settings));
  for (const TextSetting& setting : TextSettings()) EXPECT_EQ(settings.*setting.value, "") << setting.key;
}

TEST(SettingsIncomplete, EachOfTheFiveIsNeeded) {
  Settings complete;
  complete.MWSTSatz = complete.MWSTSatz2 = "0,07";
  complete.RGPath = complete.ABPath = complete.DBPath = "\\";
  EXPECT_FALSE(SettingsIncomplete(complete));
  for (std::string Settings::*value :
       {&Settings::MWSTSatz, &Settings::MWSTSatz2, &Settings::RGPath, &Settings::ABPath, &Settings::DBPath}) {
    Settings settings = complete;
    (settings.*value).clear();
    EXPECT_TRUE(SettingsIncomplete(settings));
  }
}

TEST(SettingsIncomplete, MissingFirstRateIsNoticedEvenWithAllFolders) {
  EXPECT_TRUE(SettingsIncomplete(Read("MWSTSatz2=7\r\nRGPath=C:\\\r\nABPath=C:\\\r\nDBPath=C:\\\r\n")));
}

TEST(ConfigText, HasTheKeysInTheirOrder) {
  const std::vector<std::string> values(29, "x");
  EXPECT_EQ(ConfigText(values, true, false),
            "MWSTSatz=x\r\nMWSTSatz2=x\r\nRGPath=x\r\nABPath=x\r\nDBPath=x\r\n"
            "RGZahlungsweise=x\r\nRGText1=x\r\nRGText2=x\r\nLFZahlungsweise=x\r\nLFText1=x\r\nLFText2=x\r\n"
            "ABZahlungsweise=x\r\nABText1=x\r\nABText2=x\r\nGSZahlungsweise=x\r\nGSText1=x\r\nGSText2=x\r\n"
            "FirmenAbsender=x\r\nFirmenAdresse1=x\r\nFirmenAdresse2=x\r\nFirmenAdresse3=x\r\nFirmenAdresse4=x\r\n"
            "FirmenAdresse5=x\r\nFirmenAdresse6=x\r\nBankdaten1=x\r\nBankdaten2=x\r\nBankdaten3=x\r\n"
            "Steuernummer=x\r\nUmsatzsteuerIdentNr=x\r\nSortieren=Wahr\r\nEinheitsbelege=Falsch\r\n");
}

TEST(ConfigText, WritesValuesAsGiven) {
  std::vector<std::string> values(29);
  values[0] = " 19 ";
  values[6] = "a = b";
  const std::string text = ConfigText(values, false, false);
  EXPECT_NE(text.find("MWSTSatz= 19 \r\n"), std::string::npos);
  EXPECT_NE(text.find("RGText1=a = b\r\n"), std::string::npos);
}

TEST(ConfigText, ComesBackSettingBySetting) {
  std::vector<std::string> values;
  for (std::size_t i = 0; i < 29; ++i) values.push_back(Concat("Wert ", std::to_string(i), " größer"_t));
  values[0] = "19";
  values[1] = "7";
  const Settings settings = Read(ConfigText(values, true, true));
  values[0] = "0,19";
  values[1] = "0,07";
  for (std::size_t i = 2; i < 5; ++i) values[i] += "\\";
  for (std::size_t i = 0; i < 29; ++i) EXPECT_EQ(settings.*TextSettings()[i].value, values[i]) << TextSettings()[i].key;
  EXPECT_TRUE(settings.Sortieren);
  EXPECT_TRUE(settings.Einheitsbelege);
}

TEST(ConfigText, DropsKeysThatTheSystemDoesNotKnow) {
  const std::string text = ConfigText(std::vector<std::string>(29), false, false);
  EXPECT_EQ(text.find("Farbe"), std::string::npos);
  EXPECT_EQ(Split(text, "\r\n").size(), 32U) << "31 lines and the empty element behind them";
}

TEST(UpdateCheck, CheckLineDecides) {
  EXPECT_TRUE(ReadUpdateCheckText("Check=True\r\n", false));
  EXPECT_TRUE(ReadUpdateCheckText("\r\nLastCheck=15.11.2026\r\nCheck=TRUE\r\n", false));
  EXPECT_FALSE(ReadUpdateCheckText("Check=False\r\n", true));
  EXPECT_FALSE(ReadUpdateCheckText("Check=Wahr\r\n", true));
  EXPECT_FALSE(ReadUpdateCheckText("Check= True\r\n", true)) << "two blanks make an empty second word";
}

TEST(UpdateCheck, TextWithoutTheLineChangesNothing) {
  EXPECT_TRUE(ReadUpdateCheckText("", true));
  EXPECT_FALSE(ReadUpdateCheckText("LastCheck=15.11.2026\r\ncheck=True\r\n", false));
}

}  // namespace
}  // namespace kontorwerk
