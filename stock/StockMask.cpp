#include "stock/StockMask.h"

#include "stock/ArticleRecords.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

StockMask::StockMask(Screen& owner)
    : LagerNr(owner, "LagerNr"),
      Kat(owner, "Kat"),
      ArtikelNr(owner, "ArtikelNr"),
      Bezeichnung(owner, "Bezeichnung"),
      Lagerbestand(owner, "Lagerbestand"),
      MindestMenge(owner, "MindestMenge"),
      SollMenge(owner, "SollMenge"),
      LagerOrt(owner, "LagerOrt"),
      Lagerplatz(owner, "Lagerplatz"),
      EANNr(owner, "EANNr"),
      SerNr(owner, "SerNr"),
      IMEINr(owner, "IMEINr"),
      B1(owner, "B1"),
      B2(owner, "B2"),
      B3(owner, "B3"),
      B4(owner, "B4"),
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
      aktEK(owner, "aktEK"),
      VK(owner, "VK"),
      Brutto(owner, "Brutto"),
      MWST2_Check(owner, "MWST2_Check"),
      Einzel_Check(owner, "Einzel_Check"),
      plainFields_{{kStockLagerNr, &LagerNr},
                   {kStockBezeichnung, &Bezeichnung},
                   {kStockLagerbestand, &Lagerbestand},
                   {kStockMindestMenge, &MindestMenge},
                   {kStockSollMenge, &SollMenge},
                   {kStockLagerOrt, &LagerOrt},
                   {kStockLagerplatz, &Lagerplatz},
                   {kStockEANNr, &EANNr},
                   {kStockSerNr, &SerNr},
                   {kStockIMEINr, &IMEINr},
                   {kStockB1, &B1},
                   {kStockB2, &B2},
                   {kStockB3, &B3},
                   {kStockB4, &B4},
                   {kStockMengeneinheit, &Mengeneinheit},
                   {kStockVerpackungseinheit, &Verpackungseinheit},
                   {kStockGewicht, &Gewicht},
                   {kStockGröße, &Größe},
                   {kStockHersteller, &Hersteller},
                   {kStockLieferant1, &Lieferant1},
                   {kStockLieferant2, &Lieferant2},
                   {kStockLieferant3, &Lieferant3},
                   {kStockBestNr1, &BestNr1},
                   {kStockBestNr2, &BestNr2},
                   {kStockBestNr3, &BestNr3},
                   {kStockEK1, &EK1},
                   {kStockEK2, &EK2},
                   {kStockEK3, &EK3},
                   {kStockAktEK, &aktEK},
                   {kStockVK, &VK},
                   {kStockBrutto, &Brutto}},
      textFields_{&Kat, &ArtikelNr, &Notizen} {
  for (const Field& field : plainFields_) textFields_.push_back(field.box);
}

void StockMask::FillMask(const StockRecord& record) {
  Kat.SetText(CategoryOf(record[kStockArtNr]));
  ArtikelNr.SetText(DigitsOf(record[kStockArtNr]));
  for (const Field& field : plainFields_) field.box->SetText(record[field.column]);
  Notizen.SetText(MarksToLineBreaks(record[kStockNotizen]));
  MWST2_Check.SetChecked(IsTrueText(record[kStockMWST2]));
  Einzel_Check.SetChecked(record.SingleItem());
}

void StockMask::ClearMask() { FillMask(StockRecord()); }

StockRecord StockMask::MaskRecord() const {
  StockRecord record;
  record[kStockArtNr] = ArticleNumber();
  for (const Field& field : plainFields_) record[field.column] = field.box->Text();
  record[kStockNotizen] = LineBreaksToMarks(Notizen.Text());
  record[kStockMWST2] = TickText(MWST2_Check.Checked());
  record[kStockEinzel] = TickText(Einzel_Check.Checked());
  return record;
}

std::string StockMask::ArticleNumber() const { return UCase(Kat.Text()) + ArtikelNr.Text(); }

}  // namespace kontorwerk
