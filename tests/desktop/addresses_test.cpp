#include <QListWidget>

#include "window_test.h"

namespace norvane {
namespace {

/// The list of addresses.
class Addresses : public WindowTest {
 protected:
  Address& List() { return *State().forms.address; }

  void Open() {
    Click(Screen().lblMenu(2));
    Wait_Until_Active(List());
    Settle();
  }
};

TEST_F(Addresses, All_Lines_Are_Listed) {
  Open();
  Expect_Same_As_Model(View(List()));
  Expect_Room_For_All(View(List()));
  EXPECT_EQ(Shown(List().Label1), "Addresses");
  const auto& list = dynamic_cast<QListWidget&>(Widget(List().List1));
  QStringList lines;
  for (int i = 0; i < list.count(); ++i) lines << list.item(i)->text();
  EXPECT_EQ(lines, (QStringList{"Fennimoor Pipe Lagging Ltd", "Unit 4", "Technical sales",
                                "PO Box 61, Sampleford, ZZ9 9ZY, United Kingdom",
                                "27 Example Lane, Sampleford, ZZ9 9ZZ, United Kingdom",
                                "Phone: 01632 960147", "Fax: 01632 960148",
                                "E-mail: office@fennimoor.example", "",
                                "Dorrvik Kaelteschutz Handelsgesellschaft",
                                "Beispielweg 8a, 00000 Musterstadt, Germany",
                                "Phone: +49 30 23125 214", "Fax: +49 30 23125 215",
                                "Web: www.dorrvik.example", "", "Website: www.norvane.example"}));
}

TEST_F(Addresses, Every_Way_Out_Closes_The_List) {
  const std::vector<std::function<void()>> ways = {
      [this] { Click(List().OK); },
      [this] { Click(List().imgExit); },
      [] { Press(Qt::Key_Escape); },
      [this] { View(List()).close(); },
  };
  for (std::size_t i = 0; i < ways.size(); ++i) {
    SCOPED_TRACE(i);
    Open();
    ways[i]();
    EXPECT_FALSE(View(List()).isVisible());
    EXPECT_FALSE(List().Shown());
    Wait_Until_Active(Screen());
  }
}

TEST_F(Addresses, The_Main_Screen_Stays_Usable_While_The_List_Is_Open) {
  Open();
  Click(Screen().cmdToolBarC);
  EXPECT_EQ(Screen().Calc_Mode, "C");
  EXPECT_TRUE(View(List()).isVisible());
}

}  // namespace
}  // namespace norvane
