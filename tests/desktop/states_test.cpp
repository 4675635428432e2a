#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QPixmap>
#include <QScreen>
#include <QTest>

#include "window_test.h"

namespace norvane {
namespace {

/// The eight states of the main screen: two modes by four kinds of object.
class States : public WindowTest {
 protected:
  void Choose(char mode, int kind) {
    Click(mode == 'T' ? Screen().cmdToolBarT : Screen().cmdToolBarC);
    Click(Screen().cmdToolBar1(kind));
    Settle();
  }
  /// Calls the procedure in each of the states, one after the other.
  void In_Each_State(const std::function<void(char mode, int kind)>& procedure) {
    for (const char mode : {'T', 'C'}) {
      for (int kind = 0; kind <= 3; ++kind) {
        SCOPED_TRACE(std::string("mode ") + mode + ", kind " + std::to_string(kind));
        Choose(mode, kind);
        procedure(mode, kind);
      }
    }
  }

  bool Seen(const Field& field) { return Widget(field).isVisible(); }

  /// The colour of a widget in its corner, where no letter stands.
  QColor Ground_Of(const Field& field) {
    QWidget& widget = Widget(field);
    const QImage image = widget.grab().toImage();
    return image.pixelColor(5, image.height() / 2);
  }
};

TEST_F(States, Widgets_Show_What_The_Model_Holds) {
  In_Each_State([this](char, int) { Expect_Same_As_Model(Main_View()); });
}

TEST_F(States, Each_Mode_Shows_Its_Fields) {
  In_Each_State([this](char mode, int kind) {
    const bool heat_loss = mode == 'T';
    const bool pipe = kind != 3;
    for (int index = 0; index <= 3; ++index) {
      const bool row = index != 3 || pipe;
      EXPECT_EQ(Seen(Screen().txtT(index)), heat_loss && row) << index;
      EXPECT_EQ(Seen(Screen().txtC(index)), !heat_loss && row) << index;
      EXPECT_EQ(Seen(Screen().Label1(index)), row) << index;
      EXPECT_EQ(Seen(Screen().Label7(index)), row) << index;
    }
    EXPECT_EQ(Seen(Screen().txtC(4)), !heat_loss);
    EXPECT_EQ(Seen(Screen().Label1(4)), !heat_loss);
    EXPECT_EQ(Seen(Screen().SpinButton1(2)), heat_loss);
    EXPECT_EQ(Seen(Screen().SpinButton1(3)), pipe);
    EXPECT_EQ(Seen(Screen().SpinButton1(4)), !heat_loss);
    EXPECT_TRUE(Seen(Screen().txtmtrs));
    EXPECT_TRUE(Seen(Screen().SpinButton1(5)));
    for (int index = 3; index <= 8; ++index) {
      EXPECT_EQ(Seen(Screen().Label3(index)), heat_loss) << index;
      EXPECT_EQ(Seen(Screen().Label9(index)), heat_loss) << index;
    }
    for (int index = 3; index <= 9; ++index) {
      EXPECT_EQ(Seen(Screen().Label4(index)), heat_loss) << index;
    }
    EXPECT_EQ(Seen(Screen().Label6), heat_loss);
    EXPECT_EQ(Seen(Screen().cmdAdd), heat_loss);
  });
}

TEST_F(States, The_Window_Keeps_Its_Size_And_The_Rows_Their_Places) {
  const QSize size = Main_View().size();
  const auto place = [this](const Field& field) {
    return Widget(field).mapTo(&Main_View(), QPoint(0, 0));
  };
  const QPoint first_row = place(Screen().Label1(0));
  const QPoint first_result = place(Screen().Label4(0));
  const QPoint picture = place(Screen().Picture2);
  const QPoint band = place(Screen().Label5);
  In_Each_State([&](char, int) {
    EXPECT_EQ(Main_View().size(), size);
    EXPECT_EQ(place(Screen().Label1(0)), first_row);
    EXPECT_EQ(place(Screen().Label4(0)), first_result);
    EXPECT_EQ(place(Screen().Picture2), picture);
    EXPECT_EQ(place(Screen().Label5), band);
  });
}

TEST_F(States, Nothing_Is_Cut_Off_Or_Covered) {
  In_Each_State([this](char, int) { Expect_Room_For_All(Main_View()); });
}

TEST_F(States, Rows_Stand_In_Their_Order) {
  const auto top = [this](const Field& field) {
    return Widget(field).mapTo(&Main_View(), QPoint(0, 0)).y();
  };
  Choose('C', 0);
  std::vector<int> tops;
  for (const int index : {0, 1, 3, 2, 4}) tops.push_back(top(Screen().txtC(index)));
  tops.push_back(top(Screen().txtmtrs));
  EXPECT_TRUE(std::is_sorted(tops.begin(), tops.end()));
  EXPECT_EQ(std::adjacent_find(tops.begin(), tops.end()), tops.end());
}

TEST_F(States, What_Is_Painted_Is_Up_To_Date) {
  In_Each_State([this](char, int) {
    // The mouse is elsewhere, so that no button is lit by it.
    Hover(Main_View(), QPoint(2, 2));
    Settle();
    const QImage painted = Main_View()
                               .screen()
                               ->grabWindow(Main_View().winId())
                               .toImage()
                               .convertToFormat(QImage::Format_RGB32);
    QImage fresh(painted.size(), QImage::Format_RGB32);
    Main_View().render(&fresh);
    ASSERT_EQ(painted.size(), Main_View().size());
    EXPECT_EQ(painted, fresh);
  });
}

TEST_F(States, The_Chosen_Buttons_Are_Down) {
  const auto down = [this](const Field& field) {
    return dynamic_cast<QAbstractButton&>(Widget(field)).isChecked();
  };
  In_Each_State([&](char mode, int kind) {
    for (int each = 0; each <= 3; ++each) {
      EXPECT_EQ(down(Screen().cmdToolBar1(each)), each == kind) << each;
    }
    EXPECT_EQ(down(Screen().cmdToolBarT), mode == 'T');
    EXPECT_EQ(down(Screen().cmdToolBarC), mode == 'C');
    EXPECT_TRUE(down(Screen().cmdToolBar4(1)));
  });
}

TEST_F(States, Condensation_Greys_What_Is_Not_For_Typing) {
  const QColor grey(224, 224, 224);
  Choose('C', 0);
  EXPECT_EQ(Ground_Of(Screen().txtC(1)), grey);
  EXPECT_EQ(Ground_Of(Screen().txtC(2)), grey);
  EXPECT_NE(Ground_Of(Screen().txtC(0)), grey);
  EXPECT_TRUE(Widget(Screen().txtC(2)).font().bold());
  EXPECT_TRUE(Widget(Screen().Label1(2)).font().bold());
  EXPECT_FALSE(Widget(Screen().txtC(0)).font().bold());
  Choose('T', 0);
  EXPECT_NE(Ground_Of(Screen().txtT(1)), grey);
  EXPECT_NE(Ground_Of(Screen().txtT(2)), grey);
  EXPECT_FALSE(Widget(Screen().txtT(2)).font().bold());
  EXPECT_FALSE(Widget(Screen().Label1(2)).font().bold());
  EXPECT_EQ(Ground_Of(Screen().Text2(0)), grey);
}

TEST_F(States, Heat_Flows_Are_Per_Square_Metre_On_A_Sheet) {
  Choose('T', 0);
  EXPECT_EQ(Shown(Screen().Label9(3)), "W/m");
  EXPECT_EQ(Shown(Screen().Label0), "Steel pipe");
  Choose('T', 3);
  EXPECT_EQ(Shown(Screen().Label9(3)), "W/m\u00B2");
  EXPECT_EQ(Shown(Screen().Label0), "Flat surface");
  Mark(Screen().txtT(2));
  Type("50");
  EXPECT_EQ(Shown(Screen().Label4(2)), Number("18.8"));
  EXPECT_EQ(Shown(Screen().Label4(3)), Number("812.5"));
  EXPECT_EQ(Shown(Screen().Label4(4)), Number("47.9"));
  EXPECT_EQ(Shown(Screen().Label4(9)), Number("550.54"));
}

TEST_F(States, The_Product_List_Goes_With_The_Kind) {
  auto& products = dynamic_cast<QComboBox&>(Widget(Screen().Combo1));
  EXPECT_EQ(products.count(), 5);
  EXPECT_EQ(products.currentText(), "Norvane Tube K1");
  Choose('T', 3);
  EXPECT_EQ(products.count(), 6);
  EXPECT_EQ(products.currentText(), "Norvane Sheet L1");
  // The list drops down, and a click on an entry chooses it.
  Click(products);
  QWidget* list = nullptr;
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return (list = QApplication::activePopupWidget()) != nullptr; }));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(list));
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_EQ(products.currentText(), "Norvane Sheet L3");
  EXPECT_EQ(Screen().Combo1.Text(), "Norvane Sheet L3");
}

}  // namespace
}  // namespace norvane
