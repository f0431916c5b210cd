// The next number of each kind, from the top line alone, and the reserved forms of a number.
#include "documents/DocumentNumbers.h"

#include <gtest/gtest.h>

#include <string>

#include "documents/DocumentRecord.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kDate = "29.06.2007";
constexpr std::string_view kSeed = "'short','0100/2026','15.11.2026 ','','Datenbank Nummernupdate - Kontorwerk-System";

std::string TopLine(std::string_view number) { return Concat("'3','", number, "','29.06.2007','10023','Muster, Max"); }

TEST(NextNumber, SeedRowIsFollowedByTheFirstNumber) {
  for (const DocumentKind kind : kDocumentKinds) EXPECT_EQ(NextNumber(kind, kSeed, kDate), "0101/2007");
}

TEST(NextNumber, MarkerRowsCountLikeDocuments) {
  EXPECT_EQ(NextNumber(DocumentKind::Quotation, TempRow("0151/2007", kDate, "Max"), kDate), "0152/2007");
  EXPECT_EQ(NextNumberByWords(DraftMarkerRow("0151/2007", kDate, "Max"), kDate), "0152/2007");
}

TEST(NextNumber, YearFollowsTheDocumentDate) {
  EXPECT_EQ(NextNumber(DocumentKind::DeliveryNote, TopLine("0150/2007"), "31.12.2006"), "0151/2006");
  EXPECT_EQ(NextNumber(DocumentKind::Invoice, TopLine("0150/2007"), "31.12.2006"), "0151/2006");
}

TEST(NextNumber, IsPaddedToFourDigitsOnly) {
  for (const DocumentKind kind : kDocumentKinds) {
    EXPECT_EQ(NextNumber(kind, TopLine("0009/2007"), kDate), "0010/2007");
    EXPECT_EQ(NextNumber(kind, TopLine("0999/2007"), kDate), "1000/2007");
    EXPECT_EQ(NextNumber(kind, TopLine("9999/2007"), kDate), "10000/2007");
  }
  EXPECT_FALSE(HasNumberFormat("10000/2007"));
}

TEST(NextNumber, FiveDigitsAreReadAsFour) {
  EXPECT_EQ(NextNumber(DocumentKind::CreditNote, TopLine("10000/2007"), kDate), "1001/2007");
  EXPECT_EQ(NextNumber(DocumentKind::Invoice, TopLine("10000/2007"), kDate), "1001/2007");
}

TEST(NextNumber, CommaInTheNameDoesNotDisturbTheInvoice) {
  EXPECT_EQ(NextNumber(DocumentKind::Invoice, "'1','0150/2007','29.06.2007','','Muster, Max, und Sohn", kDate),
            "0151/2007");
}

TEST(NextNumber, EmptyTablesDifferByKind) {
  EXPECT_EQ(NextNumber(DocumentKind::DeliveryNote, "", kDate), "0001/2007");
  EXPECT_EQ(NextNumber(DocumentKind::CreditNote, "", kDate), "0001/2007");
  EXPECT_EQ(NextNumber(DocumentKind::Quotation, "", kDate),
            "????"
            "/2007");
  EXPECT_EQ(NextNumber(DocumentKind::Invoice, "", kDate), std::nullopt);
  EXPECT_EQ(NextNumberByWords("", kDate), std::nullopt);
}

TEST(NextNumber, TopLineWithoutNumberIsLikeAnEmptyTable) {
  EXPECT_EQ(NextNumber(DocumentKind::DeliveryNote,
                       TopLine("????"
                               "/2007"),
                       kDate),
            "0001/2007");
  EXPECT_EQ(NextNumber(DocumentKind::Quotation,
                       TopLine("????"
                               "/2007"),
                       kDate),
            "????"
            "/2007");
  EXPECT_EQ(NextNumber(DocumentKind::Invoice,
                       TopLine("????"
                               "/2007"),
                       kDate),
            std::nullopt);
  EXPECT_EQ(NextNumber(DocumentKind::Invoice, "'short'", kDate), std::nullopt);
}

