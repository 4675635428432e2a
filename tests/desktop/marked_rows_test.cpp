#include <QPushButton>
#include <QScrollBar>
#include <set>

#include "totals_test.h"

namespace norvane {
namespace {

/// The marked rows of the saved lines, and the mouse anywhere in their table.
class MarkedRows : public TotalsTest {
 protected:
  std::set<int> Marked() {
    std::set<int> rows;
    for (const QModelIndex& row : Table().selectionModel()->selectedRows()) rows.insert(row.row());
    return rows;
  }
  /// By keyboard, which asks nothing.
  void Mark_Row(int row) {
    // A question that was answered just now gives the keyboard back when the desktop has time.
    ASSERT_TRUE(Comes_To_Front(View(List())));
    Table().setFocus();
    Press(Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < row; ++i) Press(Qt::Key_Down);
    ASSERT_EQ(Marked(), std::set<int>{row});
  }
  QPoint Place_In_Captions(int column) {
    const QHeaderView& captions = *Table().horizontalHeader();
    const int x = captions.sectionViewportPosition(column) + captions.sectionSize(column) / 2;
    return captions.viewport()->mapTo(&View(List()), QPoint(x, captions.height() / 2));
  }
  QPoint Place_Below_The_Lines() {
    const QWidget& ground = *Table().viewport();
    return ground.mapTo(&View(List()), QPoint(ground.width() / 2, ground.height() - 5));
  }
  /// Clicks, and tells what was asked by then.
  QStringList Asked_By(Qt::MouseButton button, const QPoint& place) {
    const std::size_t before = watchdog.Messages().size();
    QTest::mouseClick(View(List()).windowHandle(), button, Qt::NoModifier, place);
    Wait_For_Answer();
    QStringList asked;
    for (std::size_t i = before; i < watchdog.Messages().size(); ++i) {
      asked << watchdog.Messages()[i].text;
    }
    return asked;
  }
  /// The picture of the table from one column's left edge on, as wide as told.
  QImage Picture(int left, int width) {
    Settle();
    return Table().grab(QRect(left, 0, width, Table().viewport()->geometry().bottom())).toImage();
  }
};

TEST_F(MarkedRows, What_Is_Asked_About_Is_Marked_While_The_Question_Stands) {
  Add_Lines({"6", "9", "13", "15", "20"});
  Open();
  for (const auto& [from, to] : {std::pair(1, 3), std::pair(3, 1)}) {
    std::set<int> marked;
    watchdog.Expect([&](QWidget& box) {
      marked = Marked();
      Press(Qt::Key_Escape);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !box.isVisible(); }, 5000));
    });
    Drag(from, to);
    Wait_For_Answer();
    EXPECT_EQ(marked, (std::set<int>{1, 2, 3}));
    // No drops the selection down to the row where it began.
    EXPECT_EQ(Marked(), std::set<int>{from});
  }
}

TEST_F(MarkedRows, A_Click_Of_Any_Button_Anywhere_Asks_About_Them) {
  Add_Lines({"6", "9", "13"});
  Open();
  const auto keep = [this] { watchdog.Expect_Message(QMessageBox::No); };
  for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    for (const QPoint& place :
         {Place_In_Captions(1), Place_In_Captions(4), Place_Below_The_Lines()}) {
      SCOPED_TRACE(testing::Message()
                   << "button " << button << " at " << place.x() << ", " << place.y());
      Mark_Row(1);
      keep();
      EXPECT_EQ(Asked_By(button, place), QStringList{"Delete 1 Records"});
      EXPECT_EQ(Marked(), std::set<int>{1});
    }
  }
  for (const auto button : {Qt::MiddleButton, Qt::RightButton}) {
    for (const int column : {1, 4}) {
      Mark_Row(1);
      keep();
      EXPECT_EQ(Asked_By(button, Place_Of(2, column)), QStringList{"Delete 1 Records"});
      EXPECT_EQ(Marked(), std::set<int>{1});
    }
  }
  // On a row the left button marks that first.
  for (const int column : {0, 1, 4}) {
    Mark_Row(1);
    keep();
    EXPECT_EQ(Asked_By(Qt::LeftButton, Place_Of(2, column)), QStringList{"Delete 1 Records"});
    EXPECT_EQ(Marked(), std::set<int>{2});
  }
}

TEST_F(MarkedRows, Nothing_Is_Asked_While_There_Are_None) {
  Add_Lines({"6", "9", "13"});
  Open();
  ASSERT_EQ(Marked(), std::set<int>{});
  for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    EXPECT_EQ(Asked_By(button, Place_In_Captions(1)), QStringList{});
    EXPECT_EQ(Asked_By(button, Place_In_Captions(4)), QStringList{});
    EXPECT_EQ(Asked_By(button, Place_Below_The_Lines()), QStringList{});
    if (button == Qt::LeftButton) continue;
    EXPECT_EQ(Asked_By(button, Place_Of(1)), QStringList{});
    EXPECT_EQ(Marked(), std::set<int>{});
  }
  Table().setFocus();
  Press(Qt::Key_Delete);
  Settle();
  EXPECT_TRUE(watchdog.Messages().empty());
}

