#include <QApplication>
#include <QGridLayout>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <map>

#include "desktop/number_label.h"
#include "window_test.h"

namespace norvane {
namespace {

/// Counts how often each widget is painted, and how often one is laid out, while it lives.
class PaintCounter : public QObject {
 public:
  PaintCounter() { QApplication::instance()->installEventFilter(this); }

  int Paints_Of(const QWidget& widget) const {
    const auto entry = paints_.find(&widget);
    return entry == paints_.end() ? 0 : entry->second;
  }
  int Layouts() const { return layouts_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints_[watched];
    if (event->type() == QEvent::LayoutRequest) ++layouts_;
    return false;
  }

 private:
  std::map<const QObject*, int> paints_;
  int layouts_ = 0;
};

/// All of a field that can be seen.
std::string Look_Of(const Field& field) {
  const auto colour = [](const BackColor& c) {
    return std::to_string(c.red) + "/" + std::to_string(c.green) + "/" + std::to_string(c.blue);
  };
  std::string look = field.form().Shows(field) ? "seen " : "hidden ";
  look += field.Font().bold ? "bold " : "plain ";
  if (const auto* text = dynamic_cast<const TextField*>(&field)) {
    look += text->Text() + colour(text->BackColor());
  } else if (const auto* caption = dynamic_cast<const CaptionField*>(&field)) {
    look += caption->Caption() + colour(caption->BackColor());
    look += caption->BackStyle() == BackStyle::kOpaque ? " opaque" : " transparent";
  } else if (const auto* button = dynamic_cast<const Button*>(&field)) {
    look += button->Caption() + (button->Picture() == ButtonPicture::kChosen ? " down" : " up");
  } else if (const auto* picture = dynamic_cast<const PictureField*>(&field)) {
    look += std::to_string(picture->Picture());
  } else if (const auto* list = dynamic_cast<const ListField*>(&field)) {
    look += list->Text();
  }
  return look;
}

class Painting : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Settle();
  }

  /// Presses a key in the field with the focus and checks what is painted for it.
  void Expect_Few_Paints(const std::string& name, Qt::Key key) {
    SCOPED_TRACE(name);
    Settle();
    std::map<const Field*, std::string> before;
    for (const Field* field : Screen().Fields()) before[field] = Look_Of(*field);
    const PaintCounter counter;
    QTest::keyPress(Main_View().windowHandle(), key);
    Settle();
    Settle();
    int painted = 0;
    for (const Field* field : Screen().Fields()) {
      const QWidget* widget = Main_View().Widget_Of(*field);
      if (widget == nullptr || field == &Screen().picToolbar || field == &Screen().picToolTip) {
        continue;  // panels are the ground of what lies on them
      }
      SCOPED_TRACE(widget->objectName().toStdString());
      const bool changed = before[field] != Look_Of(*field);
      const int paints = counter.Paints_Of(*widget);
      painted += paints;
      if (changed && widget->isVisible()) {
        EXPECT_EQ(paints, 1);
      } else if (widget->hasFocus()) {
        EXPECT_LE(paints, 1);  // the caret or the marked letters
      } else {
        EXPECT_EQ(paints, 0);
      }
    }
    EXPECT_GT(painted, 0) << "nothing at all was painted";
    // Letting go lights the caret, which is no business of the program.
    QTest::keyRelease(Main_View().windowHandle(), key);
  }
};

TEST_F(Painting, A_Key_Paints_What_It_Changes_Once_And_Nothing_Else) {
  Mark(Screen().txtT(0));
  Expect_Few_Paints("first digit of the temperature", Qt::Key_1);
  Expect_Few_Paints("second digit", Qt::Key_2);
  Expect_Few_Paints("third digit, cut at the limit", Qt::Key_5);
  Mark(Screen().txtT(2));
  Expect_Few_Paints("thickness", Qt::Key_1);
  Expect_Few_Paints("thickness with an inch form", Qt::Key_3);
  Mark(Screen().txtmtrs);
  Expect_Few_Paints("length", Qt::Key_2);
}

TEST_F(Painting, Typing_Lays_Nothing_Out_Anew) {
  Mark(Screen().txtT(2));
  Type("20");  // from here on the savings are numbers
  Mark(Screen().txtT(0));
  Type("5");
  Settle();
  const PaintCounter counter;
  Type("7");
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Up);
  Settle();
  EXPECT_EQ(counter.Layouts(), 0);
}

TEST(ANumberLabel, GrowsForANumberWiderThanItsColumnAndStaysSo) {
  QWidget window;
  auto* grid = new QGridLayout(&window);
  auto* number = new NumberLabel(*grid, 0, kNumberColumn);
  number->Show_Number("117455.60");
  EXPECT_EQ(number->width(), kColumnWidth[kNumberColumn]);
  for (const char* wide : {"12345678901234567890.00", "1.23456789012345E+30%"}) {
    number->Show_Number(wide);
    EXPECT_GE(number->width(), number->sizeHint().width());
  }
  const int widest = number->width();
  EXPECT_GT(widest, kColumnWidth[kNumberColumn]);
  number->Show_Number("1");
  EXPECT_EQ(number->width(), widest);
}

TEST(ANumberLabel, IsAsHighAsALargeFontNeeds) {
  QWidget window;
  auto* grid = new QGridLayout(&window);
  auto* number = new NumberLabel(*grid, 0, kNumberColumn);
  number->setFont(QFont("Arial", 40));
  number->Show_Number("1");
  EXPECT_GE(number->height(), number->sizeHint().height());
}

TEST_F(Painting, What_A_Key_Paints_Is_What_The_Whole_Window_Would_Show) {
  Mark(Screen().txtT(2));
  Type("20");
  Mark(Screen().txtT(0));
  Type("57");
  QTest::qWait(100);
  const QImage on_screen =
      QGuiApplication::primaryScreen()->grabWindow(Main_View().winId()).toImage();
  QImage whole = Main_View().grab().toImage();
  // The caret comes and goes.
  const QWidget& field = Widget(Screen().txtT(0));
  const QRect caret(field.mapTo(&Main_View(), QPoint()), field.size());
  const auto same = [&](int x, int y) {
    return caret.contains(x, y) || on_screen.pixelColor(x, y) == whole.pixelColor(x, y);
  };
  ASSERT_EQ(on_screen.size(), whole.size());
  for (int y = 0; y < whole.height(); ++y) {
    for (int x = 0; x < whole.width(); ++x) {
      ASSERT_TRUE(same(x, y)) << "at " << x << ", " << y;
    }
  }
}

TEST_F(Painting, A_Too_Small_Diameter_Is_Painted_Once_In_Spite_Of_Its_Nested_Changes) {
  Mark(Screen().txtT(3));
  Expect_Few_Paints("below the least diameter", Qt::Key_4);
  Expect_Few_Paints("no size", Qt::Key_1);
}

TEST_F(Painting, A_Key_In_Condensation_Paints_What_It_Changes) {
  Click(Screen().cmdToolBarC);
  Mark(Screen().txtC(0));
  Expect_Few_Paints("medium temperature", Qt::Key_5);
}

TEST_F(Painting, A_Step_Paints_What_It_Changes) {
  Click(Screen().txtT(0));
  Expect_Few_Paints("a step down", Qt::Key_Down);
  Expect_Few_Paints("a step up", Qt::Key_Up);
}

}  // namespace
}  // namespace norvane
