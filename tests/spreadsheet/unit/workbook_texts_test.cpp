#include <gtest/gtest.h>

#include <string>

#include "spreadsheet/plug_in.h"
#include "spreadsheet/workbook.h"
#include "test_folder.h"
#include "workbook_reader.h"

namespace norvane {
namespace {

class AWorkbooksText : public testing::Test {
 protected:
  /// What a second reader finds in the cell that the text was written to.
  std::string Read_Back(const std::string& text, std::size_t column = 1) {
    auto* write =
        reinterpret_cast<WriteWorkbook*>(Function_Of_Plug_In(WORKBOOK_PLUG_IN, kWriteWorkbook));
    Workbook book;
    book.rows[0].resize(column + 1);
    book.rows[0][column] = text;
    const auto file = folder_ / "book.xlsx";
    EXPECT_TRUE(write(book, file));
    const auto cells = Cells_Of_Workbook(file);
    EXPECT_EQ(cells.size(), 1U);
    return cells.empty() ? "" : std::get<std::string>(cells.begin()->second);
  }

  TestFolder folder_;
};

TEST_F(AWorkbooksText, IsReadBackThoughItLooksLikeTheSpellingOfALetter) {
  for (const char* text : {"_x0041_", "a_x000a_b", "_x005F_", "_x0041_x0042_", "_x0041", "_X0041_",
                           "__x0041__", "_x00G1_"}) {
    EXPECT_EQ(Read_Back(text), text);
  }
}

TEST_F(AWorkbooksText, IsReadBackWithLettersThatTheFormatCannotHold) {
  for (const char* text : {"\x01", "a\x1F_x0041_"}) EXPECT_EQ(Read_Back(text), text);
}

TEST_F(AWorkbooksText, IsWholeUpToTheRoomOfACell) {
  const std::string longest(32767, 'x');
  EXPECT_EQ(Read_Back(longest), longest);
  std::string letters;
  for (int i = 0; i < 32767; ++i) letters += "\xD0\x96";
  EXPECT_EQ(Read_Back(letters), letters);
}

TEST_F(AWorkbooksText, IsCutVisiblyBeyondIt) {
  EXPECT_EQ(Read_Back(std::string(32768, 'x')), std::string(32766, 'x') + "\xE2\x80\xA6");
  EXPECT_EQ(Read_Back(std::string(100'000, 'x')), std::string(32766, 'x') + "\xE2\x80\xA6");
  std::string spellings;
  for (int i = 0; i < 10'000; ++i) spellings += "_x0041_";
  const std::string cut = Read_Back(spellings);
  EXPECT_TRUE(cut.ends_with("\xE2\x80\xA6"));
  EXPECT_TRUE(spellings.starts_with(cut.substr(0, cut.size() - 3)));
  EXPECT_GT(cut.size(), 16'000U);
}

TEST_F(AWorkbooksText, MayStandInAnyColumn) {
  for (const std::size_t column : {25U, 26U, 200U}) EXPECT_EQ(Read_Back("far", column), "far");
}

}  // namespace
}  // namespace norvane
