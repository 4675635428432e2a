#include <QAbstractButton>
#include <QApplication>

#include "window_test.h"

namespace norvane {
namespace {

/// The strip of tool buttons and its tooltip box.
class Toolbar : public WindowTest {
 protected:
  struct Tool {
    const Button& field;
    const char* tooltip;
  };
  /// The buttons that an English screen shows while no line is saved.
  std::vector<Tool> Tools() {
    return {{Screen().cmdToolBar1(0), "Steel pipe"},
            {Screen().cmdToolBar1(1), "Copper tube"},
            {Screen().cmdToolBar1(2), "Plastic pipe"},
            {Screen().cmdToolBar1(3), "Flat surface"},
            {Screen().cmdToolBarT, "Heat loss"},
            {Screen().cmdToolBarC, "Condensation control"},
            {Screen().cmdToolBar3(0), "New alpha"},
            {Screen().cmdToolBar4(0), "New lambda"},
            {Screen().cmdToolBar4(1), "Lambda 0.038 at 40 \u00B0C"},
            {Screen().cmdToolBar5(0), "Savings settings"}};
  }

  QWidget& Box() { return Widget(Screen().picToolTip); }
  std::string Tooltip_Text() {
    return dynamic_cast<QAbstractButton&>(Widget(Screen().LblTooltip)).text().toStdString();
  }
  QRect Place(const Field& field) {
    QWidget& widget = Widget(field);
    return {widget.mapTo(&Main_View(), QPoint(0, 0)), widget.size()};
  }
  /// The box stands under its button, a little to the right of the button's left edge, and the
  /// mouse reaches it there.
  void Expect_Box_Under(const Button& field) {
    ASSERT_TRUE(Box().isVisible());
    const QRect button = Place(field);
    const QRect box = Place(Screen().picToolTip);
    EXPECT_GT(box.bottom(), button.bottom());
    EXPECT_LE(box.top(), button.bottom() + 1);
    EXPECT_GT(box.top(), button.center().y());
    EXPECT_GT(box.left(), button.left());
    EXPECT_LT(box.left(), button.right());
    EXPECT_TRUE(Main_View().rect().contains(box));
    EXPECT_EQ(Main_View().childAt(box.center()), &Widget(Screen().LblTooltip));
    EXPECT_GE(Widget(Screen().LblTooltip).width(),
              Widget(Screen().LblTooltip).minimumSizeHint().width());
  }
  /// The free ground at the window's left edge.
  QPoint Bare_Place() { return {3, Main_View().height() / 2}; }
};

TEST_F(Toolbar, Each_Button_Has_A_Key_From_Left_To_Right) {
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(State().Sel_Size, 1);
  Press(Qt::Key_4, Qt::ControlModifier);
  EXPECT_EQ(State().Sel_Size, 2);
  Press(Qt::Key_5, Qt::ControlModifier);
  EXPECT_EQ(State().Sel_Size, 3);
  Press(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(State().Sel_Size, 0);
  Press(Qt::Key_7, Qt::ControlModifier);
  EXPECT_EQ(Screen().Calc_Mode, "C");
  Press(Qt::Key_6, Qt::ControlModifier);
  EXPECT_EQ(Screen().Calc_Mode, "T");
  const struct {
    int key;
    int tab;
  } kDialogs[] = {{Qt::Key_8, 2}, {Qt::Key_9, 1}, {Qt::Key_F12, 0}};
  for (const auto& each : kDialogs) {
    watchdog.Expect([&](QWidget& dialog) {
      EXPECT_EQ(State().forms.settings->SSTab1.Tab(), each.tab);
      dialog.close();
    });
    Press(each.key, Qt::ControlModifier);
    Wait_Until_Active(Screen());
  }
  Click(Screen().cmdAdd);
  Press(Qt::Key_1, Qt::ControlModifier);
  Wait_Until_Active(*State().forms.total);
}

TEST_F(Toolbar, The_Key_Of_A_Button_That_Does_Not_Show_Does_Nothing) {
  Press(Qt::Key_F11, Qt::ControlModifier);
  EXPECT_EQ(Shown(Screen().Label4(0)), Number("0.039")) << "Lambda 0.040 is there in German only";
}

TEST_F(Toolbar, After_A_Key_The_User_Types_On_In_The_Field) {
  Click(Screen().txtT(0));
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_TRUE(Edit(Screen().txtT(0)).hasFocus());
  EXPECT_EQ(Edit(Screen().txtT(0)).selectedText(), "80");
  Press(Qt::Key_7, Qt::ControlModifier);
  EXPECT_TRUE(Edit(Screen().txtC(0)).hasFocus()) << "in its place";
  Type("6");
  EXPECT_EQ(Shown(Screen().txtC(0)), "6");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Press(Qt::Key_5, Qt::ControlModifier);
  EXPECT_TRUE(Widget(Screen().cmdToolBar1(3)).hasFocus()) << "the diameter has gone";
  Click(Screen().Combo1);
  Press(Qt::Key_Escape);
  Press(Qt::Key_2, Qt::ControlModifier);
  EXPECT_TRUE(Widget(Screen().cmdToolBar1(0)).hasFocus()) << "as behind a click";
}

TEST_F(Toolbar, The_Tip_Shows_The_Key_Too) {
  Hover(Screen().cmdToolBar1(1));
  Settle();
  EXPECT_EQ(Tooltip_Text(), "Copper tube");
  EXPECT_EQ(Widget(Screen().cmdToolBar1(1)).accessibleDescription(), "Ctrl+3");
  // What stands behind the words is as dark as they are.
  const QImage tip = Widget(Screen().LblTooltip).grab().toImage();
  const auto ink_from = [&](int left) {
    int pixels = 0;
    for (int y = 0; y < tip.height(); ++y) {
      for (int x = left; x < tip.width(); ++x) pixels += qGray(tip.pixel(x, y)) < 140;
    }
    return pixels;
  };
  const int key = Widget(Screen().LblTooltip).fontMetrics().horizontalAdvance("Ctrl+3");
  EXPECT_GT(ink_from(tip.width() - key - 6), 10);
}

TEST_F(Toolbar, The_Mouse_Over_A_Button_Shows_Its_Tooltip_Under_It) {
  EXPECT_FALSE(Box().isVisible());
  for (const Tool& tool : Tools()) {
    SCOPED_TRACE(tool.tooltip);
    Hover(tool.field);
    Settle();
    EXPECT_EQ(Tooltip_Text(), tool.tooltip);
    Expect_Box_Under(tool.field);
    Expect_Same_As_Model(Main_View());
    Hover(Main_View(), Bare_Place());
  }
}

TEST_F(Toolbar, The_Tooltip_Goes_From_Button_To_Button) {
  Hover(Screen().cmdToolBar1(0));
  Settle();
  Hover(Screen().cmdToolBar1(3));
  Settle();
  EXPECT_EQ(Tooltip_Text(), "Flat surface");
  Expect_Box_Under(Screen().cmdToolBar1(3));
}

TEST_F(Toolbar, The_Mouse_Over_The_Bare_Form_Hides_The_Tooltip) {
  Hover(Screen().cmdToolBar1(1));
  ASSERT_TRUE(Box().isVisible());
  Hover(Main_View(), Bare_Place());
  EXPECT_FALSE(Box().isVisible());

  Hover(Screen().cmdToolBar1(1));
  ASSERT_TRUE(Box().isVisible());
  QWidget& menu = Widget(Screen().lblMenu(3));
  Hover(Main_View(), menu.mapTo(&Main_View(), menu.rect().topRight() + QPoint(40, 5)));
  EXPECT_FALSE(Box().isVisible());
}

TEST_F(Toolbar, The_Grounds_Of_Strip_And_Cards_Are_Not_The_Bare_Form) {
  Hover(Screen().cmdToolBar1(1));
  ASSERT_TRUE(Box().isVisible());
  QWidget& strip = Widget(Screen().picToolbar);
  Hover(Main_View(), strip.mapTo(&Main_View(), strip.rect().bottomRight() - QPoint(5, 5)));
  EXPECT_TRUE(Box().isVisible());
  QWidget& card = *Widget(Screen().Label1(0)).parentWidget();
  Hover(Main_View(), card.mapTo(&Main_View(), card.rect().bottomLeft() + QPoint(6, -6)));
  EXPECT_TRUE(Box().isVisible());
}

TEST_F(Toolbar, The_Tooltip_Comes_Back_When_The_Mouse_Moves_On_After_A_Click) {
  Hover(Screen().cmdToolBar1(3));
  Click(Screen().cmdToolBar1(3));
  ASSERT_FALSE(Box().isVisible());
  Hover(Main_View(), Middle(Widget(Screen().cmdToolBar1(3))) + QPoint(3, 3));
  EXPECT_TRUE(Box().isVisible());
}

TEST_F(Toolbar, The_Tooltip_Has_One_Size_For_All_Tips_Of_All_Languages) {
  Hover(Screen().cmdToolBarT);
  Settle();
  const QSize size = Box().size();
  for (const Tool& tool : Tools()) {
    Hover(tool.field);
    Settle();
    EXPECT_EQ(Box().size(), size) << tool.tooltip;
  }
  for (std::int16_t slot = 0; slot < 14; ++slot) {
    Click(Screen().lblMenu(1));
    Wait_Until_Active(*State().forms.lang);
    Click(State().forms.lang->Label2(slot));
    View(*State().forms.lang).close();
    Wait_Until_Active(Screen());
    for (const Tool& tool : Tools()) {
      Hover(tool.field);
      Settle();
      EXPECT_EQ(Box().size(), size) << tool.tooltip << " in language " << slot;
      Expect_Box_Under(tool.field);
    }
    Hover(Main_View(), Bare_Place());
  }
}

TEST_F(Toolbar, The_Mouse_Over_Another_Control_Leaves_The_Tooltip) {
  Hover(Screen().cmdToolBar5(0));
  ASSERT_TRUE(Box().isVisible());
  Hover(Screen().txtT(0));
  EXPECT_TRUE(Box().isVisible());
  Hover(Screen().Label3(2));
  EXPECT_TRUE(Box().isVisible());
  Hover(Screen().Combo1);
  EXPECT_TRUE(Box().isVisible());
  EXPECT_EQ(Tooltip_Text(), "Savings settings");
}

TEST_F(Toolbar, A_Click_On_The_Tooltip_Is_A_Click_On_Its_Button) {
  Hover(Screen().cmdToolBarC);
  Settle();
  Hover(Screen().LblTooltip);
  ASSERT_TRUE(Box().isVisible());
  Click(Screen().LblTooltip);
  EXPECT_EQ(Screen().Calc_Mode, "C");
  EXPECT_TRUE(Widget(Screen().txtC(0)).isVisible());
  EXPECT_FALSE(Box().isVisible());
  EXPECT_TRUE(Widget(Screen().cmdToolBarC).hasFocus());

  Hover(Screen().cmdToolBar1(2));
  Settle();
  Hover(Screen().LblTooltip);
  Click(Screen().LblTooltip);
  EXPECT_EQ(State().Sel_Size, 2);
  EXPECT_FALSE(Box().isVisible());
}

TEST_F(Toolbar, A_Click_On_A_Button_Hides_The_Tooltip) {
  Hover(Screen().cmdToolBar1(3));
  ASSERT_TRUE(Box().isVisible());
  Click(Screen().cmdToolBar1(3));
  EXPECT_FALSE(Box().isVisible());
  EXPECT_EQ(State().Sel_Size, 3);
}

TEST_F(Toolbar, Tab_Shows_The_Tooltip_And_Space_Presses_The_Button) {
  Click(Screen().cmdToolBar1(0));
  Hover(Main_View(), Bare_Place());
  ASSERT_FALSE(Box().isVisible());
  Press(Qt::Key_Tab);
  Settle();
  EXPECT_TRUE(Widget(Screen().cmdToolBar1(1)).hasFocus());
  EXPECT_EQ(Tooltip_Text(), "Copper tube");
  Expect_Box_Under(Screen().cmdToolBar1(1));
  Press(Qt::Key_Space);
  EXPECT_EQ(State().Sel_Size, 1);
  EXPECT_FALSE(Box().isVisible());
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Widget(Screen().cmdToolBar1(0)).hasFocus());
  EXPECT_EQ(Tooltip_Text(), "Steel pipe");
}

TEST_F(Toolbar, A_Tooltip_That_The_Keyboard_Brought_Goes_With_The_Focus) {
  Click(Screen().cmdToolBar4(1));
  Press(Qt::Key_Tab);
  ASSERT_TRUE(Widget(Screen().cmdToolBar5(0)).hasFocus());
  ASSERT_TRUE(Box().isVisible());
  Press(Qt::Key_Tab);
  EXPECT_FALSE(Box().isVisible());
}

TEST_F(Toolbar, A_Tooltip_That_The_Mouse_Brought_Stays_When_The_Focus_Goes) {
  Click(Screen().cmdToolBar4(1));
  Press(Qt::Key_Tab);
  Hover(Screen().cmdToolBar5(0));
  ASSERT_TRUE(Box().isVisible());
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Box().isVisible());
}

TEST_F(Toolbar, Buttons_Are_Read_Aloud_By_Their_Tooltips) {
  for (const Tool& tool : Tools()) {
    EXPECT_EQ(Widget(tool.field).accessibleName().toStdString(), tool.tooltip);
  }
}

TEST_F(Toolbar, Buttons_Of_Other_Times_Are_Hidden) {
  EXPECT_FALSE(Widget(Screen().cmdToolBar0(0)).isVisible());  // no line is saved
  EXPECT_FALSE(Widget(Screen().cmdToolBar4(2)).isVisible());  // German alone has it
}

TEST_F(Toolbar, Buttons_Stand_In_Their_Order) {
  int right = -1;
  for (const Tool& tool : Tools()) {
    SCOPED_TRACE(tool.tooltip);
    EXPECT_GT(Place(tool.field).left(), right);
    right = Place(tool.field).right();
    EXPECT_EQ(Place(tool.field).top(), Place(Screen().cmdToolBar1(0)).top());
  }
}

}  // namespace
}  // namespace norvane
