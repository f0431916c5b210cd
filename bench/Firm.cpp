#include "bench/Firm.h"

#include <cstdlib>
#include <map>
#include <utility>

#include "bench/Fail.h"
#include "bench/Rows.h"
#include "bench/Yardsticks.h"
#include "documents/DocumentKinds.h"
#include "partners/PartnerKind.h"
#include "shell/DocumentTables.h"
#include "stock/StockRecords.h"

namespace kontorwerk::bench {
namespace {

namespace fs = std::filesystem;

// The process's folder for all firms; goes when the process ends.
class Estate {
 public:
  Estate() {
    std::string pattern = (fs::temp_directory_path() / "kontorwerk-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) Fail("no temporary folder");
    folder_ = pattern;
  }
  ~Estate() {
    std::error_code error;
    fs::remove_all(folder_, error);
  }
  Estate(const Estate&) = delete;
  Estate& operator=(const Estate&) = delete;

  [[nodiscard]] static const fs::path& Folder() {
    static const Estate estate;
    return estate.folder_;
  }

 private:
  fs::path folder_;
};

Firm& Remembered(std::map<long, std::unique_ptr<Firm>>& firms, long rows, std::string_view kind, bool& isNew) {
  std::unique_ptr<Firm>& firm = firms[rows];
  isNew = firm == nullptr;
  if (isNew) firm = std::make_unique<Firm>(Estate::Folder() / (std::string(kind) + std::to_string(rows)), rows);
  return *firm;
}

}  // namespace

Firm::Firm(fs::path programFolder, long rows)
    : programFolder_(std::move(programFolder)),
      rows_(rows),
      disk_(MakeSystemDisk()),
      files_(*disk_),
      store_(files_, settings_),
      workshopStore_(files_, workshopSettings_) {
  settings_.DBPath = DataFolder().string() + "\\";
  workshopSettings_.DBPath = WorkshopFolder().string() + "\\";
}

const fs::path& Firm::EstateFolder() { return Estate::Folder(); }

Firm& Firm::Of(long rows) {
  const fs::path& folder = Estate::Folder();  // first, so that it goes last
  static std::map<long, std::unique_ptr<Firm>> firms;
  (void)folder;
  bool isNew = false;
  Firm& firm = Remembered(firms, rows, "Firma", isNew);
  if (isNew) firm.MakeTables();
  return firm;
}

Firm& Firm::OfSinglePieces(long rows) {
  const fs::path& folder = Estate::Folder();
  static std::map<long, std::unique_ptr<Firm>> firms;
  (void)folder;
  bool isNew = false;
  Firm& firm = Remembered(firms, rows, "Einzelartikel", isNew);
  if (isNew) firm.MakeSinglePieces();
  return firm;
}

fs::path Firm::TablePath(std::string_view table) const { return DataFolder() / table; }

fs::path Firm::WorkshopTablePath(std::string_view table) const { return WorkshopFolder() / table; }

void Firm::Restock(std::string_view table) const {
  if (!SyncedCopy(TablePath(table), WorkshopTablePath(table))) Fail("a table cannot be copied");
}

SqliteTwin& Firm::Twin() {
  if (twin_) return *twin_;
  twin_ = std::make_unique<SqliteTwin>((programFolder_ / "Zwilling.sqlite").string());
  const auto fill = [this](std::string_view name, std::string_view table, int columns, int keyColumn) {
    twin_->Fill(name, store_.ReadTableText(table), columns, keyColumn);
  };
  fill("customers", table::kCustomers, CustomerKind().DateColumn(), 1);
  fill("saved_customers", table::kCustomers, CustomerKind().DateColumn(), 1);
  fill("articles", table::kArticles, 29, 1);
  fill("stock", table::kStock, kStockColumnCount, 1);
  fill("open_documents", table::kOpenDocuments, 62, 0);
  fill("invoices", table::kInvoices, 14, 0);
  return *twin_;
}

void Firm::MakeFolders() const {
  for (const fs::path& folder : {DataFolder(), WorkshopFolder()}) fs::create_directories(folder);
  WriteConfig();
}

void Firm::MakeTables() {
  MakeFolders();
  Write(
      table::kCustomers, [this](long index) { return CustomerRow(index, rows_); }, rows_);
  Write(
      table::kSuppliers, [this](long index) { return SupplierRow(index, rows_); }, rows_);
  Write(
      table::kArticles, [this](long index) { return ArticleRow(index, rows_); }, rows_);
  Write(
      table::kStock, [this](long index) { return StockRow(index, rows_); }, rows_);
  Write(
      table::kOrders, [this](long index) { return OrderRow(index, rows_); }, rows_);
  Write(table::kAppointments, AppointmentRowOf, rows_);
  Write(table::kOpenDocuments, OpenDocumentRow, rows_);
  Write(table::kDrafts, DraftRow, rows_);
  for (const DocumentKind kind : kDocumentKinds) WriteDocuments(kind);
}

void Firm::MakeSinglePieces() {
  MakeFolders();
  Write(table::kStock, SinglePieceRow, rows_);
  for (const DocumentKind kind : kDocumentKinds)
    Write(
        NamesOf(kind).table, [](long) { return SeedRow("0100/2026", kToday); }, 1);
}

void Firm::WriteConfig() const {
  std::vector<std::string> values(TextSettings().size(), "Zahlbar innerhalb von 14 Tagen");
  values[0] = "19";
  values[1] = "7";
  values[2] = values[3] = programFolder_.string() + "\\";
  values[4] = settings_.DBPath;
  if (!files_.Write((programFolder_ / "config.txt").string(), ConfigText(values, false, false)) ||
      !files_.Write((programFolder_ / "UpdateCheck.txt").string(), "Check=False\r\n"))
    Fail("the settings cannot be written");
}

void Firm::Write(std::string_view table, const std::function<std::string(long index)>& row, long rows) {
  std::string text;
  for (long index = 0; index < rows; ++index) text.append(row(index)).append(kLineEnd);
  if (!store_.WriteTable(table, text)) Fail("a table cannot be written");
}

void Firm::WriteDocuments(DocumentKind kind) {
  const auto row = [&](long index) {
    return index == rows_ ? SeedRow("0100/2026", kToday) : DocumentRow(kind, index, rows_);
  };
  Write(NamesOf(kind).table, row, rows_ + 1);
}

}  // namespace kontorwerk::bench
