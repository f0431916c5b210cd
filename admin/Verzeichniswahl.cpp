#include "admin/Verzeichniswahl.h"

#include <utility>
#include <vector>

#include "admin/Folders.h"
#include "store/Text.h"

namespace kontorwerk {

Verzeichniswahl::Verzeichniswahl(Context& context) : Screen(context.desktop, "Verzeichniswahl"), context_(context) {
  Drive1.OnClick = [this] { GoTo(FolderPath(UCase(Drive1.Text()))); };
  Dir1.OnDoubleClick = [this] { EnterChosen(); };
  Dir1.OnKey = [this](Key& key) {
    if (!key.Is(KeyCode::Enter)) return;
    key.handled = true;
    EnterChosen();
  };
  Command1.OnClick = [this] { CreateFolder(); };
  OKButton.OnClick = [this] { TakeOver(); };
  CancelButton.OnClick = [this] { Unload(); };
}

void Verzeichniswahl::OnLoad() {
  Drive1.SetItems(Drives(context_.files));
  GoTo(context_.platform.ProgramFolder());
}

void Verzeichniswahl::OnUnload() {
  if (target_ != nullptr) target_->FolderChoiceEnded();
}

void Verzeichniswahl::GoTo(std::string_view folder) {
  const std::string plain = PlainPath(folder);
  Path = FolderPath(plain);
  Label2.SetCaption(plain);
  Drive1.SetText(DriveOf(plain));
  std::vector<std::string> entries = Subfolders(context_.files, Path);
  if (!FolderAbove(plain).empty()) entries.insert(entries.begin(), std::string(kFolderAbove));
  Dir1.SetItems(std::move(entries));
}

void Verzeichniswahl::EnterChosen() {
  if (Dir1.ListIndex() == ChoiceControl::kNone) return;
  GoTo(Dir1.Text() == kFolderAbove ? FolderAbove(Path) : Concat(Path, Dir1.Text()));
}

void Verzeichniswahl::CreateFolder() {
  const std::string name = NewFolderName(Subfolders(context_.files, Path));
  // A folder that cannot be made is simply missing from the list.
  static_cast<void>(context_.files.CreateFolder(Concat(Path, name)));
  GoTo(Path);
}

void Verzeichniswahl::TakeOver() {
  if (target_ != nullptr) target_->TakeFolder(Path);
  Unload();
}

}  // namespace kontorwerk
