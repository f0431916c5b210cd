// What a script cannot show of the control centre: hover focus, the actions of other screens, the order of an ending.
#include "shell/StartForm.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "platform/headless/OperatorPlatform.h"
#include "shell/frmAbout.h"
#include "store/Text.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

// A screen of the given name with nothing on it.
class PlainScreen final : public Screen {
 public:
  PlainScreen(Desktop& desktop, std::string_view name, std::vector<std::string>* steps = nullptr)
      : Screen(desktop, name), steps_(steps) {
    desktop.Add(*this);
  }

 private:
  void OnUnload() override {
    if (steps_) steps_->push_back(Name());
  }

  std::vector<std::string>* steps_;
};

class StartFormTest : public ::testing::Test {
 protected:
  StartFormTest() {
    for (const char* name : {"Rechnungendb.dbf", "Angebotedb.dbf", "Lieferscheinedb.dbf", "Gutschriftendb.dbf"})
      folder_.Put(name, "'short','0100/2026','02.01.2026 ','','x\r\n");
    folder_.Put("config.txt",
                Concat("MWSTSatz=19\r\nMWSTSatz2=7\r\nRGPath=rg\r\nABPath=ab\r\nDBPath=", folder_.DataPath(), "\r\n"));
    platform_.SetNow({{2026, 11, 15}, {9, 30, 0}});
    desktop_.AddObserver(platform_);
    desktop_.Add(startForm_);
  }

  [[nodiscard]] std::string Record() const { return record_.str(); }
  // Actions that note their own names.
  [[nodiscard]] StartFormActions NotingActions() {
    const auto note = [this](std::string_view step) { return [this, step] { steps_.emplace_back(step); }; };
    StartFormActions actions;
    actions.openNewCustomerOrder = note("customer order");
    actions.openNewSupplierOrder = note("supplier order");
    actions.openNewDocument = note("document");
    actions.openNewArticle = note("article");
    actions.openGoodsReceipt = note("goods receipt");
    actions.openStockEdit = note("stock edit");
    actions.checkForUpdates = note("check");
    actions.checkForUpdatesAtStart = note("check at start");
    actions.setAutomaticUpdates = [this](bool on) { steps_.emplace_back(on ? "on" : "off"); };
    return actions;
  }

  testing_support::TestFolder folder_;
  std::ostringstream record_;
  EventLog log_{record_};
  OperatorPlatform platform_{log_, folder_.Path().string(), nullptr};
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
  Desktop desktop_;
  Context context_{desktop_, platform_, files_, store_, settings_};
  std::vector<std::string> steps_;
  StartForm startForm_{context_};
};

TEST_F(StartFormTest, TheMouseGivesFocusOnlyWhileTheWindowIsActive) {
  startForm_.Load();
  ASSERT_TRUE(startForm_.Visible());
  startForm_.Command2.OnHover();
  EXPECT_FALSE(startForm_.Command2.HasFocus()) << "no beat of the timer yet";
  platform_.Advance(50);
  EXPECT_TRUE(startForm_.WindowActive);
  startForm_.Command2.OnHover();
  EXPECT_TRUE(startForm_.Command2.HasFocus());
  PlainScreen dialog(desktop_, "KDanlegen");
  dialog.Show();
  platform_.Advance(50);
  EXPECT_FALSE(startForm_.WindowActive);
  startForm_.Command10.OnHover();
  EXPECT_FALSE(startForm_.Command10.HasFocus());
  dialog.Unload();
  desktop_.SetApplicationActive(false);
  platform_.Advance(50);
  EXPECT_FALSE(startForm_.WindowActive) << "another program is in front";
}

TEST_F(StartFormTest, EveryCommandButtonFollowsTheMouse) {
  startForm_.Load();
  platform_.Advance(50);
  int commands = 0;
  for (Control* control : startForm_.Controls()) {
    if (control->Kind() != ControlKind::CommandButton) continue;
    ++commands;
    EXPECT_TRUE(control->OnHover) << control->Name();
  }
  EXPECT_EQ(commands, 29);
}

TEST_F(StartFormTest, ACommandWithoutItsScreenOrActionIsShownButDisabled) {
  startForm_.Load();
  startForm_.Command3.UserClick();
  for (const CommandButton* command : {&startForm_.Command8, &startForm_.Command9, &startForm_.Command21}) {
    EXPECT_TRUE(command->Visible());
    EXPECT_FALSE(command->Enabled()) << command->Name();
  }
  EXPECT_FALSE(startForm_.Administration.Enabled());
  EXPECT_FALSE(startForm_.Updates.Enabled());
  EXPECT_FALSE(startForm_.SupportServer.Enabled());
  EXPECT_TRUE(startForm_.Handbuch.Enabled());
}

