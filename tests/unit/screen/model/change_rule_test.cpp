#include <gtest/gtest.h>

#include <string>

#include "../../support/watch.h"
#include "logged_form.h"

namespace norvane {
namespace {

class TheChangeRule : public testing::Test {
 protected:
  LoggedDesk desk_;
  LoggedForm form_{desk_.desk, desk_.log, "Form"};
  TextField& field_ = form_.Text1;
  TextField& other_ = form_.Text2;
};

TEST_F(TheChangeRule, RaisesChangeInsideTheAssignment) {
  field_.On_Change = [&] { desk_.log.push_back("change to " + field_.Text()); };
  desk_.log.push_back("before");
  field_.Set_Text("a");
  desk_.log.push_back("behind");
  EXPECT_EQ(desk_.Logged(), (Log{"before", "change to a", "behind"}));
}

TEST_F(TheChangeRule, RaisesNothingForTheTextThatIsThere) {
  int changes = 0;
  field_.On_Change = [&] { ++changes; };
  field_.Set_Text("");
  EXPECT_EQ(changes, 0);
  field_.Set_Text("a");
  field_.Set_Text("a");
  EXPECT_EQ(changes, 1);
  field_.Set_Text("A");
  field_.Set_Text("A ");
  field_.Set_Text(std::string("A \0", 3));
  EXPECT_EQ(changes, 4);
}

TEST_F(TheChangeRule, RunsANestedHandlerToItsEndBeforeTheAssignmentReturns) {
  field_.On_Change = [&] {
    const std::string text = field_.Text();
    desk_.log.push_back("begin " + text);
    if (text.size() < 3) field_.Set_Text(text + "x");
    desk_.log.push_back("end " + text + " with " + field_.Text());
  };
  field_.Set_Text("x");
  EXPECT_EQ(desk_.Logged(), (Log{"begin x", "begin xx", "begin xxx", "end xxx with xxx",
                                 "end xx with xxx", "end x with xxx"}));
}

TEST_F(TheChangeRule, NestsThroughOtherFields) {
  field_.On_Change = [&] {
    desk_.log.push_back("first begins");
    other_.Set_Text(field_.Text());
    desk_.log.push_back("first ends");
  };
  other_.On_Change = [&] {
    desk_.log.push_back("second begins");
    field_.Set_Text(other_.Text());  // the same text: the nesting ends here
    desk_.log.push_back("second ends");
  };
  field_.Set_Text("a");
  EXPECT_EQ(desk_.Logged(), (Log{"first begins", "second begins", "second ends", "first ends"}));
}

TEST_F(TheChangeRule, TellsTheObserverBeforeTheHandlerRuns) {
  const Watch watch(form_, [&](const Field& field, Attribute attribute) {
    EXPECT_EQ(attribute, Attribute::kText);
    desk_.log.push_back("observer sees " + dynamic_cast<const TextField&>(field).Text());
  });
  field_.On_Change = [&] {
    desk_.log.push_back("handler of " + field_.Text());
    field_.Set_Text("b");
  };
  field_.Set_Text("a");
  EXPECT_EQ(desk_.Logged(),
            (Log{"observer sees a", "handler of a", "observer sees b", "handler of b"}));
}

}  // namespace
}  // namespace norvane
