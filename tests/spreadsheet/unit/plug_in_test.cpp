#include "spreadsheet/plug_in.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>

#include "spreadsheet/xlsx_spreadsheet.h"
#include "test_folder.h"
#include "test_waiting.h"
#include "user_temporary_folder.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

TEST(APlugIn, ThatIsMissingOrBrokenHasNoFunctions) {
  TestFolder folder;
  EXPECT_EQ(Function_Of_Plug_In(folder / "nothing.so", kWriteWorkbook), nullptr);
  folder.Write("text.so", "no library");
  EXPECT_EQ(Function_Of_Plug_In(folder / "text.so", kWriteWorkbook), nullptr);
}

/// A program's folder with or without the plug-in that writes workbooks.
class AWorkbookFile : public testing::Test {
 protected:
  AWorkbookFile() { folder_.Write("total.xls", "a template"); }

  void Install() { fs::copy_file(WORKBOOK_PLUG_IN, folder_ / "norvane_workbook.so"); }
  void Write_Book(const std::string& name = "total.xls") {
    spreadsheet_.Open(name, 0);
    spreadsheet_.Value("A1:B1", {std::string("a"), 2.5});
    spreadsheet_.Release();
  }

  TestFolder folder_;
  TestWaiting waiting_;
  std::vector<fs::path> opened_;
  XlsxSpreadsheet spreadsheet_{folder_.Path(), waiting_,
                               [this](const fs::path& file) { opened_.push_back(file); }};
};

TEST_F(AWorkbookFile, IsWrittenByThePlugInBesideTheProgram) {
  Install();
  EXPECT_TRUE(spreadsheet_.Is_There());
  Write_Book();
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_EQ(opened_[0].filename(), "total.xlsx");
  EXPECT_GT(fs::file_size(opened_[0]), 1000U);
  fs::remove_all(opened_[0].parent_path());
}

TEST_F(AWorkbookFile, ThatCannotBeWrittenLeavesNothingBehind) {
  Install();
  constexpr std::size_t kLongestName = 255;
  const std::string name = std::string(kLongestName - 4, 't') + ".xls";
  folder_.Write(name, "a template");
  const fs::path temporary = folder_ / "temporary \u00D6 \u03A9";
  fs::create_directory(temporary);
  const UserTemporaryFolder users(temporary);
  Write_Book(name);
  EXPECT_TRUE(opened_.empty());
  EXPECT_TRUE(fs::is_empty(temporary));
  Write_Book();
  EXPECT_EQ(opened_.size(), 1U);
  EXPECT_FALSE(fs::is_empty(temporary));
}

TEST_F(AWorkbookFile, LeavesNothingBehindWhereMemoryLacks) {
  fs::copy_file(FAILING_WRITER, folder_ / "norvane_workbook.so");
  const fs::path temporary = folder_ / "temporary";
  fs::create_directory(temporary);
  const UserTemporaryFolder users(temporary);
  EXPECT_THROW(Write_Book(), std::bad_alloc);
  EXPECT_TRUE(fs::is_empty(temporary));
}

TEST_F(AWorkbookFile, IsNotThereWithoutThePlugIn) {
  EXPECT_FALSE(spreadsheet_.Is_There());
  Write_Book();
  EXPECT_TRUE(opened_.empty());
}

}  // namespace
}  // namespace norvane
