#include "screen/model/user_event.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "../support/test_program.h"
#include "catalogue/address_form.h"
#include "catalogue/settings_form.h"
#include "frame/about_form.h"
#include "frame/lang_form.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

const std::optional<std::string> kCarriedOut;

class AUserEvent : public testing::Test {
 protected:
  AUserEvent() { program_.Start(); }

  /// While the next modal form is open, plays this, and closes the form.
  void In_The_Modal_Form(std::function<void()> play) {
    program_.platform.play_modal = [play](Form& form) {
      play();
      form.Hide();
    };
  }

  bool Refused(const std::optional<std::string>& reason) { return reason && !reason->empty(); }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_F(AUserEvent, IsCarriedOutWhereAUserCouldDoIt) {
  EXPECT_EQ(program_.Set(warmt_.txtT(0), "60"), kCarriedOut);
  EXPECT_EQ(warmt_.txtT(0).Text(), "60");
}

TEST_F(AUserEvent, WithoutAHandlerDoesNothing) {
  EXPECT_EQ(program_.Click(warmt_.Label0), kCarriedOut);
  EXPECT_EQ(program_.Act(UserAction::kHover, warmt_.Label0), kCarriedOut);
  warmt_.SpinButton1(0).On_Up = nullptr;
  EXPECT_EQ(program_.Up(warmt_.SpinButton1(0)), kCarriedOut);
  EXPECT_EQ(warmt_.txtT(0).Text(), "80");
}

TEST_F(AUserEvent, OfAFieldDoesNothingToAFormNorOfAFormToAField) {
  EXPECT_EQ(program_.Act(UserAction::kClick, warmt_), kCarriedOut);
  EXPECT_EQ(program_.Act(UserAction::kCloseBox, warmt_.txtT(0)), kCarriedOut);
  EXPECT_TRUE(warmt_.Shown());
  EXPECT_EQ(program_.Printed(), "");
}

TEST_F(AUserEvent, OnAnInvisibleFieldIsRefused) {
  EXPECT_TRUE(Refused(program_.Set(warmt_.txtC(0), "60")));
  EXPECT_EQ(warmt_.txtC(0).Text(), "10");
  EXPECT_TRUE(Refused(program_.Click(warmt_.picTotal)));
  EXPECT_TRUE(Refused(program_.Set(warmt_.Text4(1), "1")));
}

TEST_F(AUserEvent, OnAFieldOfAnInvisiblePanelIsRefused) {
  EXPECT_TRUE(Refused(program_.Click(warmt_.LblTooltip)));
  ASSERT_EQ(program_.Act(UserAction::kHover, warmt_.cmdToolBar1(1)), kCarriedOut);
  EXPECT_EQ(program_.Click(warmt_.LblTooltip), kCarriedOut);
}

TEST_F(AUserEvent, OnAFieldOutsideItsFormIsRefused) {
  warmt_.cmdAdd.out_of_reach = true;
  EXPECT_TRUE(Refused(program_.Click(warmt_.cmdAdd)));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kHover, warmt_.cmdAdd)));
}

TEST_F(AUserEvent, OnALockedFieldIsRefused) {
  ASSERT_EQ(program_.Click(warmt_.cmdToolBarC), kCarriedOut);
  for (const int locked : {1, 4}) {
    const std::string text = warmt_.txtC(locked).Text();
    EXPECT_TRUE(Refused(program_.Set(warmt_.txtC(locked), "77")));
    EXPECT_EQ(warmt_.txtC(locked).Text(), text);
  }
}

TEST_F(AUserEvent, OnAFieldOfAnotherKindIsRefused) {
  EXPECT_TRUE(Refused(program_.Act(UserAction::kSetText, warmt_.Label0)));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kSetText, warmt_.Combo1)));
  EXPECT_TRUE(Refused(program_.Up(warmt_.txtT(0))));
  EXPECT_TRUE(Refused(program_.Down(warmt_.Label0)));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kChoose, warmt_.txtT(0))));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kPickTab, warmt_.txtT(0))));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kPickRows, warmt_.txtT(0), 1, 1)));
}

