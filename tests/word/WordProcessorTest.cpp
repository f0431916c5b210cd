// The operations of the word processor in the order in which the program calls them.
#include "platform/word/WordProcessor.h"

#include <gtest/gtest.h>

#include "store/Text.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk {
namespace {

using testing_support::TestFolder;

class RecordingOffice final : public TemplateFiller, public DocumentRenderer {
 public:
  FilledDocument Fill(std::string_view templateBytes, const FieldValues& values) override {
    ++fills;
    if (!error.empty()) return {{}, {}, error};
    const std::string* name = values.Find(TextArea::Body, "kdname");
    return {Concat("filled ", templateBytes.substr(0, 2), name == nullptr ? "" : *name), "%PDF filled", {}};
  }
  RenderedDocument Render(std::string_view document) override {
    ++renders;
    if (!error.empty()) return {{}, error};
    return {Concat("%PDF ", document), {}};
  }
  int fills = 0;
  int renders = 0;
  std::string error;
};

class RecordingPrinter final : public PrintSink {
 public:
  std::string Print(const PrintJob& job) override {
    jobs.push_back(Concat(job.printer, "|", std::to_string(job.copies), "|", job.title, "|", job.pdf));
    return error;
  }
  std::vector<std::string> jobs;
  std::string error;
};

class WordProcessorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_.Put("Vorlage.dot", "{\\rtf1 [KDName]{\\header [FA1]}{\\footer [FA1]}}");
    folder_.Put("Binär.dot", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 binary");
    std::filesystem::create_directory(folder_.Path() / "shown");
    std::filesystem::create_directory(folder_.Path() / "pdf");
    word_ = std::make_unique<WordProcessor>(
        WordProcessorParts{&files_, &office_, &office_, &printer_, folder_.DataPath("shown") + "\\",
                           folder_.DataPath("pdf") + "\\", [this](std::string_view path) {
                             opened_.emplace_back(path);
                             return canOpen_;
                           }});
  }
  void OpenAndFill(std::string_view name) {
    ASSERT_TRUE(word_->OpenTemplate(folder_.DataPath("Vorlage.dot"))) << word_->ErrorText();
    word_->SetField("KDName", name);
  }

  TestFolder folder_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  RecordingOffice office_;
  RecordingPrinter printer_;
  std::unique_ptr<WordProcessor> word_;
  std::vector<std::string> opened_;
  bool canOpen_ = true;
};

TEST_F(WordProcessorTest, ADocumentIsFilledAndSavedWithoutLibreOffice) {
  OpenAndFill("Meier");
  word_->SetField("FA1", "not here");
  word_->SetFieldArea2("FA1", "head");
  word_->SetFieldArea3("FA1", "foot");
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("RG0150-2026_Meier.doc")));
  EXPECT_EQ(folder_.Content("RG0150-2026_Meier.doc"), "{\\rtf1 Meier{\\header head}{\\footer foot}}");
  EXPECT_EQ(office_.fills + office_.renders, 0);
  EXPECT_EQ(word_->ErrorText(), "");
}

TEST_F(WordProcessorTest, SavingTwiceGivesTheSameFile) {
  OpenAndFill("Meier");
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  const auto first = folder_.Content("a.doc");
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_EQ(folder_.Content("a.doc"), first);
}

TEST_F(WordProcessorTest, EachTemplateBeginsWithoutTheValuesOfTheOneBefore) {
  OpenAndFill("Meier");
  ASSERT_TRUE(word_->OpenTemplate(folder_.DataPath("Vorlage.dot")));
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_EQ(folder_.Content("a.doc"), "{\\rtf1 [KDName]{\\header [FA1]}{\\footer [FA1]}}");
}

TEST_F(WordProcessorTest, AMissingTemplateIsNotOpened) {
  EXPECT_FALSE(word_->OpenTemplate(folder_.DataPath("Fehlt.dot")));
  EXPECT_NE(word_->ErrorText().find("wurde nicht gefunden"), std::string::npos);
  EXPECT_FALSE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_EQ(word_->ErrorText(), "Es ist kein Dokument geöffnet."_t);
}

TEST_F(WordProcessorTest, AFileThatIsNoDocumentIsNotOpened) {
  folder_.Put("Text.dot", "just text");
  EXPECT_FALSE(word_->OpenTemplate(folder_.DataPath("Text.dot")));
  EXPECT_FALSE(word_->OpenTemplate(folder_.DataPath("shown"))) << "a folder";
}

