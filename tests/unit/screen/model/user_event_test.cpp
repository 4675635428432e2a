#include "screen/model/user_event.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "logged_form.h"
#include "screen/model/carry_out.h"
#include "screen/model/grid.h"

namespace norvane {
namespace {

const std::optional<std::string> kCarriedOut;

/// A kind of field that this test brings along: the whole of it is this class.
class Slider : public Field {
 public:
  using Field::Field;

  std::optional<std::string> Reason_To_Refuse(const UserEvent& event) const override {
    if (event.action != UserAction::kChoose) return Field::Reason_To_Refuse(event);
    if (event.first < 0 || event.first > 100) return "beyond the scale";
    return std::nullopt;
  }
  void Carry_Out(const UserEvent& event) override {
    if (event.action != UserAction::kChoose) return Field::Carry_Out(event);
    value = event.first;
  }

  int value = 50;
};

class AnEventOfAUser : public testing::Test {
 protected:
  AnEventOfAUser() {
    list_.Add_Item("a");
    list_.Add_Item("b");
    grid_.Start({"", "caption"}, {300, 2000});
    grid_.Add_Item("\tfirst");
    form_.Show();
    desk_.Logged();
  }

  /// Why the event is refused; it is carried out when it isn't.
  std::optional<std::string> Act(UserAction action, Field& field, int first = 0, int last = 0) {
    UserEvent event{action, form_, &field, "typed", first, last};
    auto reason = Reason_To_Refuse(desk_.desk, event);
    if (!reason) Carry_Out(desk_.desk, event);
    return reason;
  }

