// Documents: the totals of their rows, issuing a number and storing, finding, taking goods out of the stock, and the
// table of open documents.
#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "bench/Fail.h"
#include "bench/Measure.h"
#include "bench/Rows.h"
#include "bench/Subjects.h"
#include "documents/DocumentNumbers.h"
#include "documents/DocumentRecord.h"
#include "documents/StockReduction.h"
#include "documents/Totals.h"
#include "receivables/OpenDocumentRecords.h"
#include "store/RecordLine.h"

namespace kontorwerk::bench {
namespace {

constexpr int kSaves = 4;
constexpr DocumentKind kKind = DocumentKind::Invoice;

std::vector<PositionRow> MakePositions(long count) {
  std::vector<PositionRow> rows;
  for (long index = 0; index < count; ++index) rows.push_back(MakePosition(index));
  return rows;
}

// --- Totals --------------------------------------------------------------------------------------------------------

double Plainly(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

// Quantity times price of each row in plain doubles, nothing rounded and nothing written back.
double SumPlainly(const std::vector<PositionRow>& rows) {
  double sum = 0;
  for (const PositionRow& row : rows) sum += Plainly(row.S) * Plainly(row.E);
  return sum;
}

void AddTotals() {
  static Settings settings;
  settings.MWSTSatz = "0,19";
  settings.MWSTSatz2 = "0,07";
  for (const long count : {17L, 170L, 1700L}) {
    std::vector<PositionRow> rows = MakePositions(count);
    MeasureAlone("Berechnen, rows", kProgram, count, 0, [rows]() mutable -> std::optional<long> {
      if (Berechnen(rows, PriceBase::Net, settings).Betrag.empty()) Fail("no total");
      return std::nullopt;
    });
    MeasureAlone("Berechnen, rows", "plain sum", count, 0, [rows]() -> std::optional<long> {
      if (SumPlainly(rows) <= 0) Fail("no sum");
      return std::nullopt;
    });
  }
}

// --- Storing -------------------------------------------------------------------------------------------------------

// What a save does with the table: the number from its top line, the new row on top.
bool StoreNewDocument(Firm& firm) {
  static const DocumentRecord kDocument = MakeDocument(kKind, 0, 1);
  RecordStore& store = firm.WorkshopStore();
  const std::string text = store.ReadTableText(NamesOf(kKind).table);
  const auto number = NextNumber(kKind, FirstRow(text), kToday);
  if (!number) Fail("no number");
  DocumentRecord document = kDocument;
  document.number = *number;
  return PrependDocument(store, kKind, text, DocumentLine(document, kKind));
}

std::string MiddleNumber(Firm& firm) { return MakeDocument(kKind, firm.Rows() / 2, firm.Rows()).number; }

void AddStoring() {
  Subject("Number and store a new document")
      .Preparing([](Firm& firm) { firm.Restock(table::kInvoices); })
      .Rounds(kSaves)
      .Measure(kProgram, [](Firm& firm) { return StoreNewDocument(firm) ? 1 : 0; })
      .BesideCopy(table::kInvoices)
      .MeasureSqlite(kSqlite, [](Firm& firm) {
        firm.Twin().Insert("invoices", "5", MakeDocument(kKind, 0, 1).KDName);
        return 1;
      });
  Subject("Store a changed document")
      .Preparing([](Firm& firm) { firm.Restock(table::kInvoices); })
      .Rounds(kSaves)
      .Measure(kProgram,
               [](Firm& firm) {
                 const std::string line = DocumentRow(kKind, firm.Rows() / 2, firm.Rows());
                 return firm.WorkshopStore().ReplaceRowByNumber(table::kInvoices, MiddleNumber(firm), line) ? 1 : 0;
               })
      .BesideCopy(table::kInvoices);
  Subject("Document by number")
      .Measure(kProgram,
               [](Firm& firm) {
                 const std::string text = firm.Store().ReadTableText(table::kInvoices);
                 const DocumentRecord document = ReadDocument(FindDocumentLine(text, MiddleNumber(firm)), kKind);
                 return document.rows.empty() ? 0 : 1;
               })
      .BesideScan({table::kInvoices});
}

// --- After printing ------------------------------------------------------------------------------------------------

// Items that stay in the table, so that each round does the same work.
std::vector<PositionRow> MultipleItems(long count) {
  std::vector<PositionRow> rows;
  for (long index = 0; static_cast<long>(rows.size()) < count; ++index)
    if (index % 3 != 0) rows.push_back(MakePosition(index));
  return rows;
}

void AddStockReduction(long positions) {
  Subject("Take " + std::to_string(positions) + " positions out of the stock")
      .Preparing([](Firm& firm) { firm.Restock(table::kStock); })
      .Rounds(kSaves)
      .Measure(kProgram,
               [positions](Firm& firm) {
                 return TakeOutOfStock(firm.WorkshopStore(), MultipleItems(positions), kToday) ? 1 : 0;
               })
      .BesideCopy(table::kStock);
}

// Of a number that no open document has.
OpenDocumentRecord NewOpenDocument() {
  static int documents = 0;
  OpenDocumentRecord record;
  record.Belegart = "RG";
  record.number = PadZeros(std::to_string(++documents), 4) + "/2027";
  record.Datum = kToday;
  record.KDNr = CustomerNumber(7);
  record.KDName = "Sanitär und Heizung Huber GmbH"_t;
  record.kindWord = "Rechnung";
  record.Gesamt = "100,00";
  record.MWST = "19,00";
  record.MWST2 = "0,00";
  record.Betrag = "119,00";
  return record;
}

void AddOpenDocuments() {
  Subject("Enter an invoice in the open documents")
      .Preparing([](Firm& firm) { firm.Restock(table::kOpenDocuments); })
      .Rounds(kSaves)
      .Measure(kProgram, [](Firm& firm) { return PutOpenDocument(firm.WorkshopStore(), NewOpenDocument()) ? 1 : 0; })
      .BesideCopy(table::kOpenDocuments);
}

}  // namespace

void AddDocumentSubjects() {
  AddTotals();
  AddStoring();
  AddStockReduction(17);
  AddStockReduction(170);
  AddOpenDocuments();
}

}  // namespace kontorwerk::bench
