// The tables of open and settled documents: lines, and what printing each kind does to them.
#include "receivables/OpenDocumentRecords.h"

#include "store/RecordLine.h"
#include "tests/documents/DocumentFolder.h"

namespace kontorwerk {
namespace {

using testing_support::DocumentFolder;
using testing_support::FaultKind;
using Texts = std::vector<std::string>;

OpenDocumentRecord Printed(std::string_view kind, std::string_view number, std::string_view amount = "119,00") {
  OpenDocumentRecord record;
  record.Belegart = kind;
  record.number = number;
  record.Datum = "29.06.2007";
  record.KDNr = "10023";
  record.KDName = "Max Mustermann";
  record.Wohnort = "Musterstadt";
  record.kindWord = "Beleg";
  record.Gesamt = "100,00";
  record.MWST = "19,00";
  record.MWST2 = "0,00";
  record.Betrag = amount;
  return record;
}

constexpr std::string_view kMiddle =
    "','29.06.2007','10023','Max Mustermann','','','','Musterstadt','','','Beleg','Falsch','Wahr','100,00','19,00',"
    "'0,00','";

TEST(OpenDocumentLine, HasEighteenFields) {
  EXPECT_EQ(OpenDocumentLine(Printed("AB", "0150/2007")), Concat("'AB','0150/2007", kMiddle, "119,00"));
  EXPECT_EQ(OpenDocumentLine(Printed("LS", "0150/2007")), Concat("'LS','0150/2007", kMiddle, "119,00"));
}

TEST(OpenDocumentLine, InvoiceOwesItsWholeAmount) {
  EXPECT_EQ(OpenDocumentLine(Printed("RG", "0150/2007")), Concat("'RG','0150/2007", kMiddle, "119,00','119,00"));
}

TEST(OpenDocumentLine, CreditNoteHasAMinusInFrontOfTheAmount) {
  EXPECT_EQ(OpenDocumentLine(Printed("GS", "0150/2007")), Concat("'GS','0150/2007", kMiddle, "-119,00"));
}

TEST(OpenDocumentLine, ColumnsAreWhereTheReadersLook) {
  const std::string line = OpenDocumentLine(Printed("RG", "0150/2007"));
  EXPECT_EQ(RecordField(line, kOpenBelegart), "RG");
  EXPECT_EQ(RecordField(line, kOpenKDName), "Max Mustermann");
  EXPECT_EQ(RecordField(line, kOpenWohnort), "Musterstadt");
  EXPECT_EQ(RecordField(line, kOpenNettoButton), "Wahr");
  EXPECT_EQ(RecordField(line, kOpenBetrag), "119,00");
  EXPECT_EQ(RecordField(line, kOpenRestbetrag), "119,00");
  EXPECT_EQ(kOpenLastPayment, kOpenFirstPayment + kPaymentRows * kFieldsPerPayment - 1);
  EXPECT_EQ(kOpenMahngebühr, 62);
}

TEST(SettledDocuments, KeyIsFoundAnywhereInTheText) {
  EXPECT_TRUE(IsSettled("'LS0301/2026','RG0150/2007',", "RG0150/2007"));
  EXPECT_FALSE(IsSettled("'LS0301/2026',", "RG0301/2026"));
  EXPECT_TRUE(StandsOpen("'RG','0150/2007','x\r\n", "RG", "0150/2007"));
  EXPECT_FALSE(StandsOpen("'RG','0150/2007','x\r\n", "LS", "0150/2007"));
}

class OpenDocumentTable : public DocumentFolder {
 protected:
  void PutOpen(const Texts& lines) { PutTable("offeneBelegedb.dbf", lines); }
  void PutSettled(std::string_view text) { folder_.Put("erledigteBelegedb.dbf", text); }
  [[nodiscard]] Texts Open() const { return Lines("offeneBelegedb.dbf"); }
  [[nodiscard]] std::string Settled() const { return Table("erledigteBelegedb.dbf"); }
  void Invoice(const OpenDocumentRecord& record, std::string_view deliveryNote = "") {
    EnterInvoice(store_, record, deliveryNote, keys_, [this] {
      ++asked_;
      return answer_;
    });
  }
  void Quotation(const OpenDocumentRecord& record) {
    EnterQuotation(store_, record, [this] {
      ++asked_;
      return answer_;
    });
  }