  LoggedDesk desk_;
  LoggedForm form_{desk_.desk, desk_.log, "Form"};
  TextField& text_ = form_.Text1;
  CaptionField& caption_ = form_.Label1;
  Button button_{form_, "button"};
  PictureField picture_{form_, "picture"};
  ListField list_{form_, "list"};
  SpinPair pair_{form_, "pair"};
  Stepper stepper_{form_, "stepper", Field::kNoIndex, form_.Text2, 1, 24};
  Tabs tabs_{form_, "tabs", {"a", "b"}};
  Grid grid_{form_, "grid"};
  Slider slider_{form_, "slider"};
};

TEST_F(AnEventOfAUser, IsTakenByTheKindOfFieldThatItIsMeantFor) {
  EXPECT_EQ(Act(UserAction::kSetText, text_), kCarriedOut);
  EXPECT_EQ(text_.Text(), "typed");
  EXPECT_EQ(Act(UserAction::kChoose, list_, 1), kCarriedOut);
  EXPECT_EQ(list_.ListIndex(), 1);
  EXPECT_EQ(Act(UserAction::kUp, stepper_), kCarriedOut);
  EXPECT_EQ(form_.Text2.Text(), "1");
  EXPECT_EQ(Act(UserAction::kPickTab, tabs_, 1), kCarriedOut);
  EXPECT_EQ(tabs_.Tab(), 1);
  EXPECT_EQ(Act(UserAction::kPickRows, grid_, 1, 1), kCarriedOut);
  EXPECT_EQ(grid_.Row(), 1);
}

TEST_F(AnEventOfAUser, IsRefusedByEveryOtherKindInTheWordsOfTheAction) {
  for (Field* field : form_.Fields()) {
    if (field != &text_ && field != &form_.Text2) {
      EXPECT_EQ(Act(UserAction::kSetText, *field), "not a text field") << field->Name();
    }
    if (field != &pair_ && field != &stepper_) {
      EXPECT_EQ(Act(UserAction::kDown, *field), "not a spin pair") << field->Name();
      EXPECT_EQ(Act(UserAction::kUp, *field), "not a spin pair") << field->Name();
    }
    if (field != &list_ && field != &slider_) {
      EXPECT_EQ(Act(UserAction::kChoose, *field), "not a list") << field->Name();
    }
    if (field != &tabs_) {
      EXPECT_EQ(Act(UserAction::kPickTab, *field), "no tabs") << field->Name();
    }
    if (field != &grid_) {
      EXPECT_EQ(Act(UserAction::kPickRows, *field, 1, 1), "not a grid") << field->Name();
    }
  }
}

TEST_F(AnEventOfAUser, IsRefusedByAFieldThatHasNoPlaceForIt) {
  text_.Set_Locked(true);
  EXPECT_EQ(Act(UserAction::kSetText, text_), "the field is locked");
  EXPECT_EQ(Act(UserAction::kChoose, list_, 2), "no such item");
  EXPECT_EQ(Act(UserAction::kChoose, list_, -1), "no such item");
  EXPECT_EQ(Act(UserAction::kPickTab, tabs_, 2), "no such tab");
  EXPECT_EQ(Act(UserAction::kPickTab, tabs_, -1), "no such tab");
  EXPECT_EQ(Act(UserAction::kPickRows, grid_, 0, 1), "no such line");
  EXPECT_EQ(Act(UserAction::kPickRows, grid_, 1, 2), "no such line");
}

TEST_F(AnEventOfAUser, IsRefusedWhereTheUserCouldNotReachTheField) {
  button_.Set_Visible(false);
  EXPECT_EQ(Act(UserAction::kClick, button_), "the field isn't visible");
  LoggedForm other(desk_.desk, desk_.log, "Other");
  desk_.display.while_modal = [&](Form& form) {
    EXPECT_EQ(Act(UserAction::kClick, text_), "another form is open");
    form.Hide();
  };
  other.Show_Modal();
  form_.has_close_box = false;
  EXPECT_EQ(Reason_To_Refuse(desk_.desk, {UserAction::kCloseBox, form_}), "no close box");
  form_.Hide();
  EXPECT_EQ(Act(UserAction::kClick, text_), "the form isn't shown");
  desk_.desk.End();
  EXPECT_EQ(Act(UserAction::kClick, text_), "the program has ended");
}

TEST_F(AnEventOfAUser, RaisesTheHandlerOfAnyKind) {
  for (Field* field : form_.Fields()) {
    std::string raised;
    field->On_Click = [&] { raised += "click "; };
    field->On_Hover = [&] { raised += "hover "; };
    EXPECT_EQ(Act(UserAction::kClick, *field), kCarriedOut);
    EXPECT_EQ(Act(UserAction::kHover, *field), kCarriedOut);
    EXPECT_EQ(raised, "click hover ") << field->Name();
  }
}

TEST_F(AnEventOfAUser, RaisesDownAndUpOfASpinPair) {
  std::string steps;
  pair_.On_Down = [&] { steps += "down "; };
  pair_.On_Up = [&] { steps += "up "; };
  Act(UserAction::kUp, pair_);
  Act(UserAction::kDown, pair_);
  EXPECT_EQ(steps, "up down ");
  pair_.On_Up = nullptr;
  EXPECT_EQ(Act(UserAction::kUp, pair_), kCarriedOut);
}

TEST_F(AnEventOfAUser, TakesTheFocusWithItUnlessTheFieldHasNoneToTake) {
  for (Field* field : form_.Fields()) {
    desk_.desk.Set_Focus(form_.Text2);
    Act(UserAction::kClick, *field);
    const bool stays = field == &caption_ || field == &picture_ || field == &pair_ ||
                       field == &stepper_ || field == &form_.Text2;
    EXPECT_EQ(desk_.desk.Focus() == &form_.Text2, stays) << field->Name();
  }
}

TEST_F(AnEventOfAUser, LeavesTheFocusWhereItIsWhenTheMouseOnlyMoves) {
  desk_.desk.Set_Focus(text_);
  Act(UserAction::kHover, button_);
  EXPECT_EQ(desk_.desk.Focus(), &text_);
}

TEST_F(AnEventOfAUser, ReachesAKindOfFieldThatNobodyElseKnows) {
  EXPECT_EQ(Act(UserAction::kChoose, slider_, 70), kCarriedOut);
  EXPECT_EQ(slider_.value, 70);
  EXPECT_EQ(Act(UserAction::kChoose, slider_, 101), "beyond the scale");
  EXPECT_EQ(slider_.value, 70);
  EXPECT_EQ(desk_.desk.Focus(), &slider_);
}

TEST_F(AnEventOfAUser, OnAFormGivesItItsSize) {
  UserEvent event{UserAction::kResize, form_};
  event.width = 4000;
  event.height = 5000;
  Carry_Out(desk_.desk, event);
  EXPECT_EQ(form_.Place(), (Place{0, 0, 4000, 5000}));
  EXPECT_EQ(desk_.Logged(), Log{"Form Resize"});
}

TEST_F(AnEventOfAUser, OnAFormGivesItItsPlaceAndRunsNothing) {
  UserEvent event{UserAction::kMove, form_};
  event.left = -300;
  event.top = 450;
  Carry_Out(desk_.desk, event);
  EXPECT_EQ(form_.Place(), (Place{-300, 450, 3000, 2000}));
  EXPECT_EQ(desk_.Logged(), Log{});
}

}  // namespace
}  // namespace norvane