TEST_F(MarkedRows, The_Button_Above_Deletes_Them) {
  Add_Lines({"6", "9", "13"});
  Open();
  auto& button = *View(List()).findChild<QPushButton*>();
  Click(button);
  EXPECT_TRUE(watchdog.Messages().empty());
  Mark_Row(1);
  watchdog.Expect_Message(QMessageBox::Yes);
  Click(button);
  Wait_For_Answer();
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"6", "13"}));
}

TEST_F(MarkedRows, To_Make_A_Column_Wider_Asks_Nothing) {
  Add_Lines({"6", "9"});
  Open();
  Mark_Row(1);
  for (const int column : {1, 4}) {
    const int before = Table().columnWidth(column);
    const QPoint middle = Place_In_Captions(column);
    const QPoint edge(middle.x() - Table().columnWidth(column) / 2 + before, middle.y());
    QWindow* window = View(List()).windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, edge);
    QTest::mouseMove(window, edge + QPoint(10, 0));
    QTest::mouseMove(window, edge + QPoint(20, 0));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, edge + QPoint(20, 0));
    Settle();
    EXPECT_GT(Table().columnWidth(column), before) << column;
  }
  EXPECT_TRUE(watchdog.Messages().empty());
  EXPECT_EQ(Marked(), std::set<int>{1});
}

TEST_F(MarkedRows, The_Columns_Of_Words_And_The_Captions_Stay_When_The_Others_Scroll) {
  Add_Lines({"6", "9", "13", "15"});
  Open();
  Mark_Row(1);
  constexpr int kKind = 2;
  const QRect last = Table().visualRect(Table().model()->index(0, kKind));
  const int stays = Table().viewport()->geometry().left() + last.right() + 1;
  const int rest = Table().width() - stays;
  const QImage words = Picture(0, stays);
  const QImage numbers = Picture(stays, rest);
  Table().horizontalScrollBar()->setValue(Table().horizontalScrollBar()->maximum());
  EXPECT_EQ(Picture(0, stays), words);
  EXPECT_NE(Picture(stays, rest), numbers);
  EXPECT_EQ(Table().visualRect(Table().model()->index(0, kKind)), last);
  // Rows are reached there as everywhere.
  watchdog.Expect_Message(QMessageBox::No);
  EXPECT_EQ(Asked_By(Qt::LeftButton, Place_Of(2)), QStringList{"Delete 1 Records"});
  EXPECT_EQ(Marked(), std::set<int>{2});
  EXPECT_EQ(Table().horizontalScrollBar()->value(), Table().horizontalScrollBar()->maximum());
}

TEST_F(MarkedRows, The_Columns_That_Stay_Follow_Up_And_Down) {
  QStringList thicknesses;
  for (int i = 10; i < 60; ++i) thicknesses << QString::number(i);
  Add_Lines(thicknesses);
  Open();
  Table().setFocus();
  Press(Qt::Key_End, Qt::ControlModifier);
  const QModelIndex product = Table().model()->index(49, 1);
  const QModelIndex number = Table().model()->index(49, 7);
  EXPECT_EQ(Table().visualRect(product).top(), Table().visualRect(number).top());
  EXPECT_EQ(Table().visualRect(product).height(), Table().visualRect(number).height());
  EXPECT_EQ(Table().indexAt(Table().visualRect(product).center()), product);
}

TEST_F(MarkedRows, The_Cell_In_Which_The_Keyboard_Is_Isnt_Covered) {
  Add_Lines({"6", "9"});
  Open();
  Table().setFocus();
  Press(Qt::Key_Home);
  const int last = Table().model()->columnCount() - 1;
  for (int i = 0; i < last; ++i) Press(Qt::Key_Right);
  ASSERT_EQ(Table().currentIndex().column(), last);
  for (int i = 0; i < last; ++i) {
    const QRect cell = Table().visualRect(Table().currentIndex());
    EXPECT_EQ(Table().indexAt(cell.center()), Table().currentIndex());
    EXPECT_EQ(Table().indexAt(cell.topLeft()), Table().currentIndex());
    Press(Qt::Key_Left);
  }
}

TEST_F(MarkedRows, In_A_Narrow_Window_The_Numbers_Keep_Their_Room) {
  Add_Lines({"6", "9"});
  Open();
  Table().setColumnWidth(1, 5 * Table().width());
  Settle();
  Table().horizontalScrollBar()->setValue(Table().horizontalScrollBar()->maximum());
  EXPECT_LT(Table().visualRect(Table().model()->index(0, 1)).right(), 0);
  EXPECT_EQ(Table().visualRect(Table().model()->index(0, 0)).left(), 0);
}

}  // namespace
}  // namespace norvane
