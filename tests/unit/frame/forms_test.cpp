#include <gtest/gtest.h>

#include <optional>

#include "../support/test_program.h"
#include "catalogue/address_form.h"
#include "catalogue/settings_form.h"
#include "frame/about_form.h"
#include "frame/lang_form.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

TEST(TheFormsOfTheProgram, AreLoadedInTheirOrderAtTheStart) {
  TestProgram program;
  Forms& forms = program.State().forms;
  EXPECT_FALSE(forms.about.Loaded());
  EXPECT_FALSE(forms.warmt.Loaded());
  program.program.Main();
  EXPECT_TRUE(forms.about.Loaded());
  EXPECT_TRUE(forms.warmt.Loaded());
  EXPECT_TRUE(forms.settings.Loaded());
  EXPECT_TRUE(forms.lang.Loaded());
  EXPECT_FALSE(forms.address.Loaded());
  EXPECT_FALSE(forms.total.Loaded());
  EXPECT_TRUE(forms.about->Is_Active());
  EXPECT_FALSE(forms.warmt->Shown());
  program.program.Tick(forms.about->Timer1);
  EXPECT_TRUE(forms.address.Loaded());
  EXPECT_FALSE(forms.total.Loaded());
}

TEST(TheFormsOfTheProgram, LetTheTotalScreenCloseItselfWhenItHasNothingToShow) {
  TestProgram program;
  program.Start();
  program.Main_Screen().cmdToolBar0(0).Set_Visible(true);
  EXPECT_EQ(program.Click(program.Main_Screen().cmdToolBar0(0)), std::nullopt);
  EXPECT_FALSE(program.State().forms.total.Loaded());
  EXPECT_TRUE(program.Main_Screen().Is_Active());
  EXPECT_EQ(program.Printed(), "");
}

TEST(TheFormsOfTheProgram, MayBeReachedBeforeTheStart) {
  TestProgram program;
  program.program.Run([&] {
    Forms& forms = program.State().forms;
    EXPECT_EQ(forms.address->Name(), "Address");
    EXPECT_EQ(forms.lang->Name(), "Lang");
    EXPECT_EQ(forms.settings->Name(), "Settings");
    EXPECT_TRUE(forms.warmt.Loaded());
  });
  EXPECT_FALSE(program.program.Failed());
}

TEST(TheFormsOfTheProgram, LoadTheMainScreenForTheTotalScreenToLieBeside) {
  TestProgram program;
  program.program.Run([&] {
    Forms& forms = program.State().forms;
    const Place& total = forms.total->Place();
    ASSERT_TRUE(forms.warmt.Loaded());
    EXPECT_EQ(total.left, forms.warmt->Place().left + 1600);
  });
  EXPECT_FALSE(program.program.Failed());
}

}  // namespace
}  // namespace norvane
