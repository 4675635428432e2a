#include <QApplication>
#include <QTest>
#include <QWindow>
#include <map>

#include "window_test.h"

namespace norvane {
namespace {

/// Counts how often each widget is painted while it lives.
class PaintCounter : public QObject {
 public:
  PaintCounter() { QApplication::instance()->installEventFilter(this); }

  int Paints_Of(const QWidget& widget) const {
    const auto entry = paints_.find(&widget);
    return entry == paints_.end() ? 0 : entry->second;
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints_[watched];
    return false;
  }

 private:
  std::map<const QObject*, int> paints_;
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