TEST(AsksForFirstNumber, OnlyMinusOneOnTopLeadsThere) {
  EXPECT_TRUE(AsksForFirstNumber(*NextNumber(DocumentKind::Quotation, TopLine("-001/2007"), kDate)));
  EXPECT_FALSE(AsksForFirstNumber(*NextNumber(DocumentKind::Quotation, "", kDate)));
  EXPECT_FALSE(AsksForFirstNumber(*NextNumber(DocumentKind::Quotation, kSeed, kDate)));
  EXPECT_EQ(NextNumber(DocumentKind::Quotation, TopLine("0000/2007"), kDate), "0001/2007");
}

TEST(NumberForms, NineCharactersAreTheFormat) {
  EXPECT_TRUE(HasNumberFormat("0150/2007"));
  EXPECT_TRUE(
      HasNumberFormat("????"
                      "/2007"));
  EXPECT_FALSE(HasNumberFormat("150/2007"));
  EXPECT_FALSE(HasNumberFormat(""));
}

TEST(NumberForms, ReservedFormsAreToldByTheirFirstFourCharacters) {
  EXPECT_TRUE(
      IsPendingNumber("????"
                      "/2007"));
  EXPECT_FALSE(
      IsPendingNumber("???"
                      "/2007"));
  EXPECT_TRUE(IsDeliveryNoteOnly("----/2007"));
  EXPECT_FALSE(IsDeliveryNoteOnly("0150/2007"));
}

TEST(NumberForms, AreMadeWithTheYearOfTheDate) {
  EXPECT_EQ(PendingNumber(kDate),
            "????"
            "/2007");
  EXPECT_EQ(DeliveryNoteOnlyNumber(kDate), "----/2007");
  EXPECT_EQ(NumberToType(kDate), "/2007");
  EXPECT_EQ(WithYearOf("0150/2007", "01.02.2008"), "0150/2008");
  EXPECT_EQ(WithYearOf("????"
                       "/2007",
                       "01.02.2008"),
            "????"
            "/2008");
}

TEST(DocumentKinds, HaveTheirPrefixesTablesAndWords) {
  EXPECT_EQ(NamesOf(DocumentKind::Quotation).prefix, "AB");
  EXPECT_EQ(NamesOf(DocumentKind::Quotation).table, "Angebotedb.dbf");
  EXPECT_EQ(NamesOf(DocumentKind::Quotation).word, "Angebot");
  EXPECT_EQ(NamesOf(DocumentKind::CreditNote).prefix, "GS");
  EXPECT_EQ(NamesOf(DocumentKind::CreditNote).table, "Gutschriftendb.dbf");
  EXPECT_EQ(NamesOf(DocumentKind::CreditNote).word, "Gutschrift");
  EXPECT_EQ(NamesOf(DocumentKind::DeliveryNote).prefix, "LS");
  EXPECT_EQ(NamesOf(DocumentKind::DeliveryNote).table, "Lieferscheinedb.dbf");
  EXPECT_EQ(NamesOf(DocumentKind::DeliveryNote).word, "Lieferschein");
  EXPECT_EQ(NamesOf(DocumentKind::Invoice).prefix, "RG");
  EXPECT_EQ(NamesOf(DocumentKind::Invoice).table, "Rechnungendb.dbf");
  EXPECT_EQ(NamesOf(DocumentKind::Invoice).word, "Rechnung");
  EXPECT_EQ(KindOfPrefix("EF"), std::nullopt);
}

TEST(DocumentKinds, SelectorPlacesAndPrefixesLeadToTheirKinds) {
  for (const DocumentKind kind : kDocumentKinds) EXPECT_EQ(KindOfPrefix(NamesOf(kind).prefix), kind);
  EXPECT_EQ(KindAtSelector(0), std::nullopt);
  EXPECT_EQ(KindAtSelector(5), std::nullopt);
  for (int place = 1; place <= 4; ++place)
    EXPECT_EQ(NamesOf(*KindAtSelector(place)).word, kSelectorTexts[static_cast<std::size_t>(place)]);
}

}  // namespace
}  // namespace kontorwerk
