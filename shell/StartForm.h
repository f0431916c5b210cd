// The control centre: the main screen from which every function starts. It stays open for the whole run; its load
// is the start of the program, its unload the end. Each of its six centres is opened by an image command, which shows
// the centre's commands and figures and hides those of the others.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/Timer.h"
#include "shell/StartFormActions.h"

namespace kontorwerk {

class StartForm final : public Screen, public ControlCentre {
 public:
  explicit StartForm(Context& context);

  // To be called before the first load.
  void SetActions(StartFormActions actions) { actions_ = std::move(actions); }

  void ReadConfig() override;
  void CountStockItems() override;
  // Does nothing while the documents centre is open: its command then shows the count.
  void OpenDocumentReminder() override;
  void RefreshAppointments() override;
  // The number of open documents on the command of the documents centre, whichever centre is open.
  void ShowOpenDocumentCount();

  // True while this is the active window; kept by `AktivFenster`.
  bool WindowActive = false;

  // Image commands of the centres.
  CommandButton Command1{*this, "Command1"};    // customers
  CommandButton Command2{*this, "Command2"};    // orders
  CommandButton Command3{*this, "Command3"};    // documents
  CommandButton Command12{*this, "Command12"};  // suppliers
  CommandButton Command19{*this, "Command19"};  // articles
  CommandButton Command20{*this, "Command20"};  // stock

  // Customers.
  CommandButton Command4{*this, "Command4"};
  CommandButton Command5{*this, "Command5"};
  CommandButton Command24{*this, "Command24"};
  Label Label5{*this, "Label5"};
  Label KDAnz{*this, "KDAnz"};
  // Orders.
  CommandButton Command6{*this, "Command6"};
  CommandButton Command23{*this, "Command23"};
  CommandButton Command7{*this, "Command7"};
  Label Label6{*this, "Label6"};
  Label AuftrAnz{*this, "AuftrAnz"};
  Label Label13{*this, "Label13"};
  Label Label14{*this, "Label14"};  // unfinished orders
  // Documents.
  CommandButton Command8{*this, "Command8"};
  CommandButton Command9{*this, "Command9"};
  CommandButton Command11{*this, "Command11"};
  CommandButton Command21{*this, "Command21"};
  Label Label7{*this, "Label7"};
  Label EntwurfAnz{*this, "EntwurfAnz"};
  Label Label11{*this, "Label11"};
  Label RGAnz{*this, "RGAnz"};
  Label Label12{*this, "Label12"};
  Label ABAnz{*this, "ABAnz"};
  // Suppliers.
  CommandButton Command13{*this, "Command13"};
  CommandButton Command14{*this, "Command14"};
  Label Label18{*this, "Label18"};
  Label LFAnz{*this, "LFAnz"};
  // Articles.
  CommandButton Command15{*this, "Command15"};
  CommandButton Command16{*this, "Command16"};
  Label Label22{*this, "Label22"};
  Label ArtAnz{*this, "ArtAnz"};
  // Stock.
  CommandButton Command17{*this, "Command17"};
  CommandButton Command18{*this, "Command18"};

  // Reminders.
  Label Label23{*this, "Label23"};              // old open documents
  CommandButton Command22{*this, "Command22"};  // articles below their minimum
  Label Label19{*this, "Label19"};
  Label Label20{*this, "Label20"};

  // Calendar and day list. Columns of the list: begin, description, end (kept for the deletion).
  kontorwerk::MonthView MonthView{*this, "MonthView"};
  CommandButton Command28{*this, "Command28"};
  CommandButton Command29{*this, "Command29"};
  Label lblTermin{*this, "lblTermin"};
  kontorwerk::ListView ListView{*this, "ListView"};
  CommandButton Command25{*this, "Command25"};
  CommandButton Command26{*this, "Command26"};
  CommandButton Command27{*this, "Command27"};

  CommandButton Command10{*this, "Command10"};
  Label Label10{*this, "Label10"};
  Image Image2{*this, "Image2"};
  Image Image3{*this, "Image3"};

  MenuEntry EinstellungenButton{*this, "EinstellungenButton"};
  MenuEntry Administration{*this, "Administration"};
  MenuEntry Extras{*this, "Extras"};
  MenuEntry Updates{*this, "Updates"};
  MenuEntry Autoupdate{*this, "Autoupdate"};
  MenuEntry SuportClient{*this, "SuportClient"};
  MenuEntry SupportServer{*this, "SupportServer"};
  MenuEntry Handbuch{*this, "Handbuch"};
  MenuEntry Info{*this, "Info"};

  kontorwerk::Timer AktivFenster{*this, "AktivFenster", 50, kontorwerk::Timer::Start::On};
  kontorwerk::Timer Timer{*this, "Timer", 60000, kontorwerk::Timer::Start::On};
  kontorwerk::Timer Daybold{*this, "Daybold", 100, kontorwerk::Timer::Start::Off};
  kontorwerk::Timer Listview_Select{*this, "Listview_Select", 50, kontorwerk::Timer::Start::Off};
  kontorwerk::Timer Listview_Deselect{*this, "Listview_Deselect", 500, kontorwerk::Timer::Start::Off};

 private:
  enum class Centre { Customers, Orders, Documents, Suppliers, Articles, Stock };
  static constexpr std::size_t kCentres = 6;
  enum class StartStep { Again, Done, Ended };

  void OnLoad() override;
  void OnUnload() override;
  void OnUnloaded() override { context_.platform.Quit(); }
  void OnCloseRequest() override { AskToEnd(); }

  // The start of the program and its waits, in StartFormLoad.cpp.
  StartStep RunStart();
  void PutControlsToStart();
  bool WaitForFolders();
  StartStep AskForTables();
  StartStep WaitForFirstNumbers();
  StartStep WaitForOtherFolder();
  void CheckYear(const std::string& reference);

  void WireCentres();
  void WirePartnerCommands();
  void WireDocumentCommands();
  void WireStockCommands();
  void WireCalendar();
  void WireMenus();
  void WireTimers();
  void EnableCommands();

  // Clicking opens the screen of that name; without such a screen the command is disabled at load.
  void Opens(CaptionControl& command, std::string_view screen);
  // The message that a window must be closed first, if it is open.
  bool RefuseIfOpen(std::string_view screen, std::string_view message);

  [[nodiscard]] std::array<std::vector<Control*>, kCentres> ControlsByCentre();
  void HideCentres();
  void ShowStockReminder(bool shown);
  void OpenCentre(Centre centre);
  void ShowCounters(Centre centre);
  void ShowDate();
  void ShowYear(int step);
  void NewAppointment();
  void DeleteSelectedAppointment();
  void OpenManual();
  void AskToEnd();

  Context& context_;
  StartFormActions actions_;
  struct Opening {
    CaptionControl* command;
    std::string_view screen;
  };
  std::vector<Opening> openings_;
};

}  // namespace kontorwerk