  std::string keys_;
  int asked_ = 0;
  bool answer_ = true;
};

const std::string kOther = OpenDocumentLine(Printed("RG", "0001/2007"));

TEST_F(OpenDocumentTable, QuotationGoesOnTopAfterAYes) {
  PutOpen({kOther});
  Quotation(Printed("AB", "0150/2007"));
  EXPECT_EQ(Table("offeneBelegedb.dbf"), Concat(OpenDocumentLine(Printed("AB", "0150/2007")), "\r\n", kOther, "\r\n"));
}

TEST_F(OpenDocumentTable, QuotationStaysOutAfterANo) {
  answer_ = false;
  Quotation(Printed("AB", "0150/2007"));
  EXPECT_EQ(asked_, 1);
  EXPECT_EQ(Table("offeneBelegedb.dbf"), "(missing)");
}

TEST_F(OpenDocumentTable, OpenQuotationIsReplacedInItsPlace) {
  PutOpen({kOther, "'AB','0150/2007','alt", "'LS','0150/2007','b"});
  Quotation(Printed("AB", "0150/2007"));
  EXPECT_EQ(Open(), (Texts{kOther, OpenDocumentLine(Printed("AB", "0150/2007")), "'LS','0150/2007','b"}));
}

TEST_F(OpenDocumentTable, SettledQuotationIsNotAskedFor) {
  PutSettled("'AB0150/2007',");
  Quotation(Printed("AB", "0150/2007"));
  EXPECT_EQ(asked_, 0);
  EXPECT_EQ(Table("offeneBelegedb.dbf"), "(missing)");
}

TEST_F(OpenDocumentTable, DeliveryNoteGoesOnTopOrReplacesItsLine) {
  PutOpen({kOther});
  EnterDeliveryNote(store_, Printed("LS", "0077/2007"));
  EXPECT_EQ(Open(), (Texts{OpenDocumentLine(Printed("LS", "0077/2007")), kOther}));
  EnterDeliveryNote(store_, Printed("LS", "0077/2007", "120,00"));
  EXPECT_EQ(Open(), (Texts{OpenDocumentLine(Printed("LS", "0077/2007", "120,00")), kOther}));
}

TEST_F(OpenDocumentTable, SettledDeliveryAndCreditNotesAreSkipped) {
  PutSettled("'LS0077/2007','GS0005/2007',");
  EnterDeliveryNote(store_, Printed("LS", "0077/2007"));
  EnterCreditNote(store_, Printed("GS", "0005/2007"));
  EXPECT_EQ(Table("offeneBelegedb.dbf"), "(missing)");
}

TEST_F(OpenDocumentTable, CreditNoteGoesOnTopWithAMinus) {
  EnterCreditNote(store_, Printed("GS", "0005/2007"));
  ASSERT_EQ(Open().size(), 1U);
  EXPECT_EQ(RecordField(Open()[0], kOpenBetrag), "-119,00");
}

TEST_F(OpenDocumentTable, NewInvoiceGoesOnTopWithoutAQuestion) {
  PutOpen({kOther});
  Invoice(Printed("RG", "0150/2007"));
  EXPECT_EQ(asked_, 0);
  EXPECT_EQ(Open(), (Texts{OpenDocumentLine(Printed("RG", "0150/2007")), kOther}));
  EXPECT_EQ(Settled(), "(missing)");
}

TEST_F(OpenDocumentTable, InvoiceTakesItsDeliveryNoteOutOfTheTable) {
  PutOpen({OpenDocumentLine(Printed("LS", "0077/2007")), kOther});
  PutSettled("'AB0001/2007',");
  Invoice(Printed("RG", "0150/2007"), "0077/2007");
  EXPECT_EQ(Open(), (Texts{OpenDocumentLine(Printed("RG", "0150/2007")), kOther}));
  EXPECT_EQ(Settled(), "'AB0001/2007','LS0077/2007',");
  EXPECT_EQ(keys_, "");
}

TEST_F(OpenDocumentTable, CollectiveInvoiceTakesAllItsSourcesOut) {
  PutOpen({"'LS','0301/2026','a", "'AB','0301/2026','b", "'GS','0302/2026','c", "'LS','0303/2026','d"});
  keys_ = " LS0301/2026 GS0302/2026";
  Invoice(Printed("RG", "0150/2007"), "0303/2026");
  EXPECT_EQ(Open(), (Texts{OpenDocumentLine(Printed("RG", "0150/2007")), "'AB','0301/2026','b"}));
  EXPECT_EQ(Settled(), "'LS0301/2026','GS0302/2026','LS0303/2026',");
  EXPECT_TRUE(Table("offeneBelegedb.dbf").ends_with("'b\r\n\r\n\r\n\r\n"));
}

TEST_F(OpenDocumentTable, OpenInvoiceOfTheSameAmountStaysWithItsPayments) {
  const std::string line = OpenDocumentLine(Printed("RG", "0150/2007")) + "','50,00','angezahlt";
  PutOpen({line});
  Invoice(Printed("RG", "0150/2007"));
  EXPECT_EQ(asked_, 0);
  EXPECT_EQ(Open(), Texts{line});
}

TEST_F(OpenDocumentTable, ChangedAmountIsTakenOverAfterAYesOnly) {
  const std::string old = OpenDocumentLine(Printed("RG", "0150/2007", "50,00"));
  PutOpen({kOther, old});
  answer_ = false;
  Invoice(Printed("RG", "0150/2007"));
  EXPECT_EQ(asked_, 1);
  EXPECT_EQ(Open(), (Texts{kOther, old}));
  answer_ = true;
  Invoice(Printed("RG", "0150/2007"));
  EXPECT_EQ(asked_, 2);
  EXPECT_EQ(Open(), (Texts{kOther, OpenDocumentLine(Printed("RG", "0150/2007"))}));
}

TEST_F(OpenDocumentTable, SettledInvoiceIsLeftAloneWithItsKeys) {
  PutOpen({"'LS','0077/2007','a"});
  PutSettled("'RG0150/2007',");
  keys_ = " LS0077/2007";
  Invoice(Printed("RG", "0150/2007", "1,00"), "0077/2007");
  EXPECT_EQ(asked_, 0);
  EXPECT_EQ(Open(), Texts{"'LS','0077/2007','a"});
  EXPECT_EQ(Settled(), "'RG0150/2007',");
  EXPECT_EQ(keys_, " LS0077/2007");
}

TEST_F(OpenDocumentTable, NumberOfAnotherKindInsideALineDoesNotHideTheDocument) {
  PutOpen({"'AB','0150/2007','x"});
  EnterDeliveryNote(store_, Printed("LS", "0150/2007"));
  EXPECT_EQ(Open().size(), 2U);
}

TEST_F(OpenDocumentTable, KeysAreRemovedAndSettledOnTheirOwn) {
  PutOpen({"'RG','0001/2007','a", "", "'RG','0002/2007','b", "'RG','0003/2007','c"});
  EXPECT_TRUE(RemoveOpenDocuments(store_, {"RG0001/2007", "RG0003/2007"}));
  EXPECT_EQ(Table("offeneBelegedb.dbf"), "\r\n'RG','0002/2007','b\r\n\r\n");
  EXPECT_TRUE(AppendSettledKeys(store_, {"RG0001/2007", "", "RG0003/2007"}));
  EXPECT_EQ(Settled(), "'RG0001/2007','RG0003/2007',");
}

TEST_F(OpenDocumentTable, FailedReadNeverLosesOpenDocuments) {
  PutOpen({kOther});
  PutSettled("'AB0001/2007',");
  disk_.Arm({FaultKind::Once, 1});  // the read behind that of the settled documents
  EnterDeliveryNote(store_, Printed("LS", "0077/2007"));
  EXPECT_EQ(Open(), Texts{kOther});
}

TEST(OpenDocumentQuestions, NameNumberAndCustomer) {
  EXPECT_EQ(TakeInQuotationQuestion("0150/2007", "Max"),
            "Soll das Angebot 0150/2007 an Max zur Nachverfolgung\r\n"
            "in die Datenbank der offenen Belege aufgenommen werden?");
  EXPECT_EQ(NewAmountQuestion(), Concat("Zwischen dem Rechnungsbetrag der eben ausgedruckten Rechnung\r\n",
                                        "und dem Betrag in der offenen Belege Liste, besteht ein Unterschied!\r\n",
                                        "Soll der neue Betrag in die offenen Belege übernommen werden?"_t));
}

}  // namespace
}  // namespace kontorwerk
