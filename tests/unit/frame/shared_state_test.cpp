#include "frame/shared_state.h"

#include <gtest/gtest.h>

#include "../support/test_program.h"
#include "data/runtime_error.h"
#include "frame/about_form.h"

namespace norvane {
namespace {

class TheCharacterSet : public testing::Test {
 protected:
  Module1& State() { return program_.State(); }
  void Give(int slot, const std::string& charset) {
    State().languages.Lang_Charset[static_cast<std::size_t>(slot)] = charset;
  }
  int Error_Of_A_Font(int slot) {
    try {
      State().Font_Charset(slot);
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  TestProgram program_;
};

TEST_F(TheCharacterSet, OfALanguageIsTheNumberOfItsHeader) {
  Give(5, " 161 ");
  EXPECT_EQ(State().Font_Charset(5), 161);
  EXPECT_EQ(State().Text_Charset(5), 161);
}

TEST_F(TheCharacterSet, OfAFreeSlotIsZero) {
  EXPECT_EQ(State().Font_Charset(5), 0);
  EXPECT_EQ(State().Text_Charset(5), 0);
}

TEST_F(TheCharacterSet, ThatIsNoNumberIsRefusedToAFont) {
  Give(5, "");
  EXPECT_EQ(Error_Of_A_Font(5), 13);
  Give(5, "Baltic");
  EXPECT_EQ(Error_Of_A_Font(5), 13);
  Give(5, "99999");
  EXPECT_EQ(Error_Of_A_Font(5), 6);
}

TEST_F(TheCharacterSet, ThatIsNoNumberLeavesTextsWestern) {
  for (const char* broken : {"", "Baltic", "99999"}) {
    Give(5, broken);
    EXPECT_EQ(State().Text_Charset(5), 0) << broken;
  }
}

TEST_F(TheCharacterSet, OfAFieldIsThatOfItsFontOrOfTheCurrentLanguage) {
  Give(0, "204");
  CaptionField& field = State().forms.about->Label1;
  field.Set_Font({"Arial", 9, false, std::nullopt});
  EXPECT_EQ(State().Text_Charset(field), 204);
  field.Set_Font({"Arial", 9, false, 161});
  EXPECT_EQ(State().Text_Charset(field), 161);
}

TEST_F(TheCharacterSet, GoesWithAMessage) {
  Give(0, "204");
  State().Message("\xE9", "\xE9", MessageIcon::kNone, MessageButtons::kOk);
  EXPECT_EQ(program_.Printed(), "message й | й | none | ok -> ok\n");
}

}  // namespace
}  // namespace norvane
