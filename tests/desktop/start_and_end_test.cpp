#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <clocale>

#include "window_test.h"

namespace norvane {
namespace {

/// Runs the event loop as the program does, with a procedure inside; returns the exit status.
int Status_Of(const std::function<void()>& inside) {
  QTimer::singleShot(0, qApp, inside);
  return QApplication::exec();
}

class Start : public DesktopTest {};

TEST_F(Start, Leaves_A_Point_To_What_Libraries_Read_And_Write_By_C_Functions) {
  EXPECT_STREQ(localeconv()->decimal_point, ".");
  desktop.Start();
  Screen();
  EXPECT_STREQ(localeconv()->decimal_point, ".");
}

TEST_F(Start, The_Splash_Screen_Hands_Over_At_The_Third_Tick_Of_Its_Timer) {
  QElapsedTimer clock;
  clock.start();
  desktop.Start();
  About& splash = *State().forms.about;
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&View(splash)));
  EXPECT_EQ(Shown(splash.Label1), "Norvane 3.1");
  EXPECT_FALSE(Main_View().isVisible());
  const QImage painted = View(splash).grab().toImage();
  EXPECT_NE(painted.pixelColor(painted.width() / 2, painted.height() - 4),
            painted.pixelColor(painted.width() / 2, 4));
  // A click does nothing, and closing isn't offered.
  QTest::mouseClick(View(splash).windowHandle(), Qt::LeftButton);
  View(splash).close();
  EXPECT_TRUE(View(splash).isVisible());

  ASSERT_TRUE(QTest::qWaitFor([&] { return Main_View().isVisible(); }, 6000));
  EXPECT_GE(clock.elapsed(), 2000);
  EXPECT_LE(clock.elapsed(), 5000);
  EXPECT_FALSE(View(splash).isVisible());
  EXPECT_EQ(splash.Tick_Count, 3);
  Wait_Until_Active(Screen());
  EXPECT_EQ(Main_View().windowTitle(), "Norvane 3.1");
  Expect_Same_As_Model(Main_View());
  QTest::qWait(1200);
  EXPECT_EQ(splash.Tick_Count, 3);
}

TEST_F(Start, After_A_Stall_One_Tick_Comes_At_Once_And_The_Next_A_Second_Later) {
  desktop.Start();
  About& splash = *State().forms.about;
  QThread::msleep(1400);
  QElapsedTimer clock;
  clock.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return splash.Tick_Count == 1; }, 500));
  ASSERT_TRUE(QTest::qWaitFor([&] { return splash.Tick_Count == 2; }, 3000));
  EXPECT_GE(clock.elapsed(), 950);
}

TEST_F(Start, Without_Any_Language_The_Program_Says_So_And_Ends) {
  for (const std::string& name : folder.Names()) {
    if (name.starts_with("language.")) std::filesystem::remove(folder / name);
  }
  watchdog.Expect_Message(QMessageBox::Ok);
  desktop.Start();
  EXPECT_TRUE(desktop.program().Ended());
  EXPECT_FALSE(desktop.program().Failed());
  ASSERT_EQ(watchdog.Messages().size(), 1U);
  EXPECT_TRUE(watchdog.Messages()[0].text.contains("www.norvane.example"));
}

TEST_F(Start, A_Runtime_Error_During_The_Start_Stays_Until_It_Is_Answered) {
  folder.Write("norvane.ini", "[Setting]\r\nHr_Day= 99999\r\n");
  bool stayed = false;
  watchdog.Expect([&](QWidget& window) {
    QTest::qWait(2500);  // ticks of the splash screen's timer fall into it
    stayed = window.isVisible();
    Press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }, 5000));
  });
  QTimer::singleShot(0, qApp, [this] { desktop.Start(); });
  EXPECT_EQ(QApplication::exec(), 3);
  EXPECT_TRUE(stayed);
}

class End : public WindowTest {
 protected:
  void Expect_Nothing_Left() {
    EXPECT_TRUE(desktop.program().Ended());
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      EXPECT_FALSE(window->isVisible()) << qPrintable(window->windowTitle());
    }
  }
};

TEST_F(End, The_Close_Box_Ends_The_Program) {
  EXPECT_EQ(Status_Of([this] { Main_View().close(); }), 0);
  EXPECT_FALSE(desktop.program().Failed());
  Expect_Nothing_Left();
}

TEST_F(End, The_Menu_Ends_The_Program) {
  EXPECT_EQ(Status_Of([this] { Click(Screen().lblMenu(3)); }), 0);
  EXPECT_FALSE(desktop.program().Failed());
  Expect_Nothing_Left();
}