TEST_F(WordProcessorTest, NothingOpenMakesEveryStepFail) {
  word_->SetField("KDName", "x");
  EXPECT_FALSE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_FALSE(word_->PrintDocument("TEST", 1, "x"));
  EXPECT_FALSE(word_->ShowDocument());
  word_->CloseDocument();
  word_->Reset();
  EXPECT_TRUE(printer_.jobs.empty());
  EXPECT_TRUE(opened_.empty());
}

TEST_F(WordProcessorTest, ForbiddenCharactersInTheNameMakeTheSaveFailEverywhere) {
  OpenAndFill("Meier");
  const auto before = folder_.Names();
  for (const char c : std::string_view(":*?\"<>|\n"))
    EXPECT_FALSE(word_->SaveDocument(folder_.DataPath(Concat("RG_A", std::string(1, c), "B.doc")))) << c;
  EXPECT_FALSE(word_->SaveDocument(folder_.DataPath("")));
  EXPECT_EQ(folder_.Names(), before);
  EXPECT_NE(word_->ErrorText(), "");
}

TEST_F(WordProcessorTest, ASlashInTheNameIsCaughtBeforeItIsJoined) {
  EXPECT_FALSE(ValidFileName("RG0150-2026_Meier/Sohn.doc"));
  EXPECT_FALSE(ValidFileName("RG0150-2026_Meier\\Sohn.doc"));
  EXPECT_FALSE(ValidFileName(""));
  EXPECT_TRUE(ValidFileName("RG0150-2026_Müller & Söhne (2).doc"_t));
}

TEST_F(WordProcessorTest, ASaveIntoAMissingFolderFailsAndTheDocumentStaysOpen) {
  OpenAndFill("Meier");
  EXPECT_FALSE(word_->SaveDocument(folder_.DataPath("missing\\a.doc")));
  EXPECT_NE(word_->ErrorText(), "");
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_EQ(word_->ErrorText(), "");
}

TEST_F(WordProcessorTest, PrintingPassesPrinterCopiesAndTitleAndSetsThePagesOnce) {
  OpenAndFill("Meier");
  EXPECT_TRUE(word_->PrintDocument("Kyocera", 3, "Rechnung"));
  EXPECT_TRUE(word_->PrintDocument("Kyocera", 0, "Rechnung"));
  ASSERT_EQ(printer_.jobs.size(), 2U);
  EXPECT_TRUE(printer_.jobs[0].starts_with("Kyocera|3|Rechnung|%PDF {\\rtf1 Meier"));
  EXPECT_TRUE(printer_.jobs[1].starts_with("Kyocera|1|Rechnung|"));
  EXPECT_EQ(office_.renders, 1);
  word_->SetField("KDName", "Schulze");
  EXPECT_TRUE(word_->PrintDocument("Kyocera", 1, "Rechnung"));
  EXPECT_NE(printer_.jobs[2].find("Schulze"), std::string::npos);
}

TEST_F(WordProcessorTest, APrintThatFailsSaysWhy) {
  OpenAndFill("Meier");
  printer_.error = "Papierstau";
  EXPECT_FALSE(word_->PrintDocument("Kyocera", 1, "x"));
  EXPECT_EQ(word_->ErrorText(), "Papierstau");
  office_.error = "LibreOffice fehlt";
  word_->SetField("KDName", "Schulze");
  EXPECT_FALSE(word_->PrintDocument("Kyocera", 1, "x"));
  EXPECT_EQ(word_->ErrorText(), "LibreOffice fehlt");
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc"))) << "saving needs no LibreOffice";
}

TEST_F(WordProcessorTest, ABinaryTemplateIsFilledOnceByLibreOffice) {
  ASSERT_TRUE(word_->OpenTemplate(folder_.DataPath("Bin\xE4r.dot"))) << word_->ErrorText();
  word_->SetField("KDName", "Meier");
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_TRUE(word_->PrintDocument("TEST", 1, "x"));
  EXPECT_EQ(folder_.Content("a.doc"), "filled \xD0\xCFMeier");
  EXPECT_EQ(office_.fills, 1);
  EXPECT_EQ(office_.renders, 0) << "the filler has made the pages already";
  EXPECT_EQ(printer_.jobs, std::vector<std::string>{"TEST|1|x|%PDF filled"});
}

TEST_F(WordProcessorTest, ABinaryTemplateWithoutLibreOfficeCannotBeSaved) {
  office_.error = "LibreOffice fehlt";
  ASSERT_TRUE(word_->OpenTemplate(folder_.DataPath("Bin\xE4r.dot")));
  EXPECT_FALSE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_EQ(word_->ErrorText(), "LibreOffice fehlt");
  EXPECT_FALSE(folder_.Content("a.doc").has_value());
}

