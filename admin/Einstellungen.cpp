#include "admin/Einstellungen.h"

#include <optional>
#include <string>

#include "admin/SettingsFields.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr std::string_view kConfigFile = "config.txt";
constexpr std::string_view kHelpTitle = "Fußzeile der Vorlagen"_t;
constexpr std::string_view kHelpText =
    "Diese Angaben stehen in der Fußzeile der mitgelieferten Vorlagen für Angebote, Lieferscheine, Rechnungen, "_t
    "Gutschriften und Mahnungen.\r\n\r\n"_t
    "In einer Vorlage bezeichnen Sie die Stellen mit [FA1] bis [FA6] für Firmenname, Anschrift und Kontaktdaten und mit "_t
    "[FB1] bis [FB3] für die Bankverbindung. [Steuernummer] und [USTIDNR] stehen für die beiden Steuernummern, "_t
    "[Absenderadresse] für die Absenderzeile im Briefkopf.\r\n\r\n"_t
    "Ein leeres Feld bleibt im Beleg leer. Wie die Fußzeile aussieht, bestimmt allein die Vorlage."_t;

FileDialog FolderDialog(std::string_view title, std::string_view folder) {
  FileDialog dialog;
  dialog.title = title;
  dialog.filter = "Verzeichnis|*.~~~";
  dialog.folder = folder;
  dialog.name = "Wählen Sie ein Verzeichnis"_t;
  dialog.save = true;
  return dialog;
}

}  // namespace

Einstellungen::Einstellungen(Context& context, ControlCentre& controlCentre, Verzeichniswahl& folderChooser)
    : Screen(context.desktop, "Einstellungen"),
      context_(context),
      controlCentre_(controlCentre),
      folderChooser_(folderChooser),
      fields_{&MWSTSatz,     &MWSTSatz2, &RGPath,
              &ABPath,       &DBPath,    &RGZahlungsweise,
              &RGText1,      &RGText2,   &LFZahlungsweise,
              &LFText1,      &LFText2,   &ABZahlungsweise,
              &ABText1,      &ABText2,   &GSZahlungsweise,
              &GSText1,      &GSText2,   &FAB,
              &FA1,          &FA2,       &FA3,
              &FA4,          &FA5,       &FA6,
              &FB1,          &FB2,       &FB3,
              &Steuernummer, &USTIDNR} {
  OKButton.OnClick = [this] { Save(); };
  CancelButton.OnClick = [this] { Cancel(); };
  Label24.OnClick = [this] { ExplainFooter(); };
  Sicherung.OnClick = [this] { CopyConfig(); };
  for (const auto& [command, folder] : {std::pair(&Command1, &RGPath), {&Command2, &ABPath}, {&Command3, &DBPath}}) {
    command->OnClick = [this, folder] { ChooseFolder(*folder); };
    folder->OnKey = [this, folder](Key& key) {
      if (!key.Is(KeyCode::F4)) return;
      key.handled = true;
      ChooseInOwnScreen(*folder);
    };
  }
}

void Einstellungen::OnLoad() {
  context_.settings.SettingsResult.clear();
  const std::string config = context_.files.Read(ConfigPath()).text;
  const SwitchFields switches = ReadSettingsFields(config, [this](std::string_view key, std::string_view text) {
    if (TextBox* field = FieldOfKey(key)) field->SetText(text);
  });
  if (switches.sortieren) Check1.SetChecked(*switches.sortieren);
  const bool oneTemplate = switches.einheitsbelege.value_or(context_.settings.Einheitsbelege);
  Check2.SetChecked(oneTemplate);
  if (!DBPath.Text().empty()) return;
  // A first start: the tables lie beside the program, and one template serves all documents.
  DBPath.SetText(context_.platform.ProgramFolder());
  Check2.SetChecked(true);
}

void Einstellungen::OnUnload() {
  std::string& result = context_.settings.SettingsResult;
  result = result == "1" ? "2" : "0";
}

std::string Einstellungen::ConfigPath() const { return Concat(context_.platform.ProgramFolder(), kConfigFile); }

TextBox* Einstellungen::FieldOfKey(std::string_view key) const {
  const std::vector<TextSetting>& settings = TextSettings();
  for (std::size_t i = 0; i < settings.size(); ++i)
    if (settings[i].key == key) return fields_[i];
  return nullptr;
}

void Einstellungen::Save() {
  for (TextBox* folder : {&RGPath, &ABPath, &DBPath}) folder->SetText(WithClosingBackslash(folder->Text()));
  std::vector<std::string> values;
  for (const TextBox* field : fields_) values.push_back(field->Text());
  // A file that cannot be written keeps its old settings, which the next line reads again.
  static_cast<void>(context_.files.Write(ConfigPath(), ConfigText(values, Check1.Checked(), Check2.Checked())));
  controlCentre_.ReadConfig();
  folderChooser_.Unload();
  context_.settings.SettingsResult = "1";
  Unload();
  // A rate that was emptied is asked for again.
  if (SettingsIncomplete(context_.settings)) Show();
}

void Einstellungen::Cancel() {
  folderChooser_.Unload();
  Unload();
}

void Einstellungen::ChooseFolder(TextBox& folder) {
  const std::optional<std::string> chosen =
      context_.platform.ChooseFolder(FolderDialog("Verzeichnis für Datenbanken und Vorlagen auswählen"_t, "C:\\test"));
  if (chosen) folder.SetText(WithClosingBackslash(*chosen));
}

void Einstellungen::ChooseInOwnScreen(TextBox& folder) {
  folderChooser_.Unload();
  ChoosingRGPath = &folder == &RGPath;
  ChoosingABPath = &folder == &ABPath;
  ChoosingDBPath = &folder == &DBPath;
  folderChooser_.Show();
}

void Einstellungen::TakeFolder(std::string_view path) {
  if (ChoosingRGPath) RGPath.SetText(path);
  if (ChoosingABPath) ABPath.SetText(path);
  if (ChoosingDBPath) DBPath.SetText(path);
}

void Einstellungen::FolderChoiceEnded() { ChoosingRGPath = ChoosingABPath = ChoosingDBPath = false; }

void Einstellungen::CopyConfig() {
  Platform& platform = context_.platform;
  const std::optional<std::string> chosen = platform.ChooseFolder(FolderDialog("Sicherung der Einstellungen", "C:\\"));
  if (!chosen) return;
  const std::string target = WithClosingBackslash(*chosen);
  // Kept: the data folder is named as the source, although the file lies in the program's folder.
  const std::string question = Concat("Sollen die Einstellungen (config.txt) nun kopiert werden?", kLineEnd, kLineEnd,
                                      "Quelle: ", context_.settings.DBPath, kLineEnd, "Zielpfad: ", target);
  if (!platform.Ask(question, "Kontorwerk - Konfiguration nun kopieren?")) return;
  if (!context_.files.Copy(ConfigPath(), Concat(target, kConfigFile))) return;
  platform.Yield();
  platform.Tell("Kopiervorgang abgeschlossen!");
}

void Einstellungen::ExplainFooter() { context_.platform.Tell(kHelpText, kHelpTitle); }

}  // namespace kontorwerk