TEST_F(StartFormTest, AScreenThatIsThereEnablesItsCommandAndOpens) {
  PlainScreen list(desktop_, "OBsuche");
  PlainScreen server(desktop_, "Support_Server");
  startForm_.Load();
  startForm_.Command3.UserClick();
  ASSERT_TRUE(startForm_.Command21.Enabled());
  startForm_.Command21.UserClick();
  EXPECT_TRUE(list.Visible());
  ASSERT_TRUE(startForm_.SupportServer.Enabled());
  startForm_.SupportServer.UserClick();
  EXPECT_TRUE(server.Visible());
}

TEST_F(StartFormTest, AnOpenSearchRefusesNewDocumentsAndOrders) {
  PlainScreen customers(desktop_, "KDsuchen");
  PlainScreen suppliers(desktop_, "LFsuchen");
  startForm_.SetActions(NotingActions());
  startForm_.Load();
  customers.Show();
  suppliers.Show();
  const std::string_view behind = "\r\nBitte Fenster schließen und erneut versuchen."_t;
  const std::string customersOpen = Concat("Das Fenster zum Kunden suchen ist bereits geöffnet!"_t, behind);
  startForm_.Command8.UserClick();
  EXPECT_EQ(platform_.LastBoxText(), customersOpen);
  startForm_.Command6.UserClick();
  EXPECT_EQ(platform_.LastBoxText(), customersOpen);
  startForm_.Command23.UserClick();
  EXPECT_EQ(platform_.LastBoxText(), Concat("Das Fenster zum Lieferanten suchen ist bereits geöffnet!"_t, behind));
  EXPECT_EQ(platform_.BoxCount(), 3);
  EXPECT_TRUE(steps_.empty());
  suppliers.Unload();
  startForm_.Command23.UserClick();
  customers.Hide();
  startForm_.Command6.UserClick();
  startForm_.Command8.UserClick();
  EXPECT_EQ(steps_, (std::vector<std::string>{"supplier order", "customer order", "document"}));
  EXPECT_EQ(platform_.BoxCount(), 3);
}

TEST_F(StartFormTest, AnOpenSupplierMaskIsNotOpenedAgain) {
  PlainScreen mask(desktop_, "LFanlegen");
  startForm_.Load();
  startForm_.Command13.UserClick();
  EXPECT_TRUE(mask.Visible());
  EXPECT_EQ(platform_.BoxCount(), 0);
  startForm_.Command13.UserClick();
  EXPECT_EQ(platform_.LastBoxText(),
            "Das Fenster um Lieferanten neu anzulegen ist bereits geöffnet!\r\n"
            "Bitte Fenster schließen und erneut versuchen."_t);
}

TEST_F(StartFormTest, TheStockSearchIsCaptionedForAGoodsReceipt) {
  PlainScreen search(desktop_, "LGArtikelSuche");
  startForm_.SetActions(NotingActions());
  startForm_.Load();
  startForm_.Command17.UserClick();
  EXPECT_TRUE(search.Loaded());
  EXPECT_EQ(search.Caption(), "Wareneingang - Artikelsuche");
  startForm_.Command18.UserClick();
  startForm_.Command15.UserClick();
  EXPECT_EQ(steps_, (std::vector<std::string>{"goods receipt", "stock edit", "article"}));
}

TEST_F(StartFormTest, TheAutomaticUpdateCheckRunsAtAStartThatHasItSwitchedOn) {
  folder_.Put("UpdateCheck.txt", "Check=True\r\n");
  startForm_.SetActions(NotingActions());
  startForm_.Load();
  EXPECT_EQ(steps_, (std::vector<std::string>{"check at start"}));
  startForm_.Autoupdate.UserClick();
  EXPECT_FALSE(startForm_.Autoupdate.Checked());
  startForm_.Autoupdate.UserClick();
  EXPECT_TRUE(startForm_.Autoupdate.Checked());
  startForm_.Updates.UserClick();
  EXPECT_EQ(steps_, (std::vector<std::string>{"check at start", "off", "on", "check"}));
}

TEST_F(StartFormTest, WithoutTheSwitchNothingIsChecked) {
  startForm_.SetActions(NotingActions());
  startForm_.Load();
  EXPECT_TRUE(steps_.empty());
}

TEST_F(StartFormTest, TheYearOffsetIsOneOnlyAfterADeclinedNewYear) {
  settings_.DocumentYearOffset = "x";
  startForm_.Load();
  EXPECT_EQ(settings_.DocumentYearOffset, "0");
  EXPECT_EQ(settings_.PositionRowCount, 17);
}

