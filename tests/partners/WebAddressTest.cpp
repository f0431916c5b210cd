// Which web addresses leave the program.
#include "partners/WebAddress.h"

#include <gtest/gtest.h>

namespace kontorwerk {
namespace {

TEST(WebAddress, OnlyThreeSchemesAreOpened) {
  EXPECT_EQ(WebAddressToOpen("http://www.meier.example"), "http://www.meier.example");
  EXPECT_EQ(WebAddressToOpen("HTTPS://meier.example/a?b=c&d"), "HTTPS://meier.example/a?b=c&d");
  EXPECT_EQ(WebAddressToOpen("mailto:info@meier.example"), "mailto:info@meier.example");
  for (const char* refused : {"", " ", "meier.example", "file:///etc/passwd", "C:\\rechner.exe", "javascript:alert(1)",
                              "$(reboot)", "; reboot", "ftp://meier.example", "httpx://a"})
    EXPECT_EQ(WebAddressToOpen(refused), "") << refused;
}

TEST(WebAddress, HostThatSaysItIsOneGetsItsScheme) {
  EXPECT_EQ(WebAddressToOpen(" www.meier.example "), "http://www.meier.example");
}

}  // namespace
}  // namespace kontorwerk
