#include <QGuiApplication>

#include "places_test.h"

namespace norvane {
namespace {

/// Where the windows lie on a desk with two monitors, the second to the right of the first.
class TwoMonitors : public PlacesTest {
 protected:
  void SetUp() override {
    PlacesTest::SetUp();
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    second = QGuiApplication::screens().at(1);
    ASSERT_NE(Main_View().screen(), second);
    Move(Screen(), second->availableGeometry().topLeft() + QPoint(60, 50));
    ASSERT_EQ(Main_View().screen(), second);
  }

  const QScreen* second = nullptr;
};

TEST_F(TwoMonitors, The_Lists_Open_In_The_Middle_Of_The_One_That_The_Main_Window_Is_On) {
  for (const auto& [entry, form] : {std::pair<int, Form*>{1, &Languages()}, {2, &Addresses()}}) {
    Open(Screen().lblMenu(entry), *form);
    Expect_Centred(*form);
    Expect_Inside(*form);
    View(*form).close();
  }
}

TEST_F(TwoMonitors, A_List_Follows_The_Main_Window_To_The_Other_One_By_Its_Menu_Entry) {
  Open(Screen().lblMenu(1), Languages());
  Expect_Centred(Languages());
  const QScreen& first = *QGuiApplication::screens().at(0);
  Move(Screen(), first.availableGeometry().topLeft() + QPoint(30, 20));
  Open(Screen().lblMenu(1), Languages());
  ASSERT_EQ(Area(), first.availableGeometry());
  Expect_Centred(Languages());
}

TEST_F(TwoMonitors, The_Settings_And_The_Totals_Open_Inside_That_One) {
  watchdog.Expect([this](QWidget&) {
    Settle();
    Expect_Inside(*State().forms.settings);
    Press(Qt::Key_Escape);
  });
  Click(Screen().cmdToolBar5(0));
  Move(Screen(), second->availableGeometry().topRight() - QPoint(400, -200));
  Open_Totals();
  Expect_Inside(Totals());
}

TEST_F(TwoMonitors, A_Main_Window_That_Lies_On_Both_Counts_To_The_One_With_Most_Of_It) {
  const QPoint border = second->geometry().topLeft();
  Move(Screen(), border + QPoint(100 - Frame_Of(Screen()).width(), 80));
  Open(Screen().lblMenu(2), Addresses());
  EXPECT_TRUE(
      QGuiApplication::screens().at(0)->availableGeometry().contains(Frame_Of(Addresses())));
  Click(Addresses().OK);
  Move(Screen(), border + QPoint(-100, 80));
  Open(Screen().lblMenu(2), Addresses());
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return second->availableGeometry().contains(Frame_Of(Addresses())); }, 5000));
}

}  // namespace
}  // namespace norvane
