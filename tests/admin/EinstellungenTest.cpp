// The settings dialog: loading, saving, choosing folders, the copy of its file.
#include "admin/Einstellungen.h"

#include <filesystem>

#include "tests/admin/AdminTest.h"

namespace kontorwerk::test {
namespace {

constexpr std::string_view kComplete =
    "MWSTSatz=19\r\nMWSTSatz2=7\r\nRGPath=C:\\Belege\\\r\nABPath=C:\\Angebote\\\r\nDBPath=daten\\\r\n"
    "RGText1=Text\r\nEinheitsbelege=Falsch\r\n";

TEST_F(AdminTest, NewDialogShowsTheSampleValues) {
  Dialog().Show();
  EXPECT_EQ(Dialog().MWSTSatz.Text(), "19");
  EXPECT_EQ(Dialog().MWSTSatz2.Text(), "7");
  EXPECT_EQ(Dialog().RGPath.Text(), "C:\\");
  EXPECT_EQ(Dialog().ABPath.Text(), "C:\\");
  EXPECT_EQ(Dialog().RGZahlungsweise.Text(), "Rechnung ist sofort und ohne Abzug zahlbar.");
  EXPECT_EQ(Dialog().ABZahlungsweise.Text(), "Angebotsgültigkeit: 21 Tage nach Angebotsdatum"_t);
  EXPECT_EQ(Dialog().FA4.Text(), "Tel.: 01234/54321 ");
  EXPECT_EQ(Dialog().GSText2.Text(), "");
}

TEST_F(AdminTest, FirstStartTakesTheProgramFolderAndOneTemplate) {
  Dialog().Show();
  EXPECT_EQ(Dialog().DBPath.Text(), platform.ProgramFolder());
  EXPECT_TRUE(Dialog().Check2.Checked());
  EXPECT_FALSE(Dialog().Check1.Checked());
}

TEST_F(AdminTest, FileFillsTheFields) {
  PutConfig(kComplete);
  Dialog().Show();
  EXPECT_EQ(Dialog().RGPath.Text(), "C:\\Belege\\");
  EXPECT_EQ(Dialog().DBPath.Text(), "daten\\");
  EXPECT_EQ(Dialog().RGText1.Text(), "Text");
  EXPECT_EQ(Dialog().ABText1.Text(), "Alle Preise inkl. 19% Mehrwertsteuer.");
  EXPECT_FALSE(Dialog().Check2.Checked());
}

TEST_F(AdminTest, SecondTextOfCreditNotesIsLostUnlessTypedAnew) {
  PutConfig(kComplete);
  Dialog().Show();
  Dialog().GSText2.UserText("bleibt nicht");
  Dialog().OKButton.UserClick();
  EXPECT_TRUE(ConfigHas("GSText2=bleibt nicht"));
  EXPECT_EQ(settings.GSText2, "bleibt nicht");
  Dialog().Show();
  EXPECT_EQ(Dialog().GSText2.Text(), "");
  Dialog().OKButton.UserClick();
  EXPECT_TRUE(ConfigHas("GSText2="));
}

TEST_F(AdminTest, RateIsWrittenAsTypedAndReadAsAFraction) {
  PutConfig(kComplete);
  Dialog().Show();
  Dialog().MWSTSatz.UserText("19");
  Dialog().OKButton.UserClick();
  EXPECT_TRUE(ConfigHas("MWSTSatz=19"));
  EXPECT_EQ(settings.MWSTSatz, "0,19");
  Dialog().Show();
  EXPECT_EQ(Dialog().MWSTSatz.Text(), "19");
}

TEST_F(AdminTest, SaveWritesAllKeysInTheirOrder) {
  PutConfig(Concat(kComplete, "Unbekannt=weg\r\n"));
  Dialog().Show();
  for (TextBox* box : {&Dialog().FAB, &Dialog().FA1, &Dialog().FA2, &Dialog().FA3, &Dialog().FA4, &Dialog().FA5,
                       &Dialog().FA6, &Dialog().FB1, &Dialog().FB2, &Dialog().FB3})
    box->UserText(box->Name());
  for (TextBox* box : {&Dialog().RGZahlungsweise, &Dialog().RGText2, &Dialog().ABZahlungsweise, &Dialog().ABText1,
                       &Dialog().ABText2, &Dialog().GSZahlungsweise})
    box->UserText("");
  Dialog().Steuernummer.UserText("12/34");
  Dialog().USTIDNR.UserText("DE1");
  Dialog().Check1.UserToggle();
  Dialog().OKButton.UserClick();
  EXPECT_EQ(Config(),
            "MWSTSatz=19\r\nMWSTSatz2=7\r\nRGPath=C:\\Belege\\\r\nABPath=C:\\Angebote\\\r\nDBPath=daten\\\r\n"
            "RGZahlungsweise=\r\nRGText1=Text\r\nRGText2=\r\nLFZahlungsweise=\r\nLFText1=\r\nLFText2=\r\n"
            "ABZahlungsweise=\r\nABText1=\r\nABText2=\r\nGSZahlungsweise=\r\nGSText1=\r\nGSText2=\r\n"
            "FirmenAbsender=FAB\r\nFirmenAdresse1=FA1\r\nFirmenAdresse2=FA2\r\nFirmenAdresse3=FA3\r\n"
            "FirmenAdresse4=FA4\r\nFirmenAdresse5=FA5\r\nFirmenAdresse6=FA6\r\nBankdaten1=FB1\r\nBankdaten2=FB2\r\n"
            "Bankdaten3=FB3\r\nSteuernummer=12/34\r\nUmsatzsteuerIdentNr=DE1\r\nSortieren=Wahr\r\n"
            "Einheitsbelege=Falsch\r\n");
  EXPECT_TRUE(settings.Sortieren);
  EXPECT_EQ(platform.BoxCount(), 0);
}

TEST_F(AdminTest, FoldersGetTheirBackslashWhenSaved) {
  PutConfig(kComplete);
  Dialog().Show();
  Dialog().RGPath.UserText("D:\\Daten");
  Dialog().ABPath.UserText("");
  Dialog().OKButton.UserClick();
  EXPECT_TRUE(ConfigHas("RGPath=D:\\Daten\\"));
  EXPECT_TRUE(ConfigHas("ABPath=\\"));
}

TEST_F(AdminTest, OutcomeTellsWhetherASaveCameFirst) {
  PutConfig(kComplete);
  Dialog().Show();
  EXPECT_EQ(settings.SettingsResult, "");
  Dialog().CancelButton.UserClick();
  EXPECT_EQ(settings.SettingsResult, "0");
  Dialog().Show();
  EXPECT_EQ(settings.SettingsResult, "");
  Dialog().OKButton.UserClick();
  EXPECT_EQ(settings.SettingsResult, "2");
  EXPECT_EQ(centre.reads, 1);
  EXPECT_FALSE(Dialog().Loaded());
  Dialog().Show();
  Dialog().Close();
  EXPECT_EQ(settings.SettingsResult, "0");
}

TEST_F(AdminTest, EmptiedRateBringsTheDialogBack) {
  folder.Put("config.txt", kComplete);
  Dialog().Show();
  Dialog().MWSTSatz2.UserText("");
  Dialog().OKButton.UserClick();
  EXPECT_TRUE(Dialog().Visible());
  EXPECT_EQ(settings.SettingsResult, "");
  EXPECT_EQ(Dialog().MWSTSatz2.Text(), "");
}

TEST_F(AdminTest, FolderDialogFillsItsField) {
  PutConfig(kComplete);
  Dialog().Show();
  AnswerFolder("D:\\Rechnungen");
  Dialog().Command1.UserClick();
  EXPECT_EQ(Dialog().RGPath.Text(), "D:\\Rechnungen\\");
  AnswerFolder("/srv/angebote");
  Dialog().Command2.UserClick();
  EXPECT_EQ(Dialog().ABPath.Text(), "/srv/angebote\\");
  AnswerFolder("D:\\Daten\\");
  Dialog().Command3.UserClick();
  EXPECT_EQ(Dialog().DBPath.Text(), "D:\\Daten\\");
  EXPECT_NE(record.str().find("\"title\": \"Verzeichnis für Datenbanken und Vorlagen auswählen\""), std::string::npos);
  EXPECT_NE(record.str().find("\"folder\": \"C:\\\\test\""), std::string::npos);
  EXPECT_NE(record.str().find("\"filter\": \"Verzeichnis|*.~~~\""), std::string::npos);
  EXPECT_NE(record.str().find("\"name\": \"Wählen Sie ein Verzeichnis\""), std::string::npos);
}

TEST_F(AdminTest, CancelledFolderDialogChangesNothing) {
  PutConfig(kComplete);
  Dialog().Show();
  platform.PushAnswer({.kind = QueuedAnswer::Kind::Cancel});
  Dialog().Command3.UserClick();
  EXPECT_EQ(Dialog().DBPath.Text(), "daten\\");
}

TEST_F(AdminTest, CopyOfTheFileAsksNamingTheDataFolder) {
  PutConfig(kComplete);
  std::filesystem::create_directory(folder.Path() / "ziel");
  const std::string target = folder.Path().string() + "/ziel";
  Dialog().Show();
  AnswerFolder(target);
  platform.Push(Answer::No);
  Dialog().Sicherung.UserClick();
  EXPECT_EQ(platform.LastBoxTitle(), "Kontorwerk - Konfiguration nun kopieren?");
  EXPECT_EQ(platform.LastBoxText(),
            Concat("Sollen die Einstellungen (config.txt) nun kopiert werden?\r\n\r\nQuelle: daten\\\r\nZielpfad: ",
                   target, "\\"));
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "ziel/config.txt"));
  AnswerFolder(target);
  platform.Push(Answer::Yes);
  Dialog().Sicherung.UserClick();
  EXPECT_EQ(platform.LastBoxText(), "Kopiervorgang abgeschlossen!");
  EXPECT_EQ(folder.Content("ziel/config.txt"), kComplete);
  EXPECT_NE(record.str().find("\"title\": \"Sicherung der Einstellungen\""), std::string::npos);
}

TEST_F(AdminTest, FailedCopyEndsInSilence) {
  PutConfig(kComplete);
  Dialog().Show();
  AnswerFolder(folder.Path().string() + "/fehlt/auch");
  platform.Push(Answer::Yes);
  Dialog().Sicherung.UserClick();
  EXPECT_EQ(platform.BoxCount(), 1);
}

TEST_F(AdminTest, HelpExplainsTheFooterMarks) {
  Dialog().Show();
  Dialog().Label24.UserClick();
  EXPECT_EQ(platform.LastBoxTitle(), "Fußzeile der Vorlagen"_t);
  EXPECT_GT(InStr(platform.LastBoxText(), "[FA1] bis [FA6]"), 0);
}

}  // namespace
}  // namespace kontorwerk::test
