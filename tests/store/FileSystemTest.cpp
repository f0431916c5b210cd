// Paths in the program's form, names in any case, and files that are written whole or not at all.
#include "store/FileSystem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "store/CodePage.h"
#include "store/Text.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

namespace fs = std::filesystem;
using testing_support::Call;
using testing_support::FaultyDisk;
using testing_support::TestFolder;

class FileSystemTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Machine(const std::string& name) const { return (folder_.Path() / name).string(); }
  [[nodiscard]] std::string Path(std::string_view name) const { return folder_.DataPath(name); }

  TestFolder folder_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
};

// Sets HOME for one test.
class HomeGuard {
 public:
  explicit HomeGuard(const std::string& home) : old_(std::getenv("HOME") == nullptr ? "" : std::getenv("HOME")) {
    ::setenv("HOME", home.c_str(), 1);
  }
  HomeGuard(const HomeGuard&) = delete;
  HomeGuard& operator=(const HomeGuard&) = delete;
  ~HomeGuard() { ::setenv("HOME", old_.c_str(), 1); }

 private:
  std::string old_;
};

// Sets the current folder for one test.
class CurrentFolderGuard {
 public:
  explicit CurrentFolderGuard(const fs::path& folder) : old_(fs::current_path()) { fs::current_path(folder); }
  CurrentFolderGuard(const CurrentFolderGuard&) = delete;
  CurrentFolderGuard& operator=(const CurrentFolderGuard&) = delete;
  ~CurrentFolderGuard() { fs::current_path(old_); }

 private:
  fs::path old_;
};

TEST_F(FileSystemTest, DriveCIsTheHomeFolder) {
  const HomeGuard home(folder_.Path().string());
  EXPECT_EQ(files_.MachinePath("C:\\Belege\\RG1.doc"), Machine("Belege/RG1.doc"));
  EXPECT_EQ(files_.MachinePath("c:\\Belege\\"), Machine("Belege/"));
  EXPECT_EQ(files_.MachinePath("C:"), folder_.Path().string());
  EXPECT_EQ(files_.MachinePath("C:\\"), folder_.Path().string() + "/");
  EXPECT_EQ(files_.MachinePath("C:Belege"), Machine("Belege"));
}

TEST_F(FileSystemTest, AnotherDriveIsTheMountFolderOfItsLetter) {
  const std::string mount = fs::is_directory("/media/q") ? "/media/q" : "/mnt/q";
  EXPECT_EQ(files_.MachinePath("Q:\\Daten\\"), mount + "/Daten/");
  EXPECT_EQ(files_.MachinePath("q:\\Daten\\"), mount + "/Daten/");
}

TEST_F(FileSystemTest, OnlyALetterIsADrive) {
  EXPECT_EQ(files_.MachinePath("1:\\x"), "1:/x");
  EXPECT_EQ(files_.MachinePath("\xE4:\\x"), "\xC3\xA4:/x");
}

TEST_F(FileSystemTest, AbsolutePathOfTheMachineWorksWithMixedSlashes) {
  EXPECT_EQ(files_.MachinePath("/srv/firma/daten\\Kundendb.dbf"), "/srv/firma/daten/Kundendb.dbf");
  folder_.Put("Kundendb.dbf", "x");
  EXPECT_EQ(files_.Read(Path("Kundendb.dbf")).text, "x");
}

TEST_F(FileSystemTest, PathWithoutDriveStartsAtTheCurrentFolder) {
  folder_.Put("Config.txt", "x");
  const CurrentFolderGuard current(folder_.Path());
  EXPECT_EQ(files_.MachinePath("config.txt"), "Config.txt");
  EXPECT_EQ(files_.Read("config.txt").text, "x");
  EXPECT_TRUE(files_.Write("neu.txt", "y"));
  EXPECT_EQ(folder_.Content("neu.txt"), "y");
}

TEST_F(FileSystemTest, EachPartOfAPathIsFoundWhateverItsCase) {
  fs::create_directories(folder_.Path() / "Daten" / "Alt");
  folder_.Put("Daten/Alt/LagerArtikeldb.dbf", "x");
  EXPECT_EQ(files_.MachinePath(Path("DATEN\\alt\\Lagerartikeldb.dbf")), Machine("Daten/Alt/LagerArtikeldb.dbf"));
  EXPECT_EQ(files_.Read(Path("daten\\ALT\\LAGERARTIKELDB.DBF")).text, "x");
}

