// The table of open documents and the list of settled ones: their columns, the line of a printed document, and how
// printing, settling and deleting change the two. Questions are asked through callbacks; their texts are made here.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {

// Columns of the table of open documents, counted as RecordField counts. A fresh line has 18, an invoice's 19; the
// payment screen writes 62.
enum OpenDocumentColumn : int {
  kOpenBelegart = 1,  // "AB", "RG", "LS" or "GS"
  kOpenNumber = 2,    // of a delivery note its own number
  kOpenDatum = 3,
  kOpenKDNr = 4,
  kOpenKDName = 5,
  kOpenAnsprechpartner = 6,
  kOpenStraße = 7,
  kOpenPLZ = 8,
  kOpenWohnort = 9,
  kOpenUnsereZeichen = 10,  // 10, 11 and 13 to 17 are empty once a payment was saved
  kOpenIhreZeichen = 11,
  kOpenKindWord = 12,  // "Rechnung"
  kOpenBruttoButton = 13,
  kOpenNettoButton = 14,
  kOpenGesamt = 15,
  kOpenMWST = 16,
  kOpenMWST2 = 17,
  kOpenBetrag = 18,        // a credit note's begins with "-"
  kOpenRestbetrag = 19,    // amount still owed, invoices only
  kOpenSumme = 20,         // paid so far
  kOpenNotizen = 21,       // line breaks as marks
  kOpenFirstPayment = 22,  // twelve rows of date, remark, amount
  kOpenLastPayment = 57,
  kOpenSpare = 58,  // always empty
  kOpenMD1 = 59,    // dates of the three reminders
  kOpenMD2 = 60,
  kOpenMD3 = 61,
  kOpenMahngebühr = 62,
};
inline constexpr int kPaymentRows = 12;
inline constexpr int kFieldsPerPayment = 3;

// A printed document as it enters the table.
struct OpenDocumentRecord {
  std::string Belegart;  // "RG"
  std::string number;
  std::string Datum, KDNr, KDName, Ansprechpartner, Straße, PLZ, Wohnort, UnsereZeichen, IhreZeichen;
  std::string kindWord;
  bool BruttoButton = false;
  bool NettoButton = true;
  std::string Gesamt, MWST, MWST2, Betrag;
};

// The line without its end: 18 fields, for an invoice `Betrag` once more as the amount owed, for a credit note "-" in
// front of `Betrag`.
[[nodiscard]] std::string OpenDocumentLine(const OpenDocumentRecord& record);
// Kind and number joined, "RG0150/2007": what the list of settled documents and the lists of keys hold.
[[nodiscard]] std::string DocumentKey(std::string_view Belegart, std::string_view number);

// The key occurs in the text of the settled documents, at whatever place.
[[nodiscard]] bool IsSettled(std::string_view settledText, std::string_view key);
// `'RG','0150/2007` occurs in the text of the open documents, at whatever place.
[[nodiscard]] bool StandsOpen(std::string_view openText, std::string_view Belegart, std::string_view number);
// The first line of a document; empty without one. The view lives as long as `openText`.
[[nodiscard]] std::string_view FindOpenDocument(std::string_view openText, std::string_view Belegart,
                                                std::string_view number);

// The document's line is replaced where it stands open, else the new one goes on top.
bool PutOpenDocument(RecordStore& store, const OpenDocumentRecord& record);
// The table without the lines of these keys; it gains one blank line.
bool RemoveOpenDocuments(RecordStore& store, const std::vector<std::string>& keys);
// The keys behind the list of settled documents, each as `'<key>',` without line ends; empty keys are left out. A list
// without any key changes nothing.
bool AppendSettledKeys(RecordStore& store, const std::vector<std::string>& keys);

// What the user answers to a question: true for Ja.
using Question = std::function<bool()>;

// After printing, one function for each kind. A document whose key is in the list of settled ones is left alone.
//
// Asks first and does nothing without a yes.
void EnterQuotation(RecordStore& store, const OpenDocumentRecord& record, const Question& takeIn);
void EnterDeliveryNote(RecordStore& store, const OpenDocumentRecord& record);
void EnterCreditNote(RecordStore& store, const OpenDocumentRecord& record);
// An open line of the same amount stays as it is; for each line of another amount the question is asked. Then the keys
// in `closedDocumentKeys` (separated by blanks), and the delivery note of the invoice if it has one, leave the table
// and enter the list of settled documents; `closedDocumentKeys` is empty afterwards. It stays if the invoice is
// settled.
void EnterInvoice(RecordStore& store, const OpenDocumentRecord& record, std::string_view LieferscheinNr,
                  std::string& closedDocumentKeys, const Question& takeNewAmount);

inline constexpr std::string_view kTakeInQuotationTitle = "Angebot in offene Belege aufnehmen?";
[[nodiscard]] std::string TakeInQuotationQuestion(std::string_view number, std::string_view KDName);
inline constexpr std::string_view kNewAmountTitle = "Rechnung in den offenen Belegen ändern?"_t;
[[nodiscard]] std::string NewAmountQuestion();

}  // namespace kontorwerk
