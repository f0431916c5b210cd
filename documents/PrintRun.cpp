#include "documents/PrintRun.h"

#include <algorithm>
#include <string>

#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kOpening = "Vorlage öffnen"_t;
constexpr std::string_view kFilling = "Daten übernehmen"_t;

// One document with all that its pages have in common.
class PaperRun {
 public:
  PaperRun(const PaperDocument& document, const PrinterChoice& choice, WordXChange& word, const Settings& settings,
           const ShowStatus& showStatus)
      : document_(document),
        choice_(choice),
        word_(word),
        settings_(settings),
        showStatus_(showStatus),
        pages_(PageCount(document.storedRows)),
        collated_(settings.Sortieren && document.storedRows > kRowsPerPage) {}

  bool Run() {
    const int rounds = collated_ ? std::max(choice_.copies, 1) : 1;
    showStatus_(kOpening);
    for (int round = 0; round < rounds; ++round)
      if (!RunPages()) return false;
    showStatus_(Concat(Word(), " drucken - fertig!"));
    return true;
  }

 private:
  [[nodiscard]] std::string_view Word() const { return NamesOf(document_.kind).word; }

  bool RunPages() {
    PaperPage page{1, pages_, "0", "0"};
    for (; page.page <= pages_; ++page.page) {
      page.carryIn = page.carryOut;
      page.carryOut = CarryBehindPage(document_, page.page, page.carryIn);
      if (!Fill(page) || !Save(page.page) || !Print(page.page)) return false;
      word_.CloseDocument();
      word_.Reset();
    }
    return true;
  }

  bool Fill(const PaperPage& page) {
    const std::string name = TemplateName(document_, page.page, pages_, settings_.Einheitsbelege);
    if (!word_.OpenTemplate(Concat(settings_.DBPath, name))) return false;
    showStatus_(kFilling);
    for (const PaperField& field : PaperFields(document_, page, settings_)) {
      word_.SetField(field.name, field.text);
      if (field.areas == FieldAreas::Body) continue;
      word_.SetFieldArea2(field.name, field.textOutsideBody);
      word_.SetFieldArea3(field.name, field.textOutsideBody);
    }
    return true;
  }

  bool Save(int page) {
    showStatus_(Concat(Word(), " Seite ", std::to_string(page), " speichern..."));
    const std::string name = PaperFileName(document_, page);
    // A slash in the customer's name would lead into another folder.
    if (!ValidFileName(name)) return false;
    const bool isQuotation = document_.kind == DocumentKind::Quotation;
    const std::string path = Concat(isQuotation ? settings_.ABPath : settings_.RGPath, name);
    // Kept: word processors of old fail the first save of a fresh document now and then; the second result counts.
    (void)word_.SaveDocument(path);
    return word_.SaveDocument(path);
  }

  bool Print(int page) {
    showStatus_(Concat(Word(), " Seite ", std::to_string(page), " drucken..."));
    const std::string name = PaperFileName(document_, page);
    return word_.PrintDocument(choice_.printer, collated_ ? 1 : std::max(choice_.copies, 1), Left(name, Len(name) - 4));
  }

  const PaperDocument& document_;
  const PrinterChoice& choice_;
  WordXChange& word_;
  const Settings& settings_;
  const ShowStatus& showStatus_;
  int pages_;
  bool collated_;
};

}  // namespace

bool PrintPaper(const PaperDocument& document, const PrinterChoice& choice, WordXChange& word, const Settings& settings,
                const ShowStatus& showStatus) {
  return PaperRun(document, choice, word, settings, showStatus).Run();
}

std::string PrintFailureMessage(DocumentKind kind) {
  const bool isNote = kind == DocumentKind::DeliveryNote || kind == DocumentKind::CreditNote;
  return Concat("Fehler beim Versuch zu speichern!\r\n",
                "Bitte überprüfen Sie die Pfade für Angebote / Rechnungen unter Einstellungen!\r\n"_t,
                "Eventuell können auch Sonderzeichen beim Kundenname diesen Fehler verursachen!\r\n"_t,
                "Weitere Fehlerquelle könnte eine zu alte / neue Microsoft-Word Version sein.\r\n"_t,
                isNote ? "Druckvorgang abgebrochen!" : "Druckvorgang wurde abgebrochen!");
}

std::string_view PrintFailureStatus(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::DeliveryNote:
      return "Probleme beim Speichern des Lieferscheins! - Druckvorgang abgebrochen!";
    case DocumentKind::CreditNote:
      return "Probleme beim Speichern der Gutschrift! - Druckvorgang abgebrochen!";
    default:
      return "Druckvorgang abgebrochen - Probleme beim Speichern!";
  }
}

}  // namespace kontorwerk
