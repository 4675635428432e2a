#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QWindow>

#include "window_test.h"

namespace norvane {
namespace {

/// The settings dialog, opened by its buttons.
class SettingsDialog : public WindowTest {
 protected:
  Settings& Dialog() { return *State().forms.settings; }

  /// Opens the dialog by a button of the toolbar; the procedure has to close it.
  void With_Dialog(const Button& button, const std::function<void()>& procedure) {
    watchdog.Expect([&](QWidget& window) {
      EXPECT_EQ(&window, &View(Dialog()));
      procedure();
    });
    Click(button);
    EXPECT_TRUE(watchdog.Content()) << "the dialog didn't open";
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    Wait_Until_Active(Screen());
  }

  void Expect_Tab(int tab) {
    EXPECT_EQ(dynamic_cast<QTabBar&>(Widget(Dialog().SSTab1)).currentIndex(), tab);
    EXPECT_EQ(Widget(Dialog().Text2(0)).isVisible(), tab == 0);
    EXPECT_EQ(Widget(Dialog().UpDown1_0).isVisible(), tab == 0);
    EXPECT_EQ(Widget(Dialog().Text1).isVisible(), tab == 1);
    EXPECT_EQ(Widget(Dialog().Text3).isVisible(), tab == 2);
    Expect_Same_As_Model(View(Dialog()));
    Expect_Room_For_All(View(Dialog()));
  }
  void Click_Tab(int tab) {
    auto& bar = dynamic_cast<QTabBar&>(Widget(Dialog().SSTab1));
    Click(*bar.window(), bar.mapTo(bar.window(), bar.tabRect(tab).center()));
  }
  QColor Ground_Of(const Field& field) { return Widget(field).grab().toImage().pixelColor(1, 1); }
};

TEST_F(SettingsDialog, Each_Of_Its_Buttons_Brings_Its_Tab_To_The_Front) {
  const auto look = [this](int tab) {
    Settle();
    Expect_Tab(tab);
    Press(Qt::Key_Escape);
  };
  With_Dialog(Screen().cmdToolBar5(0), [&] { look(0); });
  With_Dialog(Screen().cmdToolBar4(0), [&] { look(1); });
  With_Dialog(Screen().cmdToolBar3(0), [&] { look(2); });
}

TEST_F(SettingsDialog, Ctrl_And_Tab_Turn_The_Tabs) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    for (const int tab : {1, 2, 0}) {
      Press(Qt::Key_Tab, Qt::ControlModifier);
      Settle();
      Expect_Tab(tab);
    }
    for (const int tab : {2, 1}) {
      Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
      Settle();
      Expect_Tab(tab);
    }
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsDialog, A_Size_That_The_Main_Screen_Gets_Meanwhile_Is_Told_Afterwards) {
  const QSize size = Main_View().size() + QSize(60, 30);
  With_Dialog(Screen().cmdToolBar5(0), [&] {
    Main_View().resize(size);
    Settle();
    Press(Qt::Key_Escape);
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return Screen().Place().width == size.width() * 15; }, 5000));
}

TEST_F(SettingsDialog, A_Number_Can_Be_Typed_As_Soon_As_It_Is_Open) {
  With_Dialog(Screen().cmdToolBar3(0), [] {
    Type("20");
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(Shown(Screen().Label4(1)), Number("20.0"));
}

TEST_F(SettingsDialog, Enter_On_Cancel_Cancels) {
  With_Dialog(Screen().cmdToolBar3(0), [this] {
    Type("20");
    Widget(Dialog().Command2).setFocus();
    Press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !View(Dialog()).isVisible(); }, 5000));
  });
  EXPECT_EQ(Shown(Screen().Label4(1)), Number("12.5"));
}

TEST_F(SettingsDialog, It_Stands_Over_The_Main_Screen) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    EXPECT_TRUE(Main_View().frameGeometry().contains(View(Dialog()).geometry()));
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsDialog, The_Tab_In_Front_Takes_The_Focus_When_Clicked_As_Any_Other_Does) {
  With_Dialog(Screen().cmdToolBar4(0), [&] {
    Click(Dialog().Text1);
    Click_Tab(1);
    EXPECT_TRUE(Widget(Dialog().SSTab1).hasFocus());
    Click(Dialog().Text1);
    Click_Tab(2);
    EXPECT_TRUE(Widget(Dialog().SSTab1).hasFocus());
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsDialog, A_Click_On_A_Tab_Shows_Its_Fields) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    Click_Tab(1);
    Settle();
    Expect_Tab(1);
    Click_Tab(2);
    Settle();
    Expect_Tab(2);
    EXPECT_EQ(Shown(Dialog().Text3), "12.5");
    Click_Tab(0);
    Settle();
    Expect_Tab(0);
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsDialog, Enter_Is_OK) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    EXPECT_EQ(Shown(Dialog().Text2(0)), "24");
    EXPECT_EQ(Shown(Dialog().Text2(1)), "30");
    Mark(Dialog().Text2(0));
    Type("12");
    Press(Qt::Key_Tab);
    Type("100");
    EXPECT_EQ(Shown(Dialog().Text2(1)), "100");
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(State().Hr_Day, 12);
  EXPECT_EQ(State().Days, 100);
  EXPECT_EQ(Shown(Screen().Label6), "Savings (Hours/day: 12, Days:  100, Metres or m\u00B2:  1)");
}

