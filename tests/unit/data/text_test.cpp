#include "data/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvane {
namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kMegabyte = 1 << 20;

TEST(Lower, ChangesCapitalsOfAsciiAlone) {
  EXPECT_EQ(Lower("Norvane.INI"), "norvane.ini");
  EXPECT_EQ(Lower("@[`{09 \xC4\xD6"), "@[`{09 \xC4\xD6");
}

TEST(Trim, TakesBlanksFromBothEnds) {
  EXPECT_EQ(Trim("  1/2   "), "1/2");
  EXPECT_EQ(Trim("1/2"), "1/2");
}

TEST(Trim, LeavesBlanksInside) { EXPECT_EQ(Trim(" 1 1/4 "), "1 1/4"); }

TEST(Trim, LeavesNothingOfBlanksAlone) {
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("    "), "");
  EXPECT_EQ(Trim(std::string(kMegabyte, ' ')), "");
}

TEST(Trim, TakesNoOtherWhiteSpace) {
  EXPECT_EQ(Trim("\t1\n"), "\t1\n");
  EXPECT_EQ(Trim(" \r\n "), "\r\n");
  EXPECT_EQ(Trim("\xA0x\xA0"), "\xA0x\xA0");
}

TEST(Trim, TakesWhatCountsAsBlank) {
  EXPECT_EQ(Trim("\t 1 \t2 \t", " \t"), "1 \t2");
  EXPECT_EQ(Trim(" \t", " \t"), "");
}

TEST(ASplitText, HasOnePartMoreThanSeparators) {
  EXPECT_EQ(Split("a~b~c", '~'), (Texts{"a", "b", "c"}));
  EXPECT_EQ(Split("~a~~", '~'), (Texts{"", "a", "", ""}));
  EXPECT_EQ(Split("abc", '~'), Texts{"abc"});
}

TEST(ASplitText, HasNoPartsWhenItIsEmpty) { EXPECT_EQ(Split("", '~'), Texts{}); }

}  // namespace
}  // namespace norvane
