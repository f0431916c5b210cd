// Making and changing partners on their screens: what is stored, what is said, what the flags are afterwards.
#include "store/RecordLine.h"
#include "store/Text.h"
#include "tests/partners/PartnerDesk.h"

namespace kontorwerk {
namespace {

using testing_support::LineWith;
using testing_support::PartnerDesk;

class PartnerEditing : public PartnerDesk {
 protected:
  // Field `column` of line `row` of the customers' table, both from 1.
  [[nodiscard]] std::string Field(int row, int column) const {
    const std::string table = Customers();
    const auto rows = SplitRows(table);
    return std::string(RecordField(rows[static_cast<std::size_t>(row - 1)], column));
  }
};

TEST_F(PartnerEditing, FreshScreenShowsItsPromptsAndCountsAsUnchanged) {
  Show("KDanlegen");
  EXPECT_EQ(Text("KDanlegen", "KDNr"), "KDNr");
  EXPECT_EQ(Text("KDanlegen", "Anrede"), "Anrede");
  EXPECT_EQ(Text("KDanlegen", "KDName"), "Firmenname / Vorname, Name");
  EXPECT_EQ(Text("KDanlegen", "Straße"_t), "Straße und Hausnummer"_t);
  EXPECT_EQ(Text("KDanlegen", "PLZ"), "PLZ");
  EXPECT_EQ(Text("KDanlegen", "Wohnort"), "Wohnort");
  EXPECT_EQ(Text("KDanlegen", "Ansprechpartner5"), "");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Keine Änderung feststellbar. Nichts gespeichert!"_t);
  EXPECT_EQ(Customers(), "(missing)");
  Show("LFanlegen");
  EXPECT_EQ(Text("LFanlegen", "LFNr"), "LFNr");
  EXPECT_EQ(Text("LFanlegen", "LFName"), "Firmenname");
}

TEST_F(PartnerEditing, UntouchedPromptsAreStoredAsValues) {
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Meier GmbH");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Text("KDanlegen", "KDNr"), "00100");
  EXPECT_EQ(Status("KDanlegen"), "Meier GmbH / KdNr. 00100 gespeichert!");
  EXPECT_EQ(Field(1, partner::kStraße), "Straße und Hausnummer"_t);
  EXPECT_EQ(Field(1, partner::kAnrede), "Anrede");
  EXPECT_EQ(Field(1, 31), "15.11.2026");
}

TEST_F(PartnerEditing, SecondSaveChangesTheSameCustomer) {
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Meier");
  Click("KDanlegen", "Command1");
  Type("KDanlegen", "KDName", "Meyer");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Änderungen des Kunden Meyer / KdNr. 00100 gespeichert!"_t);
  EXPECT_EQ(Field(1, 2), "Meyer");
  EXPECT_EQ(Customers().substr(Customers().size() - 4), "\r\n\r\n");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Keine Änderung feststellbar. Nichts gespeichert!"_t);
}

TEST_F(PartnerEditing, OddTextsGoThroughUnharmed) {
  const std::string other = LineWith(CustomerKind(), {{1, "00100"}, {2, "Nachbar"}});
  PutCustomers(other);
  const std::string note(10000, 'x');
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "O'Neill");
  Type("KDanlegen", "Wohnort", "Ort'");
  Type("KDanlegen", "Tel", "*__*");
  Type("KDanlegen", "Freitext", note + "\r\nEnde");
  Click("KDanlegen", "Command1");
  EXPECT_TRUE(Customers().starts_with(other));
  EXPECT_EQ(Field(2, 2), "O'Neill");
  EXPECT_EQ(Field(2, partner::kWohnort), "Ort'");
  EXPECT_EQ(Field(2, partner::kFreitext), note + "*__*Ende");
  Choose("KDsuchen", 2);
  EXPECT_EQ(Text("KDsuchen", "Freitext"), note + "\r\nEnde");
  EXPECT_EQ(Text("KDsuchen", "Tel"), "*__*");
}

TEST_F(PartnerEditing, NextCustomerBeginsOnACleanScreen) {
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Meier");
  Type("KDanlegen", "Freitext", "Notiz");
  Click("KDanlegen", "Command3");
  EXPECT_EQ(Status("KDanlegen"), "Status");
  EXPECT_EQ(Text("KDanlegen", "KDNr"), "KdNr");
  EXPECT_EQ(Text("KDanlegen", "KDName"), "Firmenname / Vorname, Name");
  EXPECT_EQ(Text("KDanlegen", "Freitext"), "");
  EXPECT_EQ(On("KDanlegen").FocusedControl()->Name(), "Anrede");
  Click("KDanlegen", "Command3");
  EXPECT_EQ(Status("KDanlegen"), "Keine Änderung feststellbar. Nichts gespeichert!"_t);
  Type("KDanlegen", "KDName", "Huber");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Huber / KdNr. 00101 gespeichert!");
}

TEST_F(PartnerEditing, LeavingAChangedScreenAsks) {
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Meier");
  platform_.Push(Answer::Cancel);
  Click("KDanlegen", "Command2");
  EXPECT_TRUE(On("KDanlegen").Visible());
  EXPECT_EQ(platform_.LastBoxText(), "Kunde wurde geändert. Ohne speichern beenden?"_t);
  EXPECT_EQ(platform_.LastBoxTitle(), "Ohne speichern beenden");
  platform_.Push(Answer::No);
  On("KDanlegen").Close();
  EXPECT_FALSE(On("KDanlegen").Visible());
  EXPECT_EQ(Field(1, 2), "Meier");
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Niemand");
  platform_.Push(Answer::Yes);
  Click("KDanlegen", "Command2");
  EXPECT_FALSE(On("KDanlegen").Visible());
  EXPECT_EQ(SplitRows(Customers()).size(), 2U);
  Show("KDanlegen");
  Click("KDanlegen", "Command2");
  EXPECT_EQ(platform_.BoxCount(), 3);
}

TEST_F(PartnerEditing, SearchCommandLeavesWithoutAQuestion) {
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Meier");
  Click("KDanlegen", "Command4");
  EXPECT_FALSE(On("KDanlegen").Visible());
  EXPECT_TRUE(On("KDsuchen").Visible());
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(PartnerEditing, ScreenThatWasClosedOverAnEditMakesANewCustomerNext) {
  PutCustomers(LineWith(CustomerKind(), {{1, "00100"}, {2, "Alt"}}));
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command4");
  Click("KDsuchen", "Command2");
  EXPECT_FALSE(On("KDanlegen").Visible());
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Neu");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Neu / KdNr. 00101 gespeichert!");
  EXPECT_EQ(Field(2, 2), "Neu");
}

TEST_F(PartnerEditing, NewSearchMakesTheNextSaveANewCustomer) {
  PutCustomers(LineWith(CustomerKind(), {{1, "00100"}, {2, "Alt"}}));
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command4");
  Click("KDsuchen", "Command1");
  Type("KDanlegen", "KDName", "Kopie");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Kopie / KdNr. 00101 gespeichert!");
  EXPECT_EQ(Field(1, 2), "Alt");
}

TEST_F(PartnerEditing, SaveOfACustomerWhoHasGoneStillReportsSuccess) {
  PutCustomers(LineWith(CustomerKind(), {{1, "00100"}, {2, "Alt"}}));
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command4");
  const std::string others = LineWith(CustomerKind(), {{1, "00105"}, {2, "Andere"}});
  PutCustomers(others);
  Type("KDanlegen", "KDName", "Verloren");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Änderungen des Kunden Verloren / KdNr. 00100 gespeichert!"_t);
  EXPECT_EQ(Customers(), others + "\r\n");
}

TEST_F(PartnerEditing, SaveThatDidNotReachTheDiskCountsAsUnsaved) {
  settings_.DBPath = folder_.DataPath() + "fehlt\\";
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Meier");
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Text("KDanlegen", "KDNr"), "00100");
  settings_.DBPath = folder_.DataPath();
  PutCustomers(LineWith(CustomerKind(), {{1, "00100"}, {2, "Jemand"}}));
  Click("KDanlegen", "Command1");
  EXPECT_EQ(Status("KDanlegen"), "Meier / KdNr. 00101 gespeichert!");
  EXPECT_EQ(Field(1, 2), "Jemand");
}