TEST_F(StartFormTest, ADeclinedNewYearSetsTheYearOffset) {
  platform_.SetNow({{2027, 1, 4}, {9, 30, 0}});
  platform_.Push(Answer::No);
  startForm_.Load();
  EXPECT_EQ(settings_.DocumentYearOffset, "1");
}

TEST_F(StartFormTest, AnAcceptedNewYearLeavesTheYearOffsetAtZero) {
  platform_.SetNow({{2027, 1, 4}, {9, 30, 0}});
  platform_.Push(Answer::Yes);
  startForm_.Load();
  EXPECT_EQ(settings_.DocumentYearOffset, "0");
  EXPECT_EQ(startForm_.MonthView.Value(), (Date{2027, 1, 4}));
}

TEST_F(StartFormTest, AnEndUnloadsEveryOtherScreenThenQuits) {
  PlainScreen first(desktop_, "KDanlegen", &steps_);
  PlainScreen second(desktop_, "KDsuchen", &steps_);
  PlainScreen never(desktop_, "LFsuchen", &steps_);
  startForm_.Load();
  first.Show();
  second.Load();
  startForm_.Unload();
  EXPECT_EQ(steps_, (std::vector<std::string>{"KDanlegen", "KDsuchen"})) << "hidden ones too, unloaded ones not";
  EXPECT_TRUE(platform_.HasQuit());
  EXPECT_TRUE(Record().ends_with("\"unload\", \"screen\": \"StartForm\"}\n{\"line\": 0, \"event\": \"quit\"}\n"));
}

TEST_F(StartFormTest, LeftoversOfACrashAreCleaned) {
  folder_.Put(".kontorwerk-a1b2c3.part", "half a table");
  startForm_.Load();
  EXPECT_EQ(folder_.Content(".kontorwerk-a1b2c3.part"), std::nullopt);
}

TEST_F(StartFormTest, TheTemplatesAreProvidedOnceTheTablesOfAFirstStartAreMade) {
  PlainScreen dialog(desktop_, "ABRGNewDialog");
  const std::string seed = *folder_.Content("Rechnungendb.dbf");
  for (const char* name : {"Rechnungendb.dbf", "Angebotedb.dbf", "Lieferscheinedb.dbf", "Gutschriftendb.dbf"})
    folder_.Put(name, "");
  StartFormActions actions;
  actions.provideTemplates = [this] { steps_.emplace_back("templates"); };
  startForm_.SetActions(actions);
  platform_.Push(Answer::Yes);
  platform_.onWaiting = [&] {
    folder_.Put("Rechnungendb.dbf", seed);
    settings_.NewTablesResult = "2";
    dialog.Unload();
    return true;
  };
  startForm_.Load();
  EXPECT_EQ(steps_, (std::vector<std::string>{"templates"}));
  EXPECT_TRUE(startForm_.Visible());
}

TEST_F(StartFormTest, AWaitThatIsCutOffByTheEndOfTheProgramEndsTheStart) {
  PlainScreen dialog(desktop_, "ABRGNewDialog");
  for (const char* name : {"Rechnungendb.dbf", "Angebotedb.dbf", "Lieferscheinedb.dbf", "Gutschriftendb.dbf"})
    folder_.Put(name, "");
  platform_.Push(Answer::Yes);
  platform_.onWaiting = [&] {
    platform_.Quit();
    return true;
  };
  startForm_.Load();
  EXPECT_FALSE(startForm_.Daybold.Running());
  EXPECT_FALSE(startForm_.Visible());
}

TEST_F(StartFormTest, TheManualBesideTheProgramIsHandedToThePlatform) {
  startForm_.Load();
  startForm_.Handbuch.UserClick();
  EXPECT_NE(Record().find(Concat("\"open\", \"target\": \"", folder_.Path().string(), "\\\\Handbuch.pdf\"}")),
            std::string::npos);
}

TEST_F(StartFormTest, TheAboutBoxOpensTheSystemInformation) {
  frmAbout about(context_);
  desktop_.Add(about);
  about.Show();
  about.cmdSysInfo.UserClick();
  EXPECT_NE(Record().find("\"target\": \"MSINFO32.EXE\""), std::string::npos);
}

TEST_F(StartFormTest, PagingToAnotherMonthRefillsTheBoldDays) {
  startForm_.Load();
  platform_.Advance(100);
  EXPECT_FALSE(startForm_.Daybold.Running());
  startForm_.MonthView.UserMonth(2026, 12);
  EXPECT_TRUE(startForm_.Daybold.Running());
}

}  // namespace
}  // namespace kontorwerk
