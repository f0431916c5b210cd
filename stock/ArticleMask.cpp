#include "stock/ArticleMask.h"

#include "store/Text.h"

namespace kontorwerk {

std::vector<ListColumn> ArticleListColumns() {
  return {{"KAT | ArtikelNr"}, {"Bezeichnung"}, {"Hersteller"}, {"VK (Netto)"}};
}

ArticleMask::ArticleMask(Screen& owner, Context& context)
    : Kat(owner, "Kat"),
      ArtikelNr(owner, "ArtikelNr"),
      Bezeichnung(owner, "Bezeichnung"),
      B1(owner, "B1"),
      B2(owner, "B2"),
      B3(owner, "B3"),
      B4(owner, "B4"),
      CheckLagerartikel(owner, "CheckLagerartikel"),
      Einzelartikel(owner, "Einzelartikel"),
      Mehrfachartikel(owner, "Mehrfachartikel"),
      Mengeneinheit(owner, "Mengeneinheit"),
      Verpackungseinheit(owner, "Verpackungseinheit"),
      Gewicht(owner, "Gewicht"),
      Größe(owner, "Größe"_t),
      Hersteller(owner, "Hersteller"),
      Lieferant1(owner, "Lieferant1"),
      Lieferant2(owner, "Lieferant2"),
      Lieferant3(owner, "Lieferant3"),
      BestNr1(owner, "BestNr1"),
      BestNr2(owner, "BestNr2"),
      BestNr3(owner, "BestNr3"),
      EK1(owner, "EK1"),
      EK2(owner, "EK2"),
      EK3(owner, "EK3"),
      Notizen(owner, "Notizen"),
      VK(owner, "VK"),
      MWST2_Check(owner, "MWST2_Check"),
      Brutto(owner, "Brutto"),
      EANNr(owner, "EANNr"),
      StatusBar1(owner, "StatusBar1"),
      context_(context),
      textFields_{&Kat,
                  &ArtikelNr,
                  &Bezeichnung,
                  &B1,
                  &B2,
                  &B3,
                  &B4,
                  &EANNr,
                  &Mengeneinheit,
                  &Verpackungseinheit,
                  &Gewicht,
                  &Größe,
                  &Hersteller,
                  &Lieferant1,
                  &BestNr1,
                  &EK1,
                  &Lieferant2,
                  &BestNr2,
                  &EK2,
                  &Lieferant3,
                  &BestNr3,
                  &EK3,
                  &Notizen,
                  &VK,
                  &Brutto} {}

void ArticleMask::FillMask(const Article& article) {
  Kat.SetText(CategoryOf(article.number));
  ArtikelNr.SetText(DigitsOf(article.number));
  Bezeichnung.SetText(article.name);
  const auto fill = [](auto boxes, const auto& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) boxes[i]->SetText(texts[i]);
  };
  fill(std::array{&B1, &B2, &B3, &B4}, article.description);
  CheckLagerartikel.SetChecked(article.stockKept);
  Einzelartikel.SetValue(article.singleItem);
  Mehrfachartikel.SetValue(article.multipleItem);
  Mengeneinheit.SetText(article.unit);
  Verpackungseinheit.SetText(article.packingUnit);
  Gewicht.SetText(article.weight);
  Größe.SetText(article.size);
  Hersteller.SetText(article.manufacturer);
  fill(std::array{&Lieferant1, &Lieferant2, &Lieferant3}, article.suppliers);
  fill(std::array{&BestNr1, &BestNr2, &BestNr3}, article.orderNumbers);
  fill(std::array{&EK1, &EK2, &EK3}, article.purchasePrices);
  Notizen.SetText(article.notes);
  // The mark first: where it turns, the gross price is computed anew, and the article's own price follows.
  MWST2_Check.SetChecked(article.secondRate);
  VK.SetText(article.netPrice);
  Brutto.SetText(article.grossPrice);
  EANNr.SetText(article.ean);
}

Article ArticleMask::MaskArticle() const {
  Article article;
  article.number = ArticleNumber();
  article.name = Bezeichnung.Text();
  article.description = {B1.Text(), B2.Text(), B3.Text(), B4.Text()};
  article.stockKept = CheckLagerartikel.Checked();
  article.singleItem = Einzelartikel.Value();
  article.multipleItem = Mehrfachartikel.Value();
  article.unit = Mengeneinheit.Text();
  article.packingUnit = Verpackungseinheit.Text();
  article.weight = Gewicht.Text();
  article.size = Größe.Text();
  article.manufacturer = Hersteller.Text();
  article.suppliers = {Lieferant1.Text(), Lieferant2.Text(), Lieferant3.Text()};
  article.orderNumbers = {BestNr1.Text(), BestNr2.Text(), BestNr3.Text()};
  article.purchasePrices = {EK1.Text(), EK2.Text(), EK3.Text()};
  article.notes = Notizen.Text();
  article.netPrice = VK.Text();
  article.secondRate = MWST2_Check.Checked();
  article.grossPrice = Brutto.Text();
  article.ean = EANNr.Text();
  return article;
}

std::string ArticleMask::ArticleNumber() const { return Concat(Kat.Text(), ArtikelNr.Text()); }

void ArticleMask::ProposeNumber() {
  if (Kat.Text().empty()) {
    context_.platform.Tell("Bitte Kategorie eintragen (max 3 Stellen)");
    Kat.SetFocus();
    return;
  }
  ArtikelNr.SetText(ProposeArticleNumber(context_.store.ReadTableText(table::kArticles), Kat.Text()));
  Kat.SetText(UCase(Kat.Text()));
  Bezeichnung.SetFocus();
}

bool ArticleMask::TakeIntoDocument(PositionReceiver& receiver, const Article& article) {
  const int row = receiver.CurrentRow();
  receiver.ClearRow(row);
  if (article.stockKept && !receiver.IsQuotation()) {
    context_.platform.Tell(
        "Dieser Artikel ist ein Lagerartikel. Bitte suchen Sie\r\ndie entsprechende Position im Lager!");
    return false;
  }
  FillPosition(receiver, context_.settings, row,
               {.stockNumber = {},
                .articleNumber = article.number,
                .description = article.description,
                .netPrice = article.netPrice,
                .secondRate = article.secondRate});
  return true;
}

}  // namespace kontorwerk
