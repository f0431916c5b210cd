// The start of the program and what the control centre counts, through its screen.
#include <memory>

#include "bench/HeadlessProgram.h"
#include "bench/Measure.h"
#include "bench/Rows.h"
#include "bench/Subjects.h"
#include "shell/Reminders.h"
#include "shell/StartForm.h"

namespace kontorwerk::bench {
namespace {

// A started program for each size, for what happens later in a day.
StartForm& RunningControlCentre(Firm& firm) {
  static std::map<long, std::unique_ptr<HeadlessProgram>> programs;
  std::unique_ptr<HeadlessProgram>& program = programs[firm.Rows()];
  if (!program) {
    program = std::make_unique<HeadlessProgram>(firm);
    program->Start();
  }
  return program->Get<StartForm>("StartForm");
}

// With the centre of the customers open: the reminder does nothing while that of the documents is.
Subject InControlCentre(const std::string& name) {
  Subject subject(name);
  subject.Preparing([](Firm& firm) { RunningControlCentre(firm).Command1.UserClick(); });
  return subject;
}

void AddStart() {
  Subject("Start to the open control centre")
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 HeadlessProgram program(firm);
                 program.Start();
                 if (!program.Get<StartForm>("StartForm").Visible()) return 0;
                 return 1;
               })
      .BesideScan({table::kInvoices, table::kQuotations, table::kDeliveryNotes, table::kCreditNotes, table::kStock,
                   table::kOpenDocuments, table::kAppointments});
}

void AddReadConfig() {
  InControlCentre("ReadConfig")
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 RunningControlCentre(firm).ReadConfig();
                 return std::nullopt;
               })
      .BesideScan({"../config.txt", "../UpdateCheck.txt"});
}

void AddReminders() {
  InControlCentre("CountStockItems")
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 RunningControlCentre(firm).CountStockItems();
                 return std::nullopt;
               })
      .BesideScan({table::kStock, table::kOpenDocuments});
  InControlCentre("OpenDocumentReminder")
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 RunningControlCentre(firm).OpenDocumentReminder();
                 return std::nullopt;
               })
      .BesideScan({table::kOpenDocuments});
  InControlCentre("RefreshAppointments")
      .Measure(kProgram,
               [](Firm& firm) -> std::optional<long> {
                 RunningControlCentre(firm).RefreshAppointments();
                 return std::nullopt;
               })
      .BesideScan({table::kAppointments});
}

void AddCentre(const std::string& name, CommandButton StartForm::*command, std::vector<std::string_view> tables) {
  InControlCentre("Counters of the centre, " + name)
      .Measure(kProgram,
               [command](Firm& firm) -> std::optional<long> {
                 (RunningControlCentre(firm).*command).UserClick();
                 return std::nullopt;
               })
      .BesideScan(std::move(tables));
}

}  // namespace

void AddStartSubjects() {
  AddStart();
  AddReadConfig();
  AddReminders();
  AddCentre("orders", &StartForm::Command2, {table::kOrders});
  AddCentre("documents", &StartForm::Command3, {table::kDrafts, table::kOpenDocuments});
}

}  // namespace kontorwerk::bench
