// The shipped templates: every name is there, holds the marks that the program fills and no others, and each sets one
// page even when full.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "platform/word/Office.h"
#include "platform/word/RtfTemplate.h"
#include "store/CodePage.h"
#include "store/Text.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk {
namespace {

using testing_support::PagesOfPdf;
using testing_support::Template;
using testing_support::TestFolder;
using testing_support::TextOfPdf;

struct Expectation {
  std::string file;   // UTF-8
  std::string marks;  // separated by blanks, "X1-17" for a series
};

std::set<std::string> Marks(std::string_view list) {
  std::set<std::string> names;
  for (const std::string_view entry : Split(list, " ")) {
    const std::size_t dash = entry.find('-');
    if (dash == std::string_view::npos) {
      names.emplace(entry);
      continue;
    }
    const std::size_t digit = entry.find_first_of("0123456789");
    const int last = std::stoi(std::string(entry.substr(dash + 1)));
    for (int number = 1; number <= last; ++number) names.insert(Concat(entry.substr(0, digit), std::to_string(number)));
  }
  names.erase("");
  return names;
}

const std::string_view kAddress = "Anrede KDName Ansprechpartner Straße PLZ Wohnort "_t;
const std::string_view kRows = "L1-17 A1-17 S1-17 B1-17 E1-17 G1-17 Gesamt ";
const std::string_view kTotals = "MWST MWST2 Betrag Mehrwertsteuer Mehrwertsteuer2 Zahlungsweise Text1 Text2 ";
const std::string_view kHead =
    "Absenderadresse KDNr Datum UnsereZeichen IhreZeichen Seitenangabe Übertrag Übertragtext "_t;
const std::string_view kForms =
    "Vorwahl1 Tel Vorwahl2 Fax Vorwahl3 Mobil email Homepage KDNr Anrede KDName Strasse PLZ Wohnort Notizen ";

std::vector<Expectation> DocumentTemplates() {
  struct Kind {
    std::string file, number;
  };
  std::vector<Expectation> all;
  for (const Kind& kind :
       {Kind{"Belegvorlage", "Belegart Belegnummer LieferscheinNr"},
        Kind{"Rechnungsvorlage", "Rechnungsnummer LieferscheinNr"}, Kind{"Angebotsvorlage", "Angebotsnummer"},
        Kind{"Lieferscheinvorlage", "Lieferscheinnummer"}, Kind{"Gutschriftvorlage", "Gutschriftnummer"}}) {
    const std::string common = Concat(kAddress, kHead, kRows, kind.number, " ");
    all.push_back({kind.file + ".dot", Concat(common, kTotals)});
    all.push_back({kind.file + "_long1.dot", common});
    all.push_back({kind.file + "_long2.dot", common});
    all.push_back({kind.file + "_long3.dot", Concat(common, kTotals)});
  }
  return all;
}

std::vector<Expectation> LetterTemplates() {
  const std::string letter = Concat(kAddress, "Absenderadresse Datum Nachname FA1 ");
  const std::string dunning =
      Concat(letter, "KDNr RechnungsNr Rechnungsdatum Rechnungsbetrag Summebezahlt Restbetrag D1-12 B1-12 G1-12 ");
  const std::string order = Concat(kAddress,
                                   "Absenderadresse Datum KDNr Auftragsnummer ZuletztVon AuftragsArt Kurzbeschreibung "
                                   "Termin1 Termin2 Termin3 ");
  return {
      {"Briefvorlage.dot", letter},
      {"Mahnung1vorlage.dot", dunning},
      {"Mahnung2vorlage.dot", Concat(dunning, "Mahngebühr Gesamtforderung Mahndatum1"_t)},
      {"Mahnung3vorlage.dot", Concat(dunning, "Mahngebühr Gesamtforderung Mahndatum1 Mahndatum2 Mahndatum3"_t)},
      {"Auftragsbestätigungvorlage.dot", Concat(order, "Nachname FA1 ErfasstVon ErfasstAm ZuletztAm Auftragstatus")},
      {"Leistungsnachweisvorlage.dot", order}};
}

std::vector<Expectation> FormTemplates() {
  std::string document = Concat(kAddress, kHead, kRows, kTotals, "Belegnummer LieferscheinNr Leistungszeitpunkt");
  document = Replace(Replace(document, "Straße"_t, "Strasse"), "Übertrag"_t, "Uebertrag");
  return {{"Belegvorlage.rtf", document},
          {"Adressdaten.rtf", Concat(kForms,
                                     "Kundeninformationen Kunde Kunden Ansprechpartner1-5 DW1-5 APEmail1-5 "
                                     "Erfassdatum UKDNr ZugName ZugPW ZZiel KTO BLZ Bank")},
          {"AuftragsDokument.rtf", Concat(kForms,
                                          "Auftragsnummer Ansprechpartner Auftragsart Sonstiges Auftragsbeschreibung "
                                          "Termin1 Termin2 Termin3 Fertigstellung Status Lagerplatz Auftragerfasser "
                                          "erfassDatum Zuletztvon ZuletztDatum")},
          {"Artikeldaten.rtf",
           "Artikeltyp ArtNr Bezeichnung Netto Brutto Beschreibung1-4 Lagerort Lagerplatz SerNr IMEI EAN Notizen "
           "Mengeneinheit Verpackungseinheit Gewicht Groesse Hersteller Lagerbestand Mindestmenge Sollmenge "
           "Artikelart Lieferant1-3 BestNr1-3 EK1-3 Erfassdatum Status"}};
}

std::vector<Expectation> AllTemplates() {
  std::vector<Expectation> all = DocumentTemplates();
  for (const auto& more : {LetterTemplates(), FormTemplates()}) all.insert(all.end(), more.begin(), more.end());
  return all;
}

std::set<std::string> MarksIn(const RtfTemplate& form, TextArea area) {
  const auto names = form.Names(area);
  return {names.begin(), names.end()};
}

// A value for every mark of the template: texts as long as they come in practice.
FieldValues FullValues(const RtfTemplate& form) {
  FieldValues values;
  for (const TextArea area : {TextArea::Body, TextArea::Header, TextArea::Footer})
    for (const std::string& name : form.Names(area)) {
      const bool isRow = name.size() <= 3 && name.find_first_of("123456789") == 1;
      std::string text = isRow ? std::string("12345,67") : Concat("<", name, ">");
      if (isRow && name[0] == 'B') text = "Backofen Edelstahl, Pyrolyse, 71 Liter, 12 Stk.";
      if (isRow && name[0] == 'L') text = "#12345";
      if (isRow && name[0] == 'S') text = "125,5";
      if (name == "LieferscheinNr")
        text = "Liefer-/Leistungszeitpunkt entspricht dem Rechnungsdatum (wenn nicht gesondert angegeben)";
      values.Set(area, name, text);
    }
  return values;
}

TEST(DefaultTemplates, EveryFileOfTheFolderIsKnownAndEveryKnownFileIsThere) {
  std::set<std::string> known;
  for (const Expectation& expected : AllTemplates()) known.insert(expected.file);
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(testing_support::TemplatesFolder()))
    found.insert(entry.path().filename().string());
  EXPECT_EQ(found, known);
  EXPECT_EQ(known.size(), 30U);
}

