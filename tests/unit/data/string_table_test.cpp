#include "data/string_table.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <string>

#include "dew_figures.h"
#include "error_of.h"

namespace norvane {
namespace {

using TextsByNumber = std::map<int, std::string>;

void Expect_Texts(const TextsByNumber& texts) {
  for (const auto& [id, text] : texts) EXPECT_EQ(String_Table(id), text) << id;
}

const TextsByNumber kCatalogue = {
    {200, "2"},
    {201, "5"},
    {202, "6"},
    {1000, "Line isolation"},
    {1010, "Norvane Tube K1"},
    {1011, "0.038"},
    {1020, "Norvane Tube K2"},
    {1021, "0.038"},
    {1030, "Norvane Tube K3"},
    {1031, "0.038"},
    {1040, "Norvane Tube K4"},
    {1041, "0.038"},
    {1050, "Norvane Tube K5"},
    {1051, "0.038"},
    {2000, "Sheet isolation"},
    {2010, "Norvane Sheet L1"},
    {2011, "0.038"},
    {2020, "Norvane Sheet L2"},
    {2021, "0.038"},
    {2030, "Norvane Sheet L3"},
    {2031, "0.038"},
    {2040, "Norvane Sheet L4"},
    {2041, "0.038"},
    {2050, "Norvane Sheet L5"},
    {2051, "0.038"},
    {2060, "Norvane Sheet L6"},
    {2061, "0.038"},
};

const TextsByNumber kUnread = {{101, "2"}, {110, "3.0.0"}, {300, "1"}};

const TextsByNumber kDewDimensions = {{401, "24"}, {402, "16"}};

const TextsByNumber kDewHeadings = {
    {10000, "Dauwpunttabel"},
    {10001, "Omgevingstemperatuur"},
    {10002, "Max. waterdampconcentratie"},
    {10003, "30%"},
    {10004, "35%"},
    {10005, "40%"},
    {10006, "45%"},
    {10007, "50%"},
    {10008, "55%"},
    {10009, "60%"},
    {10010, "65%"},
    {10011, "70%"},
    {10012, "75%"},
    {10013, "80%"},
    {10014, "85%"},
    {10015, "90%"},
    {10016, "95%"},
};

TextsByNumber Dew_Cells() {
  TextsByNumber cells;
  int row_id = 10100;
  for (const DewRow& row : Dew_Figures()) {
    int id = row_id;
    for (const std::string& text : row.texts) cells[++id] = text;
    row_id += 100;
  }
  return cells;
}

TEST(StringTable, HoldsTheCatalogue) { Expect_Texts(kCatalogue); }

TEST(StringTable, HoldsTheTextsThatNobodyReads) { Expect_Texts(kUnread); }

TEST(StringTable, HoldsTheDimensionsOfTheDewPointTable) { Expect_Texts(kDewDimensions); }

TEST(StringTable, HoldsTheHeadingsOfTheDewPointTable) { Expect_Texts(kDewHeadings); }

TEST(StringTable, HoldsTheCellsOfTheDewPointTableAsTheyAreWritten) {
  const TextsByNumber cells = Dew_Cells();
  ASSERT_EQ(cells.size(), 24U * 16U);
  ASSERT_EQ(cells.at(10103), "-");
  ASSERT_EQ(cells.at(12416), "1.0");
  Expect_Texts(cells);
}

TEST(StringTable, HoldsNothingElse) {
  TextsByNumber all = Dew_Cells();
  for (const TextsByNumber& texts : {kCatalogue, kUnread, kDewDimensions, kDewHeadings}) {
    all.insert(texts.begin(), texts.end());
  }
  for (int id = -1000; id <= 40000; ++id) {
    if (all.contains(id)) continue;
    EXPECT_EQ(Error_Of([&] { String_Table(id); }), 9) << id;
  }
  EXPECT_EQ(Error_Of([] { String_Table(INT_MIN); }), 9);
  EXPECT_EQ(Error_Of([] { String_Table(INT_MAX); }), 9);
}

}  // namespace
}  // namespace norvane