TEST_F(WordProcessorTest, APdfFileLiesBesideTheSavedDocument) {
  OpenAndFill("Meier");
  ASSERT_TRUE(word_->SaveDocument(folder_.DataPath("RG0150-2026_Meier.doc")));
  EXPECT_TRUE(word_->PrintDocument(kPdfFilePrinter, 2, "another title"));
  EXPECT_TRUE(word_->PrintDocument(kPdfFilePrinter, 2, "another title"));
  EXPECT_TRUE(folder_.Content("RG0150-2026_Meier.pdf").value_or("").starts_with("%PDF "));
  EXPECT_TRUE(printer_.jobs.empty());
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Path() / "pdf"));
}

TEST_F(WordProcessorTest, EachLetterOfASeriesGetsAPdfFileOfItsOwn) {
  for (const std::string_view name : {"Meier", "Schulze"}) {
    OpenAndFill(name);
    EXPECT_TRUE(word_->PrintDocument(kPdfFilePrinter, 1, "Serienbrief"));
    EXPECT_TRUE(word_->PrintDocument(kPdfFilePrinter, 1, "Serienbrief"));
    word_->CloseDocument();
  }
  EXPECT_NE(folder_.Content("pdf/Serienbrief.pdf").value_or("").find("Meier"), std::string::npos);
  EXPECT_NE(folder_.Content("pdf/Serienbrief (2).pdf").value_or("").find("Schulze"), std::string::npos);
  EXPECT_FALSE(folder_.Content("pdf/Serienbrief (3).pdf").has_value());
}

TEST_F(WordProcessorTest, ASavedDocumentIsShownFromItsFile) {
  OpenAndFill("Meier");
  ASSERT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  EXPECT_TRUE(word_->ShowDocument());
  EXPECT_EQ(opened_, std::vector<std::string>{folder_.DataPath("a.doc")});
}

TEST_F(WordProcessorTest, AnUntouchedTemplateIsShownItself) {
  ASSERT_TRUE(word_->OpenTemplate(folder_.DataPath("Vorlage.dot")));
  EXPECT_TRUE(word_->ShowDocument());
  EXPECT_EQ(opened_, std::vector<std::string>{folder_.DataPath("Vorlage.dot")});
}

TEST_F(WordProcessorTest, AnUnsavedDocumentIsShownFromAFileOfItsOwnThatStays) {
  for (const std::string_view name : {"Meier", "Schulze"}) {
    OpenAndFill(name);
    EXPECT_TRUE(word_->ShowDocument());
    word_->CloseDocument();
    word_->Reset();
  }
  EXPECT_NE(folder_.Content("shown/Vorlage.doc").value_or("").find("Meier"), std::string::npos);
  EXPECT_NE(folder_.Content("shown/Vorlage (2).doc").value_or("").find("Schulze"), std::string::npos);
  EXPECT_EQ(opened_, (std::vector<std::string>{folder_.DataPath("shown\\Vorlage.doc"),
                                               folder_.DataPath("shown\\Vorlage (2).doc")}));
}

TEST_F(WordProcessorTest, AChangeAfterSavingIsShownFromANewFile) {
  OpenAndFill("Meier");
  ASSERT_TRUE(word_->SaveDocument(folder_.DataPath("a.doc")));
  word_->SetField("KDName", "Schulze");
  EXPECT_TRUE(word_->ShowDocument());
  EXPECT_EQ(opened_, std::vector<std::string>{folder_.DataPath("shown\\Vorlage.doc")});
}

TEST_F(WordProcessorTest, ADocumentThatCannotBeShownSaysSo) {
  canOpen_ = false;
  ASSERT_TRUE(word_->OpenTemplate(folder_.DataPath("Vorlage.dot")));
  EXPECT_FALSE(word_->ShowDocument());
  EXPECT_NE(word_->ErrorText().find("konnte nicht angezeigt werden"), std::string::npos);
}

TEST_F(WordProcessorTest, TheInstalledOneShowsFromTheUsersCacheFolder) {
  const std::string cache = (folder_.Path() / "cache").string();
  const auto installed =
      MakeWordProcessor(files_, cache, folder_.DataPath("pdf") + "\\", [this](std::string_view path) {
        opened_.emplace_back(path);
        return true;
      });
  ASSERT_TRUE(installed->OpenTemplate(folder_.DataPath("Vorlage.dot")));
  installed->SetField("KDName", "Meier");
  EXPECT_TRUE(installed->ShowDocument()) << installed->ErrorText();
  EXPECT_EQ(opened_, std::vector<std::string>{cache + "/dokumente/Vorlage.doc"});
  EXPECT_TRUE(folder_.Content("cache/dokumente/Vorlage.doc").value_or("").find("Meier") != std::string::npos);
}

}  // namespace
}  // namespace kontorwerk
