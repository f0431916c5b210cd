// The search over the article master. It shows the chosen record, hands it to the article screen for editing or as a
// pattern for a new one, deletes it, and takes it over into the document that waits.
//
//   state     entered by                                  Command5       RowChosen
//   asking    loading, "Neue Suche", typing a new term    "Suchen"       false
//   found     a search                                    "Neue Suche"   false
//   chosen    a click on a row, or reaching it by key     "Neue Suche"   true
#pragma once

#include <array>
#include <string>

#include "platform/ListView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "stock/ArticleMask.h"
#include "stock/Artikelanlegen.h"

namespace kontorwerk {

class Artikelsuchen final : public Screen, public ArticleMask {
 public:
  Artikelsuchen(Context& context, Artikelanlegen& articleScreen);
  // Null while there is no document editor.
  void SetPositionReceiver(PositionReceiver* receiver) { receiver_ = receiver; }

  Label BezeichnungLabel{*this, "BezeichnungLabel"};
  ListView Suchergebnis{*this, "Suchergebnis"};
  CommandButton Command4{*this, "Command4"};
  CommandButton Command5{*this, "Command5"};
  CommandButton Command6{*this, "Command6"};
  CommandButton Command7{*this, "Command7"};
  CommandButton Command8{*this, "Command8"};
  CommandButton Command9{*this, "Command9"};
  MenuEntry Neuanlegen{*this, "Neuanlegen"};
  MenuEntry LeereMaske{*this, "LeereMaske"};
  MenuEntry Datenübernahme;
  MenuEntry löschen;
  MenuEntry Drucken{*this, "Drucken"};
  MenuEntry aktSuchergebnis{*this, "aktSuchergebnis"};
  MenuEntry kplArtikelstamm{*this, "kplArtikelstamm"};
  MenuEntry Artikeldruck{*this, "Artikeldruck"};

  // The document editor has opened the search for a position row; set before it is shown, cleared when it closes.
  bool DocumentCall = false;
  // A row of the list is shown in the mask.
  bool RowChosen = false;

 private:
  void OnLoad() override;
  void OnUnload() override;
  void OnCloseRequest() override { Unload(); }

  void WireCommands();
  void WireSearchFields();
  // What stands in category, number and name: the terms of a search while no record is shown.
  using Terms = std::array<std::string, 3>;
  [[nodiscard]] std::array<TextBox*, 3> SearchFields() { return {&Kat, &ArtikelNr, &Bezeichnung}; }
  [[nodiscard]] Terms TypedTerms() const { return {Kat.Text(), ArtikelNr.Text(), Bezeichnung.Text()}; }

  void Search();
  void NewSearch();
  void TermTyped(const TextBox& field);
  void Propose();
  void ShowRow();
  void UseChosen();
  void Edit();
  void TakeOver();
  void Delete();
  void OpenNew();
  void OpenCopy();

  void ShowRecord(const Article& article);
  // Empties the mask except for the terms.
  void ForgetRecord(const Terms& terms);
  void SetPurchasePricesVisible(bool visible);

  Context& context_;
  Artikelanlegen& articleScreen_;
  PositionReceiver* receiver_ = nullptr;
  Article chosen_;        // the record shown while RowChosen
  bool filling_ = false;  // the program fills the mask, nobody types
};

}  // namespace kontorwerk
