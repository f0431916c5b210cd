// The life of the control centre: the start of the program as its load, the end as its unload.
//
//   state                event                          step
//   settings missing     folders filled                 on to the tables
//                        settings dialog left           end
//   tables missing       Ja, tables made                start anew
//                        Ja, dialog left                end
//                        Nein, settings dialog closed   start anew
//                        Abbrechen                      end
//   running              unload                         every other screen unloaded, end
//
// Whoever waits returns at once when the program ends meanwhile.
#include <string>

#include "shell/DocumentTables.h"
#include "shell/StartForm.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kRowsOfOnePage = 17;
constexpr std::string_view kNoTablesTitle = "Keine Datenbanken gefunden!";
constexpr std::string_view kNoTables =
    "Es wurden in dem angegebenen Datenbanken-Pfad keine Datenbanken gefunden!\r\n\r\n"
    "Drücken Sie 'Ja' wenn dies der erste Start der Kontorwerk ist, oder Sie neue Datenbanken generieren "
    "wollen.\r\n\r\n"
    "Drücken Sie 'Nein' wenn Sie einen neuen Datenpfad angeben wollen.\r\n\r\n"
    "'Abbrechen' beendet die Kontorwerk!"_t;
constexpr std::string_view kDateConflict =
    "Kontorwerk hat einen Konflickt zwischen dem aktuellen Datum und der Rechnungsdatenbank festgestellt!!!\r\n"
    "Bitte überprüfen sie das aktuelle Systemdatum! Sollte dies stimmen,\r\n"
    "kontaktieren sie umgehend den Systemadministrator!"_t;

bool FoldersFilled(const Settings& settings) {
  return !settings.ABPath.empty() && !settings.RGPath.empty() && !settings.DBPath.empty();
}

void ShowScreen(Desktop& desktop, std::string_view name) {
  if (Screen* screen = desktop.Find(name)) screen->Show();
}

}  // namespace

void StartForm::OnLoad() {
  EnableCommands();
  while (RunStart() == StartStep::Again) {
  }
}

void StartForm::PutControlsToStart() {
  MonthView.SetValue(context_.platform.Today());
  ShowDate();
  // The day list is filled at the end of the start alone, although the calendar may have turned to another month.
  Daybold.SetRunning(false);
  HideCentres();
  ShowStockReminder(false);
}

StartForm::StartStep StartForm::RunStart() {
  PutControlsToStart();
  context_.settings.PositionRowCount = kRowsOfOnePage;
  ReadConfig();
  if (!WaitForFolders()) return StartStep::Ended;
  for (const std::string& folder : {context_.platform.ProgramFolder(), context_.settings.DBPath})
    context_.files.RemoveLeftovers(folder);
  const SeedNumbers numbers = ReadSeedNumbers(context_.store);
  if (numbers.NoneFilled()) return AskForTables();
  AddCreditNoteTable(context_.store, numbers, context_.platform.TodayText());
  // Kept: without a number of the invoices or quotations there is no year to compare with, and the start ends here.
  if (numbers.Reference().empty()) return StartStep::Done;
  CheckYear(numbers.Reference());
  CountStockItems();
  // Kept: counted once more behind the reminder of the stock, as every start has done.
  OpenDocumentReminder();
  SupportServer.SetEnabled(context_.desktop.Find("Support_Server") != nullptr);
  if (Autoupdate.Checked() && actions_.checkForUpdatesAtStart) actions_.checkForUpdatesAtStart();
  Daybold.SetRunning(true);
  return StartStep::Done;
}

void StartForm::ReadConfig() {
  const std::string folder = context_.platform.ProgramFolder();
  ReadConfigText(context_.files.Read(Concat(folder, "config.txt")).text, context_.settings);
  if (SettingsIncomplete(context_.settings)) {
    Hide();
    ShowScreen(context_.desktop, "Einstellungen");
  } else {
    Show();
  }
  const std::string updateCheck = context_.files.Read(Concat(folder, "UpdateCheck.txt")).text;
  Autoupdate.SetChecked(ReadUpdateCheckText(updateCheck, Autoupdate.Checked()));
}

// False if the program ends.
bool StartForm::WaitForFolders() {
  const Settings& settings = context_.settings;
  while (!FoldersFilled(settings)) {
    if (settings.SettingsResult == "0") {
      Unload();
      return false;
    }
    if (!context_.platform.WaitUntil([&] { return FoldersFilled(settings) || settings.SettingsResult == "0"; }))
      return false;
  }
  return Loaded();
}

StartForm::StartStep StartForm::AskForTables() {
  switch (context_.platform.Box(kNoTables, kNoTablesTitle, Buttons::YesNoCancel)) {
    case Answer::Yes:
      return WaitForFirstNumbers();
    case Answer::No:
      return WaitForOtherFolder();
    default:
      Unload();
      return StartStep::Ended;
  }
}

StartForm::StartStep StartForm::WaitForFirstNumbers() {
  const std::string& result = context_.settings.NewTablesResult;
  ShowScreen(context_.desktop, "ABRGNewDialog");
  Hide();
  if (!context_.platform.WaitUntil([&] { return !result.empty(); }) || !Loaded()) return StartStep::Ended;
  if (result == "0") {
    Unload();
    return StartStep::Ended;
  }
  if (actions_.provideTemplates) actions_.provideTemplates();
  return StartStep::Again;
}

StartForm::StartStep StartForm::WaitForOtherFolder() {
  Settings& settings = context_.settings;
  ShowScreen(context_.desktop, "Einstellungen");
  Hide();
  settings.ABPath.clear();
  settings.RGPath.clear();
  settings.DBPath.clear();
  if (!context_.platform.WaitUntil([&] { return !settings.SettingsResult.empty(); }) || !Loaded())
    return StartStep::Ended;
  return StartStep::Again;
}

void StartForm::CheckYear(const std::string& reference) {
  const std::string today = context_.platform.TodayText();
  const std::string_view year = Right(today, 4);
  std::string& offset = context_.settings.DocumentYearOffset;
  const YearState state = CompareYears(today, reference);
  offset = state == YearState::NewYear ? "1" : "0";
  if (state == YearState::NewYear && context_.platform.Ask(NewYearQuestion(year), "Datenbank-Updaten?")) {
    offset = "0";
    StartNewYear(context_.store, today);
    context_.platform.Tell(NewYearReport(year));
  }
  if (state == YearState::DataNewerThanCalendar) context_.platform.Tell(kDateConflict);
}

void StartForm::OnUnload() {
  const std::vector<Screen*> screens = context_.desktop.Screens();
  for (Screen* screen : screens)
    if (screen != this) screen->Unload();
}

}  // namespace kontorwerk
