// Customers: what the search, the choice of a hit and the saving do with the table. The screens stand in ScreenBench.
#include <benchmark/benchmark.h>

#include "bench/Measure.h"
#include "bench/Rows.h"
#include "bench/Subjects.h"
#include "partners/PartnerTable.h"
#include "shell/Counters.h"

namespace kontorwerk::bench {
namespace {

constexpr int kSaves = 4;

std::string TableOf(Firm& firm) { return firm.Store().ReadTableText(table::kCustomers); }

std::string MiddleNumber(long rows) { return CustomerNumber(rows / 2); }

void AddSearch(const std::string& name, std::string_view text) {
  Subject("Customer search, " + name)
      .Measure(kProgram,
               [=](Firm& firm) {
                 const std::string table = TableOf(firm);
                 return static_cast<long>(FindPartners(table, text).size());
               })
      .BesideScan({table::kCustomers})
      .BesideGrep(table::kCustomers, text)
      .BesideSqliteSearch("customers", text);
}

void AddLookup() {
  Subject("Customer by number")
      .Measure(kProgram,
               [](Firm& firm) {
                 const auto partner = FindPartner(TableOf(firm), MiddleNumber(firm.Rows()), CustomerKind());
                 return partner ? 1 : 0;
               })
      .BesideScan({table::kCustomers})
      .MeasureSqlite(kSqlite, [](Firm& firm) { return firm.Twin().Lookup("customers", MiddleNumber(firm.Rows())); });
}

// A telephone number that changes with each save.
std::string NewTelephone() {
  static long saves = 0;
  return std::to_string(4000000 + ++saves);
}

void AddSave() {
  Subject("Save a changed customer")
      .Preparing([](Firm& firm) { firm.Restock(table::kCustomers); })
      .Rounds(kSaves)
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 Partner partner =
                     *FindPartner(CustomerRow(firm.Rows() / 2, firm.Rows()), MiddleNumber(firm.Rows()), CustomerKind());
                 partner.texts[partner::kTel - 1] = NewTelephone();
                 return ReplacePartner(firm.WorkshopStore(), CustomerKind(), partner) ? 1 : 0;
               })
      .BesideCopy(table::kCustomers)
      .MeasureSqlite(kSqlite, [](Firm& firm) -> std::optional<long> {
        firm.Twin().Update("saved_customers", MiddleNumber(firm.Rows()), partner::kTel, NewTelephone());
        return 1;
      });
}

void AddNewCustomer() {
  Subject("Save a new customer")
      .Preparing([](Firm& firm) { firm.Restock(table::kCustomers); })
      .Rounds(kSaves)
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 Partner partner = ReadPartner(CustomerRow(1, firm.Rows()), CustomerKind());
                 return AppendPartner(firm.WorkshopStore(), CustomerKind(), partner, kToday) ? 1 : 0;
               })
      .BesideCopy(table::kCustomers)
      .MeasureSqlite(kSqlite, [](Firm& firm) -> std::optional<long> {
        firm.Twin().Insert("saved_customers", "neu" + NewTelephone(), "Rosenheim");
        return 1;
      });
}

void AddRowsOnTopAndBehind() {
  Subject("Append a row")
      .Preparing([](Firm& firm) { firm.Restock(table::kCustomers); })
      .Rounds(kSaves)
      .Measure(kProgram,
               [](Firm& firm) {
                 return firm.WorkshopStore().AppendRow(table::kCustomers, CustomerRow(1, firm.Rows())) ? 1 : 0;
               })
      .BesideCopy(table::kCustomers);
  Subject("Prepend a row")
      .Preparing([](Firm& firm) { firm.Restock(table::kCustomers); })
      .Rounds(kSaves)
      .Measure(kProgram,
               [](Firm& firm) {
                 return firm.WorkshopStore().PrependRow(table::kCustomers, CustomerRow(1, firm.Rows())) ? 1 : 0;
               })
      .BesideCopy(table::kCustomers);
}

void AddNumberAndCount() {
  Subject("Next customer number")
      .Measure(kProgram, [](Firm& firm) { return std::stol(NextPartnerNumber(TableOf(firm), CustomerKind())); })
      .BesideScan({table::kCustomers});
  Subject("Counter of the customers")
      .Measure(kProgram, [](Firm& firm) { return static_cast<long>(CountRecords(TableOf(firm))); })
      .BesideScan({table::kCustomers})
      .MeasureSqlite(kSqlite, [](Firm& firm) { return firm.Twin().Number("SELECT count(*) FROM customers"); });
}

}  // namespace

void AddPartnerSubjects() {
  AddSearch("one hit", kRareText);
  AddSearch("one row in a hundred", kTownText);
  AddSearch("two letters, no hit", kShortText);
  AddLookup();
  AddSave();
  AddNewCustomer();
  AddRowsOnTopAndBehind();
  AddNumberAndCount();
}

}  // namespace kontorwerk::bench
