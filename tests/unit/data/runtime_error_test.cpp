#include "data/runtime_error.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

TEST(RuntimeError, CarriesItsNumber) {
  EXPECT_EQ(RuntimeError(RuntimeError::kOverflow).number(), 6);
}

TEST(RuntimeError, SpeaksTheClassicWordsOfItsNumber) {
  EXPECT_STREQ(RuntimeError(RuntimeError::kInvalidProcedureCall).what(),
               "Invalid procedure call or argument");
  EXPECT_STREQ(RuntimeError(RuntimeError::kOverflow).what(), "Overflow");
  EXPECT_STREQ(RuntimeError(RuntimeError::kSubscriptOutOfRange).what(), "Subscript out of range");
  EXPECT_STREQ(RuntimeError(RuntimeError::kDivisionByZero).what(), "Division by zero");
  EXPECT_STREQ(RuntimeError(RuntimeError::kTypeMismatch).what(), "Type mismatch");
  EXPECT_STREQ(RuntimeError(RuntimeError::kOutOfMemory).what(), "Out of memory");
  EXPECT_STREQ(RuntimeError(RuntimeError::kInternalError).what(), "Internal error");
}

}  // namespace
}  // namespace norvane