TEST_F(PartnerEditing, SupplierKeepsHisOwnBoxesAndDate) {
  Show("LFanlegen");
  Type("LFanlegen", "LFName", "Quelle & Co");
  Type("LFanlegen", "Bank", "Musterbank");
  Type("LFanlegen", "ZugPW", "geheim");
  Click("LFanlegen", "Command1");
  EXPECT_EQ(Status("LFanlegen"), "Quelle & Co / LFNr. 90000 gespeichert!");
  platform_.SetNow({{2027, 1, 2}, {8, 0, 0}});
  Type("LFanlegen", "KTO", "4711");
  Click("LFanlegen", "Command1");
  EXPECT_EQ(Status("LFanlegen"), "Änderungen des Lieferanten Quelle & Co / LFNr. 90000 gespeichert!"_t);
  const std::string table = Suppliers();
  const std::string_view line = FirstRow(table);
  EXPECT_EQ(RecordField(line, partner::kBank), "Musterbank");
  EXPECT_EQ(RecordField(line, partner::kKTO), "4711");
  EXPECT_EQ(RecordField(line, partner::kZugPW), "geheim");
  EXPECT_EQ(RecordField(line, 38), "15.11.2026");
}

TEST_F(PartnerEditing, TabOrderIsTheOrderOfWork) {
  Show("KDanlegen");
  const std::vector<std::string> wanted = {"Anrede",   "KDName",           "Straße", "PLZ",      "Wohnort", "Vorwahl1",
                                           "Tel",      "Vorwahl2",         "Fax",    "Vorwahl3", "Mobil",   "email",
                                           "Homepage", "Ansprechpartner1", "DW1",    "APemail1"};
  for (const std::string& name : wanted) {
    const std::string expected = name == "Straße" ? std::string("Straße"_t) : name;
    ASSERT_EQ(desktop_.Focus()->Name(), expected);
    desktop_.PressKey(*desktop_.Focus(), Key{.code = KeyCode::Tab});
  }
}

}  // namespace
}  // namespace kontorwerk
