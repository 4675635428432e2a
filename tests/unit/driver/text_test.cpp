#include "driver/text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace norvane {
namespace {

TEST(AnEscapedText, ShowsTabsLineEndsAndBackslashes) {
  EXPECT_EQ(Escape("a\tb\rc\nd\\e"), "a\\tb\\rc\\nd\\\\e");
  EXPECT_EQ(Escape("\\n"), "\\\\n");
}

TEST(AnEscapedText, LeavesAllElseAsItIs) {
  std::string rest;
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    if (c != '\t' && c != '\r' && c != '\n' && c != '\\') rest += c;
  }
  EXPECT_EQ(Escape(rest), rest);
  EXPECT_EQ(Unescape(rest), rest);
}

TEST(AnEscapedText, IsReadBack) {
  EXPECT_EQ(Unescape("a\\tb\\rc\\nd\\\\e"), "a\tb\rc\nd\\e");
  EXPECT_EQ(Unescape("\\\\n"), "\\n");
  EXPECT_EQ(Unescape("\\\\\\n"), "\\\n");
}

TEST(AnEscapedText, KeepsABackslashInFrontOfAnyOtherLetter) {
  EXPECT_EQ(Unescape("\\x\\ \\T"), "\\x\\ \\T");
  EXPECT_EQ(Unescape("at the end \\"), "at the end \\");
}

TEST(AnEscapedText, ComesBackWhateverItHolds) {
  std::mt19937 random(5);
  const std::string letters = "\\\\tnr\t\r\nab \xE9";
  for (int round = 0; round < 1000; ++round) {
    std::string text(random() % 12, '\0');
    for (char& c : text) c = letters[random() % letters.size()];
    const std::string escaped = Escape(text);
    ASSERT_EQ(Unescape(escaped), text);
    ASSERT_EQ(escaped.find_first_of("\t\r\n"), std::string::npos);
  }
}

TEST(AShownText, IsReadByItsCharacterSetAndEscaped) {
  EXPECT_EQ(Shown("\xE9\t\x81", 0), "é\\t\xEF\xBF\xBD");
  EXPECT_EQ(Shown("\xE9", 204), "й");
  EXPECT_EQ(Shown("\xE9", 161), "ι");
}

}  // namespace
}  // namespace norvane
