// Firms of a size, made once in a temporary folder that goes with the process. The tables of a firm are only read;
// whoever measures a write works on the firm's workshop, a second data folder.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/SqliteTwin.h"
#include "documents/DocumentKinds.h"
#include "store/RecordStore.h"

namespace kontorwerk::bench {

inline const std::vector<long> kSizes = {1000, 10000, 100000};

class Firm {
 public:
  // The firm with so many rows in each table; made at the first call.
  [[nodiscard]] static Firm& Of(long rows);
  // The process's temporary folder; it is gone when the process has ended.
  [[nodiscard]] static const std::filesystem::path& EstateFolder();
  // A firm that lies in `programFolder` already, of another process: it is used, not made.
  Firm(std::filesystem::path programFolder, long rows);

  [[nodiscard]] long Rows() const { return rows_; }
  // The program's folder with config.txt; the tables lie in "Daten" below it.
  [[nodiscard]] const std::filesystem::path& ProgramFolder() const { return programFolder_; }
  // As the settings hold it.
  [[nodiscard]] const std::string& DataPath() const { return settings_.DBPath; }
  [[nodiscard]] std::filesystem::path TablePath(std::string_view table) const;
  [[nodiscard]] RecordStore& Store() { return store_; }

  // The workshop holds a fresh and synced copy of the table afterwards.
  void Restock(std::string_view table) const;
  [[nodiscard]] std::filesystem::path WorkshopTablePath(std::string_view table) const;
  [[nodiscard]] RecordStore& WorkshopStore() { return workshopStore_; }

  // Single items alone, worst case of the stock reminder; a data folder of its own.
  [[nodiscard]] static Firm& OfSinglePieces(long rows);

  // The same tables in SQLite; made at the first call.
  [[nodiscard]] SqliteTwin& Twin();

 private:
  [[nodiscard]] std::filesystem::path DataFolder() const { return programFolder_ / "Daten"; }
  [[nodiscard]] std::filesystem::path WorkshopFolder() const { return programFolder_ / "Werkstatt"; }
  void MakeFolders() const;
  void MakeTables();
  void MakeSinglePieces();
  void WriteConfig() const;
  void Write(std::string_view table, const std::function<std::string(long index)>& row, long rows);
  void WriteDocuments(DocumentKind kind);

  std::filesystem::path programFolder_;
  long rows_;
  std::unique_ptr<Disk> disk_;
  FileSystemObject files_;
  Settings settings_;
  RecordStore store_;
  Settings workshopSettings_;
  RecordStore workshopStore_;
  std::unique_ptr<SqliteTwin> twin_;
};

}  // namespace kontorwerk::bench
