#include "screen/model/desk.h"

#include <gtest/gtest.h>

#include "../../support/watch.h"
#include "logged_form.h"

namespace norvane {
namespace {

class ADesk : public testing::Test {
 protected:
  LoggedDesk desk_;
  LoggedForm a_{desk_.desk, desk_.log, "A"};
  LoggedForm b_{desk_.desk, desk_.log, "B"};
  LoggedForm c_{desk_.desk, desk_.log, "C"};
};

using AModalForm = ADesk;

TEST_F(ADesk, GivesAFormItsSizeBeforeItsFirstActivationAlone) {
  a_.Show();
  EXPECT_EQ(desk_.Logged(), (Log{"A Resize", "A Activate"}));
  a_.Hide();
  a_.Show();
  EXPECT_EQ(desk_.Logged(), Log{"A Activate"});
}

TEST_F(ADesk, RaisesNothingForTheFormThatIsActiveAlready) {
  a_.Show();
  desk_.Logged();
  a_.Show();
  EXPECT_EQ(desk_.Logged(), Log{});
}

TEST_F(ADesk, MakesTheFormThatIsShownTheActiveOne) {
  EXPECT_EQ(desk_.desk.Active(), nullptr);
  a_.Show();
  b_.Show();
  EXPECT_TRUE(b_.Is_Active());
  EXPECT_FALSE(a_.Is_Active());
  EXPECT_TRUE(a_.Shown());
}

TEST_F(ADesk, ActivatesTheFormShownBeforeWhenTheActiveOneGoes) {
  a_.Show();
  b_.Show();
  c_.Show();
  desk_.Logged();
  c_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{"B Activate"});
  b_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{"A Activate"});
  a_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{});
  EXPECT_EQ(desk_.desk.Active(), nullptr);
}

TEST_F(ADesk, ActivatesNothingWhenAFormBehindGoes) {
  a_.Show();
  b_.Show();
  desk_.Logged();
  a_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{});
  b_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{});
}

TEST_F(ADesk, OrdersTheFormsByWhenTheyWereLastInFront) {
  a_.Show();
  b_.Show();
  c_.Show();
  a_.Show();
  desk_.Logged();
  a_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{"C Activate"});
  c_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{"B Activate"});
}

TEST_F(ADesk, HidesAFormThatIsNotShownWithoutAWord) {
  a_.Show();
  desk_.Logged();
  b_.Hide();
  EXPECT_EQ(desk_.Logged(), Log{});
  EXPECT_TRUE(a_.Is_Active());
}

TEST_F(ADesk, GivesTheFocusBackToTheFormThatComesToTheFront) {
  a_.Show();
  desk_.desk.Set_Focus(a_.Text1);
  desk_.desk.Set_Focus(a_.Text2);
  b_.Show();
  desk_.desk.Set_Focus(b_.Text1);
  c_.Show();
  desk_.desk.Set_Focus(c_.Text1);
  b_.Hide();
  EXPECT_EQ(desk_.desk.Focus(), &c_.Text1);
  c_.Hide();
  EXPECT_EQ(desk_.desk.Focus(), &a_.Text2);
  a_.Hide();
  EXPECT_EQ(desk_.desk.Focus(), nullptr);
}

TEST_F(ADesk, HasNoFocusWhereTheFormThatComesToTheFrontHadNone) {
  a_.Show();
  b_.Show();
  desk_.desk.Set_Focus(b_.Text1);
  b_.Hide();
  EXPECT_EQ(desk_.desk.Focus(), nullptr);
}

TEST_F(ADesk, GivesTheFocusBackBeforeTheActivateOfTheFormThatComesToTheFront) {
  a_.Show();
  desk_.desk.Set_Focus(a_.Text1);
  b_.Show();
  desk_.desk.Set_Focus(b_.Text1);
  a_.on_activate = [&] { desk_.desk.Set_Focus(a_.Text2); };
  b_.Hide();
  EXPECT_EQ(desk_.desk.Focus(), &a_.Text2);
}

