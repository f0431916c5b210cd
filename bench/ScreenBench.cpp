// From a click to the filled screen, without windows: the searches and the choice of a hit.
#include <map>
#include <memory>

#include "bench/Fail.h"
#include "bench/HeadlessProgram.h"
#include "bench/Measure.h"
#include "bench/Rows.h"
#include "bench/Subjects.h"
#include "partners/KDsuchen.h"
#include "stock/Artikelsuchen.h"

namespace kontorwerk::bench {
namespace {

// A program with its searches open.
HeadlessProgram& Running(Firm& firm) {
  static std::map<long, std::unique_ptr<HeadlessProgram>> programs;
  std::unique_ptr<HeadlessProgram>& program = programs[firm.Rows()];
  if (!program) {
    program = std::make_unique<HeadlessProgram>(firm);
    program->Start();
    program->Get<Screen>("KDsuchen").Show();
    program->Get<Screen>("Artikelsuchen").Show();
  }
  return *program;
}

// Back to the state in which Command1 searches and does not clear the screen.
KDsuchen& ReadyCustomerSearch(HeadlessProgram& program) {
  auto& search = program.Get<KDsuchen>("KDsuchen");
  if (search.Command1.Caption() == "Neue Suche") program.Hand().Click(search.Command1);
  return search;
}

long SearchCustomers(HeadlessProgram& program, std::string_view text) {
  KDsuchen& search = ReadyCustomerSearch(program);
  program.Hand().SetText(search.Fields.Box(partner::kName), text);
  program.Hand().Click(search.Command1);
  return search.Suchergebnis.RowCount();
}

void AddCustomerSearch(const std::string& name, std::string_view text) {
  Subject("Click to the list of customers, " + name)
      .Preparing([](Firm& firm) { Running(firm); })
      .Measure(kProgram, [=](Firm& firm) { return SearchCustomers(Running(firm), text); })
      .BesideScan({table::kCustomers})
      .BesideGrep(table::kCustomers, text)
      .BesideSqliteSearch("customers", text);
}

// A click on a hit reads the customer and his open documents.
void AddChoice() {
  Subject("Click on a hit to the loaded customer")
      .Preparing([](Firm& firm) { SearchCustomers(Running(firm), kRareText); })
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 HeadlessProgram& program = Running(firm);
                 auto& search = program.Get<KDsuchen>("KDsuchen");
                 program.Hand().Select(search.Suchergebnis, 1);
                 if (search.Fields.Text(partner::kAnrede).empty()) Fail("no customer was loaded");
                 return std::nullopt;
               })
      .BesideScan({table::kCustomers, table::kOpenDocuments});
}

void AddArticleSearch() {
  Subject("Click to the list of articles, one row in a hundred")
      .Preparing([](Firm& firm) { Running(firm); })
      .Measure(kProgram,
               [](Firm& firm) {
                 HeadlessProgram& program = Running(firm);
                 auto& search = program.Get<Artikelsuchen>("Artikelsuchen");
                 program.Hand().SetText(search.Bezeichnung, kTownText);
                 program.Hand().Click(search.Command5);
                 return static_cast<long>(search.Suchergebnis.RowCount());
               })
      .BesideScan({table::kArticles})
      .BesideGrep(table::kArticles, kTownText)
      .BesideSqliteSearch("articles", kTownText);
}

}  // namespace

void AddScreenSubjects() {
  AddCustomerSearch("one hit", kRareText);
  AddCustomerSearch("one row in a hundred", kTownText);
  AddCustomerSearch("every customer", "");
  AddChoice();
  AddArticleSearch();
}

}  // namespace kontorwerk::bench
