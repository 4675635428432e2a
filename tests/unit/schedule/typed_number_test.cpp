#include "schedule/typed_number.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

TEST(TypedNumber, IsKeptWithTheSignOfTheSchedule) {
  EXPECT_EQ(Number_To_Keep("0,045", ',', '.'), "0.045");
  EXPECT_EQ(Number_To_Keep("0,045", ',', ','), "0,045");
  EXPECT_EQ(Number_To_Keep("0.045", '.', ','), "0,045");
  EXPECT_EQ(Number_To_Keep("13", ',', '.'), "13");
}

TEST(TypedNumber, MayHaveAPointEverywhere) {
  EXPECT_EQ(Number_To_Keep("12.5", ',', '.'), "12.5");
  EXPECT_EQ(Number_To_Keep("12.5", ',', ','), "12,5");
}

TEST(TypedNumber, AWrongSignNeverChangesItsMagnitude) {
  EXPECT_EQ(Number_To_Keep("1,500", '.', '.'), "1,500");  // which is no number there
  EXPECT_EQ(Number_To_Keep("1.500,5", ',', '.'), "1.500,5");
  EXPECT_EQ(Number_To_Keep("1,500.5", '.', '.'), "1,500.5");
}

TEST(TypedNumber, WhatIsNoNumberStays) {
  for (const char* text : {"", " ", "abc", "1,2,3", "--1", "13 mm"}) {
    EXPECT_EQ(Number_To_Keep(text, ',', '.'), text);
    EXPECT_EQ(Number_To_Show(text, '.', ','), text);
  }
}

TEST(TypedNumber, IsShownInTheLocaleAndComesBackUnchanged) {
  for (const char* field : {"0.045", "-12.5", "80", "1e3", " 7.5 "}) {
    EXPECT_EQ(Number_To_Keep(Number_To_Show(field, '.', ','), ',', '.'), field);
  }
  EXPECT_EQ(Number_To_Show("0.045", '.', ','), "0,045");
  EXPECT_EQ(Number_To_Show("0,045", ',', '.'), "0.045");
}

}  // namespace
}  // namespace norvane
