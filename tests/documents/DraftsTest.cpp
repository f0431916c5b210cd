// The register of drafts and the drafts' own files.
#include "documents/Drafts.h"

#include "documents/DraftFile.h"
#include "tests/documents/DocumentFolder.h"

namespace kontorwerk {
namespace {

using testing_support::DocumentFolder;
using Texts = std::vector<std::string>;

constexpr std::string_view kLine = "EF0150/2007=vom 29.06.2007 Max Mustermann, 78554 Musterstadt";

TEST(DraftKeys, TellQuotationsFromTheOthers) {
  EXPECT_EQ(DraftKey(0, "0150/2007"), "EF0150/2007");
  EXPECT_EQ(DraftKey(1, "0150/2007"), "AB0150/2007");
  EXPECT_EQ(DraftKey(3, "0150/2007"), "EF0150/2007");
  EXPECT_EQ(DraftKey(4, "0150/2007"), "EF0150/2007");
  EXPECT_EQ(DraftFileName("EF0150/2007"), "EF0150-2007.tmp");
  EXPECT_EQ(DraftKeyOf(kLine), "EF0150/2007");
}

TEST(DraftKeys, RegisterLineHasNoApostrophes) {
  EXPECT_EQ(DraftRegisterLine("EF0150/2007", "29.06.2007", "Max Mustermann", "78554", "Musterstadt"), kLine);
}

TEST(DraftLinesOf, LineIsFoundByItsFirstElevenCharacters) {
  const std::string text = Concat("AB0001/2007=vom x, EF0150/2007\r\n\r\n", kLine, "\r\n");
  EXPECT_EQ(DraftLinesOf(text, "EF0150/2007"), std::vector<std::string_view>{kLine});
  EXPECT_TRUE(DraftLinesOf(text, "EF0151/2007").empty());
}

TEST(NumberBehindHighestDraft, LooksAtItsOwnPrefixOnly) {
  constexpr std::string_view text =
      "EF0150/2007=a\r\nEF0152/2007=b\r\nAB0900/2007=c\r\nEF????"
      "/2007=d\r\n";
  EXPECT_EQ(NumberBehindHighestDraft(text, "EF", "01.02.2008"), "0153/2008");
  EXPECT_EQ(NumberBehindHighestDraft(text, "AB", "01.02.2008"), "0901/2008");
  EXPECT_EQ(NumberBehindHighestDraft("", "EF", "01.02.2008"), "0001/2008");
}

TEST(LeftoverDraftQuestion, ShowsTheLineOfTheRegister) {
  EXPECT_EQ(LeftoverDraftQuestion(kLine),
            Concat("Es existiert zu dem eben gedrucken Beleg\r\nnoch folgender Entwurf (", kLine,
                   "): \r\nDurch die automatische Nummernvergabe ist es möglich, dass dieser Entwurf\r\n"_t,
                   "zu einem anderen Vorgang gehört!!!\r\nSoll dieser Entwurf gelöscht werden?"_t));
}

using Register = DocumentFolder;

TEST_F(Register, NewLineGoesBehindTheOthers) {
  PutTable("Entwurfdb.dbf", {"AB0001/2007=a"});
  EXPECT_TRUE(PutDraftLine(store_, "EF0150/2007", kLine));
  EXPECT_EQ(Table("Entwurfdb.dbf"), Concat("AB0001/2007=a\r\n", kLine, "\r\n"));
}

TEST_F(Register, OldLineIsReplacedAndBlankLinesGo) {
  PutTable("Entwurfdb.dbf", {"EF0150/2007=alt", "", "AB0001/2007=a"});
  EXPECT_TRUE(PutDraftLine(store_, "EF0150/2007", kLine));
  EXPECT_EQ(Table("Entwurfdb.dbf"), Concat(kLine, "\r\nAB0001/2007=a\r\n"));
}

TEST_F(Register, KeyInsideAnotherLineDoesNotSwallowTheNewOne) {
  PutTable("Entwurfdb.dbf", {"AB0001/2007=vom heute, siehe EF0150/2007"});
  PutDraftLine(store_, "EF0150/2007", kLine);
  EXPECT_EQ(Lines("Entwurfdb.dbf"), (Texts{"AB0001/2007=vom heute, siehe EF0150/2007", std::string(kLine)}));
}

TEST_F(Register, DeletedDraftLeavesRegisterAndFolder) {
  PutTable("Entwurfdb.dbf", {"EF0150/2007=vom 29.06.2007 A=B, 1 X", "", "AB0150/2007=vom 29.06.2007 C, 2 Y"});
  PutTable("Angebotedb.dbf", {"'short','0150/2007','Entwurf','29.06.2007','C"});
  folder_.Put("EF0150-2007.tmp", "17\r\n");
  folder_.Put("AB0150-2007.tmp", "17\r\n");
  EXPECT_EQ(DeleteDraft(store_, "EF0150/2007"), 1);
  EXPECT_EQ(Table("Entwurfdb.dbf"), "AB0150/2007=vom 29.06.2007 C, 2 Y\r\n");
  EXPECT_FALSE(folder_.Content("EF0150-2007.tmp").has_value());
  EXPECT_TRUE(folder_.Content("AB0150-2007.tmp").has_value());
  EXPECT_EQ(Lines("Angebotedb.dbf").size(), 1U);
}

TEST_F(Register, DeletedQuotationDraftFreesItsNumber) {
  PutTable("Entwurfdb.dbf", {"AB0150/2007=vom 29.06.2007 C, 2 Y"});
  PutTable("Angebotedb.dbf",
           {"'short','0150/2007','Entwurf','29.06.2007','C", "'short','0149/2007','Temp','29.06.2007','D"});
  EXPECT_EQ(DeleteDraft(store_, "AB0150/2007"), 0);
  EXPECT_EQ(Lines("Angebotedb.dbf"), Texts{"'short','0149/2007','Temp','29.06.2007','D"});
}

TEST_F(Register, PrintedQuotationOfTheNumberStays) {
  const Texts quotations = {"'1','0150/2007','29.06.2007','10023", "'short','0150/2007','Temp','29.06.2007','C"};
  PutTable("Angebotedb.dbf", quotations);
  DeleteDraft(store_, "AB0150/2007");
  EXPECT_EQ(Lines("Angebotedb.dbf"), quotations);
}

TEST_F(Register, DeletingWithoutRegisterAndFileIsQuiet) { EXPECT_EQ(DeleteDraft(store_, "EF0150/2007"), 0); }

Draft OneRow() {
  Draft draft;
  DocumentRecord& document = draft.document;
  document.KDNr = "10023";
  document.KDName = "Max";
  document.Ansprechpartner = "Frau A";
  document.Straße = "Weg 1";
  document.PLZ = "78554";
  document.Wohnort = "Stadt";
  document.number = "0150/2007";
  document.Datum = "29.06.2007";
  document.UnsereZeichen = "u";
  document.IhreZeichen = "i";
  document.rows = {{"#01001", "NET50302", "2", "Kabel", "5,00", "10,00", true}, {}};
  document.Gesamt = "10,00";
  document.MWST = "0,00";
  document.MWST2 = "0,70";
  document.Betrag = "10,70";
  document.Zahlungsweise = "bar";
  document.Text1 = "oben\r\nunten";
  document.Text2 = "Ende";
  document.Anrede = "Herr";
  draft.selectorPlace = 1;
  return draft;
}

TEST(DraftText, HoldsOneValueALine) {
  EXPECT_EQ(DraftText(OneRow()),
            "2\r\n10023\r\nMax\r\nFrau A\r\nWeg 1\r\n78554\r\nStadt\r\n0150/2007\r\n29.06.2007\r\nu\r\ni\r\n1\r\n"
            "Falsch\r\nWahr\r\n#01001\r\nNET50302\r\n2\r\nKabel\r\n5,00\r\n10,00\r\n1\r\n"
            "\r\n\r\n\r\n\r\n\r\n\r\n0\r\n10,00\r\n0,00\r\n0,70\r\n10,70\r\nbar\r\noben*__*unten\r\nEnde\r\nHerr\r\n");
}

TEST(DraftText, SavedDeliveryNotesAndInvoicesAreKeptAsOpenOnes) {
  for (const auto& [place, stored] : {std::pair{0, 0}, std::pair{1, 1}, std::pair{3, 0}, std::pair{4, 0}}) {
    Draft draft = OneRow();
    draft.selectorPlace = place;
    EXPECT_EQ(ReadDraft(DraftText(draft)).selectorPlace, stored);
  }
}

TEST(ReadDraft, GivesBackWhatWasWritten) {
  const Draft read = ReadDraft(DraftText(OneRow()));
  EXPECT_EQ(read.document.rows, OneRow().document.rows);
  EXPECT_EQ(read.document.Text1, "oben\r\nunten");
  EXPECT_EQ(DraftText(read), DraftText(OneRow()));
}

TEST(ReadDraft, OlderFormsHaveRowsOfFourLinesAndTheCustomerBehindTheAmount) {
  for (const auto& [mark, rows] : {std::pair{"short", 12}, std::pair{"large", 17}}) {
    std::string text =
        Concat(mark, "\r\nMax\r\nFrau A\r\nWeg 1\r\n78554\r\nStadt\r\n0150/2005\r\n01.02.2005\r\nu\r\ni\r\n",
               "1\r\nFalsch\r\nWahr\r\n");
    for (int row = 1; row <= rows; ++row) text += Concat("1\r\nWare ", std::to_string(row), "\r\n2,00\r\n2,00\r\n");
    const Draft read = ReadDraft(text + "24,00\r\n3,84\r\n27,84\r\n10023\r\nbar\r\neins\r\nzwei\r\nHerr\r\n");
    EXPECT_EQ(read.document.KDName, "Max");
    EXPECT_EQ(read.document.number, "0150/2005");
    EXPECT_EQ(read.selectorPlace, 1);
    EXPECT_TRUE(read.document.NettoButton);
    ASSERT_EQ(static_cast<int>(read.document.rows.size()), rows);
    EXPECT_EQ(read.document.rows.back(),
              (PositionRow{"", "", "1", Concat("Ware ", std::to_string(rows)), "2,00", "2,00", false}));
    EXPECT_EQ(read.document.Gesamt, "24,00");
    EXPECT_EQ(read.document.MWST2, "");
    EXPECT_EQ(read.document.Betrag, "27,84");
    EXPECT_EQ(read.document.KDNr, "10023");
    EXPECT_EQ(read.document.Zahlungsweise, "bar");
    EXPECT_EQ(read.document.Anrede, "Herr");
  }
}

TEST(ReadDraft, EmptyTextGivesEmptyValues) {
  const Draft read = ReadDraft("");
  EXPECT_TRUE(read.document.rows.empty());
  EXPECT_EQ(read.document.number, "");
  EXPECT_EQ(read.document.Anrede, "");
}

TEST(ReadDraft, DamagedCountEndsWithTheFile) {
  EXPECT_LE(ReadDraft("999999999\r\n\r\nMax\r\n").document.rows.size(), 1U);
}

}  // namespace
}  // namespace kontorwerk
