#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <sstream>

#include "../support/test_folder.h"
#include "../support/test_program.h"
#include "../support/unreadable_file.h"
#include "frame/about_form.h"
#include "frame/lang_form.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

/// A display on which something goes on while a message box stands open, or while the program lets
/// events run.
class BusyPlatform : public HeadlessPlatform {
 public:
  using HeadlessPlatform::HeadlessPlatform;

  MessageAnswer Message(const UserMessage& message) override {
    if (on_message) on_message();
    return HeadlessPlatform::Message(message);
  }
  void Let_Events_Run() override {
    if (on_yield) on_yield();
  }

  std::function<void()> on_message;
  std::function<void()> on_yield;
};

class AnEventLoop : public testing::Test {
 protected:
  AnEventLoop() { folder_.Write("language.len", Numbered_Language_File()); }

  void Tick_Three_Times() {
    for (int i = 0; i < 3; ++i) program_.Tick(forms().about->Timer1);
  }
  void Click(Field& field) { program_.Dispatch({UserAction::kClick, field.form(), &field}); }
  Forms& forms() { return program_.State().forms; }

  TestFolder folder_;
  std::ostringstream out_;
  BusyPlatform platform_{folder_.Path(), '.', out_};
  Program program_{platform_};
};

TEST_F(AnEventLoop, DeliversNoTickWhileAMessageOfTheStartStandsOpen) {
  const UnreadableFile german(folder_ / "language.lde");
  platform_.on_message = [this] { Tick_Three_Times(); };
  program_.Main();
  EXPECT_EQ(out_.str(), "message Norvane | Unable to find Language file | none | ok -> ok\n");
  EXPECT_EQ(forms().about->Tick_Count, 0);
  Tick_Three_Times();
  EXPECT_TRUE(forms().warmt->Shown());
  EXPECT_FALSE(forms().about->Shown());
}

TEST_F(AnEventLoop, DeliversNoTickBeforeTheMainScreenIsLoaded) {
  platform_.on_yield = [this] { Tick_Three_Times(); };
  program_.Main();
  EXPECT_FALSE(forms().warmt->Shown());
  platform_.on_yield = {};
  Tick_Three_Times();
  EXPECT_TRUE(forms().warmt->Shown());
}

TEST_F(AnEventLoop, MayUnloadTheLanguageDialogThatLetItRun) {
  program_.Main();
  Tick_Three_Times();
  Warmt& warmt = *forms().warmt;
  Click(warmt.cmdAdd);
  Click(warmt.lblMenu(1));
  platform_.answers = {MessageAnswer::kNo, MessageAnswer::kYes};
  platform_.on_yield = [&] {
    platform_.on_yield = {};
    Click(forms().lang->Label2(0));
    Click(warmt.cmdAdd);
  };
  Click(forms().lang->Label2(0));
  EXPECT_EQ(program_.State().desk.Active(), &forms().lang.Get());
  EXPECT_EQ(program_.State().Calc_List.size(), 2U);
  Click(forms().lang->OK);
  EXPECT_EQ(program_.State().desk.Active(), &warmt);
}

}  // namespace
}  // namespace norvane