TEST_F(FileSystemTest, UmlautsOfANameAreFoundWhateverTheirCase) {
  folder_.Put(ToUtf8("Auftragsbestätigungvorlage.dot"_t), "x");
  EXPECT_TRUE(files_.Exists(Path("AUFTRAGSBESTÄTIGUNGVORLAGE.DOT"_t)));
}

TEST_F(FileSystemTest, ExactNameGoesBeforeOtherCases) {
  folder_.Put("KUNDENDB.DBF", "upper");
  folder_.Put("Kundendb.dbf", "exact");
  folder_.Put("kundendb.dbf", "lower");
  EXPECT_EQ(files_.Read(Path("Kundendb.dbf")).text, "exact");
  EXPECT_EQ(files_.Read(Path("KundenDb.dbf")).text, "upper") << "the first of several in order";
}

TEST_F(FileSystemTest, NameThatDoesNotExistStaysAsGivenBelowWhatExists) {
  fs::create_directory(folder_.Path() / "Daten");
  EXPECT_EQ(files_.MachinePath(Path("DATEN\\Neu\\Tabelle.dbf")), Machine("Daten/Neu/Tabelle.dbf"));
}

TEST_F(FileSystemTest, SpellingsOfTheSupportFileListFindTheTables) {
  for (const char* name : {"Kundendb.dbf", "Lieferantendb.dbf", "LagerArtikeldb.dbf", "Termindb.dbf", "Auftragsdb.dbf",
                           "Entwurfdb.dbf", "offeneBelegedb.dbf", "erledigteBelegedb.dbf"})
    folder_.Put(name, name);
  for (const char* name :
       {"KundenDb.dbf", "LieferantenDb.dbf", "LagerArtikelDb.dbf", "Lagerartikeldb.dbf", "TerminDb.dbf",
        "AuftragsDb.dbf", "EntwurfDb.dbf", "offeneBelegeDb.dbf", "erledigteBelegeDb.dbf"})
    EXPECT_EQ(LCase(files_.Read(Path(name)).text), LCase(name));
}

TEST_F(FileSystemTest, PathThatNoFileCanHaveIsMissing) {
  for (const std::string& path : {std::string(), Path(std::string_view("a\0b", 3))}) {
    EXPECT_EQ(files_.Read(path).status, ReadStatus::Missing);
    EXPECT_FALSE(files_.Write(path, "x"));
    EXPECT_FALSE(files_.Exists(path));
    EXPECT_FALSE(files_.Remove(path));
    EXPECT_FALSE(files_.CreateFolder(path));
    EXPECT_TRUE(files_.List(path).empty());
  }
  EXPECT_TRUE(folder_.Names().empty());
}

TEST_F(FileSystemTest, ReadTellsMissingFromFailed) {
  EXPECT_EQ(files_.Read(Path("Kundendb.dbf")).status, ReadStatus::Missing);
  EXPECT_EQ(files_.Read(Path("kein\\Ordner.dbf")).status, ReadStatus::Missing);
  folder_.Put("datei", "x");
  EXPECT_EQ(files_.Read(Path("datei\\Kundendb.dbf")).status, ReadStatus::Missing) << "a file where a folder should be";
  fs::create_directory(folder_.Path() / "Ordner.dbf");
  EXPECT_EQ(files_.Read(Path("Ordner.dbf")).status, ReadStatus::Failed);
}

TEST_F(FileSystemTest, EmptyFileIsReadAsEmpty) {
  folder_.Put("leer.dbf", "");
  const ReadResult result = files_.Read(Path("leer.dbf"));
  EXPECT_EQ(result.status, ReadStatus::Read);
  EXPECT_EQ(result.text, "");
}

TEST_F(FileSystemTest, PipeIsNoFileAndDoesNotHoldUpTheProgram) {
  ASSERT_EQ(::mkfifo(Machine("pipe.dbf").c_str(), 0600), 0);
  EXPECT_EQ(files_.Read(Path("pipe.dbf")).status, ReadStatus::Failed);
  EXPECT_FALSE(files_.Write(Path("pipe.dbf"), "x"));
  EXPECT_TRUE(fs::is_fifo(folder_.Path() / "pipe.dbf"));
}

