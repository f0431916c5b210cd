// The hashed search gives what a plain search in the text gives.
#include "shell/SeenNumbers.h"

#include <gtest/gtest.h>

#include <random>

namespace kontorwerk {
namespace {

TEST(SeenNumbers, FindsPartsOfNumbersAndPiecesAcrossTwo) {
  SeenNumbers seen;
  EXPECT_FALSE(seen.Contains("ABC1"));
  seen.Append("XABC12");
  EXPECT_TRUE(seen.Contains("XABC12"));
  EXPECT_TRUE(seen.Contains("ABC1"));
  EXPECT_FALSE(seen.Contains("ABC2"));
  seen.Append("DEF");
  EXPECT_TRUE(seen.Contains("12DE"));
  EXPECT_FALSE(seen.Contains("XABC12DEFG"));
}

TEST(SeenNumbers, TheEmptyNumberIsPartOfAnyTextButTheEmptyOne) {
  SeenNumbers seen;
  EXPECT_FALSE(seen.Contains(""));
  seen.Append("A");
  EXPECT_TRUE(seen.Contains(""));
}

TEST(SeenNumbers, AgreesWithAPlainSearchOnRandomNumbers) {
  std::mt19937 random(7);
  SeenNumbers seen;
  std::string text;
  int hits = 0;
  for (int i = 0; i < 20000; ++i) {
    std::string number;
    const int length = static_cast<int>(random() % 9);
    for (int k = 0; k < length; ++k) number += static_cast<char>('A' + random() % 4);
    const bool found = number.empty() ? !text.empty() : text.find(number) != std::string::npos;
    ASSERT_EQ(seen.Contains(number), found) << number << " at " << i;
    hits += found ? 1 : 0;
    if (found && random() % 10 != 0) continue;
    if (text.size() > 3000) continue;
    seen.Append(number);
    text += number;
  }
  EXPECT_GT(hits, 1000);
  EXPECT_LT(hits, 19000);
}

}  // namespace
}  // namespace kontorwerk
