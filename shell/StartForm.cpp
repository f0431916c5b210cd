#include "shell/StartForm.h"

#include <string>

#include "calendar/Appointments.h"
#include "shell/Counters.h"
#include "shell/Reminders.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kContact =
    "Kontorwerk - Warenwirtschaft für kleine und mittlere Betriebe\r\n\r\n"
    "Fragen zur Bedienung beantwortet das Handbuch (Menü \"Handbuch\").\r\n"
    "Bei Störungen hilft Ihnen Ihr Systemadministrator oder Ihr Fachhändler weiter.\r\n"
    "Halten Sie dafür bitte die Programmversion bereit, sie steht unter \"Info\"."_t;
constexpr std::string_view kCloseWindowFirst = "\r\nBitte Fenster schließen und erneut versuchen."_t;

// Columns of the day list.
constexpr int kListBegin = 1;
constexpr int kListSubject = 2;
constexpr int kListEnd = 3;

std::string CountText(int count) { return std::to_string(count); }

}  // namespace

StartForm::StartForm(Context& context) : Screen(context.desktop, "StartForm"), context_(context) {
  WireCentres();
  WirePartnerCommands();
  WireDocumentCommands();
  WireStockCommands();
  WireCalendar();
  WireMenus();
  WireTimers();
}

// Centres

std::array<std::vector<Control*>, StartForm::kCentres> StartForm::ControlsByCentre() {
  return {{{&Command4, &Command5, &Command24, &Label5, &KDAnz},
           {&Command6, &Command7, &Command23, &Label6, &AuftrAnz, &Label13, &Label14},
           {&Command8, &Command9, &Command11, &Command21, &Label7, &EntwurfAnz, &Label11, &RGAnz, &Label12, &ABAnz},
           {&Command13, &Command14, &Label18, &LFAnz},
           {&Command15, &Command16, &Label22, &ArtAnz},
           {&Command17, &Command18}}};
}

void StartForm::WireCentres() {
  const auto opens = [this](CommandButton& command, Centre centre) {
    command.OnClick = [this, centre] { OpenCentre(centre); };
  };
  opens(Command1, Centre::Customers);
  opens(Command2, Centre::Orders);
  opens(Command3, Centre::Documents);
  opens(Command12, Centre::Suppliers);
  opens(Command19, Centre::Articles);
  opens(Command20, Centre::Stock);
  for (Control* control : Controls()) {
    if (control->Kind() != ControlKind::CommandButton) continue;
    // Only the active window follows the mouse, so that no dialog loses its focus.
    control->OnHover = [this, control] {
      if (WindowActive) control->SetFocus();
    };
  }
}

void StartForm::HideCentres() {
  for (const auto& controls : ControlsByCentre())
    for (Control* control : controls) control->Hide();
}

void StartForm::OpenCentre(Centre centre) {
  ShowCounters(centre);
  const auto controlsByCentre = ControlsByCentre();
  for (std::size_t i = 0; i < controlsByCentre.size(); ++i)
    for (Control* control : controlsByCentre[i]) control->SetVisible(i == static_cast<std::size_t>(centre));
  if (centre == Centre::Documents) Label23.Hide();
}

void StartForm::ShowCounters(Centre centre) {
  RecordStore& store = context_.store;
  switch (centre) {
    case Centre::Customers:
      KDAnz.SetCaption(CountText(CountRecords(store.ReadTableText(table::kCustomers))));
      break;
    case Centre::Suppliers:
      LFAnz.SetCaption(CountText(CountRecords(store.ReadTableText(table::kSuppliers))));
      break;
    case Centre::Articles:
      ArtAnz.SetCaption(CountText(CountRecords(store.ReadTableText(table::kArticles))));
      break;
    case Centre::Orders: {
      const OrderCounts orders = CountOrders(store.ReadTableText(table::kOrders));
      AuftrAnz.SetCaption(CountText(orders.all));
      Label14.SetCaption(CountText(orders.unfinished));
      break;
    }
    case Centre::Documents: {
      const DraftCounts drafts = CountDrafts(store.ReadTableText(table::kDrafts));
      EntwurfAnz.SetCaption(CountText(drafts.all));
      RGAnz.SetCaption(CountText(drafts.invoices));
      ABAnz.SetCaption(CountText(drafts.quotations));
      ShowOpenDocumentCount();
      break;
    }
    case Centre::Stock:
      break;
  }
}

// Commands of the centres

void StartForm::Opens(CaptionControl& command, std::string_view screen) {
  openings_.push_back({&command, screen});
  command.OnClick = [this, screen] {
    if (Screen* opened = context_.desktop.Find(screen)) opened->Show();
  };
}

