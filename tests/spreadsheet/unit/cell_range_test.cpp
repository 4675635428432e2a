#include "spreadsheet/cell_range.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvane {
namespace {

TEST(TheTextOfARange, NamesACellOrTwoCorners) {
  EXPECT_EQ(Read_Range("A1"), (CellRange{0, 0, 0, 0}));
  EXPECT_EQ(Read_Range("Q24"), (CellRange{16, 23, 16, 23}));
  EXPECT_EQ(Read_Range("A1:T500"), (CellRange{0, 0, 19, 499}));
  EXPECT_EQ(Read_Range("B3:Z3"), (CellRange{1, 2, 25, 2}));
  EXPECT_EQ(Read_Range("T30004").last_row, 30'003);
}

TEST(TheTextOfARange, FailsWhereItNamesNone) {
  for (const char* text : {"", "A", "1", "A0", "a1", "[1", "@1", "A1:[1", "AA1", "A1:", ":A1",
                           "A1 ", "B1:A1", "A2:A1", "A-1", "A99999999999", "A1:B2:C3"}) {
    EXPECT_THROW(Read_Range(text), SpreadsheetFailure) << text;
  }
}

TEST(ARowOfValues, HasAValueForEachCell) {
  const std::vector<CellValue> two = {std::string("a"), 1.0};
  EXPECT_EQ(Read_Row("A4:B4", two), (CellRange{0, 3, 1, 3}));
  EXPECT_THROW(Read_Row("A4:C4", two), SpreadsheetFailure);
  EXPECT_THROW(Read_Row("A4", two), SpreadsheetFailure);
  EXPECT_THROW(Read_Row("A4:B5", two), SpreadsheetFailure);
}

TEST(TheValuesOfCells, BecomeUtf8ByTheirCharacterSet) {
  const std::vector<CellValue> values = {std::string("\xC8\xF2\xEE\xE3\xEE"), 2.5};
  const std::vector<CellValue> cyrillic = {std::string("Итого"), 2.5};
  const std::vector<CellValue> western = {std::string("Èòîãî"), 2.5};
  EXPECT_EQ(In_Utf8(values, 204), cyrillic);
  EXPECT_EQ(In_Utf8(values, 0), western);
}

}  // namespace
}  // namespace norvane
