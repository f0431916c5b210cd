// LibreOffice as a tool: real templates through the real program where it is installed, and programs in its place
// that hang, fail or are missing.
#include "platform/word/Office.h"

#include <gtest/gtest.h>

#include <thread>

#include "platform/word/RtfTemplate.h"
#include "store/CodePage.h"
#include "store/Text.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk {
namespace {

using testing_support::Script;
using testing_support::TestFolder;
using testing_support::TextOfPdf;

// A template with marks everywhere: header, footer with a table, a frame, a table, a mark in two formats.
constexpr std::string_view kEverywhere =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0 Arial;}}\\paperw11906\\paperh16838\n"
    "{\\header \\pard head [FA1] [KDName]\\par}"
    "{\\footer \\trowd\\cellx4000\\cellx8000\\pard\\intbl foot [FA1]\\cell [Stra\\'dfe]\\cell\\row\\pard\\par}\n"
    "\\pard\\pvpg\\phpg\\posx1418\\posy2551\\absw4535\\absh-1500 frame [KDName]\\par\n"
    "\\pard Body [KDName] <<Datum>> {\\b [Stra}\\'dfe] [Offen]\\par\n"
    "\\trowd\\cellx4000\\cellx8000\\pard\\intbl cell [L1]\\cell [B1]\\cell\\row\\pard [Text]\\par}";

FieldValues SomeValues() {
  FieldValues values;
  values.Set(TextArea::Body, "KDName", "Müller [Datum] {x} \\ & Söhne"_t);
  values.Set(TextArea::Body, "Datum", "20.11.2026");
  values.Set(TextArea::Body, "Straße"_t, "Weg 1");
  values.Set(TextArea::Body, "L1", "#00001");
  values.Set(TextArea::Body, "B1", "Küche für 5 €"_t);
  values.Set(TextArea::Body, "Text", "eins\r\nzwei");
  values.Set(TextArea::Header, "FA1", "Kopffirma");
  values.Set(TextArea::Footer, "FA1", "Fußfirma"_t);
  return values;
}

