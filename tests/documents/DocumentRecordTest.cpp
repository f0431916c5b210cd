// Rows of the document tables: what is written, what is read in all layouts, and the markers between the documents.
#include "documents/DocumentRecord.h"

#include <gtest/gtest.h>

#include "store/RecordLine.h"
#include "store/Text.h"
#include "tests/documents/DocumentFolder.h"

namespace kontorwerk {
namespace {

using testing_support::DocumentFolder;
using testing_support::Fault;
using testing_support::FaultKind;

DocumentRecord TwoPositions() {
  DocumentRecord record;
  record.number = "0150/2007";
  record.Datum = "29.06.2007";
  record.KDNr = "10023";
  record.KDName = "Max Mustermann";
  record.Straße = Concat("Musterstraße 1"_t);
  record.PLZ = "78554";
  record.Wohnort = "Musterstadt";
  record.kindWord = "Rechnung";
  record.rows.resize(17);
  record.rows[0] = {"#01001", "NET50302", "2", "Kabel", "50,00", "100,00", false};
  record.rows[2] = {"", "", "", "nur Text", "", "", true};
  record.Gesamt = "100,00";
  record.MWST = "19,00";
  record.MWST2 = "0,00";
  record.Betrag = "119,00";
  record.Zahlungsweise = "bar";
  record.Text1 = "Danke";
  record.LieferscheinNr = "0077/2007";
  record.Anrede = "Herr";
  return record;
}

const std::string_view kHead =
    "'3','0150/2007','29.06.2007','10023','Max Mustermann','','Musterstraße 1','78554','Musterstadt','','',"
    "'Rechnung','Falsch','Wahr"_t;
constexpr std::string_view kPositions =
    "','#01001','NET50302','2','Kabel','50,00','100,00','0"
    "','','','','','','','0"
    "','','','','nur Text','','','1";

TEST(DocumentLine, InvoiceCarriesTheDeliveryNoteBeforeTheSalutation) {
  EXPECT_EQ(DocumentLine(TwoPositions(), DocumentKind::Invoice),
            Concat(kHead, kPositions, "','','100,00','19,00','0,00','119,00','bar','Danke','','0077/2007','Herr"));
}

TEST(DocumentLine, OtherKindsEndWithTheSalutation) {
  for (const DocumentKind kind : {DocumentKind::Quotation, DocumentKind::DeliveryNote, DocumentKind::CreditNote}) {
    EXPECT_EQ(DocumentLine(TwoPositions(), kind),
              Concat(kHead, kPositions, "','','100,00','19,00','0,00','119,00','bar','Danke','','Herr"));
  }
}

TEST(DocumentLine, EmptyRowBetweenFilledOnesIsSixEmptyFieldsAndAZero) {
  const std::string line = DocumentLine(TwoPositions(), DocumentKind::Invoice);
  EXPECT_EQ(RecordField(line, 1), "3");
  for (int field = 22; field <= 27; ++field) EXPECT_EQ(RecordField(line, field), "");
  EXPECT_EQ(RecordField(line, 28), "0");
}

TEST(DocumentLine, EmptyGridIsStoredWithAllItsRows) {
  DocumentRecord record;
  record.rows.resize(34);
  const std::string line = DocumentLine(record, DocumentKind::Quotation);
  EXPECT_EQ(RecordField(line, 1), "34");
  EXPECT_EQ(RecordFields(line).size(), 23U + 7 * 34);
}

TEST(DocumentLine, LineBreaksBecomeMarksAndComeBack) {
  DocumentRecord record = TwoPositions();
  record.Text1 = "oben\r\nunten";
  const std::string line = DocumentLine(record, DocumentKind::CreditNote);
  EXPECT_EQ(line.find("\r\n"), std::string::npos);
  EXPECT_EQ(ReadDocument(line, DocumentKind::CreditNote).Text1, "oben\r\nunten");
}

TEST(ReadDocument, GivesBackWhatWasWritten) {
  for (const DocumentKind kind : kDocumentKinds) {
    const DocumentRecord read = ReadDocument(DocumentLine(TwoPositions(), kind), kind);
    const DocumentRecord written = TwoPositions();
    EXPECT_EQ(read.layout, RowLayout::Counted);
    EXPECT_EQ(read.number, written.number);
    EXPECT_EQ(read.Datum, written.Datum);
    EXPECT_EQ(read.KDNr, written.KDNr);
    EXPECT_EQ(read.KDName, written.KDName);
    EXPECT_EQ(read.Straße, written.Straße);
    EXPECT_EQ(read.Wohnort, written.Wohnort);
    EXPECT_EQ(read.kindWord, written.kindWord);
    EXPECT_FALSE(read.BruttoButton);
    EXPECT_TRUE(read.NettoButton);
    ASSERT_EQ(read.rows.size(), 3U);
    for (std::size_t row = 0; row < 3; ++row) EXPECT_EQ(read.rows[row], written.rows[row]);
    EXPECT_EQ(read.Gesamt, "100,00");
    EXPECT_EQ(read.MWST, "19,00");
    EXPECT_EQ(read.MWST2, "0,00");
    EXPECT_EQ(read.Betrag, "119,00");
    EXPECT_EQ(read.Zahlungsweise, "bar");
    EXPECT_EQ(read.Text1, "Danke");
    EXPECT_EQ(read.LieferscheinNr, kind == DocumentKind::Invoice ? "0077/2007" : "");
    EXPECT_EQ(read.Anrede, "Herr");
  }
}

TEST(ReadDocument, TakesTruthTextsOfEitherLanguage) {
  const auto readOptions = [](std::string_view gross, std::string_view net) {
    return ReadDocument(Concat("'0','','','','','','','','','','','','", gross, "','", net, "','','"),
                        DocumentKind::Quotation);
  };
  EXPECT_TRUE(readOptions("True", "False").BruttoButton);
  EXPECT_FALSE(readOptions("True", "False").NettoButton);
  EXPECT_TRUE(readOptions("Wahr", "Falsch").BruttoButton);
  EXPECT_TRUE(readOptions("Falsch", "Wahr").NettoButton);
}

TEST(ReadDocument, FieldWithASeparatorMovesTheLaterFields) {
  DocumentRecord record = TwoPositions();
  record.KDName = "Max','Moritz";
  const DocumentRecord read = ReadDocument(DocumentLine(record, DocumentKind::Invoice), DocumentKind::Invoice);
  EXPECT_EQ(read.KDName, "Max");
  EXPECT_EQ(read.Ansprechpartner, "Moritz");
  EXPECT_EQ(read.Gesamt, "");
  EXPECT_EQ(read.MWST, "100,00");
}

// A line of an older layout: fourteen head fields, rows of quantity, description, price and total, closing fields.
std::string OldLine(std::string_view mark, int rows, std::string_view foot) {
  std::string line =
      Concat("'", mark, "','0007/2005','01.02.2005','10023','Max','','','','','','','Rechnung',", "'Falsch','Wahr");
  for (int row = 0; row < rows; ++row) {
    const std::string number = std::to_string(row + 1);
    line += Concat("','", number, "','Ware ", number, "','1,00','", number, ",00");
  }
  return line + std::string(foot);
}

TEST(ReadDocument, OldLayoutsHaveTwelveOrSeventeenRowsOfFourFields) {
  struct Case {
    std::string_view mark;
    RowLayout layout;
    int rows;
    int amountField;
  };
  for (const Case& old : {Case{"short", RowLayout::Short, 12, 65}, Case{"large", RowLayout::Large, 17, 85}}) {
    const std::string line = OldLine(old.mark, old.rows, "','78,00','12,48','90,48','bar','Danke','Ende','','Herr");
    EXPECT_EQ(RecordField(line, old.amountField), "90,48");
    const DocumentRecord read = ReadDocument(line, DocumentKind::Invoice);
    EXPECT_EQ(read.layout, old.layout);
    ASSERT_EQ(static_cast<int>(read.rows.size()), old.rows);
    EXPECT_EQ(read.rows[0], (PositionRow{"", "", "1", "Ware 1", "1,00", "1,00", false}));
    EXPECT_EQ(read.rows.back().B, Concat("Ware ", std::to_string(old.rows)));
    EXPECT_EQ(read.Gesamt, "78,00");
    EXPECT_EQ(read.MWST, "12,48");
    EXPECT_EQ(read.MWST2, "");
    EXPECT_EQ(read.Betrag, "90,48");
    EXPECT_EQ(read.Zahlungsweise, "bar");
    EXPECT_EQ(read.Text2, "Ende");
    EXPECT_EQ(read.Anrede, "Herr");
    EXPECT_EQ(AmountsOf(line).Gesamt, "78,00");
    EXPECT_EQ(AmountsOf(line).Betrag, "90,48");
  }
}

TEST(ReadDocument, OldLayoutIsWrittenBackCounted) {
  const DocumentRecord read = ReadDocument(OldLine("large", 17, "','153,00','24,48','177,48"), DocumentKind::Invoice);
  const std::string line = DocumentLine(read, DocumentKind::Invoice);
  EXPECT_EQ(RecordField(line, 1), "17");
  EXPECT_EQ(RecordField(line, 19 + 7 * 17), "177,48");
  EXPECT_EQ(ReadDocument(line, DocumentKind::Invoice).rows, read.rows);
}

TEST(ReadDocument, DamagedCountMakesNoRowsOutOfNothing) {
  for (const std::string_view count : {"999999999", "1e30"}) {
    const DocumentRecord read = ReadDocument(
        Concat("'", count, "','0001/2007','','','','','','','','','','','','','#01001','A','1','B','2,00','2,00','1"),
        DocumentKind::Invoice);
    ASSERT_EQ(read.rows.size(), 1U);
    EXPECT_EQ(read.rows[0].B, "B");
    EXPECT_EQ(read.Betrag, "");
  }
  for (const std::string_view count : {"", "-3", "drei"}) {
    const DocumentRecord read = ReadDocument(Concat("'", count, "','0001/2007"), DocumentKind::Invoice);
    EXPECT_TRUE(read.rows.empty());
    EXPECT_EQ(read.number, "0001/2007");
  }
  EXPECT_EQ(ReadDocument("", DocumentKind::Invoice).number, "");
}

TEST(AmountsOf, CountedLineHasThemBehindTheEmptyField) {
  const std::string line = DocumentLine(TwoPositions(), DocumentKind::Quotation);
  EXPECT_EQ(AmountsOf(line).Gesamt, "100,00");
  EXPECT_EQ(AmountsOf(line).Betrag, "119,00");
  EXPECT_EQ(RecordField(line, 19 + 7 * 3), "119,00");
}

TEST(Markers, HaveTheirFixedShape) {
  EXPECT_EQ(TempRow("0151/2007", "30.06.2007", "Max"), "'short','0151/2007','Temp','30.06.2007','Max");
  EXPECT_EQ(DraftMarkerRow("0151/2007", "30.06.2007", "Max"), "'short','0151/2007','Entwurf','30.06.2007','Max");
}

TEST(Markers, AreToldFromDocumentsOfTheShortLayout) {
  EXPECT_EQ(MarkerOf("'short','0100/2026','15.11.2026 ','','Datenbank Nummernupdate - Kontorwerk-System"),
            MarkerRow::Seed);
  EXPECT_EQ(MarkerOf(TempRow("0151/2007", "30.06.2007", "Max")), MarkerRow::Temp);
  EXPECT_EQ(MarkerOf(DraftMarkerRow("0151/2007", "30.06.2007", "Max")), MarkerRow::Draft);
  EXPECT_EQ(MarkerOf(OldLine("short", 12, "','78,00','12,48','90,48")), MarkerRow::None);
  EXPECT_EQ(MarkerOf(DocumentLine(TwoPositions(), DocumentKind::Quotation)), MarkerRow::None);
  EXPECT_EQ(MarkerOf("'1','0151/2007','Temp"), MarkerRow::None);
}

TEST(Markers, AreRefusedWithTheirReason) {
  EXPECT_EQ(MarkerRefusal(MarkerRow::Draft), "Entwürfe müssen direkt über das Kontroll - Center aufgerufen werden!"_t);
  EXPECT_EQ(MarkerRefusal(MarkerRow::Temp),
            Concat("Temp Angebote sind Angebote, welche temporär gespeichert wurden!\r\n"_t,
                   "Diese werden wahrscheinlich gerade bearbeitet und können nicht aufgerufen werden!"_t));
  EXPECT_EQ(MarkerRefusal(MarkerRow::Seed), "Dies ist ein Programminterner Eintrag und kann nicht aufgerufen werden!");
  EXPECT_EQ(MarkerRefusal(MarkerRow::None), "");
}

TEST(FindDocumentLine, ComparesField2Exactly) {
  const std::string text = "\r\n'1','0151/2007','a\r\n'1','0150/2007','b\r\n'1','0150/2007','c\r\n";
  EXPECT_EQ(FindDocumentLine(text, "0150/2007"), "'1','0150/2007','b");
  EXPECT_EQ(FindDocumentLine(text, "0150"), "");
  EXPECT_EQ(FindDocumentLine("", "0150/2007"), "");
}

using DocumentTable = DocumentFolder;

TEST_F(DocumentTable, NewDocumentStandsOnTopOfTheSeedRow) {
  PutTable("Rechnungendb.dbf", {"'short','0100/2026','15.11.2026 ','','Datenbank"});
  const std::string text = store_.ReadTableText("Rechnungendb.dbf");
  EXPECT_TRUE(PrependDocument(store_, DocumentKind::Invoice, text, "'1','0101/2026"));
  EXPECT_EQ(Table("Rechnungendb.dbf"), "'1','0101/2026\r\n'short','0100/2026','15.11.2026 ','','Datenbank\r\n");
}

TEST_F(DocumentTable, FailedReadNeverLosesTheDocuments) {
  PutTable("Gutschriftendb.dbf", {"'1','0101/2026"});
  disk_.Arm({FaultKind::Once, 0});
  const std::string text = store_.ReadTableText("Gutschriftendb.dbf");
  EXPECT_EQ(text, "");
  EXPECT_FALSE(PrependDocument(store_, DocumentKind::CreditNote, text, "'1','0001/2026"));
  EXPECT_EQ(Lines("Gutschriftendb.dbf"), std::vector<std::string>{"'1','0101/2026"});
}

TEST_F(DocumentTable, ReplacingADocumentAddsOneEmptyLine) {
  PutTable("Lieferscheinedb.dbf", {"'1','0151/2007','a", "'1','0150/2007','b"});
  store_.ReplaceRowByNumber("Lieferscheinedb.dbf", "0150/2007", "'1','0150/2007','neu");
  EXPECT_EQ(Table("Lieferscheinedb.dbf"), "'1','0151/2007','a\r\n'1','0150/2007','neu\r\n\r\n");
}

}  // namespace
}  // namespace kontorwerk
