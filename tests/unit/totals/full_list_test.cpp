// How quickly the list of calculations and its screen answer with all the lines that they can hold.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

#include "../support/processor_time.h"
#include "../support/test_program.h"
#include "totals/calculation_list.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

constexpr int kMostLines = 32'766;

/// How long an answer of the screen may take, in seconds. A build for debugging is many times
/// slower, and one that watches its memory slower again.
#if defined(__SANITIZE_ADDRESS__)
constexpr double kPatience = 15;
#elif defined(NDEBUG)
constexpr double kPatience = 0.5;
#else
constexpr double kPatience = 5;
#endif

double Seconds_Of(const std::function<void()>& act) {
  ProcessorTime time;
  act();
  return time.Restart();
}

class AFullList : public testing::Test {
 protected:
  AFullList() {
    program_.Start();
    program_.Set(warmt_.txtT(2), "13");
  }

  int Lines() { return static_cast<int>(program_.State().Calc_List.size()) - 2; }
  void Add_Lines(int lines) {
    for (int i = 0; i < lines; ++i) Fill_Calculation_list(program_.State(), warmt_.Combo1.Text());
  }

  /// The least time that a few lines take, of several tries.
  double Seconds_To_Add_Lines() {
    double least = 1e9;
    for (int i = 0; i < 10; ++i) least = std::min(least, Seconds_Of([this] { Add_Lines(50); }));
    return least;
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_F(AFullList, TakesItsLastLinesAsQuicklyAsItsFirst) {
  const double first = Seconds_To_Add_Lines();
  Add_Lines(30'000 - Lines());
  const double last = Seconds_To_Add_Lines();
  constexpr double kTimesAsLong = 10;
  constexpr double kNoise = 0.002;  // seconds
  EXPECT_LT(last, first * kTimesAsLong + kNoise);
}

TEST_F(AFullList, IsShownAndCutWhileTheUserWaits) {
  Add_Lines(kMostLines);
  warmt_.Activate();
  EXPECT_LT(Seconds_Of([this] { ASSERT_EQ(program_.Click(warmt_.picTotal), std::nullopt); }),
            kPatience);
  Total& total = *program_.State().forms.total;
  EXPECT_TRUE(total.Is_Active());
  EXPECT_EQ(total.grdResult.Rows(), kMostLines + 1);
  const double gas = std::stod(total.grdResult.Cell(1, 17));  // m3 of a line
  ASSERT_GT(gas, 0);
  EXPECT_NEAR(program_.State().Total_Sum1, gas * kMostLines, 1e-6 * gas * kMostLines);

  program_.platform.answers = {MessageAnswer::kYes};
  EXPECT_LT(Seconds_Of([&] { program_.Act(UserAction::kPickRows, total.grdResult, 100, 101); }),
            kPatience);
  EXPECT_EQ(program_.Printed(), "message Norvane | Delete 2 Records | question | yes/no -> yes\n");
  EXPECT_EQ(total.grdResult.Rows(), kMostLines - 1);
  EXPECT_EQ(total.grdResult.Row(), 99);
  EXPECT_NEAR(program_.State().Total_Sum1, gas * (kMostLines - 2), 1e-6 * gas * kMostLines);
}

TEST_F(AFullList, HasRoomForAsManyLinesAsWereDeleted) {
  Add_Lines(kMostLines);
  warmt_.Activate();
  program_.Click(warmt_.picTotal);
  program_.platform.answers = {MessageAnswer::kYes};
  program_.Act(UserAction::kPickRows, program_.State().forms.total->grdResult, 2, kMostLines);
  EXPECT_EQ(Lines(), 1);
  Add_Lines(kMostLines - 1);
  EXPECT_FALSE(program_.program.Failed());
  program_.Click(warmt_.cmdAdd);
  EXPECT_TRUE(program_.program.Failed());
}

}  // namespace
}  // namespace norvane