TEST_F(AUserEvent, OnAListHasToNameOneOfItsItems) {
  const int last = static_cast<int>(warmt_.Combo1.Items().size()) - 1;
  EXPECT_EQ(program_.Act(UserAction::kChoose, warmt_.Combo1, last), kCarriedOut);
  EXPECT_EQ(warmt_.Combo1.ListIndex(), last);
  EXPECT_EQ(program_.Act(UserAction::kChoose, warmt_.Combo1, 0), kCarriedOut);
  EXPECT_EQ(warmt_.Combo1.ListIndex(), 0);
  EXPECT_EQ(program_.Act(UserAction::kChoose, warmt_.Combo1, last), kCarriedOut);
  EXPECT_TRUE(Refused(program_.Act(UserAction::kChoose, warmt_.Combo1, last + 1)));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kChoose, warmt_.Combo1, -1)));
  EXPECT_EQ(warmt_.Combo1.ListIndex(), last);
}

TEST_F(AUserEvent, OnAGridHasToNameItsLinesAndNotItsCaptions) {
  ASSERT_EQ(program_.Click(warmt_.cmdAdd), kCarriedOut);
  ASSERT_EQ(program_.Click(warmt_.cmdAdd), kCarriedOut);
  ASSERT_EQ(program_.Click(warmt_.picTotal), kCarriedOut);
  Total& total = *program_.State().forms.total;
  const std::pair<int, int> outside[] = {{0, 1}, {1, 0}, {0, 0}, {1, 3}, {3, 3}, {-1, 1}};
  for (const auto& [from, to] : outside) {
    EXPECT_TRUE(Refused(program_.Act(UserAction::kPickRows, total.grdResult, from, to)));
  }
  EXPECT_EQ(program_.Printed(), "");
  EXPECT_EQ(program_.Act(UserAction::kPickRows, total.grdResult, 2, 1), kCarriedOut);
  EXPECT_EQ(program_.Printed(),
            "message Norvane | Delete 2 Records | question | yes/no -> no (unanswered)\n");
}

TEST_F(AUserEvent, OnAFormThatIsNotShownIsRefused) {
  Forms& forms = program_.State().forms;
  EXPECT_TRUE(Refused(program_.Click(forms.lang->OK)));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kActivate, *forms.about)));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kCloseBox, *forms.settings)));
  EXPECT_TRUE(Refused(program_.Act(UserAction::kHover, *forms.address)));
  EXPECT_TRUE(warmt_.Is_Active());
}

TEST_F(AUserEvent, OnABackTabIsRefused) {
  bool played = false;
  In_The_Modal_Form([&] {
    Settings& settings = *program_.State().forms.settings;
    EXPECT_EQ(program_.Set(settings.Text1, "0.040"), kCarriedOut);
    EXPECT_TRUE(Refused(program_.Set(settings.Text3, "9")));
    EXPECT_TRUE(Refused(program_.Up(settings.UpDown1_0)));
    EXPECT_TRUE(Refused(program_.Act(UserAction::kPickTab, settings.SSTab1, 3)));
    EXPECT_TRUE(Refused(program_.Act(UserAction::kPickTab, settings.SSTab1, -1)));
    EXPECT_EQ(program_.Act(UserAction::kPickTab, settings.SSTab1, Settings::kAlphaTab),
              kCarriedOut);
    EXPECT_EQ(program_.Set(settings.Text3, "9"), kCarriedOut);
    EXPECT_TRUE(Refused(program_.Set(settings.Text1, "0.050")));
    played = true;
  });
  ASSERT_EQ(program_.Click(warmt_.cmdToolBar4(0)), kCarriedOut);
  EXPECT_TRUE(played);
}

