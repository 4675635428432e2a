#include "driver/name.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvane {
namespace {

/// A name put together again from its parts.
std::string Parts_Of(const std::string& name) {
  std::string text;
  for (const NamePart& part : Parse_Name(name)) {
    text += "[" + part.word;
    for (const int number : part.numbers) text += " " + std::to_string(number);
    text += "]";
  }
  return text;
}

TEST(AName, IsTakenApartAtItsPoints) {
  EXPECT_EQ(Parts_Of("Lambda"), "[Lambda]");
  EXPECT_EQ(Parts_Of("Warmt.Caption"), "[Warmt][Caption]");
  EXPECT_EQ(Parts_Of("Label1(2).Font.Size"), "[Label1 2][Font][Size]");
  EXPECT_EQ(Parts_Of("Total.grdResult.Cell(1,5)"), "[Total][grdResult][Cell 1 5]");
}

TEST(AName, HasLettersDigitsAndUnderscores) {
  EXPECT_EQ(Parts_Of("Total_Sum1"), "[Total_Sum1]");
  EXPECT_EQ(Parts_Of("Lang_Text(0,150)"), "[Lang_Text 0 150]");
}

TEST(AName, MayCarryANegativeNumber) {
  EXPECT_EQ(Parts_Of("Address_Table(1,-9)"), "[Address_Table 1 -9]");
}

TEST(AName, IsNotUnderstoodInAnyOtherForm) {
  for (const char* name : {"",      ".",     "a.",      ".a",    "a..b",    "(1)",
                           "a(",    "a(1",   "a()",     "a(,)",  "a(1,)",   "a(,1)",
                           "a(x)",  "a(1x)", "a( 1)",   "a(1 )", "a(1, 2)", "a(1.5)",
                           "a(+1)", "a(1)b", "a(1)(2)", "a(1).", "a b",     " a",
                           "a ",    "a-b",   "a=b",     "a)",    "a,b",     "a(99999999999)",
                           "\xE9",  "a\t"}) {
    EXPECT_THROW(Parse_Name(name), ScriptError) << '"' << name << '"';
  }
  EXPECT_THROW(Parse_Name(std::string("a\0b", 3)), ScriptError);
}

TEST(ANumber, IsAWholeOneAndNothingElse) {
  EXPECT_EQ(Parse_Number("0"), 0);
  EXPECT_EQ(Parse_Number("-12"), -12);
  EXPECT_EQ(Parse_Number("007"), 7);
  EXPECT_EQ(Parse_Number("2147483647"), 2147483647);
  for (const char* text : {"", " 1", "1 ", "1.0", "1,0", "+1", "0x1", "1e3", "-", "--1", "one",
                           "2147483648", "-2147483649"}) {
    EXPECT_THROW(Parse_Number(text), ScriptError) << '"' << text << '"';
  }
}

}  // namespace
}  // namespace norvane
