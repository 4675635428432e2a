#pragma once

#include <QApplication>
#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <QWindow>

#include "window_test.h"

namespace norvane {

/// The screen of the saved lines.
class TotalsTest : public WindowTest {
 protected:
  Total& List() { return *State().forms.total; }
  QTableView& Table() { return dynamic_cast<QTableView&>(Widget(List().grdResult)); }

  /// Saves a line for each thickness.
  void Add_Lines(const QStringList& thicknesses) {
    for (const QString& thickness : thicknesses) {
      Mark(Screen().txtT(2));
      Type(thickness);
      Click(Screen().cmdAdd);
    }
  }
  void Open() {
    Click(Screen().picTotal);
    Wait_Until_Active(List());
    Settle();
  }
  /// Rows are counted from 0, as the table does.
  QPoint Place_Of(int row, int column = 1) {
    const QRect cell = Table().visualRect(Table().model()->index(row, column));
    return Table().viewport()->mapTo(&View(List()), cell.center());
  }
  void Drag(int from, int to) {
    QWindow* window = View(List()).windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, Place_Of(from));
    QTest::mouseMove(window, Place_Of(to));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, Place_Of(to));
  }
  /// Until each question that is expected has come and gone.
  void Wait_For_Answer() {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return watchdog.Content() && QApplication::activeModalWidget() == nullptr; }, 5000));
    Settle();
  }
  /// The thicknesses of the lines that the table shows.
  QStringList Shown_Thicknesses() {
    constexpr int kThickness = 7;  // column
    QStringList shown;
    for (int row = 0; row < Table().model()->rowCount(); ++row) {
      shown << Table().model()->index(row, kThickness).data().toString();
    }
    return shown;
  }
};

}  // namespace norvane
