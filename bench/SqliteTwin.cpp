#include "bench/SqliteTwin.h"

#include "bench/Fail.h"
#include "store/CodePage.h"
#include "store/RecordLine.h"
#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk::bench {
namespace {

std::string Name(int column) { return "c" + std::to_string(column); }

// Each column's name with `behind` behind it, `between` between them.
std::string Columns(int count, std::string_view behind, std::string_view between) {
  std::string result;
  for (int column = 1; column <= count; ++column)
    result.append(column == 1 ? "" : between).append(Name(column)).append(behind);
  return result;
}

std::string InsertInto(std::string_view table, int columns) {
  std::string sql = Concat("INSERT INTO ", table, " VALUES(?");
  for (int column = 2; column <= columns; ++column) sql += ",?";
  return sql + ")";
}

std::string Pattern(std::string_view text) { return "%" + ToUtf8(text) + "%"; }

}  // namespace

SqliteTwin::SqliteTwin(const std::string& file) {
  Check(sqlite3_open(file.c_str(), &database_));
  Run("PRAGMA synchronous=FULL");
}

SqliteTwin::~SqliteTwin() {
  for (const auto& [sql, statement] : statements_) sqlite3_finalize(statement);
  sqlite3_close(database_);
}

void SqliteTwin::Fill(std::string_view name, std::string_view tableText, int columns, int keyColumn) {
  const std::string table(name);
  columns_[table] = columns;
  const std::string key = keyColumn > 0 ? ", PRIMARY KEY(" + Name(keyColumn) + ")" : "";
  Run("CREATE TABLE " + table + "(" + Columns(columns, " TEXT", ",") + key + ")");
  Run("CREATE TABLE " + table + "_lines(key TEXT" + (keyColumn > 0 ? " PRIMARY KEY" : "") + ", line TEXT)");
  const std::string insertRow = InsertInto(table, columns);
  const std::string insertLine = InsertInto(table + "_lines", 2);
  Run("BEGIN");
  ForEachRow(tableText, [&](std::string_view row) {
    std::vector<std::string> fields;
    for (const std::string_view field : RecordFields(row)) fields.push_back(ToUtf8(field));
    fields.resize(static_cast<std::size_t>(columns));
    Execute(insertLine, {fields[keyColumn > 0 ? static_cast<std::size_t>(keyColumn - 1) : 0], ToUtf8(row)});
    Execute(insertRow, fields);
  });
  Run("COMMIT");
}

long SqliteTwin::RowsLike(std::string_view name, std::string_view text) {
  return Execute("SELECT line FROM " + std::string(name) + "_lines WHERE line LIKE ?1", {Pattern(text)});
}

long SqliteTwin::RowsLikeInColumns(std::string_view name, std::string_view text) {
  const std::string where = Columns(columns_.find(name)->second, " LIKE ?1", " OR ");
  return Execute("SELECT c1,c2,c3,c4,c5 FROM " + std::string(name) + " WHERE " + where, {Pattern(text)});
}

long SqliteTwin::RowsLikeInFirstColumn(std::string_view name, std::string_view text) {
  return Execute("SELECT c1,c2,c3,c4,c5 FROM " + std::string(name) + " WHERE c1 LIKE ?1", {Pattern(text)});
}

long SqliteTwin::Lookup(std::string_view name, std::string_view key) {
  return Execute("SELECT * FROM " + std::string(name) + " WHERE c1=?1", {ToUtf8(key)});
}

void SqliteTwin::Update(std::string_view name, std::string_view key, int column, std::string_view text) {
  Execute("UPDATE " + std::string(name) + " SET " + Name(column) + "=?2 WHERE c1=?1", {ToUtf8(key), ToUtf8(text)});
}

void SqliteTwin::Insert(std::string_view name, std::string_view key, std::string_view text) {
  const int columns = columns_.find(name)->second;
  std::vector<std::string> fields(static_cast<std::size_t>(columns), ToUtf8(text));
  fields[0] = ToUtf8(key);
  Execute(InsertInto(name, columns), fields);
}

long SqliteTwin::Number(const std::string& query) {
  sqlite3_stmt* statement = Prepared(query);
  if (sqlite3_step(statement) != SQLITE_ROW) Check(sqlite3_errcode(database_));
  const long result = static_cast<long>(sqlite3_column_int64(statement, 0));
  sqlite3_reset(statement);
  return result;
}

sqlite3_stmt* SqliteTwin::Prepared(const std::string& sql) {
  sqlite3_stmt*& statement = statements_[sql];
  if (statement == nullptr) Check(sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr));
  return statement;
}

void SqliteTwin::Run(const std::string& sql) { Check(sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr)); }

long SqliteTwin::Execute(const std::string& sql, const std::vector<std::string>& parameters) {
  sqlite3_stmt* statement = Prepared(sql);
  for (std::size_t i = 0; i < parameters.size(); ++i)
    Check(sqlite3_bind_text(statement, static_cast<int>(i + 1), parameters[i].data(),
                            static_cast<int>(parameters[i].size()), SQLITE_STATIC));
  long rows = 0;
  std::vector<std::string> texts(static_cast<std::size_t>(sqlite3_column_count(statement)));
  for (int result = sqlite3_step(statement); result != SQLITE_DONE; result = sqlite3_step(statement), ++rows) {
    if (result != SQLITE_ROW) Check(result);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, static_cast<int>(i)));
      texts[i] = text != nullptr ? text : "";
    }
  }
  sqlite3_reset(statement);
  return rows;
}

void SqliteTwin::Check(int result) const {
  if (result == SQLITE_OK) return;
  Fail(Concat("SQLite: ", sqlite3_errmsg(database_)));
}

}  // namespace kontorwerk::bench
