// Taking a partner over: who gets him, by which route, with which contact person, and which screens close.
#include "store/Text.h"
#include "tests/partners/PartnerDesk.h"

namespace kontorwerk {
namespace {

using testing_support::LineWith;
using testing_support::PartnerDesk;
using testing_support::PartnerWith;

class TakingOver : public PartnerDesk {
 protected:
  void PutCustomer(testing_support::ColumnTexts more) {
    Partner customer = PartnerWith(CustomerKind(), more);
    customer.texts[0] = "00100";
    customer.texts[1] = "Meier GmbH";
    customer.texts[partner::kAnrede - 1] = "Firma";
    customer.texts[partner::kEmail - 1] = "info@meier.example";
    PutCustomers(PartnerLine(customer) + "\r\n");
  }
  void ChooseContact(int index) {
    Get<ComboBox>("APAuswahl", "ComboAnsprechpartner").UserChoose(index);
    Click("APAuswahl", "OKButton");
  }
};

TEST_F(TakingOver, NobodyWaitingNothingHappens) {
  PutCustomer({});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command3");
  EXPECT_TRUE(takenBy_.empty());
  EXPECT_TRUE(On("KDsuchen").Visible());
  EXPECT_EQ(Text("KDsuchen", "KDNr"), "00100");
}

TEST_F(TakingOver, MissingEditorsAreNobody) {
  screens_.SetOrderReceiver(nullptr);
  screens_.SetDocumentReceiver(nullptr);
  PutCustomer({});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command3");
  EXPECT_TRUE(On("KDsuchen").Visible());
}

TEST_F(TakingOver, WithoutContactPersonsStraightIntoTheOrder) {
  order_.open = true;
  order_.contact = "alt";
  PutCustomer({{partner::kVorwahl1, "07000"}, {partner::kHomepage, "http://meier.example"}});
  Choose("KDsuchen", 1);
  Hits("KDsuchen").UserDoubleClick(1);
  EXPECT_EQ(takenBy_, std::vector<std::string>{"order"});
  EXPECT_EQ(order_.address.KDNr, "00100");
  EXPECT_EQ(order_.address.KDName, "Meier GmbH");
  EXPECT_EQ(order_.address.Vorwahl1, "07000");
  EXPECT_EQ(order_.address.Homepage, "http://meier.example");
  EXPECT_EQ(order_.contact, "");
  EXPECT_EQ(order_.route, TakeOverRoute::Direct);
  EXPECT_FALSE(On("KDsuchen").Visible());
}

TEST_F(TakingOver, BothEditorsGetThePartner) {
  order_.open = document_.open = true;
  PutCustomer({});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command3");
  EXPECT_EQ(takenBy_, (std::vector<std::string>{"order", "document"}));
}

TEST_F(TakingOver, EditScreenBehindTheSearchStaysOpen) {
  document_.open = true;
  PutCustomer({});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command4");
  Click("KDsuchen", "Command3");
  EXPECT_FALSE(On("KDsuchen").Visible());
  EXPECT_TRUE(On("KDanlegen").Visible());
}

TEST_F(TakingOver, ThirdSlotAloneOffersEmptyOnesBeforeIt) {
  document_.open = true;
  PutCustomer({{partner::ContactName(3), "Frau Drei"}});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command3");
  EXPECT_TRUE(takenBy_.empty());
  EXPECT_TRUE(On("APAuswahl").Visible());
  EXPECT_FALSE(On("KDsuchen").Visible());
  const auto& combo = Get<ComboBox>("APAuswahl", "ComboAnsprechpartner");
  EXPECT_EQ(combo.Items(), (std::vector<std::string>{"kein Ansprechpartner", "", "", "Frau Drei", "", ""}));
  ChooseContact(3);
  EXPECT_EQ(document_.contact, "Frau Drei");
  EXPECT_EQ(document_.address.Anrede, "Firma");
  EXPECT_EQ(document_.route, TakeOverRoute::ContactChoice);
  EXPECT_EQ(platform_.BoxCount(), 0);
  EXPECT_FALSE(On("APAuswahl").Visible());
}

TEST_F(TakingOver, ContactsEmailGoesIntoTheOrderOnlyOnYes) {
  order_.open = true;
  PutCustomer({{partner::ContactName(1), "Herr Eins"}, {partner::ContactEmail(1), "eins@meier.example"}});
  for (const Answer answer : {Answer::Yes, Answer::No}) {
    Choose("KDsuchen", 1);
    Click("KDsuchen", "Command3");
    platform_.Push(answer);
    ChooseContact(1);
    EXPECT_EQ(platform_.LastBoxText(), "Soll die Email des Ansprechparnters in den Auftrag übernommen werden?"_t);
    EXPECT_EQ(platform_.LastBoxTitle(), "Email des Ansprechpartners übernehmen?"_t);
    EXPECT_EQ(order_.address.email, answer == Answer::Yes ? "eins@meier.example" : "info@meier.example");
    EXPECT_EQ(order_.contact, "Herr Eins");
  }
}

TEST_F(TakingOver, NoContactChosenKeepsTheCustomersEmailUnasked) {
  order_.open = true;
  PutCustomer({{partner::ContactName(1), "Herr Eins"}, {partner::ContactEmail(1), "eins@meier.example"}});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command3");
  ChooseContact(0);
  EXPECT_EQ(order_.contact, "");
  EXPECT_EQ(order_.address.email, "info@meier.example");
  EXPECT_EQ(order_.route, TakeOverRoute::ContactChoice);
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(TakingOver, CancelledChoiceTakesNothing) {
  order_.open = true;
  PutCustomer({{partner::ContactName(1), "Herr Eins"}});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command3");
  Click("APAuswahl", "CancelButton");
  EXPECT_TRUE(takenBy_.empty());
  EXPECT_FALSE(On("APAuswahl").Visible());
}

TEST_F(TakingOver, SavingAndTakingOverClosesBothScreens) {
  document_.open = true;
  Show("KDsuchen");
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Neu AG");
  Click("KDanlegen", "SpÜbernahme"_t);
  EXPECT_EQ(document_.address.KDNr, "00100");
  EXPECT_EQ(document_.address.KDName, "Neu AG");
  EXPECT_FALSE(On("KDanlegen").Visible() || On("KDsuchen").Visible());
}

TEST_F(TakingOver, UnchangedCustomerOfTheTableIsTakenAsHeStands) {
  order_.open = true;
  PutCustomer({});
  Choose("KDsuchen", 1);
  Click("KDsuchen", "Command4");
  Click("KDanlegen", "SpÜbernahme"_t);
  EXPECT_EQ(order_.address.KDNr, "00100");
}

TEST_F(TakingOver, UntouchedNewCustomerIsNotTaken) {
  order_.open = true;
  Show("KDanlegen");
  Click("KDanlegen", "SpÜbernahme"_t);
  EXPECT_TRUE(takenBy_.empty());
  EXPECT_TRUE(On("KDanlegen").Visible());
}

TEST_F(TakingOver, SavedCustomerStaysOnScreenWhileNobodyWaits) {
  Show("KDanlegen");
  Type("KDanlegen", "KDName", "Neu AG");
  Click("KDanlegen", "SpÜbernahme"_t);
  EXPECT_TRUE(On("KDanlegen").Visible());
  EXPECT_EQ(Status("KDanlegen"), "Neu AG / KdNr. 00100 gespeichert!");
}

TEST_F(TakingOver, SupplierTravelsUnderTheCustomersNames) {
  order_.open = true;
  PutSuppliers(LineWith(SupplierKind(), {{1, "90000"}, {2, "Quelle"}, {5, "Ulm"}}));
  Choose("LFsuchen", 1);
  Click("LFsuchen", "Command3");
  EXPECT_EQ(order_.address.KDNr, "90000");
  EXPECT_EQ(order_.address.KDName, "Quelle");
  EXPECT_EQ(order_.address.Wohnort, "Ulm");
  EXPECT_EQ(order_.route, TakeOverRoute::Direct);
}

class ChoosingASupplier : public TakingOver {
 protected:
  ChoosingASupplier() { PutSuppliers(LineWith(SupplierKind(), {{1, "90000"}, {2, "Quelle"}})); }

  SupplierTarget Target() {
    return {.take = [this](std::string_view name) { field_ = name; }, .waits = [this] { return waits_; }};
  }
  std::string field_;
  bool waits_ = true;
};

TEST_F(ChoosingASupplier, FieldComesBeforeTheEditors) {
  order_.open = true;
  screens_.ChooseSupplierFor(Target());
  Choose("LFsuchen", 1);
  Hits("LFsuchen").UserDoubleClick(1);
  EXPECT_EQ(field_, "Quelle");
  EXPECT_TRUE(takenBy_.empty());
  EXPECT_FALSE(On("LFsuchen").Visible());
  Choose("LFsuchen", 1);
  Click("LFsuchen", "Command3");
  EXPECT_EQ(takenBy_, std::vector<std::string>{"order"});
}

TEST_F(ChoosingASupplier, CancelledSearchForgetsTheField) {
  screens_.ChooseSupplierFor(Target());
  Click("LFsuchen", "Command2");
  order_.open = true;
  Choose("LFsuchen", 1);
  Click("LFsuchen", "Command3");
  EXPECT_EQ(field_, "");
  EXPECT_EQ(takenBy_, std::vector<std::string>{"order"});
}

TEST_F(ChoosingASupplier, NewSupplierOnTheWayStillReachesTheField) {
  screens_.ChooseSupplierFor(Target());
  Click("LFsuchen", "LFneu");
  Type("LFanlegen", "LFName", "Neue Quelle");
  Click("LFanlegen", "Command1");
  Click("LFanlegen", "Command4");
  Choose("LFsuchen", 2);
  Click("LFsuchen", "Command3");
  EXPECT_EQ(field_, "Neue Quelle");
}

TEST_F(ChoosingASupplier, FieldOfAClosedScreenGetsNothing) {
  screens_.ChooseSupplierFor(Target());
  waits_ = false;
  order_.open = true;
  Choose("LFsuchen", 1);
  Click("LFsuchen", "Command3");
  EXPECT_EQ(field_, "");
  EXPECT_EQ(takenBy_, std::vector<std::string>{"order"});
}

}  // namespace
}  // namespace kontorwerk
