// The dialog over config.txt: every setting in a field, written and read again as a whole by its save command.
//
//   SettingsResult   loading: empty | saved: "1" | closed: "2" behind "1", otherwise "0"
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "admin/Verzeichniswahl.h"
#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class Einstellungen final : public Screen, public FolderTarget {
 public:
  Einstellungen(Context& context, ControlCentre& controlCentre, Verzeichniswahl& folderChooser);

  // Opens the program's own chooser for one of the three folders, as F4 in its field does.
  void ChooseInOwnScreen(TextBox& folder);
  void TakeFolder(std::string_view path) override;
  void FolderChoiceEnded() override;

  TextBox MWSTSatz{*this, "MWSTSatz"};
  TextBox MWSTSatz2{*this, "MWSTSatz2"};
  TextBox RGPath{*this, "RGPath"};
  TextBox ABPath{*this, "ABPath"};
  TextBox DBPath{*this, "DBPath"};
  TextBox RGZahlungsweise{*this, "RGZahlungsweise"};
  TextBox RGText1{*this, "RGText1"};
  TextBox RGText2{*this, "RGText2"};
  TextBox LFZahlungsweise{*this, "LFZahlungsweise"};
  TextBox LFText1{*this, "LFText1"};
  TextBox LFText2{*this, "LFText2"};
  TextBox ABZahlungsweise{*this, "ABZahlungsweise"};
  TextBox ABText1{*this, "ABText1"};
  TextBox ABText2{*this, "ABText2"};
  TextBox GSZahlungsweise{*this, "GSZahlungsweise"};
  TextBox GSText1{*this, "GSText1"};
  TextBox GSText2{*this, "GSText2"};
  TextBox FAB{*this, "FAB"};
  TextBox FA1{*this, "FA1"};
  TextBox FA2{*this, "FA2"};
  TextBox FA3{*this, "FA3"};
  TextBox FA4{*this, "FA4"};
  TextBox FA5{*this, "FA5"};
  TextBox FA6{*this, "FA6"};
  TextBox FB1{*this, "FB1"};
  TextBox FB2{*this, "FB2"};
  TextBox FB3{*this, "FB3"};
  TextBox Steuernummer{*this, "Steuernummer"};
  TextBox USTIDNR{*this, "USTIDNR"};
  CheckBox Check1{*this, "Check1"};
  CheckBox Check2{*this, "Check2"};
  Label Label24{*this, "Label24"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};
  CommandButton OKButton{*this, "OKButton"};
  CommandButton CancelButton{*this, "CancelButton"};
  MenuEntry Sicherung{*this, "Sicherung"};

  // For which folder the program's own chooser is open.
  bool ChoosingRGPath = false;
  bool ChoosingABPath = false;
  bool ChoosingDBPath = false;

 private:
  void OnLoad() override;
  void OnUnload() override;
  void OnCloseRequest() override { Cancel(); }

  [[nodiscard]] std::string ConfigPath() const;
  [[nodiscard]] TextBox* FieldOfKey(std::string_view key) const;
  void Save();
  void Cancel();
  void ChooseFolder(TextBox& folder);
  void CopyConfig();
  void ExplainFooter();

  Context& context_;
  ControlCentre& controlCentre_;
  Verzeichniswahl& folderChooser_;
  std::vector<TextBox*> fields_;  // in the order of TextSettings
};

}  // namespace kontorwerk
