// Saving, the next partner, take-over and leaving. The messages are the kind's.
#include "partners/PartnerEdit.h"

#include "partners/TakeOver.h"
#include "platform/FormDesign.h"

namespace kontorwerk {
namespace {

// The boxes that say on the form what belongs into them. Kept: a prompt that the user leaves alone is stored as the
// field's value.
constexpr int kPromptedColumns[] = {partner::kAnrede, partner::kName, partner::kStraße, partner::kPLZ,
                                    partner::kWohnort};

std::string_view PromptOf(const TextBox& box) {
  const ScreenDesign* form = box.Owner().Design();
  const ControlDesign* design = form ? form->Find(box.Name()) : nullptr;
  return design ? std::string_view(design->text) : std::string_view();
}

}  // namespace

PartnerEdit::PartnerEdit(Context& context, const PartnerKind& kind, PartnerFlags& flags,
                         const PartnerReceivers& receivers, APAuswahl& chooser)
    : Screen(context.desktop, kind.editScreen),
      context_(context),
      kind_(kind),
      flags_(flags),
      receivers_(receivers),
      chooser_(chooser),
      Fields(*this, kind) {
  for (TextBox& box : Fields.Boxes()) box.OnChange = [this] { geaendert_ = true; };
  Command1.OnClick = [this] { Save(); };
  Command2.OnClick = [this] { Leave(); };
  Command3.OnClick = [this] { SaveAndBeginNext(); };
  Command4.OnClick = [this] { GoToSearch(); };
  SpÜbernahme.OnClick = [this] { SaveAndTakeOver(); };
}

void PartnerEdit::OnLoad() {
  if (flags_.KundeBearbeiten) return;
  ShowPrompts();
  geaendert_ = false;
}

void PartnerEdit::OnActivate() { Fields.Box(partner::kAnrede).SetFocus(); }

// A closed screen changes nobody: otherwise the next new partner would be looked for in the table instead of being
// added to it.
void PartnerEdit::OnUnload() { flags_.KundeBearbeiten = false; }

void PartnerEdit::Edit(const Partner& partner) {
  flags_.KundeBearbeiten = true;
  Load();
  Fields.Fill(partner);
  Show();
  geaendert_ = false;
}

void PartnerEdit::ShowPrompts() {
  for (const int column : kPromptedColumns) {
    TextBox& box = Fields.Box(column);
    box.SetText(PromptOf(box));
    box.SelectAll();
  }
}

bool PartnerEdit::Save() {
  if (!geaendert_) {
    Tell("Keine Änderung feststellbar. Nichts gespeichert!"_t);
    return false;
  }
  Tell("speichern... Bitte warten!");
  Partner partner = Fields.Read();
  bool written = false;
  if (flags_.KundeBearbeiten) {
    written = ReplacePartner(context_.store, kind_, partner);
    Tell(kind_.ChangesSavedMessage(Fields.Text(partner::kName), Fields.Text(partner::kNumber)));
  } else {
    written = AppendPartner(context_.store, kind_, partner, context_.platform.TodayText());
    Fields.Box(partner::kNumber).SetText(partner.Text(partner::kNumber));
    Tell(kind_.SavedMessage(Fields.Text(partner::kName), Fields.Text(partner::kNumber)));
    if (written) flags_.KundeBearbeiten = true;
  }
  geaendert_ = !written;
  return written;
}

void PartnerEdit::SaveAndBeginNext() {
  if (!Save()) return;
  flags_.KundeBearbeiten = false;
  Tell("Status");
  Fields.Clear();
  Fields.Box(partner::kNumber).SetText(kind_.nextNumberPrompt);
  ShowPrompts();
  Fields.Box(partner::kAnrede).SetFocus();
  geaendert_ = false;
}

// A partner of the table goes over whether he was changed or not; boxes that never became a record stay here.
void PartnerEdit::SaveAndTakeOver() {
  const bool saved = Save();
  if (!saved && (geaendert_ || !flags_.KundeBearbeiten)) return;
  if (!TakeOverPartner(Fields, kind_, receivers_, chooser_)) return;
  flags_.KundeGewaehlt = false;
  Unload();
  if (Screen* search = context_.desktop.Find(kind_.searchScreen)) search->Unload();
}

void PartnerEdit::Leave() {
  if (geaendert_) {
    const Answer answer = context_.platform.Box(kind_.leaveQuestion, "Ohne speichern beenden", Buttons::YesNoCancel);
    if (answer == Answer::Cancel) return;
    if (answer == Answer::No && !Save()) return;
  }
  Unload();
}

// Kept: no question, unsaved changes are gone.
void PartnerEdit::GoToSearch() {
  if (Screen* search = context_.desktop.Find(kind_.searchScreen)) search->Show();
  Unload();
}

}  // namespace kontorwerk
