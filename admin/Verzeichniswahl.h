// The program's own folder chooser: drives, the folders of the current one, a new folder. It hands the chosen folder to
// the screen that opened it, which alone knows for which of its fields it was asked for.
#pragma once

#include <string>
#include <string_view>

#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

// Who waits for a folder.
class FolderTarget {
 public:
  virtual ~FolderTarget() = default;
  // The folder was chosen; it ends with a separator.
  virtual void TakeFolder(std::string_view path) = 0;
  // The chooser has closed, with or without a choice.
  virtual void FolderChoiceEnded() = 0;
};

class Verzeichniswahl final : public Screen {
 public:
  explicit Verzeichniswahl(Context& context);
  // Must be set before the screen is loaded.
  void SetTarget(FolderTarget* target) { target_ = target; }

  ComboBox Drive1{*this, "Drive1"};
  ListBox Dir1{*this, "Dir1"};
  Label Label2{*this, "Label2"};
  CommandButton Command1{*this, "Command1"};
  CommandButton OKButton{*this, "OKButton"};
  CommandButton CancelButton{*this, "CancelButton"};

  // The folder that stands open in Dir1, with a closing separator.
  std::string Path;

 private:
  void OnLoad() override;
  void OnUnload() override;

  // Dir1 goes to the folder; path and label follow.
  void GoTo(std::string_view folder);
  void EnterChosen();
  void CreateFolder();
  void TakeOver();

  Context& context_;
  FolderTarget* target_ = nullptr;
};

}  // namespace kontorwerk
