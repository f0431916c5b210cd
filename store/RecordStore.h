// The shapes in which every part of the program reads and writes a table of the data folder.
// Tables are never cached: each operation reads the file afresh.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/FileSystem.h"
#include "store/Settings.h"

namespace kontorwerk {

// Names of the data folder's tables.
namespace table {
inline constexpr std::string_view kCustomers = "Kundendb.dbf";
inline constexpr std::string_view kSuppliers = "Lieferantendb.dbf";
inline constexpr std::string_view kArticles = "Artikeldb.dbf";
inline constexpr std::string_view kStock = "LagerArtikeldb.dbf";
inline constexpr std::string_view kQuotations = "Angebotedb.dbf";
inline constexpr std::string_view kInvoices = "Rechnungendb.dbf";
inline constexpr std::string_view kDeliveryNotes = "Lieferscheinedb.dbf";
inline constexpr std::string_view kCreditNotes = "Gutschriftendb.dbf";
inline constexpr std::string_view kDrafts = "Entwurfdb.dbf";
inline constexpr std::string_view kOpenDocuments = "offeneBelegedb.dbf";
inline constexpr std::string_view kSettledDocuments = "erledigteBelegedb.dbf";
inline constexpr std::string_view kOrders = "Auftragsdb.dbf";
inline constexpr std::string_view kAppointments = "Termindb.dbf";
}  // namespace table

// The text split at CR LF, the empty element behind the last line end included. The views live as long as `text`.
[[nodiscard]] std::vector<std::string_view> SplitRows(std::string_view text);
// The text before the first line end.
[[nodiscard]] std::string_view FirstRow(std::string_view text);

// Calls `visit(row)` for each row of the text in order, blank rows left out, without copying.
template <typename Visit>
void ForEachRow(std::string_view text, Visit&& visit) {
  while (!text.empty()) {
    const std::size_t end = text.find("\r\n");
    const std::string_view row = text.substr(0, end);
    if (!row.empty()) visit(row);
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 2);
  }
}

enum class BlankRows { Keep, Drop };

// What a rewrite does with a row: nothing said keeps the row as it is, a text replaces it, `Remove` drops it.
struct RowChange {
  enum class Kind { Keep, Replace, Remove } kind = Kind::Keep;
  std::string row;

  [[nodiscard]] static RowChange Keep() { return {}; }
  [[nodiscard]] static RowChange Replace(std::string row) { return {Kind::Replace, std::move(row)}; }
  [[nodiscard]] static RowChange Remove() { return {Kind::Remove, {}}; }
};
using RowVisitor = std::function<RowChange(std::string_view row)>;

class RecordStore {
 public:
  // Tables lie in the folder `settings.DBPath`. Both must outlive the store.
  RecordStore(const FileSystemObject& files, const Settings& settings);

  // The whole text; empty when the table is missing, empty or cannot be read. A read that failed is remembered
  // until the table is read again: meanwhile every write to the table is skipped, so that a hiccup of the
  // network never empties it.
  [[nodiscard]] std::string ReadTableText(std::string_view fileName);
  // The same, with the outcome beside the text.
  [[nodiscard]] ReadResult ReadTable(std::string_view fileName);
  // Writes the whole text; false if the write was skipped or failed (see FileSystemObject::Write).
  bool WriteTable(std::string_view fileName, std::string_view text);
  // The same with the text in parts (see FileSystemObject::WriteParts).
  bool WriteTableParts(std::string_view fileName, const std::vector<std::string_view>& parts);
  // The row behind the old text, with CR LF; makes the table if it is missing. This and the following read the table
  // themselves: if that read fails, nothing is written and the result is false.
  bool AppendRow(std::string_view fileName, std::string_view row);
  // The row on top of the old text, with CR LF.
  bool PrependRow(std::string_view fileName, std::string_view row);
  // Reads the table, asks `visit` for each row (blank rows are not asked for) and writes every row with CR LF.
  // With BlankRows::Keep the empty element behind the last line end is written too, so the table gains one blank
  // line with each rewrite (kept: every reader skips them, and older versions do the same).
  bool RewriteTable(std::string_view fileName, BlankRows blankRows, const RowVisitor& visit);
  // Every row whose field 2 equals the number is replaced; one more blank line arises. Without such a row the
  // table is rewritten as it was (kept).
  bool ReplaceRowByNumber(std::string_view fileName, std::string_view number, std::string_view row);

  [[nodiscard]] const FileSystemObject& Files() const { return files_; }
  // DBPath + file name.
  [[nodiscard]] std::string PathOf(std::string_view fileName) const;

 private:
  const FileSystemObject& files_;
  const Settings& settings_;
  std::set<std::string, std::less<>> failedReads_;
};

// The text of a rewrite, for callers that hold the old text already. Same rules as RewriteTable.
[[nodiscard]] std::string RewrittenText(std::string_view text, BlankRows blankRows, const RowVisitor& visit);

}  // namespace kontorwerk
