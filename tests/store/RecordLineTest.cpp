// Fields and words of a record line.
#include "store/RecordLine.h"

#include <gtest/gtest.h>

#include "store/Text.h"

namespace kontorwerk {
namespace {

using Fields = std::vector<std::string_view>;

TEST(RecordField, TakesEachFieldOfTheExampleLine) {
  constexpr std::string_view kLine = "'a','','c d','e'";
  EXPECT_EQ(RecordField(kLine, 1), "a");
  EXPECT_EQ(RecordField(kLine, 2), "");
  EXPECT_EQ(RecordField(kLine, 3), "c d");
  EXPECT_EQ(RecordField(kLine, 4), "e'");
  EXPECT_EQ(RecordField(kLine, 5), "");
}

TEST(RecordField, EmptyLineHasNoFieldAtAnyPosition) {
  for (const int index : {-32768, -1, 0, 1, 2, 32767}) EXPECT_EQ(RecordField("", index), "") << index;
}

TEST(RecordField, LineWithoutSeparatorIsOneField) {
  EXPECT_EQ(RecordField("'a", 1), "a");
  EXPECT_EQ(RecordField("'a", 2), "");
}

TEST(RecordField, PositionBelowOneIsEmpty) {
  EXPECT_EQ(RecordField("'a','b", 0), "");
  EXPECT_EQ(RecordField("'a','b", -1), "");
}

TEST(RecordField, LeadingApostropheOfAFieldIsLost) {
  EXPECT_EQ(RecordField("'a',''b','c", 2), "b");
  EXPECT_EQ(RecordField("'a',''b','c", 3), "c");
}

TEST(RecordField, OnlyOneLeadingApostropheIsLost) {
  EXPECT_EQ(RecordField("''a','''b", 1), "'a");
  EXPECT_EQ(RecordField("''a','''b", 2), "'b");
}

TEST(RecordField, FieldThatEndsWithAnApostropheSurvives) { EXPECT_EQ(RecordField("'O'','b", 1), "O'"); }

TEST(RecordField, FirstFieldNeedsNoApostropheInFront) {
  EXPECT_EQ(RecordField("a','b", 1), "a");
  EXPECT_EQ(RecordField("a','b", 2), "b");
}

TEST(RecordField, SeparatorInsideAFieldMovesTheLaterFields) {
  EXPECT_EQ(RecordField("'1','Meier','Sohn','Bonn", 3), "Sohn");
  EXPECT_EQ(RecordField("'1','Meier','Sohn','Bonn", 4), "Bonn");
}

TEST(RecordField, SeparatorsDoNotOverlap) {
  // Read from the left, the first three characters are a separator and the apostrophe that ends it opens no other.
  EXPECT_EQ(RecordField("','','", 1), "");
  EXPECT_EQ(RecordField("','','", 2), "");
  EXPECT_EQ(RecordField("','','", 3), "");
  EXPECT_EQ(RecordField("','x", 2), "x");
  EXPECT_EQ(RecordFields("a',',','b"), (Fields{"a", ",", "b"}));
  EXPECT_EQ(RecordFields("a',','b"), (Fields{"a", ",'b"}));
}

TEST(RecordField, CommasBlanksAndApostrophesInsideAFieldStay) {
  EXPECT_EQ(RecordField("'a','12,50 , it's','c", 2), "12,50 , it's");
}

TEST(RecordField, TrailingBlankOfTheSeedRowIsData) {
  constexpr std::string_view kSeed =
      "'short','0100/2026','15.11.2026 ','','Datenbank Nummernupdate - Kontorwerk-System";
  EXPECT_EQ(RecordField(kSeed, 1), "short");
  EXPECT_EQ(RecordField(kSeed, 2), "0100/2026");
  EXPECT_EQ(RecordField(kSeed, 3), "15.11.2026 ");
  EXPECT_EQ(RecordField(kSeed, 4), "");
  EXPECT_EQ(RecordField(kSeed, 5), "Datenbank Nummernupdate - Kontorwerk-System");
}

TEST(RecordField, LoneLineBreaksStayInTheField) { EXPECT_EQ(RecordField("'a\r','b\nc", 2), "b\nc"); }

TEST(RecordFields, AgreeWithRecordFieldAtEachPosition) {
  for (const std::string_view line : {"'a','','c d','e'", "'", "','", "''''", "x", "','','','"}) {
    const Fields fields = RecordFields(line);
    for (int index = 1; index <= static_cast<int>(fields.size()); ++index)
      EXPECT_EQ(fields[static_cast<std::size_t>(index) - 1], RecordField(line, index)) << line << " at " << index;
    EXPECT_EQ(RecordField(line, static_cast<int>(fields.size()) + 1), "") << line;
  }
}

TEST(RecordFields, EmptyLineHasNone) { EXPECT_TRUE(RecordFields("").empty()); }

TEST(RecordLine, BeginsWithAnApostropheAndHasNoneAtTheEnd) {
  EXPECT_EQ(RecordLine({"a", "", "c d"}), "'a','','c d");
  EXPECT_EQ(RecordLine(std::vector<std::string>{"a", "b"}), "'a','b");
  EXPECT_EQ(RecordLine({"a"}), "'a");
  EXPECT_EQ(RecordLine({""}), "'");
}

TEST(RecordLine, FieldsOfEveryByteComeBack) {
  std::vector<std::string> fields;
  for (int byte = 0; byte < 256; ++byte) fields.push_back("x" + std::string(1, static_cast<char>(byte)));
  const std::string line = RecordLine(fields);
  for (int index = 1; index <= 256; ++index)
    EXPECT_EQ(RecordField(line, index), fields[static_cast<std::size_t>(index) - 1]);
}

TEST(NthWord, CountsEmptyWordsBetweenAdjacentBlanks) {
  EXPECT_EQ(NthWord("a  b", 1), "a");
  EXPECT_EQ(NthWord("a  b", 2), "");
  EXPECT_EQ(NthWord("a  b", 3), "b");
}

TEST(NthWord, OutsideTheTextIsEmpty) {
  EXPECT_EQ(NthWord("a b", 0), "");
  EXPECT_EQ(NthWord("a b", -1), "");
  EXPECT_EQ(NthWord("a b", 3), "");
  EXPECT_EQ(NthWord("", 1), "");
}

TEST(WordsFrom, KeepsOneLeadingBlank) {
  EXPECT_EQ(WordsFrom("key value", 2), " value");
  EXPECT_EQ(WordsFrom("a b c", 2), " b c");
}

TEST(WordsFrom, BehindTheLastWordIsEmpty) {
  EXPECT_EQ(WordsFrom("key", 2), "");
  EXPECT_EQ(WordsFrom("a b", 3), "");
  EXPECT_EQ(WordsFrom("", 1), "");
}

TEST(WordsFrom, EmptyLastWordIsAWord) { EXPECT_EQ(WordsFrom("key ", 2), " "); }

TEST(WordsFrom, DoubleBlanksSurvive) { EXPECT_EQ(WordsFrom("key  a  b ", 2), "  a  b "); }

TEST(WordsFrom, PositionOfOneOrLessGivesTheWholeText) {
  for (const int index : {1, 0, -1, -32768}) EXPECT_EQ(WordsFrom("a b", index), " a b") << index;
}

TEST(LineBreaks, TravelAsMarks) {
  EXPECT_EQ(LineBreaksToMarks("a\r\nb\r\n"), "a*__*b*__*");
  EXPECT_EQ(MarksToLineBreaks("a*__*b*__*"), "a\r\nb\r\n");
}

TEST(LineBreaks, LoneCarriageReturnAndLineFeedAreNotTouched) {
  EXPECT_EQ(LineBreaksToMarks("a\rb\nc\n\rd"), "a\rb\nc\n\rd");
}

TEST(LineBreaks, MarkTypedByTheUserComesBackAsALineBreak) {
  EXPECT_EQ(MarksToLineBreaks(LineBreaksToMarks("a*__*b")), "a\r\nb");
}

}  // namespace
}  // namespace kontorwerk
