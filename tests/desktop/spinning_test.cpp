#include <QTest>
#include <QWheelEvent>

#include "window_test.h"

namespace norvane {
namespace {

/// Spin pairs of the main screen: their halves under the mouse, and the arrow keys of the field.
class Spinning : public WindowTest {
 protected:
  /// Carries out a step and compares all widgets with the model.
  void Step_To(const std::function<void()>& step, const TextField& field,
               const std::string& shown) {
    step();
    EXPECT_EQ(Shown(field), shown);
    Expect_Same_As_Model(Main_View());
  }
  void Up_To(int index, const TextField& field, const std::string& shown) {
    Step_To([&] { Step_Up(Screen().SpinButton1(index)); }, field, shown);
  }
  void Down_To(int index, const TextField& field, const std::string& shown) {
    Step_To([&] { Step_Down(Screen().SpinButton1(index)); }, field, shown);
  }
  void Turn_Wheel(QWidget& widget, int eighths) {
    const QPointF at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }
};

TEST_F(Spinning, Halves_Step_Each_Row_Of_Heat_Loss) {
  Up_To(0, Screen().txtT(0), "85");
  EXPECT_EQ(Shown(Screen().Text2(0)), "185");
  Down_To(0, Screen().txtT(0), "80");
  Up_To(1, Screen().txtT(1), "20");
  Down_To(1, Screen().txtT(1), "15");
  Up_To(2, Screen().txtT(2), "6");
  Up_To(2, Screen().txtT(2), "9");
  Down_To(2, Screen().txtT(2), "6");
  Down_To(2, Screen().txtT(2), "6");
  Up_To(3, Screen().txtT(3), "15");
  EXPECT_EQ(Shown(Screen().Text2(3)), "1/4");
  Down_To(3, Screen().txtT(3), "10");
  Up_To(5, Screen().txtmtrs, "2");
  Down_To(5, Screen().txtmtrs, "1");
  Down_To(5, Screen().txtmtrs, "1");
}

TEST_F(Spinning, Halves_Step_Each_Row_Of_Condensation) {
  Click(Screen().cmdToolBarC);
  Up_To(0, Screen().txtC(0), "15");
  Down_To(0, Screen().txtC(0), "10");
  Up_To(1, Screen().txtC(1), "26");
  Down_To(1, Screen().txtC(1), "24");
  Up_To(3, Screen().txtC(3), "15");
  Down_To(3, Screen().txtC(3), "10");
  Up_To(4, Screen().txtC(4), "65");
  Down_To(4, Screen().txtC(4), "60");
  Up_To(5, Screen().txtmtrs, "2");
}

TEST_F(Spinning, Arrow_Keys_Are_Clicks_On_The_Spin_Pair) {
  Click(Screen().txtT(0));
  Press(Qt::Key_Up);
  EXPECT_EQ(Shown(Screen().txtT(0)), "85");
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  EXPECT_EQ(Shown(Screen().txtT(0)), "75");
  Click(Screen().txtT(2));
  Press(Qt::Key_Up);
  EXPECT_EQ(Shown(Screen().txtT(2)), "6");
  Click(Screen().txtmtrs);
  Press(Qt::Key_Up);
  EXPECT_EQ(Shown(Screen().txtmtrs), "2");
  // A step may pass the limit of typing.
  Paste(Screen().txtT(0), "112");
  Press(Qt::Key_Up);
  EXPECT_EQ(Shown(Screen().txtT(0)), "117");
  Expect_Same_As_Model(Main_View());
}

TEST_F(Spinning, Arrow_Keys_Step_Locked_Fields) {
  Click(Screen().cmdToolBarC);
  Click(Screen().txtC(1));
  Press(Qt::Key_Up);
  EXPECT_EQ(Shown(Screen().txtC(1)), "26");
  Click(Screen().txtC(4));
  Press(Qt::Key_Down);
  EXPECT_EQ(Shown(Screen().txtC(4)), "55");
}

TEST_F(Spinning, Arrow_Keys_Do_Nothing_In_A_Field_Without_Its_Spin_Pair) {
  Click(Screen().cmdToolBarC);
  EXPECT_FALSE(Widget(Screen().SpinButton1(2)).isVisible());
  Click(Screen().txtC(2));
  Press(Qt::Key_Up);
  EXPECT_EQ(Shown(Screen().txtC(2)), Number("1.7"));
  EXPECT_EQ(Screen().txtT(2).Text(), "0");
}

TEST_F(Spinning, The_Wheel_Steps_The_Field_With_The_Focus) {
  constexpr int kNotch = 120;
  Click(Screen().txtT(0));
  Turn_Wheel(Widget(Screen().txtT(0)), kNotch);
  EXPECT_EQ(Shown(Screen().txtT(0)), "85");
  Turn_Wheel(Widget(Screen().txtT(0)), -2 * kNotch);
  EXPECT_EQ(Shown(Screen().txtT(0)), "75");
  Turn_Wheel(Widget(Screen().txtT(1)), kNotch);
  EXPECT_EQ(Shown(Screen().txtT(1)), "15");
}

TEST_F(Spinning, A_Held_Button_Repeats_Until_It_Is_Let_Go) {
  constexpr int kLongest = 4000;  // milliseconds
  QWidget& up = Arrow(Screen().SpinButton1(0), "up");
  std::vector<std::string> seen;
  Press_Mouse(up);
  EXPECT_EQ(Shown(Screen().txtT(0)), "80") << "a step comes with letting go, or with the repeat";
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        const std::string& text = Screen().txtT(0).Text();
        if (seen.empty() || seen.back() != text) seen.push_back(text);
        return seen.size() >= 4;
      },
      kLongest));
  // Each repeat is one step.
  EXPECT_EQ(seen, (std::vector<std::string>{"80", "85", "90", "95"}));
  Release_Mouse(up);
  const std::string at_release = Screen().txtT(0).Text();
  QTest::qWait(600);
  EXPECT_EQ(Screen().txtT(0).Text(), at_release);
  EXPECT_EQ(Shown(Screen().txtT(0)), at_release);
}

TEST_F(Spinning, A_Click_On_A_Spin_Button_Leaves_The_Focus_In_The_Field) {
  Click(Screen().txtT(1));
  Step_Up(Screen().SpinButton1(1));
  EXPECT_TRUE(Edit(Screen().txtT(1)).hasFocus());
}

}  // namespace
}  // namespace norvane
