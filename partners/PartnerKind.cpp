// The two kinds of partners in full: their boxes in the order of the columns, and their words.
#include "partners/PartnerKind.h"

#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// Columns 3 to 30 stand alike in both tables.
constexpr std::string_view kSharedBoxes[] = {"Straße"_t,         "PLZ",   "Wohnort",  "Vorwahl1", "Tel",
                                             "Vorwahl2",         "Fax",   "Vorwahl3", "Mobil",    "email",
                                             "Homepage",                               //
                                             "Ansprechpartner1", "DW1",   "APemail1",  //
                                             "Ansprechpartner2", "DW2",   "APemail2",  //
                                             "Ansprechpartner3", "DW3",   "APemail3",  //
                                             "Ansprechpartner4", "DW4",   "APemail4",  //
                                             "Ansprechpartner5", "DW5",   "APemail5",  //
                                             "Freitext",         "Anrede"};

std::vector<std::string_view> Boxes(std::string_view number, std::string_view name,
                                    std::initializer_list<std::string_view> ownBoxes) {
  std::vector<std::string_view> boxes = {number, name};
  boxes.insert(boxes.end(), std::begin(kSharedBoxes), std::end(kSharedBoxes));
  boxes.insert(boxes.end(), ownBoxes);
  return boxes;
}

}  // namespace

std::string PartnerKind::SavedMessage(std::string_view name, std::string_view number) const {
  return Concat(name, " / ", numberWord, " ", number, " gespeichert!");
}

std::string PartnerKind::ChangesSavedMessage(std::string_view name, std::string_view number) const {
  return Concat(changesOf, " ", SavedMessage(name, number));
}

std::string PartnerKind::DeleteQuestion(std::string_view name, std::string_view number) const {
  return Concat(deleteSubject, " ", name, " mit der ", deleteNumberWord, " ", number, " wirklich löschen?"_t);
}

const PartnerKind& CustomerKind() {
  static const PartnerKind kKind = {
      .table = table::kCustomers,
      .firstNumber = 100,
      .editScreen = "KDanlegen",
      .searchScreen = "KDsuchen",
      .boxes = Boxes("KDNr", "KDName", {}),
      .numberCaption = "KDNr",
      .nextNumberPrompt = "KdNr",  // Kept: a fresh screen reads "KDNr"
      .numberWord = "KdNr.",
      .changesOf = "Änderungen des Kunden"_t,
      .leaveQuestion = "Kunde wurde geändert. Ohne speichern beenden?"_t,
      .alreadyOpen = "Das Fenster um Kunden neu anzulegen ist bereits geöffnet!"_t,
      .addressCaption = "Kundenadresse:",
      .createdOn = "Kunde angelegt am: ",
      .deleteSubject = "Kunde",
      .deleteNumberWord = "KundenNr.",
      .deleteTitle = "Kunde wirklich löschen?"_t,
      .deleted = "Kunde ordnungsgemäß gelöscht!"_t,
  };
  return kKind;
}

const PartnerKind& SupplierKind() {
  static const PartnerKind kKind = {
      .table = table::kSuppliers,
      .firstNumber = 90000,
      .editScreen = "LFanlegen",
      .searchScreen = "LFsuchen",
      .boxes = Boxes("LFNr", "LFName", {"Bank", "KTO", "BLZ", "ZZiel", "UKDNr", "ZugName", "ZugPW"}),
      .numberCaption = "LFNr",
      .nextNumberPrompt = "LFNr",
      .numberWord = "LFNr.",
      .changesOf = "Änderungen des Lieferanten"_t,
      .leaveQuestion = "Lieferant wurde geändert. Ohne speichern beenden?"_t,
      .alreadyOpen = "Das Fenster um Lieferanten neu anzulegen ist bereits geöffnet!"_t,
      .addressCaption = "Lieferantenadresse:",
      .createdOn = "Lieferant angelegt am: ",
      .deleteSubject = "Lieferant",
      .deleteNumberWord = "LieferantenNr.",
      .deleteTitle = "Lieferant wirklich löschen?"_t,
      .deleted = "Lieferant ordnungsgemäß gelöscht!"_t,
  };
  return kKind;
}

}  // namespace kontorwerk
