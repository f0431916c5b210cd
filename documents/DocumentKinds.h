// The kinds of documents: their prefixes, tables and words, and the places of the kind selector of the document screen.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "store/RecordStore.h"

namespace kontorwerk {

// In the order in which the lists of documents name them.
enum class DocumentKind { Quotation, Invoice, DeliveryNote, CreditNote };

struct DocumentKindNames {
  std::string_view prefix;  // "AB"
  std::string_view table;   // "Angebotedb.dbf"
  std::string_view word;    // "Angebot": field 12 of a row, and the selector's entry
};

inline constexpr std::array<DocumentKind, 4> kDocumentKinds = {DocumentKind::Quotation, DocumentKind::Invoice,
                                                               DocumentKind::DeliveryNote, DocumentKind::CreditNote};

[[nodiscard]] constexpr DocumentKindNames NamesOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::Quotation:
      return {"AB", table::kQuotations, "Angebot"};
    case DocumentKind::Invoice:
      return {"RG", table::kInvoices, "Rechnung"};
    case DocumentKind::DeliveryNote:
      return {"LS", table::kDeliveryNotes, "Lieferschein"};
    case DocumentKind::CreditNote:
      break;
  }
  return {"GS", table::kCreditNotes, "Gutschrift"};
}

// The kind of "AB", "RG", "LS" or "GS"; nothing for any other text.
[[nodiscard]] constexpr std::optional<DocumentKind> KindOfPrefix(std::string_view prefix) {
  for (const DocumentKind kind : kDocumentKinds)
    if (NamesOf(kind).prefix == prefix) return kind;
  return std::nullopt;
}

// Places of `ComboABRG`. The last two exist only once a delivery note or invoice was saved or opened.
enum SelectorPlace : int {
  kSelectorOpen = 0,  // delivery note and/or invoice, not yet saved
  kSelectorQuotation = 1,
  kSelectorCreditNote = 2,
  kSelectorDeliveryNote = 3,
  kSelectorInvoice = 4,
};
inline constexpr std::array<std::string_view, 5> kSelectorTexts = {"Lieferschein / Rechnung", "Angebot", "Gutschrift",
                                                                   "Lieferschein", "Rechnung"};
// Entries of a new screen's selector.
inline constexpr std::size_t kSelectorEntriesOfNewScreen = 3;

// The kind that stands at a place of the selector; nothing for the open one and outside the list.
[[nodiscard]] constexpr std::optional<DocumentKind> KindAtSelector(int place) {
  switch (place) {
    case kSelectorQuotation:
      return DocumentKind::Quotation;
    case kSelectorCreditNote:
      return DocumentKind::CreditNote;
    case kSelectorDeliveryNote:
      return DocumentKind::DeliveryNote;
    case kSelectorInvoice:
      return DocumentKind::Invoice;
    default:
      return std::nullopt;
  }
}

}  // namespace kontorwerk
