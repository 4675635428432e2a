#include "screen/model/field_model.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "../../data/error_of.h"
#include "../../support/watch.h"
#include "logged_form.h"
#include "screen/model/field_array.h"

namespace norvane {
namespace {

/// A form with a field of every kind.
class AllKinds : public LoggedForm {
 public:
  explicit AllKinds(LoggedDesk& desk) : LoggedForm(desk.desk, desk.log, "AllKinds") {}

  Button button{*this, "button"};
  PictureField picture{*this, "picture"};
  ListField list{*this, "list"};
  Stepper stepper{*this, "stepper", Field::kNoIndex, Text1, 1, 24};
  Tabs front{*this, "front", {"a", "b", "c"}};
  TickTimer timer{*this, "timer"};
};

class AField : public testing::Test {
 protected:
  using Told = std::vector<std::pair<std::string, Attribute>>;

  /// What the observer is told while `act` runs.
  Told Told_By(const std::function<void()>& act) {
    Told told;
    const Watch watch(form_, [&](const Field& field, Attribute attribute) {
      told.emplace_back(field.Name(), attribute);
    });
    act();
    return told;
  }

  /// Expects `act` to tell of one change, and to tell nothing when it is done again.
  void Tells_Once(const Field& field, Attribute attribute, const std::function<void()>& act) {
    EXPECT_EQ(Told_By(act), (Told{{field.Name(), attribute}}));
    EXPECT_EQ(Told_By(act), Told{});
  }

