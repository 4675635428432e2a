#include "host/code_page.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

#include "../support/system_page.h"

namespace norvane {
namespace {

const std::string kUnknownLetter = "\xEF\xBF\xBD";  // U+FFFD

struct Page {
  int charset;
  int number;
};

constexpr Page kPages[] = {{0, 1252},   {238, 1250}, {204, 1251}, {161, 1253}, {162, 1254},
                           {177, 1255}, {178, 1256}, {186, 1257}, {163, 1258}, {222, 874}};

std::string One(int byte) { return {static_cast<char>(byte)}; }

class CodePage : public testing::TestWithParam<Page> {};

INSTANTIATE_TEST_SUITE_P(Windows, CodePage, testing::ValuesIn(kPages),
                         [](const auto& page) { return std::to_string(page.param.number); });

TEST_P(CodePage, HasTheLettersOfTheSystemsOwnConverter) {
  const SystemPage system(GetParam().number);
  if (!system.Known()) GTEST_SKIP() << "this system doesn't know the page";
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_EQ(To_Utf8(One(byte), GetParam().charset),
              system.Letter(One(byte)).value_or(kUnknownLetter))
        << "byte " << byte;
  }
}

TEST_P(CodePage, GivesEveryByteBackThatItHas) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string letter = To_Utf8(One(byte), GetParam().charset);
    EXPECT_EQ(From_Utf8(letter, GetParam().charset), letter == kUnknownLetter ? "?" : One(byte))
        << "byte " << byte;
  }
}

TEST_P(CodePage, HasNoLetterTwice) {
  std::set<std::string> letters;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string letter = To_Utf8(One(byte), GetParam().charset);
    EXPECT_TRUE(letter == kUnknownLetter || letters.insert(letter).second) << "byte " << byte;
  }
}

TEST_P(CodePage, KeepsTheLowerHalfAsItIs) {
  std::string lower_half;
  for (int byte = 0; byte < 128; ++byte) lower_half += One(byte);
  EXPECT_EQ(To_Utf8(lower_half, GetParam().charset), lower_half);
  EXPECT_EQ(From_Utf8(lower_half, GetParam().charset), lower_half);
}

TEST(CodePages, OfCharsetOneAndOfUnknownCharsetsAreTheWesternOne) {
  for (const int charset : {1, 2, 77, 128, 160, 205, 255, 256, -1, 32767}) {
    for (int byte = 0; byte < 256; ++byte) {
      ASSERT_EQ(To_Utf8(One(byte), charset), To_Utf8(One(byte), 0)) << charset;
    }
  }
}

TEST(CodePages, ShowAByteThatThePageLacksAsTheUnknownLetter) {
  EXPECT_EQ(To_Utf8("a\x81z", 0), "a" + kUnknownLetter + "z");
  EXPECT_EQ(To_Utf8("\x98", 204), kUnknownLetter);
  EXPECT_EQ(To_Utf8("\xFF", 222), kUnknownLetter);
}

TEST(CodePages, TakeAQuestionMarkForALetterThatThePageLacks) {
  EXPECT_EQ(From_Utf8("Łódź", 0),
            "?\xF3"
            "d?");
  EXPECT_EQ(From_Utf8("Ж", 161), "?");
  EXPECT_EQ(From_Utf8("1 €", 222), "1 \x80");
  EXPECT_EQ(From_Utf8("火", 204), "?");
}

TEST(CodePages, TakeOneQuestionMarkForALetterOfFourBytes) {
  EXPECT_EQ(From_Utf8("a\xF0\x9F\x94\xA5z", 0), "a?z");
}

TEST(CodePages, TakeAQuestionMarkForTheUnknownLetterItself) {
  for (const Page& page : kPages) EXPECT_EQ(From_Utf8(kUnknownLetter, page.charset), "?");
}

TEST(CodePages, LoseNothingBesideABrokenLetter) {
  EXPECT_EQ(From_Utf8("a\x80z", 0), "a?z");          // a follower without its first byte
  EXPECT_EQ(From_Utf8("a\xC3", 0), "a?");            // cut off by the end
  EXPECT_EQ(From_Utf8("a\xE2\x82", 0), "a?");        // the same in its third byte
  EXPECT_EQ(From_Utf8("\xE2z", 0), "?z");            // cut off by another letter
  EXPECT_EQ(From_Utf8("\xF0\x9Fz", 0), "?z");        // the same
  EXPECT_EQ(From_Utf8("\xC3\xC3\xA9", 0), "?\xE9");  // the next letter is whole
}

TEST(CodePages, SurviveEveryPairOfBytes) {
  for (int a = 0; a < 256; ++a) {
    for (int b = 0; b < 256; ++b) {
      const std::string read = From_Utf8("<" + One(a) + One(b) + ">", 204);
      ASSERT_EQ(read.front(), '<');
      ASSERT_EQ(read.back(), '>') << a << ' ' << b;
      ASSERT_LE(read.size(), 4U);
    }
  }
}

TEST(CodePages, SurviveAnyBytes) {
  std::mt19937 random(20240717);
  for (std::size_t round = 0; round < 2000; ++round) {
    std::string bytes(round % 40, '\0');
    for (char& c : bytes) c = static_cast<char>(random());
    const int charset = kPages[random() % std::size(kPages)].charset;
    const std::string read = From_Utf8(bytes, charset);
    ASSERT_LE(read.size(), bytes.size());
    // What was read is bytes of the page, or question marks: it can be shown and read again.
    ASSERT_EQ(From_Utf8(To_Utf8(read, charset), charset), read);
  }
}

}  // namespace
}  // namespace norvane
