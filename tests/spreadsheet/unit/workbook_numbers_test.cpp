#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>
#include <vector>

#include "spreadsheet/plug_in.h"
#include "spreadsheet/workbook.h"
#include "test_folder.h"
#include "workbook_reader.h"

namespace norvane {
namespace {

/// A process whose C functions go by the user's locale, as any library may have asked of it.
class OfAUser : public testing::TestWithParam<const char*> {
 protected:
  OfAUser() {
    setenv("LOCPATH", USER_LOCALES, 1);
    set_ = std::setlocale(LC_ALL, GetParam());
  }
  ~OfAUser() override { std::setlocale(LC_ALL, "C"); }

  bool Write(const Workbook& book) {
    auto* write =
        reinterpret_cast<WriteWorkbook*>(Function_Of_Plug_In(WORKBOOK_PLUG_IN, kWriteWorkbook));
    return write(book, file_);
  }

  TestFolder folder_;
  const std::filesystem::path file_ = folder_ / "book.xlsx";
  const char* set_ = nullptr;
};

TEST_P(OfAUser, TheNumbersOfAWorkbookHavePoints) {
  ASSERT_STREQ(set_, GetParam());
  const std::vector<double> numbers = {1.27, -0.5, 1234567.891, 0.1, 1e-9, 1e20, 0};
  Workbook book;
  for (std::size_t row = 0; row < numbers.size(); ++row) {
    book.rows[static_cast<int>(row)] = {std::string("a text"), numbers[row]};
  }
  ASSERT_TRUE(Write(book));
  const auto cells = Cells_Of_Workbook(file_);
  ASSERT_EQ(cells.size(), 2 * numbers.size());
  for (std::size_t row = 0; row < numbers.size(); ++row) {
    EXPECT_DOUBLE_EQ(std::get<double>(cells.at("B" + std::to_string(row + 1))), numbers[row]);
  }
}

TEST_P(OfAUser, TheProcessKeepsItsLocale) {
  ASSERT_TRUE(Write(Workbook()));
  EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Locales, OfAUser,
                         testing::Values("C", "de_DE.UTF-8", "ps_AF.UTF-8", "tr_TR.UTF-8",
                                         "ar_EG.UTF-8"));

}  // namespace
}  // namespace norvane