TEST_F(ADesk, TellsTheObserverOfAFormWhenItIsShownAndWhenItIsActive) {
  std::vector<FormAttribute> told;
  const Watch watch(
      a_, [](const Field&, Attribute) {},
      [&](FormAttribute attribute) { told.push_back(attribute); });
  using Told = std::vector<FormAttribute>;
  using enum FormAttribute;
  a_.Show();
  EXPECT_EQ(std::exchange(told, {}), (Told{kShown, kActive}));
  b_.Show();
  a_.Show();
  EXPECT_EQ(std::exchange(told, {}), Told{kActive});
  a_.Hide();
  EXPECT_EQ(std::exchange(told, {}), Told{kShown});
  a_.Set_Caption("x");
  a_.Set_Caption("x");
  a_.Set_Size(1, 2);
  a_.Set_Size(1, 2);
  a_.Set_MousePointer(MousePointer::kHourglass);
  a_.Set_MousePointer(MousePointer::kHourglass);
  EXPECT_EQ(told, (Told{kCaption, kPlace, kMousePointer}));
}

TEST_F(ADesk, PutsAFormIntoTheMiddleOfTheScreen) {
  a_.Set_Size(12000, 9001);
  a_.Centre();
  EXPECT_EQ(a_.Place(), (Place{1680, 1259.5, 12000, 9001}));
}

TEST_F(ADesk, LetsAFormHideItselfInItsActivation) {
  a_.Show();
  b_.on_activate = [this] { b_.Hide(); };
  desk_.Logged();
  b_.Show();
  EXPECT_EQ(desk_.Logged(), (Log{"B Resize", "B Activate", "A Activate"}));
  EXPECT_TRUE(a_.Is_Active());
}

TEST_F(AModalForm, ReturnsToWhoeverShowedItWhenItWasHidden) {
  a_.Show();
  desk_.display.while_modal = [this](Form& form) {
    EXPECT_EQ(&form, &b_);
    EXPECT_TRUE(b_.Is_Modal());
    EXPECT_EQ(desk_.desk.Modal(), &b_);
    b_.Hide();
    EXPECT_FALSE(b_.Is_Modal());
  };
  desk_.Logged();
  b_.Show_Modal();
  desk_.log.push_back("behind it");
  EXPECT_EQ(desk_.Logged(),
            (Log{"B Resize", "B Activate", "B is modal", "A Activate", "behind it"}));
  EXPECT_EQ(desk_.desk.Modal(), nullptr);
}

TEST_F(AModalForm, MayBeOpenOverAnother) {
  desk_.display.while_modal = [this](Form& form) {
    if (&form == &a_) {
      b_.Show_Modal();
      EXPECT_EQ(desk_.desk.Modal(), &a_);
    } else {
      EXPECT_EQ(desk_.desk.Modal(), &b_);
      EXPECT_TRUE(a_.Is_Modal());
    }
    form.Hide();
  };
  a_.Show_Modal();
  EXPECT_EQ(desk_.desk.Modal(), nullptr);
  EXPECT_EQ(desk_.desk.Active(), nullptr);
}

TEST_F(AModalForm, IsNotWaitedForWhenItHidItselfInItsActivation) {
  b_.on_activate = [this] { b_.Hide(); };
  b_.Show_Modal();
  EXPECT_EQ(desk_.Logged(), (Log{"B Resize", "B Activate"}));
  EXPECT_EQ(desk_.desk.Modal(), nullptr);
}

TEST_F(AModalForm, MayBeUnloadedWhileItIsOpen) {
  FormSlot<LoggedForm> slot(desk_.desk, desk_.Maker("D"));
  a_.Show();
  desk_.display.while_modal = [&](Form&) { slot.Unload(); };
  slot->Show_Modal();
  EXPECT_FALSE(slot.Loaded());
  EXPECT_EQ(desk_.desk.Modal(), nullptr);
  EXPECT_TRUE(a_.Is_Active());
}

TEST_F(AModalForm, DoesNotReturnWhenTheProgramEndedMeanwhile) {
  desk_.display.while_modal = [this](Form&) { desk_.desk.End(); };
  EXPECT_THROW(b_.Show_Modal(), ProgramEnd);
  EXPECT_TRUE(desk_.desk.Ended());
}

TEST_F(ADesk, EndsWhateverLetsEventsRunAfterTheEnd) {
  EXPECT_NO_THROW(desk_.desk.Let_Events_Run());
  EXPECT_THROW(desk_.desk.Quit(), ProgramEnd);
  EXPECT_TRUE(desk_.desk.Ended());
  EXPECT_THROW(desk_.desk.Let_Events_Run(), ProgramEnd);
}

}  // namespace
}  // namespace norvane
