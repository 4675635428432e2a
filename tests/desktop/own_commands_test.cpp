// The words at the foot of the main screen.
#include "desktop/own_commands.h"

#include <QAbstractButton>

#include "window_test.h"

namespace norvane {
namespace {

class OwnCommandsTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    row = Main_View().findChild<OwnCommands*>();
    ASSERT_NE(row, nullptr);
    row->Add(TextId::kShowTotals, Qt::CTRL | Qt::Key_F9, [this] { ++carried_out; });
    row->Follow_Language();
    Settle();
  }

  QAbstractButton& Word() { return *row->findChildren<QAbstractButton*>().last(); }

  OwnCommands* row = nullptr;
  int carried_out = 0;
};

TEST_F(OwnCommandsTest, A_Click_On_The_Word_Carries_It_Out) {
  Click(Word());
  EXPECT_EQ(carried_out, 1);
}

TEST_F(OwnCommandsTest, The_Key_Carries_It_Out_From_An_Input_Field) {
  Click(Screen().txtT(0));
  Press(Qt::Key_F9, Qt::ControlModifier);
  EXPECT_EQ(carried_out, 1);
}

TEST_F(OwnCommandsTest, Says_Its_Key_And_Follows_The_Language) {
  EXPECT_EQ(Word().text().toStdString(), "Show totals");
  EXPECT_EQ(Word().toolTip().toStdString(), "Show totals (Ctrl+F9)");
  EXPECT_EQ(Word().accessibleName().toStdString(), "Show totals");
  const auto& codes = State().languages.Lang_Code;
  const auto slot = std::find(codes.begin(), codes.end(), "de");
  ASSERT_NE(slot, codes.end());
  State().Lang_Index = static_cast<std::int16_t>(slot - codes.begin());
  desktop.Show_Changes();
  EXPECT_EQ(Word().text(), desktop.Text(TextId::kShowTotals));
  EXPECT_NE(Word().text().toStdString(), "Show totals");
  State().Lang_Index = 0;
}

TEST_F(OwnCommandsTest, Behind_A_Dialog_The_Key_Does_Nothing) {
  watchdog.Expect([](QWidget& dialog) {
    Press(Qt::Key_F9, Qt::ControlModifier);
    dialog.close();
  });
  Click(Screen().cmdToolBar5(0));
  Wait_Until_Active(Screen());
  EXPECT_EQ(carried_out, 0);
}

}  // namespace
}  // namespace norvane
