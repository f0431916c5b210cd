// "Belege erstellen / bearbeiten": the one editor for quotations, delivery notes, invoices and credit notes.
//
//   state      the head, foot and row fields   is reached by
//   open       take typing                     loading, Command3, Command5, Command7, Command8
//   locked     show the printed document       saving and printing without a failure
//
// The number field takes typing only while the user is asked for the first number of a table. The grid has a class of
// its own; saving lies in ABRGFormSave.cpp, what follows printing in ABRGFormFinish.cpp, what begins a new document in
// ABRGFormNew.cpp, articles and amounts in ABRGFormPositions.cpp.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "documents/ABRGFormRows.h"
#include "documents/ArticleLookup.h"
#include "documents/DocumentKinds.h"
#include "documents/DocumentRecord.h"
#include "documents/LFRGForm.h"
#include "documents/PrintFields.h"
#include "documents/Totals.h"
#include "partners/PartnerReceiver.h"
#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "platform/Screen.h"
#include "receivables/OpenDocumentRecords.h"
#include "stock/PositionReceiver.h"
#include "store/Text.h"

namespace kontorwerk {

// What the document screen starts in other subsystems; an action that is missing does nothing.
struct DocumentActions {
  std::function<void()> openCustomerSearch;
  // For the position row that was entered last.
  std::function<void()> openStockSearch;
  std::function<void()> openArticleSearch;
  // The number of drafts that are left, for the control centre.
  std::function<void(int count)> showDraftCount;
};

class ABRGForm final : public Screen, public PartnerReceiver, public PositionReceiver {
 public:
  // All must outlive the screen.
  ABRGForm(Context& context, ControlCentre& controlCentre, LFRGForm& choice);

  void SetActions(DocumentActions actions) { actions_ = std::move(actions); }

  // Waits for a partner while it is open and not locked.
  [[nodiscard]] bool UebernahmeOffen() const override { return Loaded() && !locked_; }
  void TakePartner(const PartnerAddress& address, std::string_view ansprechpartner, TakeOverRoute route) override;

  [[nodiscard]] int CurrentRow() const override { return Rows.CurrentRow(); }
  [[nodiscard]] bool IsQuotation() const override { return ComboABRG.ListIndex() == kSelectorQuotation; }
  [[nodiscard]] bool IsNetDocument() const override { return NettoButton.Value(); }
  void ClearRow(int row) override { Rows.ClearTexts(row); }
  void SetStockNumber(int row, std::string_view text) override { Rows.LGNr[row].SetText(text); }
  void SetArticleNumber(int row, std::string_view text) override { Rows.ArtNr[row].SetText(text); }
  void SetQuantity(int row, std::string_view text) override { Rows.S[row].SetText(text); }
  void SetDescription(int row, std::string_view text) override { Rows.B[row].SetText(text); }
  void SetSinglePrice(int row, std::string_view text) override { Rows.E[row].SetText(text); }
  void TickSecondRate(int row) override { Rows.MWST2_Check[row].SetChecked(true); }
  int FreeRowBehind(int row) override { return Rows.FreeRowBehind(row); }
  void FocusQuantity(int row) override;
  void FocusNextFreeRow(int row) override;

  // Recomputes all rows and the amounts below them.
  void Berechnen();
  // The option buttons and the kind of prices that the rows are taken to hold; nothing is computed.
  void SetPriceBase(PriceBase base);
  // Empties all rows.
  void ClearPositions();
  // Puts head, selector, rates, amounts and closing texts to a new document's.
  void ClearDocumentForm();
  // The document on the form in rich text, as it stands; it is neither saved nor changed.
  void BelegRTFDrucken();

  // States between this screen and those that load documents into it; a new document begins without any of them.
  bool ErsteNummerOffen = false;   // the user was asked for the first number of the quotations
  bool AngebotGeladen = false;     // the screen holds a quotation that was saved before
  bool AngebotIstEntwurf = false;  // ... whose number belongs to a marker row
  std::string ClosedDocumentKeys;  // documents that this invoice closes, each key behind a blank
  std::string PendingStockList;    // goods of the documents that this invoice collects, see PendingStockEntry

  TextBox KDNr{*this, "KDNr"};
  TextBox Anrede{*this, "Anrede"};
  TextBox KDName{*this, "KDName"};
  TextBox Ansprechpartner{*this, "Ansprechpartner"};
  TextBox Straße{*this, "Straße"_t};
  TextBox PLZ{*this, "PLZ"};
  TextBox Wohnort{*this, "Wohnort"};
  ComboBox ComboABRG{*this, "ComboABRG"};
  TextBox ABRGNR{*this, "ABRGNR"};
  Label LieferscheinNr{*this, "LieferscheinNr"};
  TextBox Datum{*this, "Datum"};
  TextBox UnsereZeichen{*this, "UnsereZeichen"};
  TextBox IhreZeichen{*this, "IhreZeichen"};
  OptionButton NettoButton{*this, "NettoButton"};
  OptionButton BruttoButton{*this, "BruttoButton"};

  ABRGFormRows Rows;

  Label Label13{*this, "Label13"};  // caption of `Gesamt`
  TextBox Gesamt{*this, "Gesamt"};
  Label Label28{*this, "Label28"};  // first rate
  TextBox MWST{*this, "MWST"};
  Label Label29{*this, "Label29"};  // second rate
  TextBox MWST2{*this, "MWST2"};
  TextBox Betrag{*this, "Betrag"};
  TextBox Zahlungsweise{*this, "Zahlungsweise"};
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};

