#include "documents/PrintFields.h"

#include <optional>
#include <utility>

#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kDeliveryIsInvoiceDate =
    "Liefer-/Leistungszeitpunkt entspricht dem Rechnungsdatum (wenn nicht gesondert angegeben)";

// Names of the fields that the two families of templates spell differently.
struct FieldNames {
  std::string_view street, carry, carryText;
};
constexpr FieldNames kWordNames = {"Straße"_t, "Übertrag"_t, "Übertragtext"_t};
constexpr FieldNames kRichTextNames = {"Strasse", "Uebertrag", "Uebertragtext"};

struct TemplateNames {
  std::string_view stem;         // of the template file
  std::string_view numberField;  // where each kind has templates of its own
};

TemplateNames TemplateNamesOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::DeliveryNote:
      return {"Lieferscheinvorlage", "Lieferscheinnummer"};
    case DocumentKind::Invoice:
      return {"Rechnungsvorlage", "Rechnungsnummer"};
    case DocumentKind::Quotation:
      return {"Angebotsvorlage", "Angebotsnummer"};
    case DocumentKind::CreditNote:
      break;
  }
  return {"Gutschriftvorlage", "Gutschriftnummer"};
}

bool IsLong(const PaperDocument& document) { return document.storedRows > kRowsPerPage; }

// Collects the fields of one page.
class FieldList {
 public:
  FieldList(const PaperDocument& document, const PaperPage& page, const Settings& settings)
      : document_(document), record_(document.record), page_(page), settings_(settings) {}

  std::vector<PaperField> Take() { return std::move(fields_); }

  void AddHead(const FieldNames& names) {
    Add("KDNr", record_.KDNr);
    Add("Anrede", record_.Anrede);
    AddNames();
    Add(names.street, record_.Straße);
    Add("PLZ", record_.PLZ);
    Add("Wohnort", record_.Wohnort);
  }

  void AddReferences(const FieldNames& names) {
    Add("UnsereZeichen", record_.UnsereZeichen);
    Add("IhreZeichen", record_.IhreZeichen);
    Add("Datum", record_.Datum);
    Add("Seitenangabe", Concat("Seite ", std::to_string(page_.page), " von ", std::to_string(page_.pages)));
    const bool carries = IsLong(document_) && page_.page > 1 && document_.withheld == Withheld::Nothing;
    Add(names.carry, carries ? page_.carryIn : std::string());
    Add(names.carryText, carries ? "Übertrag:"_t : std::string_view());
  }

  // The templates that serve all kinds have a field for the kind.
  void AddKind() {
    if (settings_.Einheitsbelege) Add("Belegart", NamesOf(document_.kind).word);
  }

  void AddNumber() {
    if (settings_.Einheitsbelege) {
      Add("Belegnummer", record_.number);
    } else {
      Add(TemplateNamesOf(document_.kind).numberField, record_.number);
    }
    if (document_.kind == DocumentKind::Invoice) {
      Add("LieferscheinNr", record_.LieferscheinNr.empty() ? std::string(kDeliveryIsInvoiceDate) : DeliveryNoteText());
    } else if (settings_.Einheitsbelege) {
      Add("LieferscheinNr", "");
    }
  }

  void AddNumberOfRichText() {
    const bool isInvoice = document_.kind == DocumentKind::Invoice;
    const bool hasNote = !record_.LieferscheinNr.empty();
    Add("Belegnummer", record_.number);
    Add("LieferscheinNr", isInvoice && hasNote ? DeliveryNoteText() : std::string());
    Add("Leistungszeitpunkt", isInvoice && !hasNote ? kDeliveryIsInvoiceDate : std::string_view());
  }

  void AddSender() {
    const Settings& s = settings_;
    Add("Absenderadresse", s.FirmenAbsender);
    const std::string* const address[] = {&s.FirmenAdresse1, &s.FirmenAdresse2, &s.FirmenAdresse3,
                                          &s.FirmenAdresse4, &s.FirmenAdresse5, &s.FirmenAdresse6};
    int line = 0;
    for (const std::string* text : address) AddEverywhere(Concat("FA", std::to_string(++line)), *text, *text);
    line = 0;
    for (const std::string* text : {&s.Bankdaten1, &s.Bankdaten2, &s.Bankdaten3})
      AddEverywhere(Concat("FB", std::to_string(++line)), *text, *text);
    const std::string tax = s.Steuernummer.empty() ? std::string() : Concat("Steuernummer: ", s.Steuernummer);
    AddEverywhere("Steuernummer", tax, tax.empty() ? " " : tax);
    const std::string vat =
        s.UmsatzsteuerIdentNr.empty() ? std::string(" ") : Concat("UStIdNr: ", s.UmsatzsteuerIdentNr);
    AddEverywhere("USTIDNR", vat, vat);
  }