bool StartForm::RefuseIfOpen(std::string_view screen, std::string_view message) {
  const Screen* opened = context_.desktop.Find(screen);
  if (!opened || !opened->Visible()) return false;
  context_.platform.Tell(Concat(message, kCloseWindowFirst));
  return true;
}

void StartForm::WirePartnerCommands() {
  Opens(Command4, "KDanlegen");
  Command4.OnClick = [this, show = Command4.OnClick] {
    if (!RefuseIfOpen("KDanlegen", "Das Fenster um Kunden neu anzulegen ist bereits geöffnet!"_t)) show();
  };
  Opens(Command5, "KDsuchen");
  Opens(Command24, "Gruppenaktion");
  Opens(Command13, "LFanlegen");
  Command13.OnClick = [this, show = Command13.OnClick] {
    if (!RefuseIfOpen("LFanlegen", "Das Fenster um Lieferanten neu anzulegen ist bereits geöffnet!"_t)) show();
  };
  Opens(Command14, "LFsuchen");
}

void StartForm::WireDocumentCommands() {
  constexpr std::string_view kCustomerSearchOpen = "Das Fenster zum Kunden suchen ist bereits geöffnet!"_t;
  Command6.OnClick = [this, kCustomerSearchOpen] {
    if (!RefuseIfOpen("KDsuchen", kCustomerSearchOpen)) actions_.openNewCustomerOrder();
  };
  Command23.OnClick = [this] {
    if (!RefuseIfOpen("LFsuchen", "Das Fenster zum Lieferanten suchen ist bereits geöffnet!"_t))
      actions_.openNewSupplierOrder();
  };
  Opens(Command7, "Auftragssuche");
  Command8.OnClick = [this, kCustomerSearchOpen] {
    if (!RefuseIfOpen("KDsuchen", kCustomerSearchOpen)) actions_.openNewDocument();
  };
  Opens(Command9, "ABRGsuche");
  Opens(Command11, "Entwurfdialog");
  Opens(Command21, "OBsuche");
}

void StartForm::WireStockCommands() {
  Command15.OnClick = [this] { actions_.openNewArticle(); };
  Opens(Command16, "Artikelsuchen");
  Command17.OnClick = [this] {
    if (Screen* search = context_.desktop.Find("LGArtikelSuche")) {
      search->Load();
      search->SetCaption("Wareneingang - Artikelsuche");
    }
    actions_.openGoodsReceipt();
  };
  Command18.OnClick = [this] { actions_.openStockEdit(); };
  Opens(Command22, "MindestbestandSuche");
}

void StartForm::WireMenus() {
  Opens(EinstellungenButton, "Einstellungen");
  Opens(Administration, "AdminForm");
  Opens(SuportClient, "Support_Client");
  SupportServer.OnClick = [this] {
    if (Screen* server = context_.desktop.Find("Support_Server")) server->Show();
  };
  Opens(Info, "frmAbout");
  Updates.OnClick = [this] { actions_.checkForUpdates(); };
  Autoupdate.OnClick = [this] {
    Autoupdate.SetChecked(!Autoupdate.Checked());
    actions_.setAutomaticUpdates(Autoupdate.Checked());
  };
  Handbuch.OnClick = [this] { OpenManual(); };
  for (Image* picture : {&Image2, &Image3}) picture->OnClick = [this] { context_.platform.Tell(kContact, "Kontakt"); };
  Command10.OnClick = [this] { AskToEnd(); };
}

// A command whose screen or action this program does not have is shown, but cannot be used.
void StartForm::EnableCommands() {
  for (const Opening& opening : openings_)
    opening.command->SetEnabled(context_.desktop.Find(opening.screen) != nullptr);
  Command6.SetEnabled(static_cast<bool>(actions_.openNewCustomerOrder));
  Command23.SetEnabled(static_cast<bool>(actions_.openNewSupplierOrder));
  Command8.SetEnabled(static_cast<bool>(actions_.openNewDocument));
  Command15.SetEnabled(static_cast<bool>(actions_.openNewArticle));
  Command17.SetEnabled(static_cast<bool>(actions_.openGoodsReceipt));
  Command18.SetEnabled(static_cast<bool>(actions_.openStockEdit));
  Command25.SetEnabled(static_cast<bool>(actions_.openNewAppointment));
  Command26.SetEnabled(static_cast<bool>(actions_.openAppointments));
  Updates.SetEnabled(static_cast<bool>(actions_.checkForUpdates));
  Autoupdate.SetEnabled(static_cast<bool>(actions_.setAutomaticUpdates));
}

void StartForm::OpenManual() { context_.platform.Open(Concat(context_.platform.ProgramFolder(), "Handbuch.pdf")); }

