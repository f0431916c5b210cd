// The small string functions over Windows-1252 bytes and the literals that turn into them.
#include "store/Text.h"

#include <gtest/gtest.h>

namespace kontorwerk {
namespace {

static_assert("Straße"_t == std::string_view("Stra\xDF"
                                             "e"));
static_assert("SpÜbernahme"_t == std::string_view("Sp\xDC"
                                                  "bernahme"));
static_assert("äöüÄÖÜß"_t == std::string_view("\xE4\xF6\xFC\xC4\xD6\xDC\xDF"));
static_assert("€‚ƒ„…†‡ˆ‰Š‹ŒŽ"_t == std::string_view("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"));
static_assert("‘’“”•–—˜™š›œžŸ"_t == std::string_view("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"));
static_assert("\u00A0ÿ"_t == std::string_view("\xA0\xFF"));
static_assert("plain"_t == "plain");
static_assert(""_t.empty());
// What the compiler must refuse, asked through the function that the literals are made with.
static_assert(detail::ByteOf(U'\u03A9') == -1);
static_assert(detail::ByteOf(U'\u0080') == -1);
static_assert(detail::ByteOf(U'\U0001F600') == -1);

TEST(Text, LeftTakesTheFirstCharactersAndClamps) {
  EXPECT_EQ(Left("abc", 2), "ab");
  EXPECT_EQ(Left("abc", 3), "abc");
  EXPECT_EQ(Left("abc", 9), "abc");
  EXPECT_EQ(Left("abc", 0), "");
  EXPECT_EQ(Left("abc", -1), "");
  EXPECT_EQ(Left("", 2), "");
}

TEST(Text, RightTakesTheLastCharactersAndClamps) {
  EXPECT_EQ(Right("29.06.2007", 4), "2007");
  EXPECT_EQ(Right("abc", 9), "abc");
  EXPECT_EQ(Right("abc", 0), "");
  EXPECT_EQ(Right("abc", -3), "");
}

TEST(Text, MidCountsFromOneAndIsEmptyBehindTheEnd) {
  EXPECT_EQ(Mid("abcdef", 2, 4), "bcde");
  EXPECT_EQ(Mid("abcdef", 5, 4), "ef");
  EXPECT_EQ(Mid("abcdef", 6), "f");
  EXPECT_EQ(Mid("abcdef", 7), "");
  EXPECT_EQ(Mid("abcdef", 99, 1), "");
  EXPECT_EQ(Mid("abcdef", 0, 2), "ab");
  EXPECT_EQ(Mid("abcdef", -5), "abcdef");
  EXPECT_EQ(Mid("abcdef", 2, 0), "");
}

TEST(Text, LenCountsOneByteACharacter) {
  EXPECT_EQ(Len("Straße"_t), 6);
  EXPECT_EQ(Len(""), 0);
}

TEST(Text, CaseChangesUmlautsAndAccents) {
  EXPECT_EQ(UCase("müller & söhne, šœžÿé"_t), "MÜLLER & SÖHNE, ŠŒŽŸÉ"_t);
  EXPECT_EQ(LCase("MÜLLER & SÖHNE, ŠŒŽŸÉ"_t), "müller & söhne, šœžÿé"_t);
}

TEST(Text, CaseLeavesCharactersWithoutPartner) {
  EXPECT_EQ(UCase("ß÷×µƒ€ª1"_t), "ß÷×µƒ€ª1"_t);
  EXPECT_EQ(LCase("ß÷×µƒ€ª1"_t), "ß÷×µƒ€ª1"_t);
}

TEST(Text, CasePairsAreOneToOneOverAllBytes) {
  int pairs = 0;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    const std::string upper = UCase(one);
    const std::string lower = LCase(one);
    EXPECT_EQ(UCase(lower), upper) << byte;
    EXPECT_EQ(LCase(upper), lower) << byte;
    if (lower != one) ++pairs;
  }
  EXPECT_EQ(pairs, 26 + 30 + 4);
}

TEST(Text, InStrCountsFromOne) {
  EXPECT_EQ(InStr("abcabc", "c"), 3);
  EXPECT_EQ(InStr("abcabc", "abc"), 1);
  EXPECT_EQ(InStr("abc", "x"), 0);
  EXPECT_EQ(InStr("abc", "abcd"), 0);
}

TEST(Text, InStrFindsAnEmptyPartAtTheBeginningOfAnyTextButTheEmptyOne) {
  EXPECT_EQ(InStr("abc", ""), 1);
  EXPECT_EQ(InStr("", ""), 0);
  EXPECT_EQ(InStr("", "a"), 0);
}

TEST(Text, ReplaceDoesNotLookAtItsOwnResultAgain) {
  EXPECT_EQ(Replace("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("a,b,c", ",", ""), "abc");
  EXPECT_EQ(Replace("abc", "", "x"), "abc");
  EXPECT_EQ(Replace("", "a", "b"), "");
  EXPECT_EQ(Replace("abc", "x", "y"), "abc");
}

TEST(Text, SplitKeepsEmptyPieces) {
  EXPECT_EQ(Split("a,,b,", ","), (std::vector<std::string_view>{"a", "", "b", ""}));
  EXPECT_EQ(Split(",", ","), (std::vector<std::string_view>{"", ""}));
  EXPECT_EQ(Split("a", ","), (std::vector<std::string_view>{"a"}));
  EXPECT_EQ(Split("a,b", ""), (std::vector<std::string_view>{"a,b"}));
}

TEST(Text, SplitOfAnEmptyTextHasNoPiece) { EXPECT_TRUE(Split("", ",").empty()); }

TEST(Text, TrimTakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(LTrim("  a "), "a ");
  EXPECT_EQ(RTrim("  a "), "  a");
  EXPECT_EQ(Trim("\t a\r\n"), "\t a\r\n");
  EXPECT_EQ(Trim("    "), "");
  EXPECT_EQ(LTrim("    "), "");
  EXPECT_EQ(RTrim("    "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\u00A0"_t), "\u00A0"_t);
}

TEST(Text, PadZerosStopsAtTheWantedLength) {
  EXPECT_EQ(PadZeros("7", 4), "0007");
  EXPECT_EQ(PadZeros("", 2), "00");
  EXPECT_EQ(PadZeros("10000", 4), "10000");
  EXPECT_EQ(PadZeros("-1", 4), "00-1");
  EXPECT_EQ(PadZeros("5", -1), "5");
}

TEST(Text, ConcatJoinsTextsOfEveryKind) {
  const std::string name = Concat("Müller"_t);
  EXPECT_EQ(Concat("Kunde ", name, std::string_view(" / "), "gelöscht"_t), "Kunde Müller / gelöscht"_t);
  EXPECT_EQ(Concat(), "");
}

}  // namespace
}  // namespace kontorwerk
