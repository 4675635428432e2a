#include "screen/input_history.h"

#include <gtest/gtest.h>

#include "../support/test_program.h"
#include "calc/heat_loss.h"
#include "input_rows.h"

namespace norvane {
namespace {

/// The input fields of a fresh program, looked at after each event as the window does.
class LastChanges : public testing::Test {
 protected:
  LastChanges() {
    program_.Start();
    history_.Follow(warmt_);
  }

  std::optional<InputChange> Set(TextField& field, const std::string& text) {
    program_.Set(field, text);
    return history_.Follow(warmt_);
  }
  void Type(TextField& field, const std::string& text) {
    Set(field, text);
    history_.Join_Typed();
  }
  void Click(Field& field) {
    program_.Click(field);
    history_.Follow(warmt_);
  }
  /// "row: what would be entered", or "nothing".
  std::string Way_Back() {
    const auto change = history_.To_Take_Back(warmt_, program_.State().Sel_Size);
    return change ? std::to_string(change->row.index) + ": " + change->before : "nothing";
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
  InputHistory history_;
};

TEST_F(LastChanges, ThereIsNoneAtFirst) { EXPECT_EQ(Way_Back(), "nothing"); }

TEST_F(LastChanges, TellsWhatChangedFromWhatToWhat) {
  const auto change = Set(warmt_.txtT(0), "70");
  ASSERT_TRUE(change);
  EXPECT_EQ(change->row, kMedium);
  EXPECT_EQ(change->before, "80");
  EXPECT_EQ(change->after, "70");
  EXPECT_EQ(Way_Back(), "0: 80");
  EXPECT_FALSE(Set(warmt_.txtT(0), "70")) << "nothing new";
}

TEST_F(LastChanges, ANumberThatIsTypedIsOne) {
  Type(warmt_.txtT(0), "1");
  Type(warmt_.txtT(0), "12");
  Type(warmt_.txtT(0), "12x");
  EXPECT_EQ(Way_Back(), "0: 80");
  history_.End_Typing();
  Type(warmt_.txtT(0), "125");
  EXPECT_EQ(Way_Back(), "0: 12") << "the user has been elsewhere meanwhile";
}

TEST_F(LastChanges, AStepIsAChangeOfItsOwn) {
  Type(warmt_.txtT(0), "70");
  program_.Up(warmt_.SpinButton1(0));
  history_.Follow(warmt_);
  EXPECT_EQ(Way_Back(), "0: 70");
  Type(warmt_.txtT(0), "7");
  EXPECT_EQ(Way_Back(), "0: 75") << "not with what was typed before the step";
}

TEST_F(LastChanges, TheDiameterThatAButtonPutBackIsOne) {
  Set(warmt_.txtT(3), "42");
  Click(warmt_.cmdToolBar4(1));
  EXPECT_EQ(warmt_.txtT(3).Text(), "10");
  EXPECT_EQ(Way_Back(), "3: 42");
}

TEST_F(LastChanges, GoesBackOneByOne) {
  Set(warmt_.txtT(0), "70");
  Set(warmt_.txtT(3), "42");
  program_.Set(warmt_.txtT(3), "10");
  history_.Take_Back(warmt_);
  EXPECT_EQ(Way_Back(), "0: 80");
  program_.Set(warmt_.txtT(0), "80");
  history_.Take_Back(warmt_);
  EXPECT_EQ(Way_Back(), "nothing");
}

TEST_F(LastChanges, WhatNoUserCouldEnterIsNotOffered) {
  Set(warmt_.txtT(0), "112");
  program_.Up(warmt_.SpinButton1(0));
  history_.Follow(warmt_);
  EXPECT_EQ(warmt_.txtT(0).Text(), "117");
  Set(warmt_.txtT(0), "80");
  EXPECT_EQ(Way_Back(), "nothing") << "117 would be cut";
}

TEST_F(LastChanges, AFieldThatDoesNotShowIsNotOffered) {
  Set(warmt_.txtT(3), "42");
  Click(warmt_.cmdToolBar1(3));
  EXPECT_EQ(Way_Back(), "nothing") << "a sheet has no diameter";
  Click(warmt_.cmdToolBar1(0));
  Set(warmt_.txtT(0), "70");
  Click(warmt_.cmdToolBarC);
  EXPECT_EQ(Way_Back(), "nothing") << "the last change is one of the other mode";
  Click(warmt_.cmdToolBarT);
  EXPECT_EQ(Way_Back(), "0: 80");
}

TEST_F(LastChanges, ALockedFieldGoesBackToItsEntry) {
  Click(warmt_.cmdToolBarC);
  program_.Up(warmt_.SpinButton1(4));
  history_.Follow(warmt_);
  EXPECT_EQ(Way_Back(), "4: 60");
}

TEST_F(LastChanges, ALengthGoesBackToWhateverItWas) {
  Set(warmt_.txtmtrs, "2,5");
  Set(warmt_.txtmtrs, "3");
  EXPECT_EQ(Way_Back(), "5: 2,5");
}

}  // namespace
}  // namespace norvane