TEST(DefaultTemplates, BodiesHoldExactlyTheMarksThatTheProgramFills) {
  for (const Expectation& expected : AllTemplates()) {
    const RtfTemplate form(Template(expected.file));
    EXPECT_EQ(MarksIn(form, TextArea::Body), Marks(expected.marks)) << expected.file;
  }
}

TEST(DefaultTemplates, TheSenderStandsInThePageHeaderAndFooterOfEveryLetter) {
  for (const Expectation& expected : AllTemplates()) {
    const RtfTemplate form(Template(expected.file));
    const bool isForm = expected.marks.find("Vorwahl1") != std::string::npos || expected.file == "Artikeldaten.rtf";
    EXPECT_EQ(MarksIn(form, TextArea::Header), isForm ? std::set<std::string>() : Marks("FA1-3")) << expected.file;
    EXPECT_EQ(MarksIn(form, TextArea::Footer),
              isForm ? std::set<std::string>() : Marks("FA1-6 FB1-3 Steuernummer USTIDNR"))
        << expected.file;
  }
}

TEST(DefaultTemplates, NoMarkIsLeftOnceAllAreFilled) {
  for (const Expectation& expected : AllTemplates()) {
    const RtfTemplate form(Template(expected.file));
    const RtfTemplate filled(form.Fill(FullValues(form)));
    for (const TextArea area : {TextArea::Body, TextArea::Header, TextArea::Footer})
      EXPECT_TRUE(filled.Names(area).empty()) << expected.file;
  }
}

TEST(DefaultTemplates, EachSetsOnePageWithEveryValueOnIt) {
  NEEDS_PROGRAM("soffice");
  NEEDS_PROGRAM("pdftotext");
  const TestFolder folder;
  Office office({.cacheFolder = folder.Path().string() + "/cache"});
  for (const char* name : {"Belegvorlage.dot", "Rechnungsvorlage_long1.dot", "Lieferscheinvorlage_long3.dot",
                           "Mahnung3vorlage.dot", "Leistungsnachweisvorlage.dot", "AuftragsDokument.rtf"}) {
    const RtfTemplate form(Template(name));
    const RenderedDocument rendered = office.Render(form.Fill(FullValues(form)));
    ASSERT_EQ(rendered.error, "") << name;
    const std::string path = (folder.Path() / "page.pdf").string();
    ASSERT_TRUE(WriteWholeFile(path, rendered.pdf));
    EXPECT_EQ(PagesOfPdf(path), 1) << name;
    std::string text = TextOfPdf(path);
    std::erase_if(text, [](char c) { return c == '\n' || c == ' '; });  // a long name may be broken in a narrow cell
    for (const std::string& mark : form.Names(TextArea::Body)) {
      if (mark.size() <= 3 || mark == "LieferscheinNr") continue;
      EXPECT_NE(text.find(ToUtf8(Concat("<", mark, ">"))), std::string::npos) << name << " " << ToUtf8(mark);
    }
  }
}

}  // namespace
}  // namespace kontorwerk
