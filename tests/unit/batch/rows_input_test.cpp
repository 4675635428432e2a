#include "batch/rows_input.h"

#include <gtest/gtest.h>

#include "../support/test_folder.h"
#include "batch/problem.h"

namespace norvane {
namespace {

class RowsOfAFile : public testing::Test {
 protected:
  RowsInput Open(const std::string& bytes) {
    folder_.Write("rows.csv", bytes);
    return RowsInput((folder_ / "rows.csv").string());
  }

  std::string Problem(const std::string& bytes) {
    try {
      RowsInput input = Open(bytes);
      input.Read_Header();
      Block block;
      while (input.Next(block)) {
      }
    } catch (const BatchProblem& problem) {
      return problem.what();
    }
    return "";
  }

  TestFolder folder_;
};

std::string Repeated(const std::string& row, std::size_t count) {
  std::string rows;
  for (std::size_t i = 0; i < count; ++i) rows += row;
  return rows;
}

TEST_F(RowsOfAFile, BeginBehindTheHeader) {
  RowsInput input = Open("\xEF\xBB\xBF\r\n\nkind,b\r\n1,2\n");
  EXPECT_EQ(input.Read_Header(), "kind,b");
  EXPECT_EQ(input.Header_Line(), 3U);
  Block block;
  ASSERT_TRUE(input.Next(block));
  EXPECT_EQ(block.rows, "1,2\n");
  EXPECT_EQ(block.first_line, 4U);
  EXPECT_FALSE(input.Next(block));
}

TEST_F(RowsOfAFile, ComeWholeAndInTheirOrder) {
  const std::string rows = Repeated("123456789,123456789\n", 20000);
  RowsInput input = Open("a,b\n" + rows);
  input.Read_Header();
  std::string all;
  Block block;
  std::size_t line = 2;
  for (std::uint64_t number = 0; input.Next(block); ++number) {
    EXPECT_EQ(block.number, number);
    EXPECT_EQ(block.first_line, line);
    EXPECT_EQ(block.rows.back(), '\n');
    EXPECT_LE(block.rows.size(), RowsInput::kBlockBytes);
    line += block.rows.size() / 20;
    all += block.rows;
  }
  EXPECT_EQ(all, rows);
}

TEST_F(RowsOfAFile, AreNotCutAtALineEndInQuotes) {
  const std::string row = "\"a\nb\",\"" + std::string(1000, 'x') + "\n\"\n";
  RowsInput input = Open("a,b\n" + Repeated(row, 500));
  input.Read_Header();
  Block block;
  while (input.Next(block)) EXPECT_EQ(block.rows.size() % row.size(), 0U);
}

TEST_F(RowsOfAFile, MayEndWithoutALineEnd) {
  RowsInput input = Open("a\n1");
  input.Read_Header();
  Block block;
  ASSERT_TRUE(input.Next(block));
  EXPECT_EQ(block.rows, "1");
}

TEST_F(RowsOfAFile, ThatAreLongerThanABlockAreAProblemOfTheirLine) {
  const std::string words = "longer than 65536 bytes; is a quote left open?";
  EXPECT_EQ(Problem("a\n1\n2\n" + std::string(70000, 'x')), "line 4: the row is " + words);
  EXPECT_EQ(Problem("a\n1\n\"" + Repeated("x\n", 40000)), "line 3: the row is " + words);
  EXPECT_EQ(Problem(Repeated("a,", 1000000)), "line 1: the header is longer than 65536 bytes");
}

TEST_F(RowsOfAFile, ThatHasNoHeaderAreAProblem) {
  EXPECT_EQ(Problem(""), "line 1: there is no header");
  EXPECT_EQ(Problem("\n\n"), "line 2: there is no header");
}

TEST_F(RowsOfAFile, ThatIsNotThereAreAProblem) {
  EXPECT_THROW(RowsInput((folder_ / "none.csv").string()), BatchProblem);
}

}  // namespace
}  // namespace norvane
