// Articles and stock: searches, numbers, the reminder of what falls short.
#include "bench/Measure.h"
#include "bench/Rows.h"
#include "bench/Subjects.h"
#include "shell/Reminders.h"
#include "stock/ArticleRecords.h"
#include "stock/StockRecords.h"

namespace kontorwerk::bench {
namespace {

constexpr int kSaves = 4;
constexpr std::string_view kCategory = "kab";

std::string Articles(Firm& firm) { return firm.Store().ReadTableText(table::kArticles); }
std::string Stock(Firm& firm) { return firm.Store().ReadTableText(table::kStock); }

void AddArticleSearch(const std::string& name, std::string_view text) {
  Subject("Article search, " + name)
      .Measure(kProgram,
               [=](Firm& firm) {
                 const std::string table = Articles(firm);
                 return static_cast<long>(FindArticles(table, {"", "", std::string(text)}).size());
               })
      .BesideScan({table::kArticles})
      .BesideGrep(table::kArticles, text)
      .BesideSqliteSearch("articles", text);
}

void AddStockSearch(const std::string& name, std::string_view text) {
  Subject("Stock search, " + name)
      .Measure(kProgram,
               [=](Firm& firm) {
                 const std::string table = Stock(firm);
                 StockQuery query;
                 query.freeText = text;
                 return static_cast<long>(FindStockRows(table, query).size());
               })
      .BesideScan({table::kStock})
      .BesideGrep(table::kStock, text)
      .BesideSqliteSearch("stock", text);
}

void AddSearchByCategory() {
  Subject("Article search by category")
      .Measure(kProgram,
               [](Firm& firm) {
                 const std::string table = Articles(firm);
                 return static_cast<long>(FindArticles(table, {std::string(kCategory), "", ""}).size());
               })
      .BesideScan({table::kArticles})
      .MeasureSqlite(kSqlite, [](Firm& firm) { return firm.Twin().RowsLikeInFirstColumn("articles", kCategory); });
}

void AddLookups() {
  Subject("Stock item by number")
      .Measure(kProgram,
               [](Firm& firm) {
                 const std::string table = Stock(firm);
                 return FindStockRow(table, StockNumber(firm.Rows() / 2)).empty() ? 0 : 1;
               })
      .BesideScan({table::kStock})
      .MeasureSqlite(kSqlite, [](Firm& firm) { return firm.Twin().Lookup("stock", StockNumber(firm.Rows() / 2)); });
  Subject("Next article number")
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 return static_cast<long>(ProposeArticleNumber(Articles(firm), kCategory).size());
               })
      .BesideScan({table::kArticles});
  Subject("Next stock number")
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> { return static_cast<long>(NextStockNumber(Stock(firm)).size()); })
      .BesideScan({table::kStock});
}

void AddSave() {
  Subject("Save a changed stock item")
      .Preparing([](Firm& firm) { firm.Restock(table::kStock); })
      .Rounds(kSaves)
      .Measure(kProgram,
               [](Firm& firm) {
                 StockRecord record(StockRow(firm.Rows() / 2, firm.Rows()));
                 record[kStockStatus] = Concat(kStatusChange, kToday);
                 return ReplaceStockRecord(firm.WorkshopStore(), record) ? 1 : 0;
               })
      .BesideCopy(table::kStock);
}

void AddShortfalls() {
  constexpr const char* kQuery =
      "SELECT (SELECT count(*) FROM stock WHERE c35='Falsch' AND c5<>'' AND CAST(c4 AS INT)<CAST(c5 AS INT)) + "
      "(SELECT count(*) FROM (SELECT count(*) AS pieces, max(CASE WHEN c35='Wahr' AND c5<>'' AND CAST(c4 AS "
      "INT)<CAST(c5 AS "
      "INT) THEN CAST(c5 AS INT) ELSE 0 END) AS minimum FROM stock GROUP BY c2) WHERE pieces<minimum)";
  Subject("Articles below their minimum")
      .Measure(kProgram, [](Firm& firm) { return static_cast<long>(CountArticlesBelowMinimum(Stock(firm))); })
      .BesideScan({table::kStock})
      .MeasureSqlite(kSqlite, [](Firm& firm) { return firm.Twin().Number(kQuery); });
  Subject("Articles below their minimum, single items alone")
      .WithSinglePieces()
      .Measure(kProgram, [](Firm& firm) { return static_cast<long>(CountArticlesBelowMinimum(Stock(firm))); })
      .BesideScan({table::kStock});
  Subject("List of shortfalls, single items alone")
      .WithSinglePieces()
      .Measure(kProgram,
               [](Firm& firm) {
                 const std::string table = Stock(firm);
                 return static_cast<long>(FindShortfalls(table).size());
               })
      .BesideScan({table::kStock});
}

}  // namespace

void AddStockSubjects() {
  AddArticleSearch("one hit", kRareText);
  AddArticleSearch("one row in a hundred", kTownText);
  AddStockSearch("one hit", kRareText);
  AddStockSearch("two letters, no hit", kShortText);
  AddSearchByCategory();
  AddLookups();
  AddSave();
  AddShortfalls();
}

}  // namespace kontorwerk::bench
