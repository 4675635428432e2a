#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "../data/error_of.h"
#include "../support/test_program.h"
#include "../support/watch.h"

namespace norvane {
namespace {

/// Counts calculations: under a lambda beyond the usual one, each of them makes the ground of
/// `Label4(0)` transparent once before it colours it.
class CalculationsOfAClick : public testing::Test {
 protected:
  CalculationsOfAClick() {
    program_.Start();
    program_.State().Lambda = 0.034F;
    warmt_.Bereken();
  }

  void TearDown() override { EXPECT_EQ(program_.Printed(), ""); }

  int Calculations(const std::function<void()>& act) {
    int calculations = 0;
    const Watch watch(warmt_, [&](const Field& field, Attribute attribute) {
      if (&field == &warmt_.Label4(0) && attribute == Attribute::kBackStyle &&
          warmt_.Label4(0).BackStyle() == BackStyle::kTransparent) {
        ++calculations;
      }
    });
    act();
    return calculations;
  }
  int Of_Up(int row) {
    return Calculations([&] { ASSERT_EQ(program_.Up(warmt_.SpinButton1(row)), std::nullopt); });
  }
  int Of_Down(int row) {
    return Calculations([&] { ASSERT_EQ(program_.Down(warmt_.SpinButton1(row)), std::nullopt); });
  }