  LoggedDesk desk_;
  AllKinds form_{desk_};
};

using AListField = AField;
using AStepper = AField;
using ARowOfTabs = AField;
using AControlArray = AField;

TEST_F(AField, TellsOnceOfEachAttributeThatDiffers) {
  using enum Attribute;
  auto& text = form_.Text1;
  auto& label = form_.Label1;
  Tells_Once(text, kText, [&] { text.Set_Text("a"); });
  Tells_Once(text, kVisible, [&] { text.Set_Visible(false); });
  Tells_Once(text, kVisible, [&] { text.Set_Visible(true); });
  Tells_Once(text, kLocked, [&] { text.Set_Locked(true); });
  Tells_Once(text, kBackColor, [&] { text.Set_BackColor(kGrey); });
  Tells_Once(text, kBackColor, [&] { text.Set_BackColor(kSystemWindow); });
  Tells_Once(text, kFont, [&] { text.Set_Bold(true); });
  Tells_Once(text, kFont, [&] { text.Set_Font({"Arial", 8, true, 204}); });
  Tells_Once(text, kPlace, [&] { text.Set_Place({1, 2, 3, 4}); });
  Tells_Once(label, kCaption, [&] { label.Set_Caption("a"); });
  Tells_Once(label, kBackStyle, [&] { label.Set_BackStyle(BackStyle::kOpaque); });
  Tells_Once(label, kBackColor, [&] { label.Set_BackColor(kRed); });
  Tells_Once(form_.button, kCaption, [&] { form_.button.Set_Caption("OK"); });
  Tells_Once(form_.picture, kPicture, [&] { form_.picture.Set_Picture(20); });
  Tells_Once(form_.front, kTab, [&] { form_.front.Set_Tab(2); });
  Tells_Once(form_.front, kCaption, [&] { form_.front.Set_TabCaption(1, "x"); });
  Tells_Once(form_.timer, kEnabled, [&] { form_.timer.Set_Enabled(false); });
}

TEST_F(AField, TellsNothingForWhatItHasByDesign) {
  EXPECT_EQ(Told_By([&] {
              form_.Text1.Set_Text("");
              form_.Text1.Set_Visible(true);
              form_.Text1.Set_Locked(false);
              form_.Text1.Set_BackColor(kSystemWindow);
              form_.Text1.Set_Bold(false);
              form_.Label1.Set_BackColor(kGrey);
              form_.Label1.Set_BackStyle(BackStyle::kTransparent);
              form_.front.Set_Tab(0);
              form_.timer.Set_Enabled(true);
            }),
            Told{});
}

TEST_F(AField, TellsColoursApartByEachOfTheirParts) {
  for (const BackColor& other : {BackColor{9, 2, 3}, BackColor{1, 9, 3}, BackColor{1, 2, 9}}) {
    form_.Text1.Set_BackColor({1, 2, 3});
    Tells_Once(form_.Text1, Attribute::kBackColor, [&] { form_.Text1.Set_BackColor(other); });
  }
}

TEST_F(AField, TellsTheSystemsColourFromBlack) {
  EXPECT_NE(kSystemWindow, (BackColor{0, 0, 0}));
  Tells_Once(form_.Text1, Attribute::kBackColor, [&] { form_.Text1.Set_BackColor({0, 0, 0}); });
}

TEST_F(AField, OfAToolbarTellsWhenItsPictureChanges) {
  Button& button = form_.button;
  EXPECT_EQ(Told_By([&] { button.Take_Selection(); }), (Told{{"button", Attribute::kPicture}}));
  EXPECT_EQ(button.Picture(), ButtonPicture::kChosen);
  EXPECT_EQ(Told_By([&] { button.Lose_Selection(); }), (Told{{"button", Attribute::kPicture}}));
  EXPECT_EQ(button.Picture(), ButtonPicture::kPlain);
  EXPECT_EQ(Told_By([&] { button.Lose_Selection(); }), Told{});
}

TEST_F(AField, IsSilentWithoutAnObserver) {
  form_.Text1.Set_Text("a");
  EXPECT_EQ(form_.Text1.Text(), "a");
}

TEST_F(AField, GetsTheFocusWhereTheUserSeesItAlone) {
  EXPECT_EQ(Told_By([&] { desk_.desk.Set_Focus(form_.Text1); }),
            (Told{{"Text1", Attribute::kFocus}}));
  form_.Text2.Set_Visible(false);
  EXPECT_EQ(Error_Of([&] { desk_.desk.Set_Focus(form_.Text2); }), 5);
  form_.Label1.panel = &form_.picture;
  form_.picture.Set_Visible(false);
  EXPECT_EQ(Error_Of([&] { desk_.desk.Set_Focus(form_.Label1); }), 5);
  EXPECT_EQ(desk_.desk.Focus(), &form_.Text1);
}

TEST_F(AListField, TellsOfItsItemsAndOfItsChoice) {
  ListField& list = form_.list;
  EXPECT_EQ(Told_By([&] { list.Add_Item("a"); }), (Told{{"list", Attribute::kItems}}));
  list.Add_Item("b");
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), "");
  Tells_Once(list, Attribute::kListIndex, [&] { list.Set_ListIndex(1); });
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(Told_By([&] { list.Clear(); }), (Told{{"list", Attribute::kItems}}));
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), "");
}

TEST_F(AListField, HasNoItemsBesideThoseItHas) {
  form_.list.Add_Item("a");
  EXPECT_EQ(Error_Of([&] { form_.list.Set_ListIndex(1); }), 5);
  EXPECT_EQ(Error_Of([&] { form_.list.Set_ListIndex(-1); }), 5);
  EXPECT_EQ(form_.list.ListIndex(), -1);
}

TEST_F(AStepper, StepsFromTheRoundedTextAndStaysInItsRange) {
  const auto stepped = [&](const std::string& text, int direction) {
    form_.Text1.Set_Text(text);
    form_.stepper.Step(direction);
    return form_.Text1.Text();
  };
  EXPECT_EQ(stepped("8", 1), "9");
  EXPECT_EQ(stepped("8", -1), "7");
  EXPECT_EQ(stepped("2.5", 1), "3");
  EXPECT_EQ(stepped("3.5", 1), "5");
  EXPECT_EQ(stepped("24", 1), "24");
  EXPECT_EQ(stepped("1", -1), "1");
  EXPECT_EQ(stepped("-300", -1), "1");
  EXPECT_EQ(stepped("300", 1), "24");
  EXPECT_EQ(stepped("", 1), "1");
  EXPECT_EQ(stepped("", -1), "1");
  EXPECT_EQ(stepped("32767", 1), "24");
  EXPECT_EQ(Error_Of([&] { stepped("32768", -1); }), 6);
}

