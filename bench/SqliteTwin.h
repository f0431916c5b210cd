// The tables of a firm in an SQLite file: the yardstick of whoever asks why the tables are no database. Each save is a
// transaction of its own with synchronous=FULL, as safe as a save of the program. Statements are prepared once and the
// file stays open, which favours SQLite. A step that SQLite refuses ends the process: it is a fault of the benchmark.
#pragma once

#include <sqlite3.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk::bench {

class SqliteTwin {
 public:
  explicit SqliteTwin(const std::string& file);
  ~SqliteTwin();
  SqliteTwin(const SqliteTwin&) = delete;
  SqliteTwin& operator=(const SqliteTwin&) = delete;

  // Two tables of the rows of a table's text (Windows-1252): `name` with the columns c1, c2 ..., and `name`_lines with
  // the whole line. The key column becomes the primary key of both; 0 for none.
  void Fill(std::string_view name, std::string_view tableText, int columns, int keyColumn);

  // Reads the rows that hold the text, case aside as LIKE does it; their number.
  [[nodiscard]] long RowsLike(std::string_view name, std::string_view text);
  // The same over each column.
  [[nodiscard]] long RowsLikeInColumns(std::string_view name, std::string_view text);
  // The same over the first column alone.
  [[nodiscard]] long RowsLikeInFirstColumn(std::string_view name, std::string_view text);
  // Reads all columns of the row with this key; 1, or 0 without one.
  [[nodiscard]] long Lookup(std::string_view name, std::string_view key);
  void Update(std::string_view name, std::string_view key, int column, std::string_view text);
  // A row of the key and the same text in each other column.
  void Insert(std::string_view name, std::string_view key, std::string_view text);
  // Runs an SQL query and gives the number in its first row.
  [[nodiscard]] long Number(const std::string& query);

 private:
  [[nodiscard]] sqlite3_stmt* Prepared(const std::string& sql);
  void Run(const std::string& sql);
  // Runs the statement with these parameters and reads each text of each row; the number of rows.
  long Execute(const std::string& sql, const std::vector<std::string>& parameters);
  void Check(int result) const;

  sqlite3* database_ = nullptr;
  std::map<std::string, sqlite3_stmt*> statements_;
  std::map<std::string, int, std::less<>> columns_;
};

}  // namespace kontorwerk::bench