TEST_F(FileSystemTest, InputErrorIsAFailedRead) {
  if (!fs::exists("/proc/self/mem")) GTEST_SKIP() << "no file here that cannot be read";
  const ReadResult result = files_.Read("/proc/self/mem");
  EXPECT_EQ(result.status, ReadStatus::Failed);
  EXPECT_EQ(result.text, "");
}

TEST_F(FileSystemTest, FileThatHoldsMoreThanItsSizeSaysIsReadToItsEnd) {
  if (!fs::exists("/proc/version")) GTEST_SKIP() << "no file of that kind here";
  EXPECT_NE(files_.Read("/proc/version").text, "");
}

TEST_F(FileSystemTest, AllBytesSurviveWritingAndReading) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  ASSERT_TRUE(files_.Write(Path("bytes.dbf"), all));
  EXPECT_EQ(folder_.Content("bytes.dbf"), all);
  EXPECT_EQ(files_.Read(Path("bytes.dbf")).text, all);
}

TEST_F(FileSystemTest, PartsStandOneBehindTheOtherInTheFileWhateverTheirSizes) {
  const std::string large(700'000, 'x');
  const std::string fills(256 * 1024, 'y');
  ASSERT_TRUE(files_.WriteParts(Path("Kundendb.dbf"), {"a", "", large, "b", "c", fills, "d", fills}));
  EXPECT_EQ(files_.Read(Path("Kundendb.dbf")).text, "a" + large + "bc" + fills + "d" + fills);
  ASSERT_TRUE(files_.WriteParts(Path("Kundendb.dbf"), {}));
  EXPECT_EQ(folder_.Content("Kundendb.dbf"), "");
}

TEST_F(FileSystemTest, WriteReplacesTheWholeFile) {
  folder_.Put("config.txt", "a much longer text than the new one");
  ASSERT_TRUE(files_.Write(Path("config.txt"), "new"));
  EXPECT_EQ(folder_.Content("config.txt"), "new");
  ASSERT_TRUE(files_.Write(Path("config.txt"), ""));
  EXPECT_EQ(folder_.Content("config.txt"), "");
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"config.txt"})) << "nothing else is left in the folder";
}

TEST_F(FileSystemTest, WriteKeepsTheCaseOfTheExistingName) {
  folder_.Put("KundenDb.dbf", "old");
  ASSERT_TRUE(files_.Write(Path("Kundendb.dbf"), "new"));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"KundenDb.dbf"}));
  EXPECT_EQ(folder_.Content("KundenDb.dbf"), "new");
}

TEST_F(FileSystemTest, WriteKeepsTheRightsOfTheOldFile) {
  folder_.Put("config.txt", "old");
  for (const unsigned mode : {0600U, 0640U, 0664U, 0777U}) {
    fs::permissions(folder_.Path() / "config.txt", static_cast<fs::perms>(mode));
    ASSERT_TRUE(files_.Write(Path("config.txt"), "new"));
    EXPECT_EQ(fs::status(folder_.Path() / "config.txt").permissions(), static_cast<fs::perms>(mode));
  }
}

TEST_F(FileSystemTest, WriteOverAFolderFails) {
  fs::create_directory(folder_.Path() / "config.txt");
  EXPECT_FALSE(files_.Write(Path("config.txt"), "x"));
  EXPECT_TRUE(fs::is_directory(folder_.Path() / "config.txt"));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"config.txt"}));
}

TEST_F(FileSystemTest, WriteIntoAMissingFolderFailsAndMakesNothing) {
  EXPECT_FALSE(files_.Write(Path("kein\\config.txt"), "x"));
  EXPECT_FALSE(files_.Write(Path("neu.txt\\"), "x"));
  EXPECT_TRUE(folder_.Names().empty());
}

TEST_F(FileSystemTest, WriteOverAFileThatNobodyMayWriteFails) {
  folder_.Put("config.txt", "old");
  fs::permissions(folder_.Path() / "config.txt", static_cast<fs::perms>(0444));
  EXPECT_FALSE(files_.Write(Path("config.txt"), "new"));
  EXPECT_EQ(folder_.Content("config.txt"), "old");
}

