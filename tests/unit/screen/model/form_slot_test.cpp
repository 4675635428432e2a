#include "screen/model/form_slot.h"

#include <gtest/gtest.h>

#include <memory>

#include "../../support/watch.h"
#include "logged_form.h"

namespace norvane {
namespace {

using Slot = FormSlot<LoggedForm>;

class AFormOnce : public testing::Test {
 protected:
  LoggedDesk desk_;
};

TEST_F(AFormOnce, IsMadeAtItsFirstReferenceAndNotBefore) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  EXPECT_FALSE(slot.Loaded());
  EXPECT_EQ(desk_.Logged(), Log{});
  slot.Get();
  EXPECT_TRUE(slot.Loaded());
  EXPECT_EQ(desk_.Logged(), (Log{"Form is made", "display gets Form", "Form Load"}));
}

TEST_F(AFormOnce, HasRunItsLoadBeforeTheReferenceCompletes) {
  Slot slot(desk_.desk, desk_.Maker("Form", [](LoggedForm& form) {
    form.on_load = [&form] { form.Text1.Set_Text("loaded"); };
  }));
  EXPECT_EQ(slot->Text1.Text(), "loaded");
}

TEST_F(AFormOnce, IsTheSameFormForEveryReference) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  LoggedForm& form = *slot;
  EXPECT_EQ(&slot.Get(), &form);
  EXPECT_EQ(desk_.Logged().size(), 3U);
}

TEST_F(AFormOnce, IsReachedByItsOwnLoadWithoutBeingMadeAgain) {
  Slot* itself = nullptr;
  Slot slot(desk_.desk, desk_.Maker("Form", [&](LoggedForm& form) {
    form.on_load = [&] { (*itself)->Text1.Set_Text("set in Load"); };
  }));
  itself = &slot;
  EXPECT_EQ(slot->Text1.Text(), "set in Load");
  EXPECT_EQ(desk_.Logged(), (Log{"Form is made", "display gets Form", "Form Load"}));
}

TEST_F(AFormOnce, LoadsAnotherFormInTheMidstOfItsOwnLoad) {
  Slot second(desk_.desk, desk_.Maker("Second"));
  Slot first(desk_.desk, desk_.Maker("First", [&](LoggedForm& form) {
    form.on_load = [&] {
      second.Get();
      desk_.log.push_back("First goes on");
    };
  }));
  first.Get();
  EXPECT_EQ(desk_.Logged(),
            (Log{"First is made", "display gets First", "First Load", "Second is made",
                 "display gets Second", "Second Load", "First goes on"}));
}

TEST_F(AFormOnce, MayHaveNoHandlersOfItsOwn) {
  FormReference plain(desk_.desk,
                      [this] { return std::make_unique<Form>(desk_.desk, "Plain", 3000, 2000); });
  Form& form = plain.Get();
  form.Show();
  form.Hover();
  form.Close_Box();
  EXPECT_TRUE(form.Is_Active());
  EXPECT_EQ(desk_.Logged(), Log{"display gets Plain"});
}

TEST_F(AFormOnce, IsNotShownByBeingLoadedOrHidden) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  slot->Hide();
  EXPECT_TRUE(slot.Loaded());
  EXPECT_FALSE(slot->Shown());
  EXPECT_EQ(desk_.desk.Active(), nullptr);
  EXPECT_EQ(desk_.Logged(), (Log{"Form is made", "display gets Form", "Form Load"}));
}

TEST_F(AFormOnce, IsMadeAfreshAfterItWasUnloaded) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  slot->Text1.Set_Text("kept by nobody");
  slot.Unload();
  EXPECT_FALSE(slot.Loaded());
  desk_.Logged();
  EXPECT_EQ(slot->Text1.Text(), "");
  EXPECT_EQ(desk_.Logged(), (Log{"Form is made", "display gets Form", "Form Load"}));
}

TEST_F(AFormOnce, IsLoadedInOrderToBeUnloaded) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  slot.Unload();
  EXPECT_EQ(desk_.Logged(),
            (Log{"Form is made", "display gets Form", "Form Load", "display loses Form"}));
}

TEST_F(AFormOnce, LivesOnUntilTheEventIsOverThatUnloadedIt) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  LoggedForm& form = *slot;
  slot.Unload();
  EXPECT_EQ(form.Name(), "Form");
  EXPECT_NE(&slot.Get(), &form);
  desk_.Logged();
  desk_.desk.Forget_Unloaded();
  EXPECT_EQ(desk_.Logged(), Log{"Form is gone"});
}

TEST_F(AFormOnce, TellsWhereItLayWithoutComingBack) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  slot->Set_Place({1, 2, 3, 4});
  EXPECT_EQ(slot.Last_Place(), (Place{1, 2, 3, 4}));
  slot.Unload();
  desk_.desk.Forget_Unloaded();
  EXPECT_EQ(slot.Last_Place(), (Place{1, 2, 3, 4}));
  EXPECT_FALSE(slot.Loaded());
}

TEST_F(AFormOnce, IsLoadedToTellWhereItLies) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  EXPECT_EQ(slot.Last_Place(), (Place{0, 0, 3000, 2000}));
  EXPECT_TRUE(slot.Loaded());
}

TEST_F(AFormOnce, MayUnloadItselfInsideItsOwnHandler) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  LoggedForm& form = *slot;
  form.Text1.On_Change = [&] {
    slot.Unload();
    form.Text2.Set_Text("written behind the unloading");
    desk_.log.push_back(form.Text2.Text());
  };
  form.Show();
  desk_.Logged();
  form.Text1.Set_Text("a");
  EXPECT_EQ(desk_.Logged(), (Log{"display loses Form", "written behind the unloading"}));
  EXPECT_FALSE(slot.Loaded());
  EXPECT_EQ(desk_.desk.Active(), nullptr);
}

TEST_F(AFormOnce, TellsItsObserverNothingAnyMoreOnceItWasUnloaded) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  LoggedForm& form = *slot;
  int told = 0;
  const Watch watch(form, [&](const Field&, Attribute) { ++told; });
  form.Text1.Set_Text("a");
  EXPECT_EQ(told, 1);
  slot.Unload();
  form.Text1.Set_Text("b");
  EXPECT_EQ(told, 1);
}

TEST_F(AFormOnce, LosesTheFocusWhenItIsUnloaded) {
  Slot slot(desk_.desk, desk_.Maker("Form"));
  Slot other(desk_.desk, desk_.Maker("Other"));
  desk_.desk.Set_Focus(slot->Text1);
  other.Unload();
  EXPECT_EQ(desk_.desk.Focus(), &slot->Text1);
  slot.Unload();
  EXPECT_EQ(desk_.desk.Focus(), nullptr);
}

TEST_F(AFormOnce, GivesTheFocusToTheFormInFrontWhenItIsUnloadedUnseen) {
  LoggedForm front(desk_.desk, desk_.log, "Front");
  Slot slot(desk_.desk, desk_.Maker("Form"));
  front.Show();
  desk_.desk.Set_Focus(front.Text2);
  desk_.desk.Set_Focus(slot->Text1);
  slot.Unload();
  EXPECT_EQ(desk_.desk.Focus(), &front.Text2);
}

}  // namespace
}  // namespace norvane
