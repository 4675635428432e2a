// The finished language files, as the build makes them: every language complete, and every line in
// the plain form that needs none of the loader's forgiveness.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "data/text.h"
#include "frame/text_id.h"

namespace norvane {
namespace {

// The font character set that shows the code page of each language.
const std::map<std::string, std::string> kCharsets = {
    {"cs", "238"}, {"da", "0"},   {"de", "0"}, {"el", "161"}, {"en", "0"},
    {"es", "0"},   {"fr", "0"},   {"it", "0"}, {"nl", "0"},   {"pl", "238"},
    {"pt", "0"},   {"ru", "204"}, {"sv", "0"}, {"tr", "162"}};

constexpr std::size_t kLongestText = 44;

std::filesystem::path Path_Of(const std::string& code) {
  return std::filesystem::path(NORVANE_LANGUAGE_FOLDER) / ("language.l" + code);
}

std::string Bytes_Of(const std::string& code) {
  std::ifstream file(Path_Of(code), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Splits at each CR LF; what stands behind the last one is the last item.
std::vector<std::string> Split_Lines(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t from = 0;
  for (std::size_t end; (end = bytes.find("\r\n", from)) != std::string::npos; from = end + 2) {
    lines.push_back(bytes.substr(from, end - from));
  }
  lines.push_back(bytes.substr(from));
  return lines;
}

// The text lines, without the header and without the nothing behind the last line end.
std::vector<std::string> Text_Lines(const std::string& code) {
  std::vector<std::string> lines = Split_Lines(Bytes_Of(code));
  if (lines.size() < 2) return {};
  return {lines.begin() + 1, lines.end() - 1};
}

// The number in front of the first comma, or -1 where there is none or more than digits.
int Number_Of(const std::string& line) {
  const std::size_t comma = line.find(',');
  if (comma == std::string::npos) return -1;
  int number = -1;
  const char* const end = line.data() + comma;
  const auto [stop, error] = std::from_chars(line.data(), end, number);
  return error == std::errc() && stop == end ? number : -1;
}

std::string Text_Of(const std::string& line) { return line.substr(line.find(',') + 1); }

std::map<int, std::string> Texts(const std::string& code) {
  std::map<int, std::string> texts;
  for (const std::string& line : Text_Lines(code)) texts[Number_Of(line)] = Text_Of(line);
  return texts;
}

TEST(LanguageFolder, Holds_The_Fourteen_Languages_And_No_Other) {
  std::set<std::string> expected;
  for (const auto& [code, charset] : kCharsets) expected.insert("language.l" + code);
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(NORVANE_LANGUAGE_FOLDER)) {
    const std::string name = Lower(entry.path().filename().string());
    if (name.starts_with("language.l")) found.insert(name);
  }
  EXPECT_EQ(expected.size(), 14u);
  EXPECT_EQ(found, expected);
}

TEST(LanguageFolder, Each_Language_Has_A_Name_Of_Its_Own) {
  std::set<std::string> names;
  for (const auto& [code, charset] : kCharsets) names.insert(Texts(code)[0]);
  EXPECT_EQ(names.size(), kCharsets.size());
}

class LanguageFile : public testing::TestWithParam<std::string> {};

TEST_P(LanguageFile, Header_Gives_Font_And_Character_Set) {
  EXPECT_EQ(Split_Lines(Bytes_Of(GetParam())).front(), "Norvane,Arial," + kCharsets.at(GetParam()));
}

TEST_P(LanguageFile, Every_Line_Ends_In_CR_LF_And_The_File_With_It) {
  const std::vector<std::string> lines = Split_Lines(Bytes_Of(GetParam()));
  ASSERT_GT(lines.size(), 1u);
  EXPECT_EQ(lines.back(), "");
  for (const std::string& line : lines) {
    EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
  }
}

TEST_P(LanguageFile, Every_Line_Is_A_Number_A_Comma_And_A_Text) {
  for (const std::string& line : Text_Lines(GetParam())) {
    const int number = Number_Of(line);
    EXPECT_TRUE(number >= 0 && number <= 150) << line;
    EXPECT_FALSE(Text_Of(line).empty()) << line;
  }
}

TEST_P(LanguageFile, Has_Every_Used_Text_Once_And_Nothing_Else) {
  std::vector<int> numbers;
  for (const std::string& line : Text_Lines(GetParam())) numbers.push_back(Number_Of(line));
  std::vector<int> used;
  for (const TextId id : kLanguageTexts) used.push_back(static_cast<int>(id));
  EXPECT_EQ(numbers, used);
}

// One "=" leads to the name, one "-" parts it from its version.
TEST_P(LanguageFile, Name_And_Version_Are_Parted_By_The_Only_Dash) {
  const std::string text = Texts(GetParam())[0];
  EXPECT_TRUE(text.starts_with("name=")) << text;
  EXPECT_TRUE(text.ends_with("-3.1")) << text;
  EXPECT_EQ(std::ranges::count(text, '='), 1) << text;
  EXPECT_EQ(std::ranges::count(text, '-'), 1) << text;
  EXPECT_GT(text.size(), std::string("name=-3.1").size());
}

// A tab would part the cells of a saved line, a "~" the captions of the list.
TEST_P(LanguageFile, No_Text_Holds_A_Separator_Or_Stray_Blanks) {
  for (const auto& [number, text] : Texts(GetParam())) {
    EXPECT_EQ(text.find('~'), std::string::npos) << number << ": " << text;
    EXPECT_EQ(text.find("  "), std::string::npos) << number << ": " << text;
    EXPECT_FALSE(text.starts_with(' ') || text.ends_with(' ')) << number << ": " << text;
    EXPECT_TRUE(std::ranges::none_of(text, [](unsigned char c) { return c < ' ' || c == 0x7F; }))
        << number << ": " << text;
  }
}

// One byte is one letter, so that the sizes are lengths on the screen.
TEST_P(LanguageFile, No_Text_Outgrows_Its_Place) {
  std::map<int, std::string> english = Texts("en");
  for (const auto& [number, text] : Texts(GetParam())) {
    const std::size_t room = std::max(english[number].size() * 16 / 10, kLongestText);
    EXPECT_LE(text.size(), room) << number << ": " << text;
  }
}

TEST_P(LanguageFile, The_Four_Kinds_Of_Object_Differ) {
  std::map<int, std::string> texts = Texts(GetParam());
  std::set<std::string> kinds;
  for (const Kind kind : {kSteelPipe, kCopperTube, kMetricPipe, kSheet}) {
    kinds.insert(texts[static_cast<int>(Kind_Name_Text(kind))]);
  }
  EXPECT_EQ(kinds.size(), 4u);
}

std::vector<std::string> Codes() {
  std::vector<std::string> codes;
  for (const auto& [code, charset] : kCharsets) codes.push_back(code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(All, LanguageFile, testing::ValuesIn(Codes()),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace norvane