TEST_F(FileSystemTest, WriteIntoAReadOnlyFolderFails) {
  folder_.Put("config.txt", "old");
  fs::permissions(folder_.Path(), static_cast<fs::perms>(0555));
  const bool holds = !std::ofstream(folder_.Path() / "probe");
  if (holds) {
    EXPECT_FALSE(files_.Write(Path("config.txt"), "new"));
    EXPECT_EQ(folder_.Content("config.txt"), "old");
  }
  fs::permissions(folder_.Path(), static_cast<fs::perms>(0755));
  if (!holds) GTEST_SKIP() << "this user may write into any folder";
}

TEST_F(FileSystemTest, WriteGoesThroughSymbolicLinksToTheirRealPlace) {
  fs::create_directory(folder_.Path() / "echt");
  folder_.Put("echt/Kundendb.dbf", "old");
  fs::create_symlink("echt/Kundendb.dbf", folder_.Path() / "zwei");
  fs::create_symlink(folder_.Path() / "zwei", folder_.Path() / "eins.dbf");
  ASSERT_TRUE(files_.Write(Path("eins.dbf"), "new"));
  EXPECT_EQ(folder_.Content("echt/Kundendb.dbf"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_.Path() / "eins.dbf"));
  EXPECT_TRUE(fs::is_symlink(folder_.Path() / "zwei"));
}

TEST_F(FileSystemTest, WriteThroughALinkToNothingMakesTheFileThere) {
  fs::create_symlink("echt.dbf", folder_.Path() / "link.dbf");
  EXPECT_EQ(files_.Read(Path("link.dbf")).status, ReadStatus::Missing);
  ASSERT_TRUE(files_.Write(Path("link.dbf"), "new"));
  EXPECT_EQ(folder_.Content("echt.dbf"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_.Path() / "link.dbf"));
}

TEST_F(FileSystemTest, LinksInACircleFail) {
  fs::create_symlink("b", folder_.Path() / "a");
  fs::create_symlink("a", folder_.Path() / "b");
  EXPECT_EQ(files_.Read(Path("a")).status, ReadStatus::Failed);
  EXPECT_FALSE(files_.Write(Path("a"), "x"));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"a", "b"}));
}

