#include "shell/ABRGNewDialog.h"

#include "shell/DocumentTables.h"
#include "store/Text.h"

namespace kontorwerk {

ABRGNewDialog::ABRGNewDialog(Context& context) : Screen(context.desktop, "ABRGNewDialog"), context_(context) {
  OKButton.OnClick = [this] { MakeTables(); };
  CancelButton.OnClick = [this] { Unload(); };
}

void ABRGNewDialog::OnLoad() {
  context_.settings.NewTablesResult.clear();
  const std::string yearLabel = Concat("/", Right(context_.platform.TodayText(), 4));
  for (Label* label : {&Label7, &Label8, &Label10, &Label13}) label->SetCaption(yearLabel);
}

void ABRGNewDialog::OnUnload() {
  std::string& result = context_.settings.NewTablesResult;
  result = result == "1" ? "2" : "0";
}

void ABRGNewDialog::MakeTables() {
  const FirstNumbers numbers = {Text1.Text(), Text2.Text(), Text3.Text(), Text4.Text()};
  if (const auto fault = FirstNumberFault(numbers)) {
    context_.platform.Tell(*fault);
    return;
  }
  CreateDocumentTables(context_.store, numbers, Label7.Caption(), context_.platform.TodayText());
  context_.platform.Tell(
      "Lieferscheindatenbank, Rechnungsdatenbank, Gutschriftendatenbank und Angebotsdatenbank wurde generiert!");
  context_.settings.NewTablesResult = "1";
  if (Screen* centre = context_.desktop.Find("StartForm")) centre->Show();
  Unload();
}

}  // namespace kontorwerk