TEST_F(End, Lists_That_Are_Still_Open_Go_With_It) {
  const int status = Status_Of([this] {
    Click(Screen().cmdAdd);
    Click(Screen().picTotal);
    Wait_Until_Active(*State().forms.total);
    Click(Screen().lblMenu(2));
    Wait_Until_Active(*State().forms.address);
    Click(Screen().lblMenu(1));
    Wait_Until_Active(*State().forms.lang);
    Click(Screen().lblMenu(3));
  });
  EXPECT_EQ(status, 0);
  Expect_Nothing_Left();
}

TEST_F(End, A_Runtime_Error_Is_Told_And_Ends_The_Program_With_Status_3) {
  watchdog.Expect_Message(QMessageBox::Ok);
  EXPECT_EQ(Status_Of([this] { Paste(Screen().txtmtrs, "-40000"); }), 3);
  ASSERT_EQ(watchdog.Messages().size(), 1U);
  EXPECT_EQ(watchdog.Messages()[0],
            (SeenMessage{"Norvane", "Run-time error '6':\n\nOverflow", QMessageBox::Critical}));
  EXPECT_TRUE(desktop.program().Failed());
  Expect_Nothing_Left();
}

TEST_F(End, A_Runtime_Error_Offers_To_Copy_The_Lines_That_Were_Saved) {
  watchdog.Expect([this](QWidget& window) {
    for (auto* button : window.findChildren<QAbstractButton*>()) {
      if (button->text() == "Copy saved lines") Click(*button);
    }
    // It stays open, so that the lines can be pasted while the program is still there.
    Settle();
    EXPECT_TRUE(window.isVisible());
    Click(*dynamic_cast<QMessageBox&>(window).button(QMessageBox::Ok));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }, 5000));
  });
  const int status = Status_Of([this] {
    Click(Screen().cmdAdd);
    Click(Screen().cmdAdd);
    Paste(Screen().txtmtrs, "-40000");
  });
  EXPECT_EQ(status, 3);
  const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
  ASSERT_EQ(lines.size(), 4);  // the header, two lines, and nothing behind the last line's end
  EXPECT_TRUE(lines[0].startsWith("\tProduct\tObject\tLambda\t"));
  EXPECT_TRUE(lines[1].startsWith("\tNorvane Tube K1\tSteel pipe\t"));
  EXPECT_EQ(lines[2], lines[1]);
}

TEST_F(End, A_Runtime_Error_Without_Saved_Lines_Has_Nothing_To_Copy) {
  watchdog.Expect([this](QWidget& window) {
    const auto buttons = window.findChildren<QAbstractButton*>();
    EXPECT_EQ(buttons.size(), 1);
    Click(*buttons.front());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }, 5000));
  });
  EXPECT_EQ(Status_Of([this] { Paste(Screen().txtmtrs, "-40000"); }), 3);
}

TEST_F(End, A_Runtime_Error_Is_Put_Away_By_Escape_With_Saved_Lines_Too) {
  watchdog.Expect([](QWidget& window) {
    Press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }, 5000));
  });
  const int status = Status_Of([this] {
    Click(Screen().cmdAdd);
    Paste(Screen().txtmtrs, "-40000");
  });
  EXPECT_EQ(status, 3);
}

TEST_F(End, A_Temperature_Beyond_16_Bits_Is_The_Same_Error) {
  watchdog.Expect_Message(QMessageBox::Ok);
  EXPECT_EQ(Status_Of([this] { Paste(Screen().txtT(1), "40000"); }), 3);
  Expect_Nothing_Left();
}

TEST_F(End, A_Runtime_Error_In_A_Dialog_Ends_The_Program_Too) {
  watchdog.Expect([this](QWidget&) {
    watchdog.Expect_Message(QMessageBox::Ok);
    Mark(State().forms.settings->Text2(0));
    Type("40000");
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(Status_Of([this] { Click(Screen().cmdToolBar5(0)); }), 3);
  Expect_Nothing_Left();
}

TEST_F(End, The_Language_Is_Kept_For_The_Next_Start) {
  Click(Screen().lblMenu(1));
  Wait_Until_Active(*State().forms.lang);
  int slot = 0;
  while (State().languages.Lang_Code.at(static_cast<std::size_t>(slot)) != "ru") ++slot;
  Click(State().forms.lang->Label2(slot));
  EXPECT_EQ(Status_Of([this] { Main_View().close(); }), 0);

  Desktop next(folder.Path());
  next.Start();
  Warmt& screen = *next.program().State().forms.warmt;
  const auto& language = dynamic_cast<QLabel&>(*next.View_Of(screen)->Widget_Of(screen.Label10));
  EXPECT_EQ(language.text(), "Русский 3.1");
}

}  // namespace
}  // namespace norvane