void StartForm::AskToEnd() {
  if (context_.platform.Ask("Kontorwerk wirklich beenden?", "Wirklich beenden")) Unload();
}

// Reminders

void StartForm::CountStockItems() {
  const int count = CountArticlesBelowMinimum(context_.store.ReadTableText(table::kStock));
  if (count > 0) Label20.SetCaption(Concat(CountText(count), " Artikel"));
  ShowStockReminder(count > 0);
  OpenDocumentReminder();
}

void StartForm::ShowStockReminder(bool shown) {
  Command22.SetVisible(shown);
  Label19.SetVisible(shown);
  Label20.SetVisible(shown);
}

void StartForm::OpenDocumentReminder() {
  if (Command21.Visible()) return;
  const OpenDocumentFigures figures =
      CountOpenDocuments(context_.store.ReadTableText(table::kOpenDocuments), context_.platform.Today());
  Command21.SetCaption(OpenDocumentCaption(figures.total));
  if (figures.old > 0) Label23.SetCaption(OldDocumentReminder(figures.old));
  Label23.SetVisible(figures.old > 0);
}

void StartForm::ShowOpenDocumentCount() {
  Command21.SetCaption(OpenDocumentCaption(CountRecords(context_.store.ReadTableText(table::kOpenDocuments))));
}

// Calendar

void StartForm::WireCalendar() {
  MonthView.OnDateClick = [this] {
    ShowDate();
    Daybold.SetRunning(true);
  };
  MonthView.OnMonthChange = [this] { Daybold.SetRunning(true); };
  Command28.OnClick = [this] { ShowYear(1); };
  Command29.OnClick = [this] { ShowYear(-1); };
  Command25.OnClick = [this] { NewAppointment(); };
  Command26.OnClick = [this] { actions_.openAppointments(MonthView.Value()); };
  Command27.OnClick = [this] { DeleteSelectedAppointment(); };
  ListView.OnClick = [this] { Listview_Select.SetRunning(true); };
}

void StartForm::WireTimers() {
  AktivFenster.OnTimer = [this] {
    WindowActive = context_.desktop.ApplicationActive() && context_.desktop.ActiveScreen() == this;
  };
  Timer.OnTimer = [this] { OpenDocumentReminder(); };
  Daybold.OnTimer = [this] {
    Daybold.SetRunning(false);
    RefreshAppointments();
  };
  Listview_Select.OnTimer = [this] {
    Listview_Select.SetRunning(false);
    ListView.SetToolTip(ListView.SelectedCell(kListSubject));
    Listview_Deselect.SetRunning(true);
  };
  Listview_Deselect.OnTimer = [this] {
    Listview_Deselect.SetRunning(false);
    ListView.SetToolTip({});
  };
}

void StartForm::ShowDate() {
  const Date& date = MonthView.Value();
  lblTermin.SetCaption(Concat("Termine: ", WeekdayAbbreviation(date), " ", DateText(date)));
}

void StartForm::ShowYear(int step) {
  MonthView.AddYears(step);
  // Kept: the caption above the day list stays with the day that was clicked last, the arrows turn the calendar alone.
  Daybold.SetRunning(true);
}

void StartForm::RefreshAppointments() {
  const std::string selectedDay = DateText(MonthView.Value());
  const std::string text = context_.store.ReadTableText(table::kAppointments);
  MonthView.ClearBold();
  ListView.Clear();
  ForEachRow(text, [&](std::string_view row) {
    const std::string_view day = RecordField(row, appointment::kDate);
    if (const auto date = ParseDate(day)) MonthView.SetBold(*date);
    if (day != selectedDay) return;
    ListView.AddRow({RecordField(row, appointment::kBegin), RecordField(row, appointment::kSubject),
                     RecordField(row, appointment::kEnd)});
  });
  ListView.Sort(kListBegin, true);
  Command27.SetEnabled(ListView.RowCount() > 0 && static_cast<bool>(actions_.askAndDeleteAppointment));
}

void StartForm::NewAppointment() {
  if (actions_.openNewAppointment(MonthView.Value())) WindowActive = false;
}

void StartForm::DeleteSelectedAppointment() {
  if (ListView.Selected() == 0) {
    context_.platform.Tell("Bitte zuerst einen Termin auswählen!"_t);
    return;
  }
  Appointment selected;
  selected.date = DateText(MonthView.Value());
  selected.begin = ListView.SelectedCell(kListBegin);
  selected.end = ListView.SelectedCell(kListEnd);
  selected.subject = ListView.SelectedCell(kListSubject);
  actions_.askAndDeleteAppointment(selected);
}

}  // namespace kontorwerk
