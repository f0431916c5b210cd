// Which web addresses leave the program.
#include "partners/WebAddress.h"

#include <gtest/gtest.h>

#include "store/Text.h"

namespace kontorwerk {
namespace {

TEST(WebAddress, ThreeSchemesAreOpened) {
  EXPECT_TRUE(IsWebAddress("http://www.meier.example"));
  EXPECT_TRUE(IsWebAddress("HTTPS://meier.example/a?b=c&d"));
  EXPECT_TRUE(IsWebAddress("mailto:info@meier.example"));
}

TEST(WebAddress, HostWithoutASchemeIsOpened) {
  EXPECT_TRUE(IsWebAddress("www.meier.example"));
  EXPECT_TRUE(IsWebAddress("WWW.Bäcker-Krüger.example/laden/1"_t));
  EXPECT_TRUE(IsWebAddress("meier.example"));
}

TEST(WebAddress, FilesProgramsAndOtherSchemesAreNot) {
  for (const char* refused : {"",
                              " ",
                              ".",
                              "..",
                              "meier",
                              "file:///etc/passwd",
                              "C:\\rechner.exe",
                              "rechner.exe",
                              "RECHNER.EXE",
                              "/bin/sh",
                              "./rechner.sh",
                              "../rechner.sh",
                              "\\\\server\\rechner.exe",
                              "javascript:alert(1)",
                              "$(reboot)",
                              "; reboot",
                              "-x.example",
                              "ftp://meier.example",
                              "httpx://a",
                              "http://"})
    EXPECT_FALSE(IsWebAddress(refused)) << refused;
}

}  // namespace
}  // namespace kontorwerk
