// Filling rich text: where marks are found, what a value may hold, and that broken files do no harm.
#include "platform/word/RtfTemplate.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/word/RtfTokenizer.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

std::string Document(std::string_view body) { return Concat("{\\rtf1\\ansi\\ansicpg1252\\deff0 ", body, "}"); }

std::string FillBody(std::string_view body,
                     std::initializer_list<std::pair<std::string_view, std::string_view>> fields) {
  FieldValues values;
  for (const auto& [name, text] : fields) values.Set(TextArea::Body, name, text);
  return RtfTemplate(Document(body)).Fill(values);
}

// What a reader sees once `text` has taken the place of a mark.
std::string Shown(std::string_view text) { return PlainTextOf(FillBody("a[X]b", {{"X", text}})); }

TEST(RtfTemplate, AMarkIsReplacedAndEverythingElseStaysByteForByte) {
  EXPECT_EQ(FillBody("\\b An: [KDName]\\b0\\par\r\n", {{"KDName", "Meier"}}), Document("\\b An: Meier\\b0\\par\r\n"));
}

TEST(RtfTemplate, AngleBracketsMarkToo) {
  EXPECT_EQ(FillBody("<<KDName>>, <<PLZ>> [PLZ]", {{"KDName", "Meier"}, {"PLZ", "01099"}}),
            Document("Meier, 01099 01099"));
}

TEST(RtfTemplate, AMarkWithoutValueStays) {
  EXPECT_EQ(FillBody("[A] [B]", {{"B", "x"}}), Document("[A] x"));
  EXPECT_EQ(FillBody("[A] [B]", {}), Document("[A] [B]"));
}

TEST(RtfTemplate, AnEmptyValueLeavesNothing) { EXPECT_EQ(FillBody("a [A]b", {{"A", ""}}), Document("a b")); }

TEST(RtfTemplate, TheLaterValueOfANameCounts) {
  EXPECT_EQ(FillBody("[A]", {{"A", "first"}, {"A", "second"}}), Document("second"));
}

TEST(RtfTemplate, UpperAndLowerCaseOfANameMakeNoDifference) {
  EXPECT_EQ(FillBody("[Auftragsart] <<erfassDatum>>", {{"AuftragsArt", "x"}, {"ErfassDatum", "y"}}), Document("x y"));
}

TEST(RtfTemplate, UmlautsInNamesAreFoundInEverySpelling) {
  for (const std::string_view mark : {"[Stra\\'dfe]",
                                      "[Stra\xDF"
                                      "e]",
                                      "[Stra\\u223\\'dfe]", "[Stra\\u223 ?e]", "[Stra\\u223\\'3fe]"})
    EXPECT_EQ(FillBody(mark, {{"Straße"_t, "Weg 1"}}), Document("Weg 1")) << mark;
  EXPECT_EQ(FillBody("{\\uc0 [\\u220 bertrag]}", {{"Übertrag"_t, "7,00"}}), Document("{\\uc0 7,00}"));
  EXPECT_EQ(FillBody("{\\uc2 [\\u220 UEbertrag]}", {{"Übertrag"_t, "7,00"}}), Document("{\\uc2 7,00}"));
}

TEST(RtfTemplate, AMarkCutIntoPiecesIsFilledInTheFormatOfItsBeginning) {
  EXPECT_EQ(FillBody("{\\b [KD}{\\i Na\r\n}{\\lang1031 me]}", {{"KDName", "Meier"}}),
            Document("{\\b Meier}{\\i \r\n}{\\lang1031 }"));
  EXPECT_EQ(FillBody("[KD{\\*\\bkmkstart x}Name{\\*\\bkmkend x}]", {{"KDName", "Meier"}}),
            Document("Meier{\\*\\bkmkstart x}{\\*\\bkmkend x}"));
}

TEST(RtfTemplate, AControlWordBeforeAValueKeepsItsEnd) {
  EXPECT_EQ(FillBody("\\b[A]", {{"A", "Text"}}), Document("\\b Text"));
  EXPECT_EQ(FillBody("\\b0[A]", {{"A", "5"}}), Document("\\b0 5"));
  EXPECT_EQ(FillBody("\\b[A]Rest", {{"A", ""}}), Document("\\b Rest"));
  EXPECT_EQ(FillBody("[A\\b0b]77", {{"Ab", "x"}}), Document("x\\b0 77"));
}

TEST(RtfTemplate, AMarkDoesNotReachOverTheEndOfAParagraphOrCell) {
  for (const std::string_view body : {"[A\\par B]", "[A\\cell B]", "[A\\line B]", "[A\\tab B]", "<<A\\row B>>"})
    EXPECT_EQ(FillBody(body, {{"AB", "x"}, {"A B", "x"}}), Document(body)) << body;
}

TEST(RtfTemplate, TheInnermostBracketsCount) {
  EXPECT_EQ(FillBody("[see [A] <<<B>> <C> [] <<>>", {{"A", "x"}, {"B", "y"}, {"C", "z"}, {"", "e"}}),
            Document("[see x <y <C> [] <<>>"));
}

