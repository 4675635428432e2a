#include "data/list_input.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvane {
namespace {

using Texts = std::vector<std::string>;

Texts Fields_Of(const std::string& file) {
  ListInput input(file);
  Texts fields;
  while (auto field = input.Next_Field()) fields.push_back(*field);
  return fields;
}

Texts Lines_Of(const std::string& file) {
  ListInput input(file);
  Texts lines;
  while (!input.At_End()) lines.emplace_back(input.Next_Line());
  return lines;
}

TEST(AField, EndsAtACommaOrAtTheEndOfItsLine) {
  EXPECT_EQ(Fields_Of("a,b\r\nc,d"), (Texts{"a", "b", "c", "d"}));
}

TEST(AField, EndsAtEveryKindOfLineEnd) {
  EXPECT_EQ(Fields_Of("a\r\nb\nc\rd"), (Texts{"a", "b", "c", "d"}));
}

TEST(AField, LosesTheBlanksAndTabsAroundItAndKeepsThoseInside) {
  EXPECT_EQ(Fields_Of(" \ta \t b\t ,\t c \r\n  d  "), (Texts{"a \t b", "c", "d"}));
}

TEST(AField, MayBeEmpty) {
  EXPECT_EQ(Fields_Of(",,a\r\n\r\n  \r\nb"), (Texts{"", "", "a", "", "", "b"}));
}

TEST(AField, IsEmptyWhereTheFileEndsInBlanks) {
  EXPECT_EQ(Fields_Of("a, \t"), (Texts{"a", ""}));
  EXPECT_EQ(Fields_Of("  "), Texts{""});
}

TEST(AField, InQuotesIsTakenAsItStands) {
  EXPECT_EQ(Fields_Of("\" a, b \",c"), (Texts{" a, b ", "c"}));
  EXPECT_EQ(Fields_Of(" \t\"\"\t ,c"), (Texts{"", "c"}));
}

TEST(AField, WithoutItsClosingQuoteEndsWithItsLine) {
  EXPECT_EQ(Fields_Of("\"a, b \r\nc"), (Texts{"a, b ", "c"}));
  EXPECT_EQ(Fields_Of("\"a\rb"), (Texts{"a", "b"}));
  EXPECT_EQ(Fields_Of("\"a"), Texts{"a"});
}

TEST(AField, LosesWhatStandsBetweenItsClosingQuoteAndTheComma) {
  EXPECT_EQ(Fields_Of("\"a\" and \"more\",b"), (Texts{"a", "b"}));
  EXPECT_EQ(Fields_Of("\"a\"more\r\nb"), (Texts{"a", "b"}));
}

TEST(AField, KeepsAQuoteThatDoesNotOpenIt) {
  EXPECT_EQ(Fields_Of("a\"b\",c"), (Texts{"a\"b\"", "c"}));
}

TEST(AField, MayHoldAnyOtherByte) {
  const std::string bytes("\0\x1A\v\xA0\xFF\x80", 6);
  EXPECT_EQ(Fields_Of(bytes + "," + bytes), (Texts{bytes, bytes}));
}

TEST(AField, IsMissingAtTheEndOfTheFile) {
  EXPECT_EQ(Fields_Of(""), Texts{});
  EXPECT_EQ(Fields_Of("a\r\n"), Texts{"a"});
}

TEST(ALine, EndsAtEveryKindOfLineEnd) {
  EXPECT_EQ(Lines_Of("a\r\nb\nc\rd"), (Texts{"a", "b", "c", "d"}));
}

TEST(ALine, MayBeEmpty) {
  EXPECT_EQ(Lines_Of("\r\n\n\r\ra\n\r"), (Texts{"", "", "", "", "a", ""}));
}

TEST(ALine, KeepsItsBlanksCommasAndQuotes) {
  EXPECT_EQ(Lines_Of(" 1, \"a\" \t\r\n"), Texts{" 1, \"a\" \t"});
}

TEST(ALine, OfTheLineEndAtTheEndOfTheFileThereIsNone) {
  EXPECT_EQ(Lines_Of(""), Texts{});
  EXPECT_EQ(Lines_Of("a\r\n"), Texts{"a"});
}

TEST(ALine, IsNotEndedByAnyOtherByte) {
  const std::string bytes("\0\x1A\v\f\x85\xFF", 6);
  EXPECT_EQ(Lines_Of(bytes + "\n" + bytes), (Texts{bytes, bytes}));
}

TEST(ALineBehindFields, IsTheRestOfTheLineThatTheyLeftOff) {
  const std::string file = "Font,Arial,0,18,rest, of the line\r\nnext";
  ListInput input(file);
  for (const char* expected : {"Font", "Arial", "0"}) EXPECT_EQ(input.Next_Field(), expected);
  EXPECT_EQ(input.Next_Line(), "18,rest, of the line");
  EXPECT_EQ(input.Next_Line(), "next");
}

TEST(ALineBehindFields, IsTheNextLineWhenTheyEndedTheirs) {
  const std::string file = "Font\nArial\n0\nnext";
  ListInput input(file);
  for (const char* expected : {"Font", "Arial", "0"}) EXPECT_EQ(input.Next_Field(), expected);
  EXPECT_EQ(input.Next_Line(), "next");
}

}  // namespace
}  // namespace norvane
