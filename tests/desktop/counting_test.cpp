// How many keys, or clicks, two plain questions take from a fresh start.
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QWindow>

#include "window_test.h"

namespace norvane {
namespace {

/// Counts what the hands do. A key that is held for another one, such as Ctrl, counts as one too.
class Counting : public WindowTest {
 protected:
  void Key(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    keys += held == held_ || held == Qt::NoModifier ? 1 : 2;
    held_ = held;
    Press(key, held);
  }
  void Word(const QString& text) {
    held_ = Qt::NoModifier;
    keys += static_cast<int>(text.size());
    Type(text);
  }
  void Mouse(QWidget& widget) {
    ++clicks;
    Click(widget);
  }
  /// Opens the picker of a field and takes an entry of its list, both by a click. The wheel isn't
  /// turned: an entry out of sight is sought by clicks on the scroll bar's ground.
  void Pick(const TextField& field, const QString& entry) {
    Mouse(*Edit(field).findChild<QWidget*>("picker_arrow"));
    auto& list = *Main_View().findChild<QTableWidget*>("picker_list");
    const auto found = list.findItems(entry, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << entry.toStdString();
    const auto in_sight = [&] {
      return list.viewport()->rect().contains(list.visualItemRect(found.first()));
    };
    for (int turns = 0; !in_sight() && turns < 5; ++turns) {
      const bool up = list.visualItemRect(found.first()).top() < 0;
      QScrollBar& bar = *list.verticalScrollBar();
      const int y = up ? bar.height() / 5 : bar.height() * 4 / 5;
      ++clicks;
      Click(Main_View(), bar.mapTo(&Main_View(), QPoint(bar.width() / 2, y)));
      Settle();
    }
    ASSERT_TRUE(in_sight()) << entry.toStdString();
    ++clicks;
    const QPoint at = list.visualItemRect(found.first()).center();
    Click(Main_View(), list.viewport()->mapTo(&Main_View(), at));
  }

  /// Steel 21 mm with 13 mm of insulation, 80 and -5 degrees, 25 m.
  void Expect_Cold_Cellar() {
    EXPECT_EQ(Shown(Screen().txtT(0)), "80");
    EXPECT_EQ(Shown(Screen().txtT(1)), "-5");
    EXPECT_EQ(Shown(Screen().txtT(3)), "21");
    EXPECT_EQ(Shown(Screen().txtT(2)), "13");
    EXPECT_EQ(Shown(Screen().txtmtrs), "25");
    EXPECT_EQ(State().Sel_Size, 0);
    EXPECT_EQ(Screen().Calc_Mode, "T");
  }
  /// Copper 22 mm with a medium of 6 degrees, in air of 28 degrees and 80 %.
  void Expect_Cold_Water() {
    EXPECT_EQ(State().Sel_Size, 1);
    EXPECT_EQ(Screen().Calc_Mode, "C");
    EXPECT_EQ(Shown(Screen().txtC(0)), "6");
    EXPECT_EQ(Shown(Screen().txtC(1)), "28");
    EXPECT_EQ(Shown(Screen().txtC(3)), "22");
    EXPECT_EQ(Shown(Screen().txtC(4)), "80");
  }

  static constexpr int kMostKeys = 14;
  static constexpr int kMostClicks = 12;
  int keys = 0;
  int clicks = 0;

 private:
  Qt::KeyboardModifiers held_;
};

TEST_F(Counting, Steel_In_A_Cold_Cellar_By_Keys) {
  Key(Qt::Key_Tab);  // 80 stands there already
  Key(Qt::Key_F2);
  Word("-5");
  Key(Qt::Key_Tab);
  Key(Qt::Key_F2);
  Word("21");
  Key(Qt::Key_Tab);
  Word("13");
  Key(Qt::Key_Tab);
  Word("25");
  Expect_Cold_Cellar();
  EXPECT_LE(keys, kMostKeys);
  RecordProperty("keys", keys);
}

TEST_F(Counting, Cold_Water_In_Copper_By_Keys) {
  Key(Qt::Key_3, Qt::ControlModifier);
  Key(Qt::Key_7, Qt::ControlModifier);
  Word("6");
  Key(Qt::Key_Tab);
  Word("28");
  Key(Qt::Key_Tab);
  Word("22");
  Key(Qt::Key_Tab);
  Key(Qt::Key_Tab);  // over the thickness, which is the answer
  Word("8");         // 80 is the only humidity that begins so
  Key(Qt::Key_Return);
  Expect_Cold_Water();
  EXPECT_LE(keys, kMostKeys);
  RecordProperty("keys", keys);
}

TEST_F(Counting, Steel_In_A_Cold_Cellar_By_Mouse) {
  Pick(Screen().txtT(1), "-5");
  Pick(Screen().txtT(3), "21");
  Pick(Screen().txtT(2), "13");
  Pick(Screen().txtmtrs, "25");
  Expect_Cold_Cellar();
  EXPECT_LE(clicks, kMostClicks);
  RecordProperty("clicks", clicks);
}

TEST_F(Counting, Cold_Water_In_Copper_By_Mouse) {
  Mouse(Widget(Screen().cmdToolBar1(1)));
  Mouse(Widget(Screen().cmdToolBarC));
  Pick(Screen().txtC(0), "6");
  Pick(Screen().txtC(1), "28");
  Pick(Screen().txtC(3), "22");
  Pick(Screen().txtC(4), "80");
  Expect_Cold_Water();
  EXPECT_LE(clicks, kMostClicks);
  RecordProperty("clicks", clicks);
}

}  // namespace
}  // namespace norvane
