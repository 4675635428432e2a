#include "frame/version.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

TEST(TheVersion, LeavesOutARevisionOfZero) {
  EXPECT_EQ(Title_And_Version({3, 1, 0}), "Norvane 3.1");
  EXPECT_EQ(Title_And_Version({4, 0, 0}), "Norvane 4.0");
}

TEST(TheVersion, HasAThirdNumberForAnyOtherRevision) {
  EXPECT_EQ(Title_And_Version({3, 1, 2}), "Norvane 3.1.2");
  EXPECT_EQ(Title_And_Version({10, 12, 345}), "Norvane 10.12.345");
}

TEST(TheVersion, OfThisReleaseIsThreePointOne) {
  EXPECT_EQ(Title_And_Version(kRelease), "Norvane 3.1");
}

}  // namespace
}  // namespace norvane