TEST_F(ARowOfTabs, RaisesClickWhenAnotherComesToTheFront) {
  int clicks = 0;
  form_.front.On_Click = [&] { ++clicks; };
  form_.front.Set_Tab(0);
  EXPECT_EQ(clicks, 0);
  form_.front.Set_Tab(1);
  form_.front.Set_Tab(1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ARowOfTabs, HasTheTabsOfItsCaptionsAlone) {
  Tabs& tabs = form_.front;
  EXPECT_EQ(tabs.TabCaption(0), "a");
  EXPECT_EQ(tabs.TabCaption(2), "c");
  for (const int outside : {-1, 3}) {
    EXPECT_EQ(Error_Of([&] { tabs.Set_Tab(outside); }), 5) << outside;
    EXPECT_EQ(Error_Of([&] { tabs.TabCaption(outside); }), 5) << outside;
    EXPECT_EQ(Error_Of([&] { tabs.Set_TabCaption(outside, "x"); }), 5) << outside;
  }
  EXPECT_EQ(tabs.Tab(), 0);
}

TEST_F(ARowOfTabs, HidesNothingOnAFormThatHasNone) {
  form_.Text1.on_tab = 1;
  EXPECT_TRUE(form_.Shows(form_.Text1));
}

TEST_F(ARowOfTabs, ShowsTheFieldsOfItsFrontAlone) {
  form_.tabs = &form_.front;
  form_.Text1.on_tab = 0;
  form_.Text2.on_tab = 1;
  EXPECT_TRUE(form_.Shows(form_.Text1));
  EXPECT_FALSE(form_.Shows(form_.Text2));
  EXPECT_TRUE(form_.Shows(form_.Label1));
  form_.front.Set_Tab(1);
  EXPECT_FALSE(form_.Shows(form_.Text1));
  EXPECT_TRUE(form_.Shows(form_.Text2));
}

TEST_F(AControlArray, HasTheElementsOfItsBoundsAlone) {
  FieldArray<TextField> array(form_, "array", 0, 4);
  for (int i = 0; i <= 4; ++i) {
    EXPECT_EQ(array(i).Index(), i);
    EXPECT_EQ(array(i).Name(), "array");
  }
  EXPECT_EQ(array.UBound(), 4);
  for (const int outside : {-1, 5, 100, -32768, 32767}) {
    EXPECT_EQ(Error_Of([&] { array(outside); }), 9) << outside;
  }
}

TEST_F(AControlArray, MayBeginAboveZero) {
  FieldArray<TextField> array(form_, "array", 1, 1);
  EXPECT_EQ(array.UBound(), 1);
  EXPECT_EQ(array(1).Index(), 1);
  EXPECT_EQ(Error_Of([&] { array(0); }), 9);
  EXPECT_EQ(Error_Of([&] { array(2); }), 9);
}

TEST_F(AControlArray, IsFoundOnItsFormByNameAndIndex) {
  FieldArray<TextField> array(form_, "array", 0, 1);
  EXPECT_EQ(form_.Find("array", 1), &array(1));
  EXPECT_EQ(form_.Find("array", 2), nullptr);
  EXPECT_EQ(form_.Find("array", Field::kNoIndex), nullptr);
  EXPECT_EQ(form_.Find("Text1", Field::kNoIndex), &form_.Text1);
  EXPECT_EQ(form_.Find("text1", Field::kNoIndex), nullptr);
}

}  // namespace
}  // namespace norvane
