#include "shell/Program.h"

#include "admin/AdminScreens.h"
#include "calendar/CalendarScreens.h"
#include "documents/DocumentScreens.h"
#include "partners/PartnerScreens.h"
#include "shell/ABRGNewDialog.h"
#include "shell/StartForm.h"
#include "shell/Templates.h"
#include "shell/frmAbout.h"
#include "stock/StockScreens.h"
#include "store/Text.h"

namespace kontorwerk {

struct ProgramScreens {
  explicit ProgramScreens(Context& context)
      : startForm(context),
        newTables(context),
        about(context),
        calendar(context, startForm),
        admin(context, startForm),
        partners(context),
        stock(context, startForm),
        documents(context, startForm) {
    context.desktop.Add(startForm);
    context.desktop.Add(newTables);
    context.desktop.Add(about);
    startForm.SetActions(Actions(context));
    partners.SetDocumentReceiver(&documents.Partners());
    stock.SetPositionReceiver(&documents.Positions());
    DocumentActions actions;
    actions.openCustomerSearch = [&context] { context.desktop.Find("KDsuchen")->Show(); };
    actions.openStockSearch = [this] { stock.OpenStockSearchForDocument(); };
    actions.openArticleSearch = [this] { stock.OpenArticleSearchForDocument(); };
    actions.showDraftCount = [this](int count) {
      startForm.EntwurfAnz.SetCaption(Concat(std::to_string(count), " Stück"_t));
    };
    documents.SetActions(std::move(actions));
    stock.SetSupplierChooser([this](Artikelanlegen::SupplierTaker taker) {
      partners.ChooseSupplierFor({std::move(taker.take), std::move(taker.waits)});
    });
  }

  StartFormActions Actions(Context& context) {
    StartFormActions actions;
    actions.openNewDocument = [this] { documents.OpenNewDocument(); };
    actions.openNewArticle = [this] { stock.OpenNewArticle(); };
    actions.openGoodsReceipt = [this] { stock.OpenForGoodsReceipt(); };
    actions.openStockEdit = [this] { stock.OpenForEditing(); };
    actions.provideTemplates = [&context] { ProvideTemplates(context.files, context.settings); };
    actions.openAppointments = [this](const Date& date) { calendar.terminkalender.OpenAt(date); };
    actions.openNewAppointment = [this](const Date& date) { return calendar.terminkalender.OpenNewAt(date); };
    actions.askAndDeleteAppointment = [this](const Appointment& a) { calendar.terminkalender.AskAndDelete(a); };
    return actions;
  }

  StartForm startForm;
  ABRGNewDialog newTables;
  frmAbout about;
  CalendarScreens calendar;
  AdminScreens admin;
  PartnerScreens partners;
  StockScreens stock;
  DocumentScreens documents;
};

Program::Program(Desktop& desktop, Platform& platform, const FileSystemObject& files)
    : store_(files, settings_),
      context_{desktop, platform, files, store_, settings_},
      screens_(std::make_unique<ProgramScreens>(context_)) {}

Program::~Program() = default;

void Program::Start() { screens_->startForm.Load(); }

}  // namespace kontorwerk
