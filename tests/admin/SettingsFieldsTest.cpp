// How config.txt becomes the fields of the settings dialog.
#include "admin/SettingsFields.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kontorwerk {
namespace {

std::vector<std::string> FieldsOf(std::string_view text) {
  std::vector<std::string> fields;
  ReadSettingsFields(text, [&](std::string_view key, std::string_view value) {
    fields.push_back(std::string(key) + ":" + std::string(value));
  });
  return fields;
}

TEST(SettingsFields, TextsComeBehindTheirKey) {
  EXPECT_EQ(FieldsOf("RGText1=Alle  Preise\r\nFirmenAdresse4=Tel.: 1 \r\nABText2=\r\n"),
            (std::vector<std::string>{"RGText1:Alle  Preise", "FirmenAdresse4:Tel.: 1 ", "ABText2:"}));
}

TEST(SettingsFields, EveryEqualsSignBecomesABlank) {
  EXPECT_EQ(FieldsOf("RGText1=Zahlbar = sofort\r\n"), (std::vector<std::string>{"RGText1:Zahlbar   sofort"}));
}

TEST(SettingsFields, SecondTextOfCreditNotesIsNeverTakenOver) {
  EXPECT_EQ(FieldsOf("GSText1=eins\r\nGSText2=zwei\r\n"), (std::vector<std::string>{"GSText1:eins"}));
}

TEST(SettingsFields, RateIsTheFirstWordAsAPercentage) {
  EXPECT_EQ(FieldsOf("MWSTSatz=19 Prozent\r\nMWSTSatz2=0,07\r\n"),
            (std::vector<std::string>{"MWSTSatz:19", "MWSTSatz2:7"}));
}

TEST(SettingsFields, FractionShowsItsLastTwoCharacters) {
  EXPECT_EQ(RatePercentText("0,19"), "19");
  EXPECT_EQ(RatePercentText("0,07"), "7");
  EXPECT_EQ(RatePercentText("0,165"), "65");
  EXPECT_EQ(RatePercentText("16,5"), "16,5");
  EXPECT_EQ(RatePercentText(""), "");
}

TEST(SettingsFields, SwitchesAreOnForTheWordTrueInEitherLanguage) {
  const auto switches = [](std::string_view text) {
    return ReadSettingsFields(text, [](std::string_view, std::string_view) {});
  };
  EXPECT_EQ(switches("Sortieren=wahr\r\n").sortieren, true);
  EXPECT_EQ(switches("Sortieren=TRUE\r\n").sortieren, true);
  EXPECT_EQ(switches("Sortieren=1\r\n").sortieren, false);
  EXPECT_EQ(switches("Einheitsbelege=Falsch\r\n").einheitsbelege, false);
  EXPECT_EQ(switches("").einheitsbelege, std::nullopt);
}

TEST(SettingsFields, FolderGetsItsBackslashOnce) {
  EXPECT_EQ(WithClosingBackslash("D:\\Daten"), "D:\\Daten\\");
  EXPECT_EQ(WithClosingBackslash("D:\\Daten\\"), "D:\\Daten\\");
  EXPECT_EQ(WithClosingBackslash("/srv/firma/daten"), "/srv/firma/daten\\");
  EXPECT_EQ(WithClosingBackslash(""), "\\");
}

}  // namespace
}  // namespace kontorwerk