TEST(RtfTemplate, EveryPlaceOfAMarkIsFilled) {
  EXPECT_EQ(FillBody("[A] [A]\\par [A]", {{"A", "x"}}), Document("x x\\par x"));
}

TEST(RtfTemplate, AValueThatLooksLikeAMarkIsNotFilledAgain) {
  EXPECT_EQ(FillBody("[KDName] [Betrag]", {{"KDName", "[Betrag] <<Betrag>>"}, {"Betrag", "9,00"}}),
            Document("[Betrag] <<Betrag>> 9,00"));
}

TEST(RtfTemplate, HostileValuesAreShownAsTheyAre) {
  for (const std::string_view text : {std::string_view("{"), std::string_view("}"), std::string_view("}}}\\par{\\b"),
                                      std::string_view("C:\\Belege\\x"), std::string_view("\\'e4 \\u228?"),
                                      std::string_view("Meier / Sohn: \"GmbH\" & Co. <KG>"), std::string_view("\\*"),
                                      "Müller € „Straße“ ÄÖÜß"_t, "5²·½"_t})
    EXPECT_EQ(Shown(text), Concat("a", text, "b\r\n")) << text;
  const std::string longText(300, 'x');
  EXPECT_EQ(Shown(longText), Concat("a", longText, "b\r\n"));
}

TEST(RtfTemplate, EveryByteOfTheCodePageSurvives) {
  for (int byte = 0x20; byte < 256; ++byte) {
    const std::string text = Concat(std::string(1, static_cast<char>(byte)), "1?'");
    EXPECT_EQ(Shown(text), Concat("a", text, "b\r\n")) << byte;
  }
}

TEST(RtfTemplate, LineBreaksAndTabsOfAValueAreKept) {
  EXPECT_EQ(FillBody("[A]", {{"A", "1\r\n2\n3\r4\t5"}}), Document("1\\line 2\\line 3\\line 4\\tab 5"));
  EXPECT_EQ(Shown("1\r\n2"), "a1\r\n2b\r\n");
}

TEST(RtfTemplate, OtherControlCharactersOfAValueAreLeftOut) {
  EXPECT_EQ(FillBody("[A]", {{"A", std::string_view("a\0b\x01\x1B", 5)}}), Document("ab"));
}

TEST(RtfTemplate, BodyHeaderAndFooterAreFilledEachByItsOwnValues) {
  const std::string rtf =
      Document("{\\header [A]}{\\headerf [A]}{\\footer [A]}{\\footerr [A]}[A]{\\shp{\\*\\shpinst{\\shptxt [A]}}}");
  FieldValues values;
  values.Set(TextArea::Body, "A", "body");
  EXPECT_EQ(
      RtfTemplate(rtf).Fill(values),
      Document("{\\header [A]}{\\headerf [A]}{\\footer [A]}{\\footerr [A]}body{\\shp{\\*\\shpinst{\\shptxt body}}}"));
  values.Set(TextArea::Header, "A", "head");
  values.Set(TextArea::Footer, "A", "foot");
  EXPECT_EQ(
      RtfTemplate(rtf).Fill(values),
      Document(
          "{\\header head}{\\headerf head}{\\footer foot}{\\footerr foot}body{\\shp{\\*\\shpinst{\\shptxt body}}}"));
}

TEST(RtfTemplate, ATextFrameInTheHeaderBelongsToTheHeader) {
  const RtfTemplate form(Document("{\\header {\\shp{\\*\\shpinst{\\shptxt [A]}}}}[B]"));
  EXPECT_EQ(form.Names(TextArea::Header), std::vector<std::string>{"A"});
  EXPECT_EQ(form.Names(TextArea::Body), std::vector<std::string>{"B"});
}

TEST(RtfTemplate, AFrameInTheMiddleOfAMarkIsFilledOnItsOwn) {
  EXPECT_EQ(FillBody("[A{\\shp{\\*\\shpinst{\\shptxt [B]}}}C]", {{"AC", "out"}, {"B", "in"}}),
            Document("out{\\shp{\\*\\shpinst{\\shptxt in}}}"));
}

TEST(RtfTemplate, HiddenPartsOfTheFileHoldNoMarks) {
  const std::string body =
      "{\\fonttbl{\\f0 [A];}}{\\info{\\title [A]}}{\\*\\generator [A];}{\\pict\\pngblip [A]}{\\field{\\*\\fldinst "
      "[A]}{\\fldrslt x}}";
  EXPECT_EQ(FillBody(body, {{"A", "x"}}), Document(body));
  EXPECT_TRUE(RtfTemplate(Document(body)).Names(TextArea::Body).empty());
}

TEST(RtfTemplate, BinaryDataIsPassedOver) {
  const std::string body = "{\\pict\\bin7 }}}[A]}}[A]";
  EXPECT_EQ(FillBody(body, {{"A", "x"}}), Document("{\\pict\\bin7 }}}[A]}}x"));
}

