#include "totals_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <QWindow>
#include <algorithm>

#include "processor_time.h"

namespace norvane {
namespace {

class Totals : public TotalsTest {};

TEST_F(Totals, The_Ways_To_It_Show_With_The_First_Line) {
  EXPECT_FALSE(Widget(Screen().picTotal).isVisible());
  EXPECT_FALSE(Widget(Screen().cmdToolBar0(0)).isVisible());
  Click(Screen().cmdAdd);
  EXPECT_TRUE(Widget(Screen().picTotal).isVisible());
  EXPECT_TRUE(Widget(Screen().cmdToolBar0(0)).isVisible());
  Click(Screen().cmdToolBar0(0));
  Wait_Until_Active(List());
  EXPECT_EQ(Shown_Thicknesses(), QStringList{"0"});
}

TEST_F(Totals, Lines_And_Sums_Are_Shown) {
  // Per metre 0 mm saves nothing at all.
  Add_Lines({"0", "13", "20"});
  Open();
  Expect_Same_As_Model(View(List()));
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"0", "13", "20"}));
  EXPECT_EQ(View(List()).windowTitle(), "Total Calculation");
  double sums[3] = {};
  for (int row = 0; row < 3; ++row) {
    for (int i = 0; i < 3; ++i) {
      QString gain = Table().model()->index(row, 17 + i).data().toString();
      sums[i] += gain.replace(',', '.').toDouble();
    }
  }
  const QString shown = QString(
                            "Total   Natural gas (m\u00B3) = %1   Heating oil (litres) = %2   "
                            "Electricity (kWh) = %3")
                            .arg(sums[0], 0, 'g', 15)
                            .arg(sums[1], 0, 'g', 15)
                            .arg(sums[2], 0, 'g', 15);
  EXPECT_EQ(Label(List().Label1).text(), Number(shown.toStdString()).c_str());
  EXPECT_TRUE(Label(List().Label1).font().bold());
  EXPECT_GT(sums[2], 0);
}

TEST_F(Totals, A_Drag_Over_Rows_Asks_And_Yes_Deletes_Them) {
  Add_Lines({"6", "9", "13", "15", "20"});
  Open();
  watchdog.Expect_Message(QMessageBox::Yes);
  Drag(1, 3);
  Wait_For_Answer();
  ASSERT_EQ(watchdog.Messages().size(), 1U);
  EXPECT_EQ(watchdog.Messages()[0],
            (SeenMessage{"Norvane", "Delete 3 Records", QMessageBox::Question}));
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"6", "20"}));
  Expect_Same_As_Model(View(List()));
}

TEST_F(Totals, A_Click_That_Waits_Behind_Another_Asks_When_That_Is_Answered) {
  Add_Lines({"6", "9", "13"});
  Open();
  int most_at_once = 0;
  for (int answer : {QMessageBox::Yes, QMessageBox::No}) {
    watchdog.Expect([&, answer](QWidget& window) {
      QTest::qWait(100);
      int open = 0;
      for (QWidget* shown : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMessageBox*>(shown) != nullptr && shown->isVisible()) ++open;
      }
      most_at_once = std::max(most_at_once, open);
      auto& box = dynamic_cast<QMessageBox&>(window);
      Click(*box.button(static_cast<QMessageBox::StandardButton>(answer)));
    });
  }
  // Both clicks are there before the event loop runs, as when the program was busy meanwhile.
  QWindow* window = View(List()).windowHandle();
  const QPoint place = Place_Of(1);
  const QPoint on_screen = View(List()).mapToGlobal(place);
  for (int time : {1, 2}) {
    qt_handleMouseEvent(window, place, on_screen, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, Qt::NoModifier, time);
    qt_handleMouseEvent(window, place, on_screen, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, Qt::NoModifier, time);
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return watchdog.Content(); }, 3000));
  EXPECT_EQ(most_at_once, 1);
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"6", "13"}));
}

TEST_F(Totals, A_Table_Whose_Lines_Have_Gone_Is_Empty) {
  Add_Lines({"6", "9"});
  Open();
  QTableView& table = Table();
  EXPECT_EQ(table.model()->rowCount(), 2);
  // The window stays until the event loop runs, as when it was in the middle of an event.
  View(List()).close();
  ASSERT_FALSE(State().forms.total.Loaded());
  EXPECT_EQ(table.model()->rowCount(), 0);
  EXPECT_EQ(table.model()->columnCount(), 0);
  table.setFocus();
}

TEST_F(Totals, A_Drag_Upwards_Takes_The_Same_Rows) {
  Add_Lines({"6", "9", "13", "15"});
  Open();
  watchdog.Expect_Message(QMessageBox::Yes);
  Drag(2, 1);
  Wait_For_Answer();
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"6", "15"}));
}

TEST_F(Totals, No_Keeps_The_Lines) {
  Add_Lines({"6", "9"});
  Open();
  watchdog.Expect_Message(QMessageBox::No);
  norvane::Click(View(List()), Place_Of(0));
  Wait_For_Answer();
  EXPECT_EQ(watchdog.Messages()[0].text, "Delete 1 Records");
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"6", "9"}));
  EXPECT_TRUE(View(List()).isVisible());
}

TEST_F(Totals, Escape_Closes_The_Window) {
  Add_Lines({"6", "9"});
  Open();
  Press(Qt::Key_Escape);
  Wait_Until_Active(Screen());
  EXPECT_FALSE(State().forms.total.Loaded());
  EXPECT_TRUE(Widget(Screen().picTotal).isVisible()) << "the lines are kept";
}