TEST_F(FileSystemTest, FullDiskLeavesTheOldFileAndNoRest) {
  const std::string mount = Machine("voll");
  fs::create_directory(mount);
  const std::string quiet = " >/dev/null 2>&1";
  if (std::system(("mount -t tmpfs -o size=64k kontorwerk-test " + mount + quiet).c_str()) != 0)
    GTEST_SKIP() << "this user may not mount";
  folder_.Put("voll/Kundendb.dbf", "old");
  EXPECT_FALSE(files_.Write(Path("voll\\Kundendb.dbf"), std::string(200'000, 'x')));
  EXPECT_EQ(folder_.Content("voll/Kundendb.dbf"), "old");
  EXPECT_TRUE(files_.Write(Path("voll\\Kundendb.dbf"), "new")) << "the space of the failed save is free again";
  EXPECT_EQ(folder_.Content("voll/Kundendb.dbf"), "new");
  EXPECT_EQ(std::distance(fs::directory_iterator(mount), fs::directory_iterator()), 1);
  EXPECT_EQ(std::system(("umount " + mount + quiet).c_str()), 0);
}

TEST_F(FileSystemTest, WriteTakesItsStepsInOrder) {
  FaultyDisk disk;
  const FileSystemObject files(disk);
  folder_.Put("config.txt", "old");
  ASSERT_TRUE(files.Write(Path("config.txt"), "new"));
  EXPECT_EQ(disk.Calls(), (std::vector<Call>{Call::Create, Call::CopyPermissions, Call::Write, Call::Sync, Call::Close,
                                             Call::Rename, Call::SyncFolder}));
}

TEST_F(FileSystemTest, WriteGoesOnBehindShortWrites) {
  FaultyDisk disk;
  disk.LimitWrites(7);
  const FileSystemObject files(disk);
  const std::string text(1000, 'x');
  ASSERT_TRUE(files.Write(Path("config.txt"), text));
  EXPECT_EQ(folder_.Content("config.txt"), text);
}

TEST_F(FileSystemTest, NameTakenByAnotherWorkstationIsNotUsed) {
  FaultyDisk disk;
  disk.Arm({testing_support::FaultKind::Once, 0, EEXIST});
  const FileSystemObject files(disk);
  EXPECT_TRUE(files.Write(Path("config.txt"), "new"));
  EXPECT_EQ(folder_.Content("config.txt"), "new");
}

TEST_F(FileSystemTest, RenameIsTriedAgainButNotForever) {
  FaultyDisk disk;
  const FileSystemObject files(disk);
  folder_.Put("config.txt", "old");
  disk.Arm({testing_support::FaultKind::Once, 5, EBUSY});
  EXPECT_TRUE(files.Write(Path("config.txt"), "new"));
  EXPECT_EQ(disk.Pauses(), 1);
  disk.Arm({testing_support::FaultKind::ForGood, 5, EBUSY});
  EXPECT_FALSE(files.Write(Path("config.txt"), "newer"));
  EXPECT_EQ(disk.Pauses(), 1 + 4);
  EXPECT_EQ(folder_.Content("config.txt"), "new");
}

TEST_F(FileSystemTest, LeftoversOfACrashAreCleanedAndNothingElse) {
  folder_.Put(".kontorwerk-abc123.part", "half");
  folder_.Put(".kontorwerk-notes.txt", "mine");
  folder_.Put("x.part", "mine");
  folder_.Put("Kundendb.dbf", "table");
  EXPECT_EQ(files_.List(folder_.DataPath()).size(), 3U) << "an unfinished write is not listed";
  files_.RemoveLeftovers(folder_.DataPath());
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{".kontorwerk-notes.txt", "Kundendb.dbf", "x.part"}));
  files_.RemoveLeftovers(Path("kein\\"));
}

TEST_F(FileSystemTest, ExistsSizeAndIsFolder) {
  folder_.Put("Kundendb.dbf", "12345");
  fs::create_directory(folder_.Path() / "Belege");
  EXPECT_TRUE(files_.Exists(Path("KUNDENDB.dbf")));
  EXPECT_TRUE(files_.Exists(Path("Belege")));
  EXPECT_FALSE(files_.Exists(Path("Artikeldb.dbf")));
  EXPECT_TRUE(files_.IsFolder(Path("BELEGE\\")));
  EXPECT_FALSE(files_.IsFolder(Path("Kundendb.dbf")));
  EXPECT_EQ(files_.Size(Path("kundendb.DBF")), 5U);
  EXPECT_FALSE(files_.Size(Path("Belege")));
  EXPECT_FALSE(files_.Size(Path("Artikeldb.dbf")));
}

TEST_F(FileSystemTest, ListIsInOrderOfTheNamesWithSizes) {
  folder_.Put("b.txt", "22");
  folder_.Put("A.txt", "1");
  folder_.Put("C.txt", "333");
  folder_.Put(ToUtf8("ä.txt"_t), "");
  folder_.Put("\xCE\xA9.txt", "no Windows-1252 name");
  fs::create_directory(folder_.Path() / "Belege");
  const std::vector<FolderEntry> entries = files_.List(folder_.DataPath());
  std::vector<std::string> names;
  for (const FolderEntry& entry : entries) names.push_back(entry.name);
  EXPECT_EQ(names, (std::vector<std::string>{"A.txt", "b.txt", "Belege", "C.txt", std::string("ä.txt"_t)}));
  EXPECT_EQ(entries[1].size, 2U);
  EXPECT_FALSE(entries[1].isFolder);
  EXPECT_TRUE(entries[2].isFolder);
}

TEST_F(FileSystemTest, ListOfAMissingFolderIsEmpty) { EXPECT_TRUE(files_.List(Path("kein\\")).empty()); }

TEST_F(FileSystemTest, CreateFolderIsTrueIfTheFolderIsThereAfterwards) {
  EXPECT_TRUE(files_.CreateFolder(Path("Belege\\")));
  EXPECT_TRUE(files_.CreateFolder(Path("BELEGE")));
  EXPECT_FALSE(files_.CreateFolder(Path("eins\\zwei"))) << "one level at a time";
  folder_.Put("datei", "x");
  EXPECT_FALSE(files_.CreateFolder(Path("datei")));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"Belege", "datei"}));
}

TEST_F(FileSystemTest, CopyMakesAWholeCopy) {
  folder_.Put("Kundendb.dbf", "table");
  folder_.Put("Ziel.dbf", "older and longer");
  EXPECT_TRUE(files_.Copy(Path("kundendb.dbf"), Path("Ziel.dbf")));
  EXPECT_EQ(folder_.Content("Ziel.dbf"), "table");
  EXPECT_TRUE(files_.Copy(Path("Ziel.dbf"), Path("Ziel.dbf")));
  EXPECT_EQ(folder_.Content("Ziel.dbf"), "table");
}