TEST(RtfTemplate, NamesComeOnceEachInTheirOrder) {
  EXPECT_EQ(RtfTemplate(Document("[B] [A] [B]")).Names(TextArea::Body), (std::vector<std::string>{"B", "A"}));
}

TEST(RtfTemplate, BrokenFilesAreTakenAsTheyAre) {
  FieldValues values;
  values.SetEverywhere("A", "x");
  const std::pair<std::string, std::string> files[] = {
      {"", ""},
      {"no rich text [A]", "no rich text x"},
      {"{\\rtf1 [A", "{\\rtf1 [A"},
      {"}}}}[A]", "}}}}x"},
      {"{\\rtf1 {{{[A]", "{\\rtf1 {{{x"},
      {"{\\rtf1 [A]\\", "{\\rtf1 x\\"},
      {"{\\rtf1 [A]\\'f", "{\\rtf1 x\\'f"},
      {"{\\rtf1 [A]\\u", "{\\rtf1 x\\u"},
      {"{\\rtf1 [A]\\u-99999999999999999999 ", "{\\rtf1 x\\u-99999999999999999999 "},
      {"{\\rtf1 [A]\\bin99999999999 [A]", "{\\rtf1 x\\bin99999999999 [A]"},
      {"{\\rtf1 [A]\\bin-5 [A]", "{\\rtf1 x\\bin-5 x"},
      {"{\\header [A]", "{\\header x"},
      {"\\*\\header[A]", "\\*\\header x"},
  };
  for (const auto& [broken, filled] : files) {
    EXPECT_EQ(RtfTemplate(broken).Fill(values), filled) << broken;
    (void)PlainTextOf(broken);
  }
}

TEST(RtfTemplate, HugeAndDeepFilesTakeTimeInProportion) {
  const auto start = std::chrono::steady_clock::now();
  std::string picture = "{\\pict\\pngblip\r\n";
  for (int line = 0; line < 80000; ++line) picture += std::string(126, '7') + "\r\n";
  FieldValues values;
  values.SetEverywhere("A", "x");
  EXPECT_TRUE(RtfTemplate(Document(picture + "}[A]")).Fill(values).ends_with("}x}"));
  for (const std::string_view piece : {"{", "{\\header ", "[", "<", "{\\shptxt [", "\\u1", "}"}) {
    std::string deep;
    for (int i = 0; i < 300000; ++i) deep += piece;
    EXPECT_EQ(RtfTemplate(deep).Fill(values), deep);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)) << "something is quadratic";
}

TEST(RtfTemplate, PlainTextHasHeadersBodyAndFootersInThisOrder) {
  EXPECT_EQ(PlainTextOf(Document("{\\footer foot}{\\header head}one\\par two\\line three\\par\\par four")),
            "head\r\none\r\ntwo\r\nthree\r\n\r\nfour\r\nfoot\r\n");
}

TEST(RtfTemplate, PlainTextSeparatesCellsByTabs) {
  EXPECT_EQ(PlainTextOf(Document("\\trowd a\\cell b\\cell\\row c\\cell\\cell\\row")), "a\tb\r\nc\r\n");
}

TEST(RtfTemplate, PlainTextShowsEachCharacterOnce) {
  EXPECT_EQ(PlainTextOf(Document("\\u8364? \\u-10179?\\u-8704? \\u937? \\emdash\\~\\{\\}\\\\ \\bullet")),
            Concat("€ ? ? "_t, "\x97\xA0{}\\ \x95\r\n"));
}

TEST(RtfTokenizer, TokensCoverTheFileWithoutGap) {
  const std::string rtf = "{\\rtf1\\b-12 a\\'e4\\~\\\r\n\\bin3 }}}x\\'zz\\u228 ?\\}\\";
  RtfTokenizer tokenizer(rtf);
  RtfToken token;
  std::size_t position = 0;
  while (tokenizer.Next(token)) {
    EXPECT_EQ(token.begin, position);
    EXPECT_GT(token.end, token.begin);
    position = token.end;
  }
  EXPECT_EQ(position, rtf.size());
}

TEST(RtfTokenizer, WordsCarryTheirNumberAndDelimiter) {
  RtfTokenizer tokenizer("\\li-720 \\b\\fs24x");
  RtfToken token;
  ASSERT_TRUE(tokenizer.Next(token));
  EXPECT_EQ(token.word, "li");
  EXPECT_EQ(token.number, -720);
  EXPECT_TRUE(token.hasDelimiter);
  ASSERT_TRUE(tokenizer.Next(token));
  EXPECT_EQ(token.word, "b");
  EXPECT_FALSE(token.hasNumber);
  EXPECT_FALSE(token.hasDelimiter);
  ASSERT_TRUE(tokenizer.Next(token));
  EXPECT_EQ(token.number, 24);
  ASSERT_TRUE(tokenizer.Next(token));
  EXPECT_EQ(token.kind, RtfTokenKind::Text);
}

}  // namespace
}  // namespace kontorwerk
