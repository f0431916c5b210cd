// The folder chooser and the paths that it walks.
#include "admin/Verzeichniswahl.h"

#include <algorithm>
#include <filesystem>

#include "admin/Folders.h"
#include "tests/admin/AdminTest.h"

namespace kontorwerk::test {
namespace {

TEST(Folders, FolderAboveEndsAtADriveOrTheRoot) {
  EXPECT_EQ(FolderAbove("C:\\Daten\\Firma\\"), "C:\\Daten");
  EXPECT_EQ(FolderAbove("C:\\Daten"), "C:\\");
  EXPECT_EQ(FolderAbove("C:\\"), "");
  EXPECT_EQ(FolderAbove("/srv/firma\\"), "/srv");
  EXPECT_EQ(FolderAbove("/srv"), "/");
  EXPECT_EQ(FolderAbove("/"), "");
  EXPECT_EQ(FolderAbove("daten\\"), "");
}

TEST(Folders, NewFolderCountsTheOnesAtHand) {
  EXPECT_EQ(NewFolderName({"alt"}), "Neuer Ordner");
  EXPECT_EQ(NewFolderName({"neuer ordner"}), "Neuer Ordner 2");
  EXPECT_EQ(NewFolderName({"Neuer Ordner", "Neuer Ordner 7", "NEUER ORDNER alt"}), "Neuer Ordner 4");
}

TEST(Folders, DriveOfAPath) {
  EXPECT_EQ(DriveOf("d:\\Daten"), "D:");
  EXPECT_EQ(DriveOf("/srv"), "/");
  EXPECT_EQ(DriveOf("daten\\"), "");
}

class ChooserTest : public AdminTest {
 protected:
  ChooserTest() {
    std::filesystem::create_directories(folder.Path() / "daten" / "innen");
    std::filesystem::create_directories(folder.Path() / "belege");
    PutConfig("MWSTSatz=19\r\nMWSTSatz2=7\r\nRGPath=r\\\r\nABPath=a\\\r\nDBPath=d\\\r\n");
    Dialog().Show();
  }
  void Enter(std::string_view name) {
    const auto& items = Chooser().Dir1.Items();
    const auto found = std::find(items.begin(), items.end(), name);
    ASSERT_NE(found, items.end());
    Chooser().Dir1.UserChoose(static_cast<int>(found - items.begin()));
    Chooser().Dir1.OnDoubleClick();
  }
};

TEST_F(ChooserTest, OpensInTheProgramFolder) {
  Dialog().ChooseInOwnScreen(Dialog().RGPath);
  EXPECT_EQ(Chooser().Path, platform.ProgramFolder());
  EXPECT_EQ(Chooser().Label2.Caption(), folder.Path().string());
  EXPECT_EQ(Chooser().Dir1.Items(), (std::vector<std::string>{"..", "belege", "daten"}));
  EXPECT_EQ(Chooser().Drive1.Text(), "/");
  EXPECT_EQ(Chooser().Drive1.Items().front(), "C:");
}

TEST_F(ChooserTest, ChosenFolderReachesTheFieldItWasOpenedFor) {
  desktop.PressKey(Dialog().ABPath, *ParseKey("F4"));
  EXPECT_TRUE(Dialog().ChoosingABPath);
  EXPECT_FALSE(Dialog().ChoosingRGPath || Dialog().ChoosingDBPath);
  Enter("daten");
  Enter("innen");
  EXPECT_EQ(Chooser().Label2.Caption(), folder.Path().string() + "\\daten\\innen");
  Enter("..");
  EXPECT_EQ(Chooser().Dir1.Items(), (std::vector<std::string>{"..", "innen"}));
  Chooser().OKButton.UserClick();
  EXPECT_EQ(Dialog().ABPath.Text(), folder.DataPath("daten\\"));
  EXPECT_EQ(Dialog().RGPath.Text(), "r\\");
  EXPECT_EQ(Dialog().DBPath.Text(), "d\\");
  EXPECT_FALSE(Chooser().Loaded());
  EXPECT_FALSE(Dialog().ChoosingABPath);
}

TEST_F(ChooserTest, CancelAndWindowButtonClearTheFlagsAndChangeNothing) {
  Dialog().ChooseInOwnScreen(Dialog().RGPath);
  Chooser().CancelButton.UserClick();
  EXPECT_FALSE(Dialog().ChoosingRGPath);
  Dialog().ChooseInOwnScreen(Dialog().DBPath);
  EXPECT_TRUE(Dialog().ChoosingDBPath);
  Chooser().Close();
  EXPECT_FALSE(Dialog().ChoosingDBPath);
  EXPECT_EQ(Dialog().RGPath.Text() + Dialog().DBPath.Text(), "r\\d\\");
}

TEST_F(ChooserTest, NewFolderIsMadeAndListed) {
  Dialog().ChooseInOwnScreen(Dialog().RGPath);
  Chooser().Command1.UserClick();
  Chooser().Command1.UserClick();
  EXPECT_TRUE(files.IsFolder(folder.DataPath("Neuer Ordner 2")));
  EXPECT_EQ(Chooser().Dir1.Items(),
            (std::vector<std::string>{"..", "belege", "daten", "Neuer Ordner", "Neuer Ordner 2"}));
}

TEST_F(ChooserTest, DriveLeadsToItsTop) {
  Dialog().ChooseInOwnScreen(Dialog().RGPath);
  Chooser().Drive1.UserChoose(0);
  EXPECT_EQ(Chooser().Path, "C:\\");
  EXPECT_EQ(Chooser().Label2.Caption(), "C:\\");
}

TEST_F(ChooserTest, ClosesWithTheSettings) {
  Dialog().ChooseInOwnScreen(Dialog().RGPath);
  Dialog().CancelButton.UserClick();
  EXPECT_FALSE(Chooser().Loaded());
  Dialog().Show();
  Dialog().ChooseInOwnScreen(Dialog().RGPath);
  Dialog().OKButton.UserClick();
  EXPECT_FALSE(Chooser().Loaded());
}

}  // namespace
}  // namespace kontorwerk::test