  void Switch_To_Condensation() {
    ASSERT_EQ(program_.Click(warmt_.cmdToolBarC), std::nullopt);
    warmt_.Bereken();
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_F(CalculationsOfAClick, AreCountedOneByOne) {
  EXPECT_EQ(Calculations([] {}), 0);
  EXPECT_EQ(Calculations([this] { warmt_.Bereken(); }), 1);
  EXPECT_EQ(Calculations([this] {
              for (int i = 0; i < 3; ++i) warmt_.Bereken();
            }),
            3);
}

TEST_F(CalculationsOfAClick, UpAreOne) {
  program_.Set(warmt_.txtT(2), "6");
  for (int row = 0; row <= 3; ++row) {
    const std::string before = warmt_.txtT(row).Text();
    EXPECT_EQ(Of_Up(row), 1) << row;
    EXPECT_NE(warmt_.txtT(row).Text(), before) << row;
  }
}

TEST_F(CalculationsOfAClick, UpInModeCAreOne) {
  Switch_To_Condensation();
  for (const int row : {0, 1, 3, 4}) {
    const std::string before = warmt_.txtC(row).Text();
    EXPECT_EQ(Of_Up(row), 1) << row;
    EXPECT_NE(warmt_.txtC(row).Text(), before) << row;
  }
}

TEST_F(CalculationsOfAClick, DownAreTwoWithAStep) {
  program_.Set(warmt_.txtT(2), "13");
  program_.Set(warmt_.txtT(3), "15");
  for (int row = 0; row <= 3; ++row) {
    const std::string before = warmt_.txtT(row).Text();
    EXPECT_EQ(Of_Down(row), 2) << row;
    EXPECT_NE(warmt_.txtT(row).Text(), before) << row;
  }
}

TEST_F(CalculationsOfAClick, DownInModeCAreTwoWithAStep) {
  Switch_To_Condensation();
  program_.Set(warmt_.txtC(3), "15");
  for (const int row : {0, 1, 3, 4}) {
    const std::string before = warmt_.txtC(row).Text();
    EXPECT_EQ(Of_Down(row), 2) << row;
    EXPECT_NE(warmt_.txtC(row).Text(), before) << row;
  }
}

TEST_F(CalculationsOfAClick, DownAreThreeWhereTheLimitWritesTheFieldAgain) {
  program_.Set(warmt_.txtT(0), "-48");
  EXPECT_EQ(Of_Down(0), 3);
  EXPECT_EQ(warmt_.txtT(0).Text(), "-50");
  program_.Set(warmt_.txtT(0), "20");
  program_.Set(warmt_.txtT(1), "-57");
  EXPECT_EQ(Of_Down(1), 3);
  EXPECT_EQ(warmt_.txtT(1).Text(), "-60");
}

TEST_F(CalculationsOfAClick, DownAreOneWhereTheDiameterIsTooSmall) {
  Switch_To_Condensation();
  program_.Set(warmt_.txtC(3), "5");
  for (const int row : {0, 1, 4}) {
    const std::string before = warmt_.txtC(row).Text();
    EXPECT_EQ(Of_Down(row), 1) << row;
    EXPECT_NE(warmt_.txtC(row).Text(), before) << row;
  }
}

TEST_F(CalculationsOfAClick, OnTheLengthAreOneForEachWriteAndOneMore) {
  EXPECT_EQ(Of_Up(5), 2);
  EXPECT_EQ(warmt_.txtmtrs.Text(), "2");
  EXPECT_EQ(Of_Down(5), 2);
  EXPECT_EQ(warmt_.txtmtrs.Text(), "1");
}

TEST_F(CalculationsOfAClick, OnTheLengthAreThreeAtItsEnds) {
  // 0 is written and then 1.
  EXPECT_EQ(Of_Down(5), 3);
  EXPECT_EQ(warmt_.txtmtrs.Text(), "1");
  // 10001 is written, and 10000 inside its handler.
  program_.Set(warmt_.txtmtrs, "10000");
  EXPECT_EQ(Of_Up(5), 3);
  EXPECT_EQ(warmt_.txtmtrs.Text(), "10000");
}

TEST_F(CalculationsOfAClick, OnAKindAreOne) {
  for (const int kind : {1, 2, 3, 0}) {
    EXPECT_EQ(Calculations([&] { program_.Click(warmt_.cmdToolBar1(kind)); }), 1) << kind;
  }
}

TEST_F(CalculationsOfAClick, AreOneWithoutAStep) {
  program_.Set(warmt_.txtT(1), "20");
  program_.Set(warmt_.txtT(0), "115");
  EXPECT_EQ(Of_Up(0), 1);
  program_.Set(warmt_.txtT(0), "-50");
  EXPECT_EQ(Of_Down(0), 1);
  program_.Set(warmt_.txtT(1), "-60");
  EXPECT_EQ(Of_Down(1), 1);
  program_.Set(warmt_.txtT(1), "110");
  EXPECT_EQ(Of_Up(1), 1);
  program_.Set(warmt_.txtT(2), "30");
  EXPECT_EQ(Of_Up(2), 1);
  program_.Set(warmt_.txtT(2), "6");
  EXPECT_EQ(Of_Down(2), 1);
  program_.Set(warmt_.txtT(3), "915");
  EXPECT_EQ(Of_Up(3), 1);
  program_.Set(warmt_.txtT(3), "10");
  EXPECT_EQ(Of_Down(3), 1);
  for (int row = 0; row <= 3; ++row) {
    const char* const texts[] = {"-50", "110", "6", "10"};
    EXPECT_EQ(warmt_.txtT(row).Text(), texts[row]);
  }
}

TEST_F(CalculationsOfAClick, AreOneBeyondTheMeanLimit) {
  program_.Set(warmt_.txtT(1), "100");
  program_.Set(warmt_.txtT(0), "110");
  EXPECT_EQ(Of_Up(0), 1);
  EXPECT_EQ(warmt_.txtT(0).Text(), "110");
}

TEST_F(CalculationsOfAClick, UpStopBehindATooSmallDiameterOfModeT) {
  // Only code can leave so small a diameter in this mode.
  warmt_.Calc_Busy = true;
  warmt_.txtT(3).Set_Text("5");
  warmt_.Calc_Busy = false;
  // The one calculation is that of the diameter's own handler; its results are blanked behind it.
  EXPECT_EQ(Of_Up(0), 1);
  EXPECT_EQ(warmt_.txtT(0).Text(), "80");
  EXPECT_EQ(warmt_.txtT(3).Text(), "10");
  EXPECT_EQ(program_.State().desk.Focus(), &warmt_.txtT(3));
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(warmt_.Label4(i).Caption(), "") << i;
  EXPECT_NE(warmt_.Label4(9).Caption(), "");
}

TEST_F(CalculationsOfAClick, LeaveTheHandlersAwake) {
  for (int row = 0; row <= 5; ++row) {
    if (row == 4) continue;
    Of_Up(row);
    EXPECT_FALSE(warmt_.Calc_Busy) << row;
    Of_Down(row);
    EXPECT_FALSE(warmt_.Calc_Busy) << row;
  }
}

TEST_F(CalculationsOfAClick, OnAModeButtonDoNotColourTheLambda) {
  EXPECT_EQ(Calculations([this] { program_.Click(warmt_.cmdToolBarT); }), 0);
}

class ASpinPair : public testing::Test {
 protected:
  ASpinPair() { program_.Start(); }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_F(ASpinPair, OfARowThatIsNotThereStepsNothing) {
  std::vector<std::string> changed;
  const Watch watch(warmt_, [&](const Field& field, Attribute attribute) {
    if (attribute == Attribute::kText) changed.push_back(field.Name());
  });
  warmt_.UpClick(6);
  warmt_.DownClick(6);
  EXPECT_EQ(changed, std::vector<std::string>{});
}

TEST_F(ASpinPair, OfTheTablesFailsFromAPlaceOutsideThem) {
  program_.Click(warmt_.cmdToolBarC);
  const auto last = static_cast<std::int16_t>(warmt_.Dew_Temps.size() - 1);
  warmt_.Idx_A1 = -3;
  EXPECT_EQ(Error_Of([this] { warmt_.UpClick(1); }), 9);
  warmt_.Idx_A1 = static_cast<std::int16_t>(last + 2);
  EXPECT_EQ(Error_Of([this] { warmt_.DownClick(1); }), 9);
  // From one beyond its end the ring is still reached.
  warmt_.Calc_Busy = false;
  warmt_.Idx_A1 = static_cast<std::int16_t>(last + 1);
  EXPECT_EQ(Error_Of([this] { warmt_.DownClick(1); }), 0);
  EXPECT_EQ(warmt_.txtC(1).Text(), "50");
}

}  // namespace
}  // namespace norvane
