#include "spreadsheet/waiting.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QPointer>
#include <QProcess>
#include <QProgressDialog>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

#include "desktop/busy.h"
#include "window_test.h"

namespace norvane {
namespace {

/// What the user saw while the spreadsheet program was at work.
struct Seen {
  bool busy_pointer = false;
  bool list_painted = false;
  QString progress;
  QWidget* resized = nullptr;  ///< the window that is resized in the middle
  bool still_busy = false;     ///< the same behind that
};

/// A spreadsheet program that takes its time over a list as long as it is told.
class SlowSpreadsheet : public Spreadsheet {
 public:
  SlowSpreadsheet(SpreadsheetWaiting& waiting, const int& rows, Seen& seen)
      : waiting_(waiting), rows_(rows), seen_(seen) {}

  bool GetObject() override { return true; }
  void CreateObject() override {}
  void Set_Application_Visible() override {}
  void Open(const std::string&, int) override {}
  void Set_Book_Visible() override {}
  void Select(int) override {}
  void ClearContents(const std::string&) override {
    QWidget* list = QApplication::activeWindow();
    list->update();
    waiting_.Wait_A_Moment();
    seen_.list_painted = !list->testAttribute(Qt::WA_PendingUpdate);
    seen_.busy_pointer = QApplication::overrideCursor() != nullptr &&
                         QApplication::overrideCursor()->shape() == Qt::BusyCursor;
  }
  void Value(const std::string&, const std::vector<CellValue>&) override {
    waiting_.Progress(rows_ / 3, rows_);
    if (seen_.resized) Resize_Meanwhile();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      const auto* dialog = qobject_cast<QProgressDialog*>(window);
      if (dialog == nullptr || !dialog->isVisible()) continue;
      seen_.progress = dialog->labelText();
      EXPECT_EQ(dialog->value(), rows_ / 3);
    }
    waiting_.Progress(0, 0);
  }
  void Bold(const std::string&) override {}
  void Ask_To_Report() override {}
  void Release() override {}

 private:
  /// As by the window manager, which the program can't hold off.
  void Resize_Meanwhile() {
    std::exchange(seen_.resized, nullptr)->resize(900, 500);
    const QDeadlineTimer enough(400);
    for (int row = rows_ / 3 + 1; !enough.hasExpired(); ++row) waiting_.Progress(row, rows_);
    seen_.still_busy =
        QApplication::overrideCursor() != nullptr && QApplication::activeModalWidget() != nullptr;
    waiting_.Progress(rows_ / 3, rows_);
  }

  SpreadsheetWaiting& waiting_;
  const int& rows_;
  Seen& seen_;
};

/// Takes a window off the display while the program goes on showing it.
void Unmap(const QWidget& window) {
  const QString number = QString::number(window.winId());
  ASSERT_EQ(QProcess::execute("xdotool", {"windowunmap", number}), 0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !window.windowHandle()->isExposed(); }));
  ASSERT_TRUE(window.isVisible());
}

class Waiting : public WindowTest {
 protected:
  Waiting()
      : WindowTest([this](const auto&, SpreadsheetWaiting& waiting) {
          return std::make_unique<SlowSpreadsheet>(waiting, rows, seen);
        }) {}

  void Export() {
    Click(Screen().cmdAdd);
    Click(Screen().picTotal);
    Wait_Until_Active(*State().forms.total);
    if (resized) seen.resized = &View(*State().forms.total);
    Click(State().forms.total->Toolbar1);
  }

  int rows = 0;
  bool resized = false;
  Seen seen;
};

TEST_F(Waiting, The_Pointer_Is_Busy_And_The_Windows_Stay_Painted) {
  Export();
  EXPECT_TRUE(seen.busy_pointer);
  EXPECT_TRUE(seen.list_painted);
}

TEST_F(Waiting, The_Pointer_Is_Its_Own_Again_Afterwards) {
  Export();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Waiting, A_Long_List_Shows_How_Far_It_Has_Come) {
  rows = 30000;
  Export();
  EXPECT_EQ(seen.progress, "10000 / 30000");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Waiting, A_Window_That_Is_Resized_Meanwhile_Ends_No_Waiting) {
  rows = 30000;
  resized = true;
  Export();
  EXPECT_TRUE(seen.still_busy);
  EXPECT_EQ(seen.progress, "10000 / 30000");
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Waiting, A_Window_That_Closes_Meanwhile_Takes_Nothing_Along) {
  auto window = std::make_unique<QWidget>();
  window->show();
  ASSERT_TRUE(Comes_To_Front(*window));
  Busy busy;
  busy.Progress(1, 30000);
  const QPointer<QWidget> dialog = QApplication::activeModalWidget();
  ASSERT_NE(dialog, nullptr);
  window.reset();
  EXPECT_NE(dialog, nullptr);
  busy.Progress(2, 30000);
  busy.End();
  EXPECT_EQ(dialog, nullptr);
}

TEST_F(Waiting, Events_Let_In_While_The_Display_Is_Awaited_Wait_No_Deeper) {
  ASSERT_NO_FATAL_FAILURE(Unmap(Main_View()));
  constexpr int kCalls = 20;
  int calls = 0;
  int depth = 0;
  int deepest = 0;
  const std::function<void()> let_events_run = [&] {
    deepest = std::max(deepest, ++depth);
    if (++calls < kCalls) QTimer::singleShot(10, &Main_View(), let_events_run);
    desktop.Let_Events_Run();
    --depth;
  };
  let_events_run();
  ASSERT_TRUE(QTest::qWaitFor([&] { return calls == kCalls && depth == 0; }));
  // Two is the rule; a busy machine may have one more due in the middle of another.
  EXPECT_LT(deepest, kCalls / 2);
}

TEST_F(Waiting, Queued_Events_That_Let_Others_In_Are_Nested_No_Deeper_Than_The_Stack_Allows) {
  constexpr int kQueued = 1000;
  int calls = 0;
  int depth = 0;
  int deepest = 0;
  const auto let_events_run = [&] {
    ++calls;
    deepest = std::max(deepest, ++depth);
    desktop.Let_Events_Run();
    --depth;
  };
  for (int i = 0; i < kQueued; ++i) {
    QTimer::singleShot(1, &Main_View(), let_events_run);
  }
  ASSERT_TRUE(QTest::qWaitFor([&] { return calls == kQueued && depth == 0; }));
  EXPECT_LT(deepest, 100);
}

TEST_F(Waiting, A_Short_List_Shows_No_Progress) {
  rows = 100;
  Export();
  EXPECT_EQ(seen.progress, QString());
}

}  // namespace
}  // namespace norvane