TEST_F(AUserEvent, OutsideTheModalFormIsRefused) {
  bool played = false;
  In_The_Modal_Form([&] {
    EXPECT_TRUE(Refused(program_.Set(warmt_.txtT(0), "60")));
    EXPECT_TRUE(Refused(program_.Act(UserAction::kActivate, warmt_)));
    EXPECT_TRUE(Refused(program_.Act(UserAction::kCloseBox, warmt_)));
    EXPECT_TRUE(Refused(program_.Act(UserAction::kHover, warmt_)));
    played = true;
  });
  ASSERT_EQ(program_.Click(warmt_.cmdToolBar5(0)), kCarriedOut);
  EXPECT_TRUE(played);
  EXPECT_EQ(warmt_.txtT(0).Text(), "80");
  EXPECT_EQ(program_.Set(warmt_.txtT(0), "60"), kCarriedOut);
}

TEST_F(AUserEvent, AfterTheEndIsRefused) {
  ASSERT_EQ(program_.Act(UserAction::kCloseBox, warmt_), kCarriedOut);
  ASSERT_TRUE(program_.program.Ended());
  EXPECT_FALSE(program_.program.Failed());
  for (const FormReference* unloaded : std::initializer_list<FormReference*>{
           &program_.State().forms.about, &program_.State().forms.warmt,
           &program_.State().forms.total}) {
    EXPECT_FALSE(unloaded->Loaded());
  }
  About& about = *program_.State().forms.about;
  EXPECT_TRUE(Refused(program_.Act(UserAction::kActivate, about)));
}

TEST_F(AUserEvent, BringsItsFormToTheFrontUnlessItIsTheMouseMoving) {
  ASSERT_EQ(program_.Click(warmt_.lblMenu(1)), kCarriedOut);
  const Lang& lang = *program_.State().forms.lang;
  ASSERT_TRUE(lang.Is_Active());
  EXPECT_EQ(program_.Act(UserAction::kHover, warmt_.cmdToolBarT), kCarriedOut);
  EXPECT_TRUE(lang.Is_Active());
  EXPECT_EQ(program_.Click(warmt_.Label0), kCarriedOut);
  EXPECT_TRUE(warmt_.Is_Active());
  EXPECT_TRUE(lang.Shown());
}

TEST_F(AUserEvent, ThatFailsEndsTheProgramWithTheRuntimesWords) {
  EXPECT_EQ(program_.Set(warmt_.txtT(0), "40000"), kCarriedOut);
  EXPECT_EQ(program_.Printed(), "runtime error 6: Overflow\n");
  EXPECT_TRUE(program_.program.Ended());
  EXPECT_TRUE(program_.program.Failed());
  EXPECT_TRUE(Refused(program_.Set(warmt_.txtT(0), "60")));
}

TEST_F(AUserEvent, ThatFailsInsideAModalFormEndsTheProgramOnce) {
  program_.platform.play_modal = [this](Form&) {
    EXPECT_EQ(program_.Act(UserAction::kPickTab, program_.State().forms.settings->SSTab1, 0),
              kCarriedOut);
    EXPECT_EQ(program_.Set(program_.State().forms.settings->Text2(0), "99999"), kCarriedOut);
    EXPECT_EQ(program_.Click(program_.State().forms.settings->Command1), kCarriedOut);
    EXPECT_TRUE(program_.program.Ended());
  };
  EXPECT_EQ(program_.Click(warmt_.cmdToolBar4(0)), kCarriedOut);
  EXPECT_EQ(program_.Printed(), "runtime error 6: Overflow\n");
  EXPECT_TRUE(program_.program.Failed());
}

TEST_F(AUserEvent, OfTheClockIsIdleAfterTheEnd) {
  About& about = *program_.State().forms.about;
  about.Timer1.Set_Enabled(true);
  ASSERT_EQ(program_.Set(warmt_.txtT(0), "40000"), kCarriedOut);
  ASSERT_TRUE(program_.program.Ended());
  program_.program.Tick(about.Timer1);
  EXPECT_EQ(about.Tick_Count, 3);
}

TEST_F(AUserEvent, OfTheClockIsIdleOnceTheTimerIsDisabled) {
  About& about = *program_.State().forms.about;
  ASSERT_FALSE(about.Timer1.Enabled());
  program_.program.Tick(about.Timer1);
  EXPECT_EQ(about.Tick_Count, 3);
}

}  // namespace
}  // namespace norvane