TEST_F(SettingsDialog, Escape_Is_Cancel) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    Mark(Dialog().Text2(0));
    Type("12");
    Press(Qt::Key_Escape);
  });
  EXPECT_EQ(State().Hr_Day, 24);
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    EXPECT_EQ(Shown(Dialog().Text2(0)), "24") << "the dialog starts afresh";
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsDialog, Its_Buttons_And_Its_Close_Box_Close_It) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    Mark(Dialog().Text2(0));
    Type("8");
    Click(Dialog().Command1);
  });
  EXPECT_EQ(State().Hr_Day, 8);
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    Mark(Dialog().Text2(0));
    Type("9");
    Click(Dialog().Command2);
  });
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    Mark(Dialog().Text2(0));
    Type("10");
    View(Dialog()).close();
  });
  EXPECT_EQ(State().Hr_Day, 8);
}

TEST_F(SettingsDialog, The_Main_Screen_Takes_Nothing_While_It_Is_Open) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    Click(Screen().cmdToolBarC);
    Step_Up(Screen().SpinButton1(0));
    Click(Screen().lblMenu(2));
    QTest::keyClick(Main_View().windowHandle(), Qt::Key_5);
    Main_View().close();
    Settle();
    EXPECT_TRUE(Main_View().isVisible());
    EXPECT_EQ(Screen().Calc_Mode, "T");
    EXPECT_EQ(Shown(Screen().txtT(0)), "80");
    EXPECT_FALSE(State().forms.address->Shown());
    Hover(Screen().cmdToolBar1(0));
    EXPECT_FALSE(Widget(Screen().picToolTip).isVisible());
    Press(Qt::Key_Escape);
  });
  Click(Screen().cmdToolBarC);
  EXPECT_EQ(Screen().Calc_Mode, "C");
}

TEST_F(SettingsDialog, Steppers_Step_Their_Field_Inside_Their_Range) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    Step_Up(Dialog().UpDown1_0);
    EXPECT_EQ(Shown(Dialog().Text2(0)), "24");
    Step_Down(Dialog().UpDown1_0);
    EXPECT_EQ(Shown(Dialog().Text2(0)), "23");
    Step_Up(Dialog().UpDown1_1);
    EXPECT_EQ(Shown(Dialog().Text2(1)), "31");
    Click(Dialog().Text2(1));
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Shown(Dialog().Text2(1)), "29");
    Mark(Dialog().Text2(1));
    Type("1");
    Press(Qt::Key_Down);
    EXPECT_EQ(Shown(Dialog().Text2(1)), "1");
    Expect_Same_As_Model(View(Dialog()));
    Press(Qt::Key_Escape);
  });
  EXPECT_EQ(State().Days, 30);
}

TEST_F(SettingsDialog, A_New_Lambda_Turns_Its_Field_Red) {
  With_Dialog(Screen().cmdToolBar4(0), [this] {
    Mark(Dialog().Text1);
    Type("0,045");
    Press(Qt::Key_Enter, Qt::KeypadModifier);
  });
  EXPECT_FLOAT_EQ(State().Lambda, 0.039F);
  EXPECT_EQ(Ground_Of(Screen().Label4(0)), QColor(255, 0, 0));
  Click(Screen().cmdToolBar4(1));
  EXPECT_NE(Ground_Of(Screen().Label4(0)), QColor(255, 0, 0));
}

TEST_F(SettingsDialog, A_New_Alpha_Turns_Its_Field_Red) {
  With_Dialog(Screen().cmdToolBar3(0), [this] {
    EXPECT_EQ(Shown(Dialog().Text3), "12.5");
    Mark(Dialog().Text3);
    Type("8");
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(Shown(Screen().Label4(1)), Number("8.0"));
  EXPECT_EQ(Ground_Of(Screen().Label4(1)), QColor(255, 0, 0));
  With_Dialog(Screen().cmdToolBar3(0), [this] {
    Mark(Dialog().Text3);
    Type("12.5");
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(Shown(Screen().Label4(1)), Number("12.5"));
  EXPECT_EQ(Ground_Of(Screen().Label4(1)), QColor(224, 224, 224));
}

TEST_F(SettingsDialog, OK_Leaves_It_Open_While_Lambda_Is_Empty) {
  With_Dialog(Screen().cmdToolBar4(0), [this] {
    Mark(Dialog().Text1);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Shown(Dialog().Text1), "");
    Press(Qt::Key_Return);
    EXPECT_TRUE(View(Dialog()).isVisible());
    Click(Dialog().Command1);
    EXPECT_TRUE(View(Dialog()).isVisible());
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsDialog, There_Is_Room_For_Each_Language) {
  Click(Screen().lblMenu(1));
  Wait_Until_Active(*State().forms.lang);
  for (int slot = 0; slot <= 13; ++slot) {
    SCOPED_TRACE(*State().languages.Lang_Code[static_cast<std::size_t>(slot)]);
    Click(State().forms.lang->Label2(slot));
    With_Dialog(Screen().cmdToolBar5(0), [this] {
      for (int tab = 0; tab <= 2; ++tab) {
        Click_Tab(tab);
        Settle();
        Expect_Tab(tab);
      }
      Press(Qt::Key_Escape);
    });
  }
}

TEST_F(SettingsDialog, It_Opens_In_Front_Of_The_Main_Screen) {
  With_Dialog(Screen().cmdToolBar5(0), [this] {
    EXPECT_TRUE(View(Dialog()).isActiveWindow());
    EXPECT_EQ(View(Dialog()).windowTitle(), "Settings");
    EXPECT_TRUE(View(Dialog()).screen()->availableGeometry().contains(View(Dialog()).geometry()));
    Press(Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace norvane
