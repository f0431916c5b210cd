// The fields of an article as two screens show them, the edit screen and the search, and the two commands that both
// of them have: the proposal of a number and the take-over into a document. What a screen does when a field changes or
// is left is its own business.
#pragma once

#include <vector>

#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/ListView.h"
#include "platform/TextControls.h"
#include "stock/ArticleRecords.h"
#include "stock/PositionReceiver.h"

namespace kontorwerk {

// The columns of a list of articles. They stand here and not in the forms, since a header of a form cannot hold a bar.
[[nodiscard]] std::vector<ListColumn> ArticleListColumns();

class ArticleMask {
 public:
  TextBox Kat, ArtikelNr, Bezeichnung;
  TextBox B1, B2, B3, B4;
  CheckBox CheckLagerartikel;
  OptionButton Einzelartikel, Mehrfachartikel;
  TextBox Mengeneinheit, Verpackungseinheit, Gewicht, Größe, Hersteller;
  TextBox Lieferant1, Lieferant2, Lieferant3;
  TextBox BestNr1, BestNr2, BestNr3;
  TextBox EK1, EK2, EK3;
  RichTextBox Notizen;
  TextBox VK;
  CheckBox MWST2_Check;
  TextBox Brutto, EANNr;
  StatusBar StatusBar1;

 protected:
  ArticleMask(Screen& owner, Context& context);
  ~ArticleMask() = default;

  // The date of entry has no field.
  void FillMask(const Article& article);
  void ClearMask() { FillMask({}); }
  [[nodiscard]] Article MaskArticle() const;
  // Category and digits as typed.
  [[nodiscard]] std::string ArticleNumber() const;
  [[nodiscard]] const std::vector<TextBox*>& TextFields() const { return textFields_; }
  // Progress and result texts.
  void SetStatus(std::string_view text) { StatusBar1.SetPanel(4, text); }

  // Puts a free number of the category into the mask.
  void ProposeNumber();
  // Puts the article into the row that waits; false, with the row left empty, for an article that must be sold from
  // stock. The caller closes its screen and then moves the focus to the row.
  [[nodiscard]] bool TakeIntoDocument(PositionReceiver& receiver, const Article& article);

 private:
  Context& context_;
  std::vector<TextBox*> textFields_;
};

}  // namespace kontorwerk
