#include <QAccessible>
#include <QAccessibleEditableTextInterface>
#include <QApplication>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

#include "window_test.h"

namespace norvane {
namespace {

/// Text that comes into a field otherwise than by its keys.
class ArrivingText : public WindowTest {
 protected:
  static QAccessibleEditableTextInterface& Editable(QLineEdit& edit) {
    return *QAccessible::queryAccessibleInterface(&edit)->editableTextInterface();
  }
  void Drop(QLineEdit& edit, const QString& text) {
    QMimeData dragged;
    dragged.setText(text);
    QDragEnterEvent enter(edit.rect().center(), Qt::CopyAction, &dragged, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(&edit, &enter);
    QDropEvent drop(edit.rect().center(), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&edit, &drop);
  }
};

TEST_F(ArrivingText, A_Screen_Reader_Replaces_It) {
  Editable(Edit(Screen().txtT(2))).replaceText(0, 1, "13");
  Settle();
  EXPECT_EQ(Shown(Screen().txtT(2)), "13");
  EXPECT_EQ(Shown(Screen().Label4(2)), "22.8");
}

TEST_F(ArrivingText, A_Screen_Reader_Inserts_And_Deletes) {
  QLineEdit& medium = Edit(Screen().txtT(0));
  Editable(medium).insertText(0, "-");
  Settle();
  EXPECT_EQ(Shown(Screen().txtT(0)), "-50");  // -80 is below the limit
  Editable(medium).deleteText(0, 1);
  Settle();
  EXPECT_EQ(Shown(Screen().txtT(0)), "50");
  EXPECT_EQ(Shown(Screen().Label4(2)), "50.0");
}

TEST_F(ArrivingText, Each_Text_Is_One_Whole_Change) {
  int calculations = 0;
  QObject::connect(&Edit(Screen().txtT(0)), &QLineEdit::textChanged, [&] { ++calculations; });
  Editable(Edit(Screen().txtT(0))).replaceText(0, 2, "75");
  Settle();
  EXPECT_EQ(calculations, 1);
  EXPECT_EQ(Shown(Screen().txtT(0)), "75");
}

TEST_F(ArrivingText, What_Is_Rewritten_Or_No_Number_Leaves_No_Trace) {
  Editable(Edit(Screen().txtT(0))).replaceText(0, 2, "150");
  Settle();
  EXPECT_EQ(Shown(Screen().txtT(0)), "115");
  Editable(Edit(Screen().txtT(0))).replaceText(0, 3, "warm");
  Settle();
  EXPECT_EQ(Shown(Screen().txtT(0)), "0");
}

TEST_F(ArrivingText, A_Locked_Field_Takes_None) {
  Click(Screen().cmdToolBarC);
  Editable(Edit(Screen().txtC(4))).replaceText(0, 2, "75");
  Edit(Screen().txtC(1)).setText("99");  // as by whoever doesn't ask
  Settle();
  EXPECT_EQ(Shown(Screen().txtC(4)), "60");
  EXPECT_EQ(Shown(Screen().txtC(1)), "24");
}

TEST_F(ArrivingText, Whoever_Sets_It_Does_Not_Wait_For_A_Message_That_It_Causes) {
  watchdog.Expect_Message(QMessageBox::Ok);
  Editable(Edit(Screen().txtT(0))).replaceText(0, 2, "40000");
  EXPECT_TRUE(watchdog.Messages().empty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.program().Ended(); }, 3000));
  EXPECT_EQ(watchdog.Messages().size(), 1U);
}

TEST_F(ArrivingText, An_Input_Method_Commits_It) {
  QLineEdit& thickness = Edit(Screen().txtT(2));
  Mark(Screen().txtT(2));
  QInputMethodEvent composing("1", {});
  QCoreApplication::sendEvent(&thickness, &composing);
  QInputMethodEvent commit;
  commit.setCommitString("13");
  QCoreApplication::sendEvent(&thickness, &commit);
  EXPECT_EQ(Shown(Screen().txtT(2)), "13");
  EXPECT_EQ(Shown(Screen().Label4(2)), "22.8");
}

TEST_F(ArrivingText, It_Is_Dropped_Into_A_Field) {
  Drop(Edit(Screen().txtmtrs), "5");
  EXPECT_EQ(State().Mtrs, Edit(Screen().txtmtrs).text().toInt());
  EXPECT_EQ(Edit(Screen().txtmtrs).text().size(), 2);
}

}  // namespace
}  // namespace norvane