TEST_F(Totals, Escape_Is_No) {
  Add_Lines({"6", "9"});
  Open();
  watchdog.Expect([](QWidget& box) {
    Press(Qt::Key_Escape);
    // The button goes down for a moment first.
    EXPECT_TRUE(QTest::qWaitFor([&] { return !box.isVisible(); }, 5000));
  });
  norvane::Click(View(List()), Place_Of(0));
  EXPECT_TRUE(QTest::qWaitFor([&] { return watchdog.Content(); }, 5000));
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"6", "9"}));
}

TEST_F(Totals, No_With_One_Line_Closes_The_Screen_And_Keeps_The_Line) {
  Add_Lines({"6"});
  Open();
  watchdog.Expect_Message(QMessageBox::No);
  norvane::Click(View(List()), Place_Of(0));
  Wait_For_Answer();
  EXPECT_FALSE(State().forms.total.Loaded());
  Wait_Until_Active(Screen());
  EXPECT_TRUE(Widget(Screen().picTotal).isVisible());
}

TEST_F(Totals, The_Last_Line_Deleted_Closes_The_Screen_And_Hides_The_Ways_To_It) {
  Add_Lines({"6"});
  Open();
  watchdog.Expect_Message(QMessageBox::Yes);
  norvane::Click(View(List()), Place_Of(0));
  Wait_For_Answer();
  EXPECT_FALSE(State().forms.total.Loaded());
  Wait_Until_Active(Screen());
  EXPECT_FALSE(Widget(Screen().picTotal).isVisible());
  EXPECT_FALSE(Widget(Screen().cmdToolBar0(0)).isVisible());
}

TEST_F(Totals, The_Delete_Key_Asks_For_The_Marked_Rows) {
  Add_Lines({"6", "9", "13"});
  Open();
  Table().setFocus();
  Press(Qt::Key_Home, Qt::ControlModifier);
  Press(Qt::Key_Down);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  watchdog.Expect_Message(QMessageBox::Yes);
  Press(Qt::Key_Delete);
  Wait_For_Answer();
  EXPECT_EQ(watchdog.Messages()[0].text, "Delete 2 Records");
  EXPECT_EQ(Shown_Thicknesses(), QStringList{"6"});
}

TEST_F(Totals, Copy_Takes_The_Marked_Rows_Tab_Separated) {
  Add_Lines({"6", "9", "13"});
  Open();
  Table().setFocus();
  Press(Qt::Key_Home, Qt::ControlModifier);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  // Each saved line begins with a tab, for the narrow first column.
  const auto line = [this](std::size_t i) {
    return QString::fromStdString(State().Calc_List[i].substr(1)) + "\n";
  };
  EXPECT_EQ(QGuiApplication::clipboard()->text(), line(1) + line(2));
}

TEST_F(Totals, Lines_That_Were_Added_Meanwhile_Are_There_On_Coming_Back) {
  Add_Lines({"6"});
  Open();
  Add_Lines({"9"});
  EXPECT_TRUE(View(List()).isVisible());
  norvane::Click(Widget(List().picTotal));
  Settle();
  EXPECT_EQ(Shown_Thicknesses(), (QStringList{"6", "9"}));
  Expect_Same_As_Model(View(List()));
}

TEST_F(Totals, The_Columns_Are_As_Wide_As_Told_And_No_Word_Of_A_Caption_Is_Cut) {
  Add_Lines({"6"});
  Open();
  EXPECT_EQ(Table().columnWidth(0), 20);  // 300 twips
  for (int column = 1; column < List().grdResult.Cols(); ++column) {
    EXPECT_GE(Table().columnWidth(column), 133) << column;  // 2000 twips
  }
}

TEST_F(Totals, A_Width_That_The_User_Has_Dragged_Stays_When_Lines_Come) {
  Add_Lines({"6"});
  Open();
  Table().setColumnWidth(1, 222);
  Add_Lines({"9"});
  norvane::Click(Widget(List().picTotal));
  Settle();
  EXPECT_EQ(Table().columnWidth(1), 222);
}

TEST_F(Totals, A_Full_List_Opens_Scrolls_And_Deletes_At_Once) {
  Click(Screen().cmdAdd);
  const std::string line = State().Calc_List[1];
  State().Calc_List.insert(State().Calc_List.begin() + 1, 32765, line);
  ProcessorTime time;
  Open();
  // Each takes far less than half a second.
  constexpr double kLongest = 2;  // seconds
  EXPECT_LT(time.Restart(), kLongest);
  ASSERT_EQ(Table().model()->rowCount(), 32766);
  Table().setFocus();
  Press(Qt::Key_End, Qt::ControlModifier);
  Table().grab();
  EXPECT_LT(time.Restart(), kLongest);
  watchdog.Expect_Message(QMessageBox::Yes);
  Press(Qt::Key_Delete);
  Wait_For_Answer();
  EXPECT_LT(time.Restart(), kLongest);
  EXPECT_EQ(Table().model()->rowCount(), 32765);
}

TEST_F(Totals, The_Close_Box_Closes_It) {
  Add_Lines({"6"});
  Open();
  View(List()).close();
  EXPECT_FALSE(State().forms.total.Loaded());
  Wait_Until_Active(Screen());
}

TEST_F(Totals, The_Grid_Follows_The_Size_Of_The_Window) {
  Add_Lines({"6"});
  Open();
  const QSize before = Table().size();
  View(List()).resize(View(List()).size() + QSize(100, 60));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Table().width() == before.width() + 100; }, 5000));
  EXPECT_EQ(Table().height(), before.height() + 60);
  ASSERT_TRUE(QTest::qWaitFor([&] { return List().Place().width == View(List()).width() * 15; }));
  EXPECT_TRUE(Widget(List().Label1).isVisible());
}

}  // namespace
}  // namespace norvane
