// The quick search against a plain one, over texts made of few letters so that near misses abound.
#include "store/CaseBlindPattern.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

std::vector<std::string> Lines(std::string_view table, std::string_view text) {
  std::vector<std::string> lines;
  ForEachRowWith(table, CaseBlindPattern(text), [&](std::string_view line) { lines.emplace_back(line); });
  return lines;
}

std::vector<std::string> PlainSearch(std::string_view table, std::string_view text) {
  std::vector<std::string> lines;
  for (const std::string_view line : SplitRows(table))
    if (!line.empty() && LCase(line).find(LCase(text)) != std::string::npos) lines.emplace_back(line);
  return lines;
}

TEST(CaseBlindPattern, AgreesWithAPlainSearch) {
  std::mt19937 random(20261115);
  const std::string_view letters = "aAbÄä',\r\n"_t;
  const auto text = [&](std::size_t length) {
    std::string made;
    while (made.size() < length)
      made += random() % 6 == 0 ? std::string("\r\n") : std::string(1, letters[random() % 7]);
    return made;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string table = text(random() % (round % 10 == 0 ? 400 : 60));
    std::string wanted;
    for (std::size_t left = random() % 5; left > 0; --left) wanted += letters[random() % letters.size()];
    ASSERT_EQ(Lines(table, wanted), PlainSearch(table, wanted)) << "table: " << table << "\nwanted: " << wanted;
  }
}

TEST(CaseBlindPattern, EachByteIsFoundInBothCasesFarWithinALongText) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string letter(1, static_cast<char>(byte));
    const std::string other(1, byte == '.' ? '-' : '.');
    for (const std::string& written : {UCase(letter), LCase(letter)}) {
      std::string text;
      for (int i = 0; i < 300; ++i) text += other;
      text += written + other + written + other;
      EXPECT_EQ(CaseBlindPattern(letter).FindIn(text), 300U) << byte;
      EXPECT_EQ(CaseBlindPattern(UCase(letter) + other + LCase(letter)).FindIn(text), 300U) << byte;
    }
  }
}

TEST(CaseBlindPattern, EachLineComesOnce) {
  EXPECT_EQ(Lines("aaa\r\nb\r\nxa", "a"), (std::vector<std::string>{"aaa", "xa"}));
}

TEST(CaseBlindPattern, TextLongerThanTheTableIsNotThere) { EXPECT_TRUE(Lines("ab\r\n", "abcdefghijk").empty()); }

TEST(CaseBlindPattern, FindsFromAPlaceOn) {
  const CaseBlindPattern pattern("aB");
  EXPECT_EQ(pattern.FindIn("xxAbab"), 2U);
  EXPECT_EQ(pattern.FindIn("xxAbab", 3), 4U);
  EXPECT_EQ(pattern.FindIn("xxAbab", 5), CaseBlindPattern::kNotFound);
  EXPECT_EQ(pattern.FindIn("a"), CaseBlindPattern::kNotFound);
  EXPECT_EQ(CaseBlindPattern("").FindIn("", 0), 0U);
  EXPECT_EQ(CaseBlindPattern("").FindIn("ab", 3), CaseBlindPattern::kNotFound);
}

}  // namespace
}  // namespace kontorwerk
