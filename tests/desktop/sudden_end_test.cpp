#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <new>
#include <stdexcept>

#include "desktop/application.h"
#include "window_test.h"

namespace norvane {
namespace {

/// Runs the event loop as the program does, with a procedure inside; returns the exit status.
int Status_Of(const std::function<void()>& inside) {
  QTimer::singleShot(0, qApp, inside);
  return QApplication::exec();
}

/// A widget whose painting fails.
class Failing : public QWidget {
 public:
  using QWidget::QWidget;
  void paintEvent(QPaintEvent*) override { throw std::bad_alloc(); }
};

class Failure : public WindowTest {
 protected:
  Failure() {
    dynamic_cast<Application&>(*qApp).Set_Failure([this] { desktop.Fail(); });
  }
  ~Failure() override { dynamic_cast<Application&>(*qApp).Set_Failure({}); }

  /// Copies the lines from the message that comes.
  void Expect_Copying() {
    watchdog.Expect([this](QWidget& window) {
      for (auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->text() == "Copy saved lines") Click(*button);
      }
      Settle();
      said_ = dynamic_cast<QMessageBox&>(window).text();
      Click(*dynamic_cast<QMessageBox&>(window).button(QMessageBox::Ok));
      EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }, 5000));
    });
  }
  void Expect_Lines(qsizetype lines) {
    EXPECT_EQ(QGuiApplication::clipboard()->text().split('\n').size(), lines + 2);
  }

  QString said_;
};

TEST_F(Failure, Of_Memory_In_The_Program_Offers_To_Copy_The_Saved_Lines) {
  Expect_Copying();
  EXPECT_EQ(Status_Of([this] {
              Click(Screen().cmdAdd);
              desktop.program().Run([] { throw std::bad_alloc(); });
              desktop.Tick(State().forms.about->Timer1);
              QApplication::exit(3);
            }),
            3);
  EXPECT_EQ(said_, "Run-time error '7':\n\nOut of memory");
  Expect_Lines(1);
}

TEST_F(Failure, Of_Memory_In_Painting_Offers_To_Copy_The_Saved_Lines) {
  Expect_Copying();
  QPointer<Failing> failing;
  EXPECT_EQ(Status_Of([&] {
              Click(Screen().cmdAdd);
              Click(Screen().cmdAdd);
              failing = new Failing(&Main_View());
              failing->resize(10, 10);
              failing->show();
            }),
            3);
  EXPECT_EQ(said_, "Run-time error '7':\n\nOut of memory");
  Expect_Lines(2);
  EXPECT_TRUE(desktop.program().Failed());
  delete failing;
}

TEST_F(Failure, Of_The_System_Offers_To_Copy_The_Saved_Lines) {
  Expect_Copying();
  EXPECT_EQ(Status_Of([this] {
              Click(Screen().cmdAdd);
              QTimer::singleShot(0, &Main_View(), [] { throw std::runtime_error("no more"); });
            }),
            3);
  EXPECT_EQ(said_, "Run-time error '51':\n\nInternal error");
  Expect_Lines(1);
}

class SessionsEnd : public WindowTest {
 protected:
  void Expect_Nothing_Left() {
    EXPECT_TRUE(desktop.program().Ended());
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      EXPECT_FALSE(window->isVisible()) << qPrintable(window->windowTitle());
    }
  }
  /// Ends the session while the next modal window is open.
  void Expect_The_End_In_A_Dialog() {
    watchdog.Expect([this](QWidget& window) {
      desktop.End_Session();
      EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }, 3000));
    });
  }
};

TEST_F(SessionsEnd, Closes_The_Main_Window_As_The_User_Would) {
  EXPECT_EQ(Status_Of([this] { desktop.End_Session(); }), 0);
  EXPECT_FALSE(desktop.program().Failed());
  Expect_Nothing_Left();
}

TEST_F(SessionsEnd, Closes_Lists_That_Are_Still_Open) {
  EXPECT_EQ(Status_Of([this] {
              Click(Screen().cmdAdd);
              Click(Screen().picTotal);
              Wait_Until_Active(*State().forms.total);
              Click(Screen().lblMenu(2));
              Wait_Until_Active(*State().forms.address);
              desktop.End_Session();
            }),
            0);
  Expect_Nothing_Left();
}

TEST_F(SessionsEnd, Cancels_The_Settings) {
  Expect_The_End_In_A_Dialog();
  EXPECT_EQ(Status_Of([this] { Click(Screen().cmdToolBar5(0)); }), 0);
  EXPECT_FALSE(desktop.program().Failed());
  Expect_Nothing_Left();
}

TEST_F(SessionsEnd, Answers_A_Question_With_No) {
  Expect_The_End_In_A_Dialog();
  EXPECT_EQ(Status_Of([this] {
              Click(Screen().cmdAdd);
              Click(Screen().cmdAdd);
              Click(Screen().picTotal);
              Total& total = *State().forms.total;
              Wait_Until_Active(total);
              desktop.Answer({UserAction::kPickRows, total, &total.grdResult, {}, 1, 1});
            }),
            0);
  Expect_Nothing_Left();
}

TEST_F(SessionsEnd, Puts_The_Last_Message_Away) {
  Expect_The_End_In_A_Dialog();
  EXPECT_EQ(Status_Of([this] { Paste(Screen().txtmtrs, "-40000"); }), 3);
  Expect_Nothing_Left();
}

class SessionsEndBehindTheSplash : public DesktopTest {};

TEST_F(SessionsEndBehindTheSplash, EndsTheStart) {
  QTimer::singleShot(0, qApp, [this] { desktop.Start(); });
  QTimer::singleShot(200, qApp, [this] { desktop.End_Session(); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(desktop.program().Ended());
  EXPECT_FALSE(desktop.program().Failed());
}

}  // namespace
}  // namespace norvane
