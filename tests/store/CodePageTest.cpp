// Windows-1252 against UTF-8.
#include "store/CodePage.h"

#include <gtest/gtest.h>

#include <set>

#include "store/Text.h"

namespace kontorwerk {
namespace {

TEST(CodePage, GermanTextTurnsIntoUtf8AndBack) {
  EXPECT_EQ(ToUtf8("Größe 5 €"_t),
            "Gr\xC3\xB6\xC3\x9F"
            "e 5 \xE2\x82\xAC");
  EXPECT_EQ(FromUtf8("Gr\xC3\xB6\xC3\x9F"
                     "e 5 \xE2\x82\xAC"),
            "Größe 5 €"_t);
}

TEST(CodePage, All256BytesSurviveTheRoundTrip) {
  std::string all;
  std::set<std::string> texts;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    all += one;
    texts.insert(ToUtf8(one));
  }
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(texts.size(), 256U) << "two bytes became one character";
}

TEST(CodePage, CharactersOutsideTheCodePageAreRefused) {
  for (const char* text : {"\xCE\xA9", "\xF0\x9F\x98\x80", "\xC2\x80", "\xE2\x82\xAD", "\xEF\xBB\xBF"})
    EXPECT_FALSE(FromUtf8(text)) << text;
}

TEST(CodePage, MalformedUtf8IsRefused) {
  for (const char* text : {"\xE4", "\xC3", "\xC3(", "\x80", "\xC0\xAF", "\xC1\x81", "\xE0\x82\x80", "\xE2\x82", "\xFF"})
    EXPECT_FALSE(FromUtf8(text)) << text;
}

TEST(CodePage, EmptyTextStaysEmpty) {
  EXPECT_EQ(ToUtf8(""), "");
  EXPECT_EQ(FromUtf8(""), "");
}

}  // namespace
}  // namespace kontorwerk