class OfficeTest : public ::testing::Test {
 protected:
  std::string CacheFolder() const { return folder_.Path().string() + "/Büro Cache"; }
  std::string PdfText(const std::string& pdf) const {
    const std::string path = (folder_.Path() / "out.pdf").string();
    EXPECT_TRUE(WriteWholeFile(path, pdf));
    return TextOfPdf(path);
  }
  // The rich text turned into another format by LibreOffice itself; empty if that failed.
  std::string Converted(std::string_view rtf, const std::string& filter, const std::string& ending) const {
    folder_.Put("source.rtf", rtf);
    ProcessCall call;
    call.arguments = {FindProgram("soffice"),
                      "-env:UserInstallation=file://" + folder_.Path().string() + "/maker",
                      "--headless",
                      "--norestore",
                      "--convert-to",
                      ending + ":" + filter,
                      "--outdir",
                      folder_.Path().string(),
                      (folder_.Path() / "source.rtf").string()};
    call.limit = std::chrono::seconds(60);
    (void)RunProcess(call);
    return folder_.Content("source." + ending).value_or("");
  }
  // What stays in the cache folder behind a job.
  std::vector<std::string> CacheNames() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(CacheFolder()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  TestFolder folder_;
};

TEST_F(OfficeTest, RichTextIsSetAsPdf) {
  NEEDS_PROGRAM("soffice");
  NEEDS_PROGRAM("pdftotext");
  Office office({.cacheFolder = CacheFolder()});
  const RenderedDocument rendered = office.Render(RtfTemplate(std::string(kEverywhere)).Fill(SomeValues()));
  ASSERT_EQ(rendered.error, "");
  const std::string text = PdfText(rendered.pdf);
  for (const char* part :
       {"head Kopffirma [KDName]", "foot Fußfirma", "frame Müller [Datum] {x} \\ & Söhne",
        "Body Müller [Datum] {x} \\ & Söhne 20.11.2026 Weg 1 [Offen]", "Küche für 5 €", "eins\nzwei"})
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
  EXPECT_EQ(CacheNames(), (std::vector<std::string>{"profile", "profile.lock"}));
}

TEST_F(OfficeTest, TemplatesOfOtherFormatsAreFilledInEveryArea) {
  NEEDS_PROGRAM("soffice");
  NEEDS_PROGRAM("pdftotext");
  Office office({.cacheFolder = CacheFolder()});
  for (const auto& [filter, ending] : {std::pair<std::string, std::string>{"MS Word 97", "doc"},
                                       {"MS Word 2007 XML Template", "dotx"},
                                       {"writer8_template", "ott"}}) {
    const std::string form = Converted(kEverywhere, filter, ending);
    ASSERT_FALSE(form.empty()) << ending;
    ASSERT_EQ(FormatOf(form), ending == "doc" ? DocumentFormat::WordBinary : DocumentFormat::Package);
    const FilledDocument filled = office.Fill(form, SomeValues());
    ASSERT_EQ(filled.error, "") << ending;
    EXPECT_EQ(FormatOf(filled.document), DocumentFormat::WordBinary);
    for (const std::string& pdf : {filled.pdf, office.Render(filled.document).pdf}) {
      const std::string text = PdfText(pdf);
      for (const char* part :
           {"head Kopffirma [KDName]", "foot Fußfirma", "frame Müller [Datum] {x} \\ & Söhne",
            "Body Müller [Datum] {x} \\ & Söhne 20.11.2026 Weg 1 [Offen]", "#00001", "Küche für 5 €", "eins\nzwei"})
        EXPECT_NE(text.find(part), std::string::npos) << ending << ": " << part << " in " << text;
      EXPECT_EQ(text.find("[L1]"), std::string::npos);
    }
  }
  EXPECT_EQ(CacheNames(), (std::vector<std::string>{"profile", "profile.lock"}));
}

TEST_F(OfficeTest, SeveralAtOnceDoNotMeet) {
  NEEDS_PROGRAM("soffice");
  std::vector<std::string> errors(3, "not run");
  {
    std::vector<std::jthread> threads;
    for (std::string& error : errors)
      threads.emplace_back(
          [this, &error] { error = Office({.cacheFolder = CacheFolder()}).Render(kEverywhere).error; });
  }
  EXPECT_EQ(errors, std::vector<std::string>(3));
}

TEST_F(OfficeTest, ABrokenDocumentIsAnErrorAndNotAPage) {
  NEEDS_PROGRAM("soffice");
  Office office({.cacheFolder = CacheFolder()});
  const std::string broken = "PK\x03\x04 this is no archive";
  EXPECT_NE(office.Render(broken).error, "");
  EXPECT_NE(office.Fill(broken, SomeValues()).error, "");
  EXPECT_EQ(CacheNames(), (std::vector<std::string>{"profile", "profile.lock"}));
}

TEST_F(OfficeTest, AnUnknownFormatNeedsNoLibreOfficeToBeRefused) {
  Office office({.cacheFolder = CacheFolder(), .program = "/nowhere/soffice"});
  EXPECT_NE(ToUtf8(office.Render("Random bytes").error).find("weder ein Word-Dokument"), std::string::npos);
}

TEST_F(OfficeTest, WithoutLibreOfficeTheUserIsToldWhatIsMissing) {
  Office office({.cacheFolder = CacheFolder(), .program = "/nowhere/soffice"});
  EXPECT_FALSE(office.IsInstalled());
  EXPECT_TRUE(office.Render(kEverywhere).error.starts_with("LibreOffice wurde nicht gefunden."));
  EXPECT_TRUE(office.Fill(kEverywhere, SomeValues()).error.starts_with("LibreOffice wurde nicht gefunden."));
  EXPECT_FALSE(office.Edit("/tmp/x.doc"));
}

TEST_F(OfficeTest, AHungLibreOfficeIsEndedInTime) {
  const std::string script = Script(folder_, "soffice", "while true; do sleep 1; done");
  Office office({.cacheFolder = CacheFolder(), .program = script, .limit = std::chrono::milliseconds(400)});
  const auto start = std::chrono::steady_clock::now();
  EXPECT_NE(office.Render(kEverywhere).error.find("nicht rechtzeitig"), std::string::npos);
  EXPECT_NE(office.Fill(kEverywhere, SomeValues()).error.find("nicht rechtzeitig"), std::string::npos);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(15));
  EXPECT_EQ(CacheNames(), std::vector<std::string>{"profile.lock"}) << "a job has left something";
}

TEST_F(OfficeTest, ALibreOfficeThatHangsOnlyInTheJobIsEndedInTimeToo) {
  // Makes a profile as the real one does, then hangs.
  const std::string script = Script(folder_, "soffice",
                                    "case \"$*\" in\n"
                                    "*--version*) echo 'LibreOffice 7.4.7.2 40';;\n"
                                    "*--terminate_after_init*) mkdir -p profile/user/basic/Standard;;\n"
                                    "*) while true; do sleep 1; done;;\n"
                                    "esac");
  Office office({.cacheFolder = CacheFolder(), .program = script, .limit = std::chrono::milliseconds(1000)});
  EXPECT_NE(office.Render(kEverywhere).error.find("nicht rechtzeitig"), std::string::npos);
  EXPECT_EQ(CacheNames(), (std::vector<std::string>{"profile", "profile.lock"}));
}

TEST_F(OfficeTest, ALibreOfficeThatDoesNothingIsAnError) {
  Office office({.cacheFolder = CacheFolder(), .program = Script(folder_, "soffice", "exit 0")});
  EXPECT_NE(office.Render(kEverywhere).error, "");
  EXPECT_NE(office.Fill(kEverywhere, SomeValues()).error, "");
}

TEST_F(OfficeTest, ACacheFolderThatCannotBeMadeIsAnError) {
  folder_.Put("file", "x");
  Office office(
      {.cacheFolder = (folder_.Path() / "file" / "cache").string(), .program = Script(folder_, "soffice", "exit 0")});
  EXPECT_NE(office.Render(kEverywhere).error, "");
  EXPECT_NE(office.Fill(kEverywhere, SomeValues()).error, "");
}

}  // namespace
}  // namespace kontorwerk
