#include "data/csv.h"

#include <gtest/gtest.h>

#include "data/utf8.h"

namespace norvane {
namespace {

using Fields = std::vector<std::string_view>;

Fields Fields_Of_Row(std::string_view row, char separator = ',') {
  Fields fields;
  Split_Row(row, separator, fields);
  return fields;
}

TEST(CsvRow, EndsAtTheLineFeed) {
  EXPECT_EQ(Length_Of_Row("a,b\nc", ','), 4U);
  EXPECT_EQ(Length_Of_Row("a,b", ','), std::string_view::npos);
  EXPECT_EQ(Length_Of_Row("", ','), std::string_view::npos);
}

TEST(CsvRow, GoesOnBehindALineFeedInQuotes) {
  EXPECT_EQ(Length_Of_Row("a,\"b\nc\",d\ne", ','), 10U);
  EXPECT_EQ(Length_Of_Row("\"b\"\"\nc\"\ne", ','), 8U);
}

TEST(CsvRow, WithAnOpenQuoteDoesNotEnd) {
  EXPECT_EQ(Length_Of_Row("a,\"b\nc\nd", ','), std::string_view::npos);
}

TEST(CsvRow, TakesAQuoteInsideAFieldForALetter) {
  EXPECT_EQ(Length_Of_Row("2\" pipe,b\nc", ','), 10U);
  EXPECT_EQ(Fields_Of_Row("2\" pipe,b"), (Fields{"2\" pipe", "b"}));
}

TEST(CsvRow, IsSplitAtTheSeparatorsOutsideQuotes) {
  EXPECT_EQ(Fields_Of_Row("a,,c"), (Fields{"a", "", "c"}));
  EXPECT_EQ(Fields_Of_Row("\"a,b\",c"), (Fields{"\"a,b\"", "c"}));
  EXPECT_EQ(Fields_Of_Row("a,b;c", ';'), (Fields{"a,b", "c"}));
  EXPECT_EQ(Fields_Of_Row(""), (Fields{""}));
  EXPECT_EQ(Fields_Of_Row("a,"), (Fields{"a", ""}));
}

TEST(CsvField, StandsForItsTextWithoutTheQuotes) {
  EXPECT_EQ(Field_Text("a"), "a");
  EXPECT_EQ(Field_Text("\"a,\"\"b\"\"\""), "a,\"b\"");
  EXPECT_EQ(Field_Text("\"\""), "");
  EXPECT_EQ(Field_Text("\"a\"b"), "ab");
}

TEST(CsvField, IsLeftOpenWithoutItsClosingQuote) {
  EXPECT_TRUE(Is_Left_Open("\"a"));
  EXPECT_TRUE(Is_Left_Open("\""));
  EXPECT_TRUE(Is_Left_Open("\"a\"\""));
  EXPECT_FALSE(Is_Left_Open("\"a\""));
  EXPECT_FALSE(Is_Left_Open("a\""));
  EXPECT_FALSE(Is_Left_Open(""));
}

TEST(CsvField, IsQuotedWhereItNeedsIt) {
  const auto appended = [](std::string_view text) {
    std::string row;
    Append_Field(row, text, ',');
    return row;
  };
  EXPECT_EQ(appended("a;b"), "a;b");
  EXPECT_EQ(appended("a,b"), "\"a,b\"");
  EXPECT_EQ(appended("2\" pipe"), "\"2\"\" pipe\"");
  EXPECT_EQ(appended("a\nb"), "\"a\nb\"");
}

TEST(CsvName, IsQuotedWhereItCouldBeTakenForTwo) {
  std::string header;
  for (const char* name : {"kind", "a;b", "a,b", "a\tb", "a\"b"}) Append_Name(header, name);
  EXPECT_EQ(header, "kind\"a;b\"\"a,b\"\"a\tb\"\"a\"\"b\"");
}

TEST(CsvDialect, FollowsTheSignsBetweenTheNames) {
  EXPECT_EQ(Dialect_Of_Header("kind,medium_C").separator, ',');
  EXPECT_EQ(Dialect_Of_Header("kind,medium_C").decimal, '.');
  EXPECT_EQ(Dialect_Of_Header("kind;medium_C").separator, ';');
  EXPECT_EQ(Dialect_Of_Header("kind;medium_C").decimal, ',');
  EXPECT_EQ(Dialect_Of_Header("kind\tmedium_C").separator, '\t');
  EXPECT_EQ(Dialect_Of_Header("\"a;b;c\",kind").separator, ',');
  EXPECT_EQ(Dialect_Of_Header("2\" pipe,a;\"b,c\";d").separator, ';');
}

double Number(std::string_view field, char decimal = '.') {
  double number = -999;
  return Read_Number(field, decimal, number) ? number : -999;
}

TEST(CsvNumber, IsReadWithTheDecimalSignOfItsFileAlone) {
  EXPECT_EQ(Number("80"), 80);
  EXPECT_EQ(Number("80.5"), 80.5);
  EXPECT_EQ(Number("80,5", ','), 80.5);
  EXPECT_EQ(Number("80,5"), -999);
  EXPECT_EQ(Number("80.5", ','), -999);
  EXPECT_EQ(Number("1.000,5", ','), -999);
}

TEST(CsvNumber, MayHaveASignAnExponentBlanksAndQuotes) {
  EXPECT_EQ(Number("-0.25"), -0.25);
  EXPECT_EQ(Number("+3"), 3);
  EXPECT_EQ(Number(" 12 "), 12);
  EXPECT_EQ(Number("\"12.5\""), 12.5);
  EXPECT_EQ(Number("1e2"), 100);
  EXPECT_EQ(Number("1,5E-1", ','), 0.15);
  EXPECT_EQ(Number(".5"), 0.5);
  EXPECT_EQ(Number("5."), 5);
}

TEST(CsvNumber, IsTheNearestDoubleOfItsDigits) {
  EXPECT_EQ(Number("0.1"), 0.1);
  EXPECT_EQ(Number("0.0381"), 0.0381);
  EXPECT_EQ(Number("999999999999.999"), 999999999999.999);
  EXPECT_EQ(Number("123456789012345678"), 123456789012345678.0);
  EXPECT_EQ(Number("0.12345678901234567"), 0.12345678901234567);
}

TEST(CsvNumber, IsNothingElse) {
  for (const char* text :
       {"",    " ",   "-",  ".",     "1 2",  "12x",   "0x10", "nan",  "inf",  "-inf",
        "--1", "+-1", "1e", "1e999", "1..2", "1.2.3", "\"",   "\"\"", "-nan", "1,2,3"}) {
    EXPECT_EQ(Number(text), -999) << text;
  }
}

TEST(Utf8, IsWellFormed) {
  EXPECT_TRUE(Is_Utf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"));
  for (const char* bytes : {"\x80", "\xC0\x80", "\xC3", "\xE0\x80\x80", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "\xFF", "\xE2\x82"}) {
    EXPECT_FALSE(Is_Utf8(bytes));
  }
}

TEST(Utf8, IsMendedByteByByte) {
  EXPECT_EQ(Mended_Utf8("a\xFF\xC3\xA9\xC3"), "a\xEF\xBF\xBD\xC3\xA9\xEF\xBF\xBD");
}

}  // namespace
}  // namespace norvane
