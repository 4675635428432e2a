#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../support/test_program.h"
#include "../support/watch.h"

namespace norvane {
namespace {

using Log = std::vector<std::string>;

/// The fields of a heat-loss calculation as they are written, and the calculations themselves.
class NestingOfTheMainScreen : public testing::Test {
 protected:
  NestingOfTheMainScreen() {
    program_.Start();
    // A lambda beyond the usual one: each calculation blanks the ground of its field once.
    program_.State().Lambda = 0.034F;
    warmt_.Bereken();
    log_.clear();
  }

  void Tell(const Field& field, Attribute attribute) {
    if (&field == &warmt_.Label4(0) && attribute == Attribute::kBackStyle &&
        warmt_.Label4(0).BackStyle() == BackStyle::kTransparent) {
      log_.push_back("calculation with " + warmt_.txtT(0).Text());
    } else if (&field == &warmt_.txtT(0) && attribute == Attribute::kText) {
      log_.push_back("medium " + warmt_.txtT(0).Text());
    } else if (&field == &warmt_.Text2(0) && attribute == Attribute::kCaption) {
      log_.push_back("Fahrenheit " + warmt_.Text2(0).Caption());
    }
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
  Log log_;
  Watch watch_{warmt_, [this](const Field& field, Attribute attribute) { Tell(field, attribute); }};
};

TEST_F(NestingOfTheMainScreen, CutsATemperatureBeforeAnyCalculationSeesIt) {
  program_.Set(warmt_.txtT(0), "125");
  EXPECT_EQ(log_, (Log{"medium 125", "Fahrenheit 257", "medium 115", "Fahrenheit 239",
                       "calculation with 115", "calculation with 115"}));
}

TEST_F(NestingOfTheMainScreen, CalculatesOnceForATextInItsOwnForm) {
  program_.Set(warmt_.txtT(0), "60");
  EXPECT_EQ(log_, (Log{"medium 60", "Fahrenheit 140", "calculation with 60"}));
}

TEST_F(NestingOfTheMainScreen, CalculatesInsideTheCanonicalWriteAndOnceMoreBehindIt) {
  program_.Set(warmt_.txtT(0), "60.");
  EXPECT_EQ(log_, (Log{"medium 60.", "Fahrenheit 140", "medium 60", "calculation with 60",
                       "calculation with 60"}));
}

TEST_F(NestingOfTheMainScreen, ShowsTheFahrenheitOfATextThatCodeWritesWhileItIsBusy) {
  warmt_.Calc_Busy = true;
  warmt_.txtT(0).Set_Text("125");
  EXPECT_EQ(log_, (Log{"medium 125", "Fahrenheit 257"}));
}

TEST_F(NestingOfTheMainScreen, IsSilentForTheTextThatIsThere) {
  program_.Set(warmt_.txtT(0), "80");
  EXPECT_EQ(log_, Log{});
}

}  // namespace
}  // namespace norvane
