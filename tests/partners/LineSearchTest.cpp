// The quick search against a plain one, over texts made of few letters so that near misses abound.
#include "partners/LineSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "store/Text.h"

namespace kontorwerk {
namespace {

std::vector<std::string> Lines(std::string_view table, std::string_view text) {
  std::vector<std::string> lines;
  ForEachLineWith(table, text, [&](std::string_view line) { lines.emplace_back(line); });
  return lines;
}

std::vector<std::string> PlainSearch(std::string_view table, std::string_view text) {
  std::vector<std::string> lines;
  for (const std::string_view line : SplitRows(table))
    if (!line.empty() && LCase(line).find(LCase(text)) != std::string::npos) lines.emplace_back(line);
  return lines;
}

TEST(LineSearch, AgreesWithAPlainSearch) {
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

TEST(LineSearch, EachLineComesOnce) {
  EXPECT_EQ(Lines("aaa\r\nb\r\nxa", "a"), (std::vector<std::string>{"aaa", "xa"}));
}

TEST(LineSearch, TextLongerThanTheTableIsNotThere) { EXPECT_TRUE(Lines("ab\r\n", "abcdefghijk").empty()); }

}  // namespace
}  // namespace kontorwerk