  CommandButton Command1{*this, "Command1"};    // save and print
  CommandButton Command2{*this, "Command2"};    // empty all rows
  CommandButton Command3{*this, "Command3"};    // open a printed document again
  CommandButton Command4{*this, "Command4"};    // leave
  CommandButton Command5{*this, "Command5"};    // the same positions to another customer
  CommandButton Command6{*this, "Command6"};    // preview
  CommandButton Command7{*this, "Command7"};    // new customer
  CommandButton Command8{*this, "Command8"};    // new document for the same customer
  CommandButton Command9{*this, "Command9"};    // notes on a quotation
  CommandButton Command10{*this, "Command10"};  // add a page
  CommandButton Command13{*this, "Command13"};  // insert a row
  CommandButton Command14{*this, "Command14"};  // delete a row
  Image Image2{*this, "Image2"};                // price calculators
  MenuEntry Datei{*this, "Datei"};
  MenuEntry EntwurfLaden{*this, "EntwurfLaden"};
  MenuEntry EntwurfSpeichern{*this, "EntwurfSpeichern"};
  RichTextBox BelegRTF{*this, "BelegRTF"};
  StatusBar StatusBar1{*this, "StatusBar1"};

 private:
  // Ended: the command is over, the user has been told why.
  enum class Step { Done, Ended };
  // What of the head a new document begins with.
  enum class Address { Prompts, Keep };

  void OnLoad() override;
  void OnUnload() override;
  void OnCloseRequest() override { AskToLeave(); }
  void OnWheel(int notches) override { Rows.Wheel(notches); }

  void WireHead();
  void WireRows();
  void WireCommands();
  void AskToLeave();
  void ShowStatus(std::string_view text) { StatusBar1.SetPanel(kStatusPanel, text); }
  void SetLocked(bool locked);

  // Number, date and kind.
  [[nodiscard]] bool RefuseNumberFormat();
  void CheckNumberLeft();
  void CheckDateLeft();
  void CheckYearOfDate();
  void OnKindChanged();
  void SetSelector(std::size_t entries, int place);
  void SetNumberEntry(bool on) { ABRGNR.SetLocked(!on); }
  [[nodiscard]] bool NumberIsEntered() const { return !ABRGNR.Locked(); }

  // A new document.
  void ClearDocument(Address address);
  struct Prompt {
    TextBox* field;
    std::string_view text;
  };
  [[nodiscard]] std::array<Prompt, 6> Prompts();
  void ShowPrompts();
  void ForgetDocument();
  [[nodiscard]] std::string StartingDate() const;
  void StartNewCustomer();
  void StartNextDocument();
  void SendToOtherCustomer();
  void ReopenDocument();
  void OpenCustomerSearch();

  // Positions and amounts.
  void AskToClearPositions();
  void LookUp(TextBox& number, LookupResult (*lookup)(PositionReceiver&, RecordStore&, int, std::string_view), int row,
              std::string_view running, std::string_view failure);
  void ReportLookup(bool found, std::string_view failure);
  void ChangePriceBase(PriceBase wanted);

  // Saving and printing.
  void SaveAndPrint();
  [[nodiscard]] Step AskForCustomer();
  [[nodiscard]] bool RefusedForNumber();
  [[nodiscard]] Step AskWhatToPrint();
  void BelegDrucken();
  [[nodiscard]] Step SaveByKind();
  [[nodiscard]] Step SaveDeliveryNote();
  [[nodiscard]] Step SaveInvoice();
  [[nodiscard]] Step SaveFirstInvoice();
  [[nodiscard]] Step SaveQuotation();
  [[nodiscard]] Step SaveNewQuotation(std::string_view tableText);
  [[nodiscard]] Step AskForCopy();
  [[nodiscard]] Step SaveCreditNote();
  [[nodiscard]] Step PutOnTop(DocumentKind kind, std::string_view tableText, std::string_view number);
  [[nodiscard]] Step ReplaceSaved(DocumentKind kind, std::string_view number);
  void AskForFirstNumber(std::string_view message);
  [[nodiscard]] Step PrintByKind();
  [[nodiscard]] bool Prints(DocumentKind kind) const;
  void ReportFailure(DocumentKind kind);
  [[nodiscard]] std::string NumberOf(DocumentKind kind) const;
  [[nodiscard]] DocumentRecord Record(DocumentKind kind, std::string_view number) const;
  [[nodiscard]] PaperDocument Paper(DocumentKind kind) const;

  // After printing.
  void BelegAbschluss();
  [[nodiscard]] bool TakeGoodsOut();
  void OfferDraftDeletion();
  void EnterOpenDocument();
  [[nodiscard]] OpenDocumentRecord OpenRecord(DocumentKind kind) const;

  static constexpr int kStatusPanel = 2;
  static constexpr int kReasonPanel = 4;

  Context& context_;
  ControlCentre& controlCentre_;
  LFRGForm& choice_;
  DocumentActions actions_;
  bool locked_ = false;
  bool isGross_ = false;  // the prices that the rows hold, whatever the option buttons show meanwhile
  bool saving_ = false;   // Command1 is under way

  // Of the run of Command1.
  PrinterChoice printer_;
  bool printTotals_ = false;  // of a quotation
  int startKind_ = kSelectorOpen;
};

}  // namespace kontorwerk