TEST_F(FileSystemTest, CopyOfWhatCannotBeReadLeavesTheTarget) {
  folder_.Put("Ziel.dbf", "older");
  fs::create_directory(folder_.Path() / "Ordner");
  EXPECT_FALSE(files_.Copy(Path("fehlt.dbf"), Path("Ziel.dbf")));
  EXPECT_FALSE(files_.Copy(Path("Ordner"), Path("Ziel.dbf")));
  EXPECT_EQ(folder_.Content("Ziel.dbf"), "older");
}

TEST_F(FileSystemTest, RemoveTakesFilesOnly) {
  folder_.Put("Kundendb.dbf", "x");
  fs::create_directory(folder_.Path() / "Belege");
  EXPECT_TRUE(files_.Remove(Path("KUNDENDB.DBF")));
  EXPECT_FALSE(files_.Remove(Path("Kundendb.dbf")));
  EXPECT_FALSE(files_.Remove(Path("Belege")));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"Belege"}));
}

TEST_F(FileSystemTest, RenameOverwritesNothing) {
  folder_.Put("alt.txt", "1");
  folder_.Put("da.txt", "2");
  EXPECT_FALSE(files_.Rename(Path("alt.txt"), Path("DA.txt")));
  EXPECT_FALSE(files_.Rename(Path("fehlt.txt"), Path("neu.txt")));
  EXPECT_TRUE(files_.Rename(Path("ALT.txt"), Path("neu.txt")));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"da.txt", "neu.txt"}));
  EXPECT_EQ(folder_.Content("da.txt"), "2");
}

TEST_F(FileSystemTest, RenameCanChangeTheCaseOfAName) {
  folder_.Put("kundendb.dbf", "x");
  EXPECT_TRUE(files_.Rename(Path("kundendb.dbf"), Path("Kundendb.dbf")));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"Kundendb.dbf"}));
}

class ListFolderTest : public FileSystemTest {
 protected:
  [[nodiscard]] std::uint64_t Sum(std::string_view patterns) const {
    return ListFolder(files_, folder_.DataPath(), patterns);
  }

  void SetUp() override {
    folder_.Put("Kundendb.dbf", std::string(1, 'x'));
    folder_.Put("TERMINDB.DBF", std::string(10, 'x'));
    folder_.Put("config.txt", std::string(100, 'x'));
    folder_.Put("Bild.jpeg", std::string(1000, 'x'));
    folder_.Put("Film.mpeg", std::string(10000, 'x'));
    fs::create_directory(folder_.Path() / "Ordner.dbf");
  }
};

TEST_F(ListFolderTest, CountsEachTableAndTheNamedFile) { EXPECT_EQ(Sum("*.dbf,config.txt"), 111U); }

TEST_F(ListFolderTest, CaseOfMaskAndNameDoesNotMatter) {
  EXPECT_EQ(Sum("*.DBF"), 11U);
  EXPECT_EQ(Sum("*.dbf"), 11U);
  EXPECT_EQ(Sum("CONFIG.TXT"), 100U);
}

TEST_F(ListFolderTest, MaskComparesTheLastThreeCharactersOnly) { EXPECT_EQ(Sum("*.jpeg"), 11000U); }

TEST_F(ListFolderTest, FileThatFitsTwoPatternsCountsTwice) { EXPECT_EQ(Sum("*.txt,config.txt"), 200U); }

TEST_F(ListFolderTest, NothingThatFitsIsZero) {
  EXPECT_EQ(Sum(""), 0U);
  EXPECT_EQ(Sum("*.grp,fehlt.txt"), 0U);
  EXPECT_EQ(Sum(" config.txt"), 0U) << "blanks belong to the name";
  EXPECT_EQ(Sum("*"), 0U);
}

TEST_F(ListFolderTest, FolderMustEndWithABackslash) {
  EXPECT_EQ(ListFolder(files_, folder_.Path().string(), "*.dbf"), 0U);
}

TEST_F(ListFolderTest, MissingFolderIsZero) { EXPECT_EQ(ListFolder(files_, Path("kein\\"), "*.dbf"), 0U); }

}  // namespace
}  // namespace kontorwerk
