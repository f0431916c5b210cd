// Searching, showing and deleting partners, and the ways that lead on from a search screen.
#include "store/RecordLine.h"
#include "store/Text.h"
#include "tests/partners/PartnerDesk.h"

namespace kontorwerk {
namespace {

using testing_support::LineWith;
using testing_support::PartnerDesk;

class PartnerSearching : public PartnerDesk {
 protected:
  PartnerSearching() {
    PutCustomers(LineWith(CustomerKind(), {{1, "00100"},
                                           {2, "Meier GmbH"},
                                           {3, "Hauptstr. 1"},
                                           {4, "78000"},
                                           {5, "Musterstadt"},
                                           {partner::kEmail, "info@meier.example"},
                                           {partner::kHomepage, "www.meier.example"},
                                           {partner::ContactName(3), "Frau Drei"},
                                           {partner::ContactEmail(3), "drei@meier.example"}}) +
                 LineWith(CustomerKind(), {{1, "00101"}, {2, "Äpfel Huber"_t}}));
  }
  [[nodiscard]] bool Visible(std::string_view control) { return Get<Control>("KDsuchen", control).Visible(); }
  [[nodiscard]] bool Enabled(std::string_view control) { return Get<Control>("KDsuchen", control).Enabled(); }
  [[nodiscard]] std::string Events() const { return out_.str(); }
};

TEST_F(PartnerSearching, OpensWithTheSearchBoxAlone) {
  Show("KDsuchen");
  EXPECT_EQ(Get<Label>("KDsuchen", "Label12").Caption(), "Suchtext:");
  EXPECT_EQ(Get<CaptionControl>("KDsuchen", "Command1").Caption(), "Suchen");
  EXPECT_EQ(desktop_.Focus()->Name(), "KDName");
  for (const std::string_view box : CustomerKind().boxes) EXPECT_EQ(Visible(box), box == "KDName") << box;
  for (const char* hidden : {"Erfassdatum", "Command5", "Command10", "Command11", "Command12", "Suchergebnis2",
                             "Label13", "Label17", "Label22"})
    EXPECT_FALSE(Visible(hidden)) << hidden;
}

TEST_F(PartnerSearching, EnterInTheNameBoxSearches) {
  Show("KDsuchen");
  Type("KDsuchen", "KDName", "äpfel"_t);
  Press("KDsuchen", "KDName", KeyCode::Enter);
  ASSERT_EQ(Hits("KDsuchen").RowCount(), 1);
  EXPECT_EQ(Hits("KDsuchen").Cell(1, 2), "Äpfel Huber"_t);
  EXPECT_EQ(Text("KDsuchen", "KDName"), "");
  EXPECT_EQ(Text("KDsuchen", "KDNr"), "00000");
  EXPECT_EQ(Status("KDsuchen"), "Suchen beendet!");
}

TEST_F(PartnerSearching, ChosenCustomerIsShownInFull) {
  Choose("KDsuchen", 1);
  EXPECT_EQ(Text("KDsuchen", "KDNr"), "00100");
  EXPECT_EQ(Text("KDsuchen", "Wohnort"), "Musterstadt");
  EXPECT_EQ(Text("KDsuchen", "Erfassdatum"), "15.11.2026");
  EXPECT_EQ(Status("KDsuchen"), "Kunde angelegt am: 15.11.2026");
  EXPECT_EQ(Get<Label>("KDsuchen", "Label12").Caption(), "Kundenadresse:");
  EXPECT_EQ(Get<CaptionControl>("KDsuchen", "Command1").Caption(), "Neue Suche");
  EXPECT_TRUE(Visible("Freitext"));
  EXPECT_FALSE(Visible("Erfassdatum"));
  EXPECT_TRUE(Visible("Command5") && Enabled("email"));
  EXPECT_TRUE(Visible("Command8") && Enabled("APemail3"));
  EXPECT_FALSE(Visible("Command6") || Enabled("APemail1"));
  EXPECT_TRUE(Visible("Command11"));
  EXPECT_EQ(Get<CaptionControl>("KDsuchen", "AP33").Caption(), "Ansprechpartner Frau Drei verwenden.");
  EXPECT_TRUE(Visible("AP33"));
  EXPECT_FALSE(Visible("AP1"));
}

TEST_F(PartnerSearching, ArrowKeysLoadTheRowTheyReach) {
  Show("KDsuchen");
  Click("KDsuchen", "Command1");
  Press("KDsuchen", "Suchergebnis", KeyCode::Down);
  EXPECT_EQ(Text("KDsuchen", "KDNr"), "00100");
  Press("KDsuchen", "Suchergebnis", KeyCode::Down);
  EXPECT_EQ(Text("KDsuchen", "KDNr"), "00101");
  Press("KDsuchen", "Suchergebnis", KeyCode::Up);
  EXPECT_EQ(Text("KDsuchen", "KDName"), "Meier GmbH");
}

TEST_F(PartnerSearching, NewSearchClearsAndReadsSuche) {
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command1");
  EXPECT_EQ(Get<CaptionControl>("KDsuchen", "Command1").Caption(), "Suche");
  EXPECT_EQ(Get<Label>("KDsuchen", "Label12").Caption(), "Suchtext:");
  EXPECT_EQ(Hits("KDsuchen").RowCount(), 0);
  EXPECT_EQ(Text("KDsuchen", "KDNr"), "");
  EXPECT_FALSE(Visible("Straße"_t) || Visible("Command5"));
  EXPECT_TRUE(Visible("KDName"));
  EXPECT_EQ(desktop_.Focus()->Name(), "KDName");
  Click("KDsuchen", "Command1");
  EXPECT_EQ(Hits("KDsuchen").RowCount(), 2);
  EXPECT_EQ(Get<CaptionControl>("KDsuchen", "Command1").Caption(), "Suche");
}

TEST_F(PartnerSearching, HeaderClicksTurnTheOrder) {
  Show("KDsuchen");
  Click("KDsuchen", "Command1");
  Hits("KDsuchen").UserSort(2);
  EXPECT_EQ(Hits("KDsuchen").Cell(1, 1), "00101");
  Hits("KDsuchen").UserSort(2);
  EXPECT_EQ(Hits("KDsuchen").Cell(1, 1), "00100");
  Hits("KDsuchen").UserSort(2);
  EXPECT_EQ(Hits("KDsuchen").Cell(1, 1), "00101");
}

TEST_F(PartnerSearching, NothingWorksWithoutAChosenCustomer) {
  Show("KDsuchen");
  Click("KDsuchen", "Command1");
  order_.open = document_.open = true;
  for (const char* command : {"Command3", "Command4", "Kdkill"}) Click("KDsuchen", command);
  Hits("KDsuchen").UserDoubleClick(0);
  EXPECT_EQ(platform_.BoxCount(), 0);
  EXPECT_TRUE(takenBy_.empty());
  EXPECT_FALSE(On("KDanlegen").Visible());
  EXPECT_TRUE(On("KDsuchen").Visible());
}

TEST_F(PartnerSearching, DeletingAsksAndCompacts) {
  PutCustomers("\r\n" + Customers() + "\r\n\r\n");
  Choose("KDsuchen", 1);
  platform_.Push(Answer::No);
  Click("KDsuchen", "Kdkill");
  EXPECT_EQ(platform_.LastBoxText(), "Kunde Meier GmbH mit der KundenNr. 00100 wirklich löschen?"_t);
  EXPECT_EQ(platform_.LastBoxTitle(), "Kunde wirklich löschen?"_t);
  EXPECT_EQ(Text("KDsuchen", "KDNr"), "00100");
  platform_.Push(Answer::Yes);
  Click("KDsuchen", "Kdkill");
  EXPECT_EQ(Status("KDsuchen"), "Kunde ordnungsgemäß gelöscht!"_t);
  EXPECT_EQ(Customers(), LineWith(CustomerKind(), {{1, "00101"}, {2, "Äpfel Huber"_t}}));
  ASSERT_EQ(Hits("KDsuchen").RowCount(), 1);
  EXPECT_EQ(Hits("KDsuchen").Cell(1, 1), "00101");
  for (const char* command : {"Command3", "Command4", "Kdkill"}) Click("KDsuchen", command);
  EXPECT_EQ(platform_.BoxCount(), 2);
  EXPECT_FALSE(On("KDanlegen").Visible());
}

TEST_F(PartnerSearching, CustomerDeletedElsewhereIsNotShown) {
  Choose("KDsuchen", 1);
  PutCustomers(LineWith(CustomerKind(), {{1, "00100"}, {2, "Meier GmbH"}}));
  Hits("KDsuchen").UserClick(2);
  EXPECT_EQ(Text("KDsuchen", "KDName"), "");
  order_.open = true;
  Click("KDsuchen", "Command3");
  EXPECT_TRUE(takenBy_.empty());
}

TEST_F(PartnerSearching, EditingCopiesEveryBox) {
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command4");
  EXPECT_TRUE(On("KDanlegen").Visible() && On("KDsuchen").Visible());
  for (const std::string_view box : CustomerKind().boxes)
    EXPECT_EQ(Text("KDanlegen", box), Text("KDsuchen", box)) << box;
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Keine Änderung feststellbar. Nichts gespeichert!"_t);
}

TEST_F(PartnerSearching, NewCustomerNeedsAFreeEditScreen) {
  Show("KDanlegen");
  Show("KDsuchen");
  Click("KDsuchen", "KDneu");
  EXPECT_EQ(
      platform_.LastBoxText(),
      "Das Fenster um Kunden neu anzulegen ist bereits geöffnet!\r\nBitte Fenster schließen und erneut versuchen."_t);
  EXPECT_EQ(platform_.LastBoxTitle(), "Kontorwerk");
  EXPECT_TRUE(On("KDsuchen").Visible());
  On("KDanlegen").Close();
  Click("KDsuchen", "KDneu");
  EXPECT_TRUE(On("KDanlegen").Visible());
  EXPECT_FALSE(On("KDsuchen").Visible());
}

TEST_F(PartnerSearching, MailAndWebGoThroughThePlatform) {
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command5");
  Click("KDsuchen", "Command8");
  Click("KDsuchen", "Command11");
  EXPECT_NE(Events().find("\"to\": [\"info@meier.example\"]"), std::string::npos) << Events();
  EXPECT_NE(Events().find("\"to\": [\"drei@meier.example\"]"), std::string::npos);
  const std::size_t blank = Events().find("\"target\": \"about:blank\"");
  const std::size_t page = Events().find("\"target\": \"www.meier.example\"");
  ASSERT_NE(page, std::string::npos);
  EXPECT_LT(blank, page);
}

TEST_F(PartnerSearching, ForeignSchemeIsNeverOpened) {
  PutCustomers(LineWith(CustomerKind(), {{1, "00100"}, {partner::kHomepage, "file:///bin/sh"}}));
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command11");
  EXPECT_EQ(Events().find("\"event\": \"open\""), std::string::npos);
}

TEST_F(PartnerSearching, MenusWithoutACommandStayDisabled) {
  Choose("KDsuchen", 1);
  for (const char* menu : {"Kundenhistorie", "KDDrucken", "KDAdresse_Drucken", "KDBelege_Drucken", "Briefschreiben",
                           "kein_Ansprechpartner", "AP33"})
    EXPECT_FALSE(Enabled(menu)) << menu;
}

TEST_F(PartnerSearching, MenuWithACommandFollowsTheChosenCustomer) {
  Get<MenuEntry>("KDsuchen", "KDAdresse_Drucken").OnClick = [] {};
  Show("KDsuchen");
  EXPECT_TRUE(Enabled("KDDrucken"));
  EXPECT_FALSE(Enabled("KDAdresse_Drucken"));
  Click("KDsuchen", "Command1");
  Hits("KDsuchen").UserClick(1);
  EXPECT_TRUE(Enabled("KDAdresse_Drucken"));
  EXPECT_FALSE(Enabled("KDBelege_Drucken"));
  Click("KDsuchen", "Command1");
  EXPECT_FALSE(Enabled("KDAdresse_Drucken"));
}

TEST_F(PartnerSearching, OpenDocumentsShowOnlyWhereThereAreSome) {
  std::vector<std::string> fields(62);
  fields[0] = "RG";
  fields[1] = "0301/2026";
  fields[2] = "01.10.2026";
  fields[3] = "00100";
  fields[17] = "119,00";
  fields[18] = "19,00";
  fields[19] = "100,00";
  fields[58] = "05.11.2026";
  folder_.Put("offeneBelegedb.dbf", RecordLine(fields) + "\r\n");
  std::string previewed;
  screens_.SetDocumentPreview(
      [&](std::string_view kind, std::string_view number) { previewed = Concat(kind, "#", number); });
  Choose("KDsuchen", 1);
  auto& documents = Get<ListView>("KDsuchen", "Suchergebnis2");
  ASSERT_EQ(documents.RowCount(), 1);
  EXPECT_EQ(documents.Cell(1, 1), "RG 0301/2026");
  EXPECT_EQ(documents.Cell(1, 6), "05.11.2026");
  EXPECT_EQ(Get<Label>("KDsuchen", "Label18").Caption(), "19,00");
  EXPECT_EQ(Get<Label>("KDsuchen", "Label21").Caption(), "0,00");
  EXPECT_EQ(Get<Label>("KDsuchen", "Label17").Caption(), "Gesamt offen:");
  EXPECT_TRUE(Visible("Command12") && Visible("Label22"));
  documents.UserDoubleClick(1);
  EXPECT_EQ(previewed, "RG#0301/2026");
  Hits("KDsuchen").UserClick(2);
  for (const char* hidden : {"Suchergebnis2", "Label13", "Label14", "Label15", "Label16", "Label17", "Label18",
                             "Label19", "Label20", "Label21", "Label22", "Command12"})
    EXPECT_FALSE(Visible(hidden)) << hidden;
  EXPECT_FALSE(Enabled("Command12"));
}

// The list of open documents in the place of the real screen.
class OpenDocumentList final : public Screen {
 public:
  explicit OpenDocumentList(Desktop& desktop) : Screen(desktop, "OBsuche") {}
};

TEST_F(PartnerSearching, WayToTheOpenDocumentsNeedsTheirScreen) {
  std::vector<std::string> fields(20);
  fields[0] = "LS";
  fields[3] = "00100";
  folder_.Put("offeneBelegedb.dbf", RecordLine(fields) + "\r\n");
  Choose("KDsuchen", 1);
  EXPECT_TRUE(Visible("Command12"));
  EXPECT_FALSE(Enabled("Command12"));
  OpenDocumentList list(desktop_);
  desktop_.Add(list);
  Hits("KDsuchen").UserClick(1);
  EXPECT_TRUE(Enabled("Command12"));
  Click("KDsuchen", "Command4");
  Click("KDsuchen", "Command12");
  EXPECT_TRUE(list.Visible());
  EXPECT_FALSE(On("KDsuchen").Visible() || On("KDanlegen").Visible());
}

TEST_F(PartnerSearching, CancellingClosesBothScreens) {
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command4");
  Type("KDanlegen", "KDName", "geändert"_t);
  On("KDsuchen").Close();
  EXPECT_FALSE(On("KDsuchen").Visible() || On("KDanlegen").Visible());
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(PartnerSearching, SupplierWordsAndNoDocuments) {
  PutSuppliers(LineWith(SupplierKind(), {{1, "90000"}, {2, "Quelle"}, {partner::kBank, "Musterbank"}}));
  Choose("LFsuchen", 1);
  EXPECT_EQ(Get<Label>("LFsuchen", "Label12").Caption(), "Lieferantenadresse:");
  EXPECT_EQ(Status("LFsuchen"), "Lieferant angelegt am: 15.11.2026");
  EXPECT_EQ(Text("LFsuchen", "Bank"), "Musterbank");
  EXPECT_EQ(On("LFsuchen").Find("Suchergebnis2"), nullptr);
  EXPECT_EQ(On("LFsuchen").Find("Command12"), nullptr);
  platform_.Push(Answer::Yes);
  Click("LFsuchen", "LFkill");
  EXPECT_EQ(platform_.LastBoxText(), "Lieferant Quelle mit der LieferantenNr. 90000 wirklich löschen?"_t);
  EXPECT_EQ(platform_.LastBoxTitle(), "Lieferant wirklich löschen?"_t);
  EXPECT_EQ(Status("LFsuchen"), "Lieferant ordnungsgemäß gelöscht!"_t);
  EXPECT_EQ(Suppliers(), "");
}

}  // namespace
}  // namespace kontorwerk