  void AddRows() {
    const bool prices = document_.withheld != Withheld::Prices;
    for (int i = 1; i <= kRowsPerPage; ++i) {
      const auto index = static_cast<std::size_t>((page_.page - 1) * kRowsPerPage + i - 1);
      const PositionRow row = index < record_.rows.size() ? record_.rows[index] : PositionRow{};
      const std::string place = std::to_string(i);
      Add("L" + place, row.LGNr);
      Add("A" + place, row.ArtNr);
      Add("S" + place, row.S);
      Add("B" + place, row.B);
      Add("E" + place, prices ? row.E : std::string());
      Add("G" + place, prices ? Concat(row.G, row.secondRate ? "*" : "") : std::string());
    }
  }

  void AddAmounts() {
    const bool shown = document_.withheld == Withheld::Nothing;
    const bool isSubtotal = IsLong(document_) && page_.page < page_.pages;
    const auto amount = [&](const std::string& text) { return shown ? text : std::string(); };
    Add("Gesamt", amount(isSubtotal ? page_.carryOut : record_.Gesamt));
    Add("Mehrwertsteuer", WithoutPercent(document_.rateLabel1));
    Add("Mehrwertsteuer2", WithoutPercent(document_.rateLabel2));
    Add("MWST", amount(record_.MWST));
    Add("MWST2", amount(record_.MWST2));
    Add("Betrag", amount(record_.Betrag));
  }

  void AddClosingTexts() {
    const bool isNote = document_.kind == DocumentKind::DeliveryNote;
    Add("Zahlungsweise", isNote ? settings_.LFZahlungsweise : record_.Zahlungsweise);
    Add("Text1", isNote ? settings_.LFText1 : record_.Text1);
    Add("Text2", isNote ? settings_.LFText2 : record_.Text2);
  }

 private:
  // Without a contact person the name moves down a line, next to the street.
  void AddNames() {
    const bool hasContact = !record_.Ansprechpartner.empty();
    Add("KDName", hasContact ? record_.KDName : std::string());
    Add("Ansprechpartner", hasContact ? record_.Ansprechpartner : record_.KDName);
  }

  [[nodiscard]] std::string DeliveryNoteText() const { return Concat("Lieferschein-Nr.: ", record_.LieferscheinNr); }
  static std::string_view WithoutPercent(std::string_view label) { return Left(label, Len(label) - 1); }

  void Add(std::string_view name, std::string_view text) {
    fields_.push_back({std::string(name), std::string(text), FieldAreas::Body, {}});
  }
  void AddEverywhere(std::string_view name, std::string_view text, std::string_view outsideBody) {
    fields_.push_back({std::string(name), std::string(text), FieldAreas::All, std::string(outsideBody)});
  }

  const PaperDocument& document_;
  const DocumentRecord& record_;
  const PaperPage& page_;
  const Settings& settings_;
  std::vector<PaperField> fields_;
};

}  // namespace

std::vector<PaperField> PaperFields(const PaperDocument& document, const PaperPage& page, const Settings& settings) {
  FieldList fields(document, page, settings);
  fields.AddKind();
  fields.AddHead(kWordNames);
  fields.AddNumber();
  fields.AddReferences(kWordNames);
  fields.AddSender();
  fields.AddRows();
  fields.AddAmounts();
  fields.AddClosingTexts();
  return fields.Take();
}

std::vector<PaperField> RichTextFields(const PaperDocument& document, const PaperPage& page, const Settings& settings) {
  FieldList fields(document, page, settings);
  fields.AddHead(kRichTextNames);
  fields.AddNumberOfRichText();
  fields.AddReferences(kRichTextNames);
  fields.AddSender();
  fields.AddRows();
  fields.AddAmounts();
  fields.AddClosingTexts();
  return fields.Take();
}

std::string CarryBehindPage(const PaperDocument& document, int page, std::string_view carry) {
  std::string sum(carry);
  const auto first = static_cast<std::size_t>((page - 1) * kRowsPerPage);
  for (std::size_t i = first; i < first + kRowsPerPage && i < document.record.rows.size(); ++i) {
    const std::optional<double> total = ToNumber(document.record.rows[i].G);
    if (total) sum = RoundedMoneyText(ToNumber(sum).value_or(0) + *total);
  }
  return sum;
}

std::string TemplateName(const PaperDocument& document, int page, int pages, bool einheitsbelege) {
  const std::string_view stem = einheitsbelege ? "Belegvorlage" : TemplateNamesOf(document.kind).stem;
  std::string_view form;
  if (IsLong(document)) form = page == 1 ? "_long1" : page == pages ? "_long3" : "_long2";
  return Concat(stem, form, ".dot");
}

std::string PaperFileName(const PaperDocument& document, int page) {
  const DocumentRecord& record = document.record;
  const std::string place = IsLong(document) ? Concat("_Seite", std::to_string(page)) : std::string();
  return Concat(NamesOf(document.kind).prefix, Left(record.number, 4), "-", Right(record.number, 4), "_", record.KDName,
                place, ".doc");
}

}  // namespace kontorwerk
