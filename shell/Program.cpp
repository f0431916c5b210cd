#include "shell/Program.h"

#include "admin/AdminScreens.h"
#include "calendar/CalendarScreens.h"
#include "partners/PartnerScreens.h"
#include "shell/ABRGNewDialog.h"
#include "shell/StartForm.h"
#include "shell/frmAbout.h"

namespace kontorwerk {

struct ProgramScreens {
  explicit ProgramScreens(Context& context)
      : startForm(context), newTables(context), about(context), calendar(context, startForm), admin(context, startForm),
        partners(context) {
    context.desktop.Add(startForm);
    context.desktop.Add(newTables);
    context.desktop.Add(about);
    startForm.SetActions(Actions());
  }

  StartFormActions Actions() {
    StartFormActions actions;
    actions.openAppointments = [this](const Date& date) { calendar.terminkalender.OpenAt(date); };
    actions.openNewAppointment = [this](const Date& date) { return calendar.terminkalender.NewAppointmentAt(date); };
    actions.askAndDeleteAppointment = [this](const Appointment& a) { calendar.terminkalender.AskAndDelete(a); };
    return actions;
  }

  StartForm startForm;
  ABRGNewDialog newTables;
  frmAbout about;
  CalendarScreens calendar;
  AdminScreens admin;
  PartnerScreens partners;
};

Program::Program(Desktop& desktop, Platform& platform, const FileSystemObject& files)
    : store_(files, settings_), context_{desktop, platform, files, store_, settings_},
      screens_(std::make_unique<ProgramScreens>(context_)) {}

Program::~Program() = default;

void Program::Start() { screens_->startForm.Load(); }

}  // namespace kontorwerk
