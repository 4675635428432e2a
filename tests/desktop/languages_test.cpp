#include <QAbstractButton>
#include <QApplication>
#include <QChar>
#include <QTest>

#include "window_test.h"

namespace norvane {
namespace {

/// The list of languages, and the screens in another language.
class Languages : public WindowTest {
 protected:
  Lang& List() { return *State().forms.lang; }

  void Open() {
    Click(Screen().lblMenu(1));
    Wait_Until_Active(List());
    Settle();
  }
  int Slot_Of(const std::string& code) {
    for (int slot = 0; slot < LanguageTables::kSlots; ++slot) {
      if (State().languages.Lang_Code[static_cast<std::size_t>(slot)] == code) return slot;
    }
    ADD_FAILURE() << "no language " << code;
    return 0;
  }
  void Choose(const std::string& code) {
    Click(List().Label2(Slot_Of(code)));
    Settle();
  }
  QString Button_Text(const Field& field) {
    return As_Read(dynamic_cast<QAbstractButton&>(Widget(field)).text());
  }
  std::vector<int> Marks() {
    std::vector<int> marks;
    for (int i = 0; i <= 13; ++i) {
      if (Widget(List().imgCheck(i)).isVisible()) marks.push_back(i);
    }
    return marks;
  }
  static bool Is_Written_In(const QString& text, QChar::Script script) {
    return std::any_of(text.begin(), text.end(), [&](QChar c) { return c.script() == script; }) &&
           std::none_of(text.begin(), text.end(),
                        [&](QChar c) { return c.isLetter() && c.script() != script; });
  }
};

TEST_F(Languages, The_List_Names_Each_Language_In_Its_Own_Letters) {
  Open();
  Expect_Same_As_Model(View(List()));
  Expect_Room_For_All(View(List()));
  EXPECT_EQ(Button_Text(List().Label2(Slot_Of("en"))), "English");
  EXPECT_EQ(Button_Text(List().Label2(Slot_Of("de"))), "Deutsch");
  EXPECT_EQ(Button_Text(List().Label2(Slot_Of("ru"))), "Русский");
  EXPECT_EQ(Button_Text(List().Label2(Slot_Of("el"))), "Ελληνικά");
  EXPECT_EQ(Button_Text(List().Label2(Slot_Of("cs"))), "Čeština");
  EXPECT_EQ(Button_Text(List().Label2(Slot_Of("tr"))), "Türkçe");
  for (int i = 0; i <= 13; ++i) EXPECT_EQ(Shown(List().Label3(i)), "3.1");
}

TEST_F(Languages, A_Click_On_A_Word_Of_The_Menu_Leaves_The_Focus_In_Its_Field) {
  Click(Screen().txtT(2));
  Open();
  Click(List().OK);
  Wait_Until_Active(Screen());
  EXPECT_TRUE(Widget(Screen().txtT(2)).hasFocus());
  EXPECT_TRUE(Widget(Screen().lblMenu(1)).focusPolicy() & Qt::TabFocus);
}

TEST_F(Languages, Even_Slots_Stand_On_The_Left_And_Odd_Ones_On_The_Right) {
  Open();
  const auto at = [this](int i) {
    return Widget(List().Label2(i)).mapTo(&View(List()), QPoint(0, 0));
  };
  for (int i = 2; i <= 13; ++i) {
    EXPECT_EQ(at(i).x(), at(i % 2).x()) << i;
    EXPECT_GT(at(i).y(), at(i - 2).y()) << i;
  }
  EXPECT_LT(at(0).x(), at(1).x());
  EXPECT_EQ(at(0).y(), at(1).y());
}

TEST_F(Languages, The_Mark_Stands_At_The_Eighth_First_And_Then_Follows_The_Clicks) {
  Open();
  EXPECT_EQ(Marks(), std::vector<int>{7});
  Choose("de");
  EXPECT_EQ(Marks(), std::vector<int>{Slot_Of("de")});
  Choose("ru");
  EXPECT_EQ(Marks(), std::vector<int>{Slot_Of("ru")});
  Click(List().OK);
  EXPECT_FALSE(View(List()).isVisible());
  Open();
  EXPECT_EQ(Marks(), std::vector<int>{Slot_Of("ru")});
}

TEST_F(Languages, German) {
  Open();
  Choose("de");
  EXPECT_EQ(Shown(Screen().Label1(0)), "Mediumtemperatur");
  EXPECT_EQ(Shown(Screen().Label0), "Stahlrohr");
  EXPECT_EQ(Shown(Screen().Label10), "Deutsch 3.1");
  EXPECT_EQ(Button_Text(Screen().lblMenu(3)), "Beenden");
  EXPECT_EQ(Widget(Screen().cmdToolBarT).accessibleName(), "Wärmeverlust");
  Expect_Same_As_Model(Main_View());
  // German alone has one more lambda, and its mark is green.
  EXPECT_TRUE(Widget(Screen().cmdToolBar4(2)).isVisible());
  Click(Screen().cmdToolBar4(2));
  EXPECT_EQ(Widget(Screen().Label4(0)).grab().toImage().pixelColor(1, 1), QColor(17, 176, 105));
  Click(List().Label2(Slot_Of("en")));
  EXPECT_FALSE(Widget(Screen().cmdToolBar4(2)).isVisible());
}

TEST_F(Languages, Russian_Is_Shown_In_Cyrillic) {
  Open();
  Choose("ru");
  EXPECT_EQ(Shown(Screen().Label1(0)), "Температура рабочей среды");
  EXPECT_EQ(Shown(Screen().Label10), "Русский 3.1");
  for (int i = 0; i <= 4; ++i) {
    EXPECT_TRUE(Is_Written_In(Label(Screen().Label1(i)).text(), QChar::Script_Cyrillic)) << i;
  }
  for (int i = 0; i <= 8; ++i) {
    EXPECT_TRUE(Is_Written_In(Label(Screen().Label3(i)).text(), QChar::Script_Cyrillic)) << i;
  }
  for (int i = 1; i <= 3; ++i) {
    EXPECT_TRUE(Is_Written_In(Button_Text(Screen().lblMenu(i)), QChar::Script_Cyrillic)) << i;
  }
  Expect_Same_As_Model(Main_View());
}

TEST_F(Languages, Greek_Is_Shown_In_Greek) {
  Open();
  Choose("el");
  EXPECT_EQ(Shown(Screen().Label1(0)), "Θερμοκρασία ρευστού");
  EXPECT_EQ(Shown(Screen().Label0), "Χαλυβδοσωλήνας");
  for (int i = 0; i <= 8; ++i) {
    EXPECT_TRUE(Is_Written_In(Label(Screen().Label3(i)).text(), QChar::Script_Greek)) << i;
  }
  Expect_Same_As_Model(Main_View());
}

class SixteenLanguages : public Languages {
 protected:
  void SetUp() override {
    for (const char* name : {"language.lya", "language.lyb"}) {
      folder.Write(name, "Norvane,Arial,0\n0,name=Extra-9.9\n");
    }
    Languages::SetUp();
  }
};

TEST_F(SixteenLanguages, The_Last_Two_Have_A_Name_And_No_Version) {
  Open();
  for (const int slot : {14, 15}) {
    EXPECT_EQ(Button_Text(List().Label2(slot)), "Extra") << slot;
    EXPECT_TRUE(Widget(List().Label2(slot)).isVisible()) << slot;
  }
  Expect_Room_For_All(View(List()));
  Choose("yb");
  EXPECT_EQ(Shown(Screen().Label10), "Extra 9.9");
}

TEST_F(Languages, There_Is_Room_For_Each_Language_In_Both_Modes) {
  Open();
  const QSize size = Main_View().size();
  for (int slot = 0; slot <= 13; ++slot) {
    SCOPED_TRACE(*State().languages.Lang_Code[static_cast<std::size_t>(slot)]);
    Click(List().Label2(slot));
    for (const Button* mode : {&Screen().cmdToolBarC, &Screen().cmdToolBarT}) {
      Click(*mode);
      Settle();
      Expect_Same_As_Model(Main_View());
      Expect_Room_For_All(Main_View());
      EXPECT_EQ(Main_View().size(), size);
    }
    Expect_Same_As_Model(View(List()));
  }
}

TEST_F(Languages, The_Main_Screen_Stays_Usable_While_The_List_Is_Open) {
  Open();
  Mark(Screen().txtT(0));
  Type("90");
  EXPECT_EQ(Shown(Screen().txtT(0)), "90");
  EXPECT_TRUE(View(List()).isVisible());
}

/// Counts how often a window comes to the front.
class FrontCounter : public QObject {
 public:
  FrontCounter() { QApplication::instance()->installEventFilter(this); }
  int Count() const { return count_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // A window's widgets are told as well.
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (event->type() == QEvent::WindowActivate && widget != nullptr && widget->isWindow())
      ++count_;
    return false;
  }

 private:
  int count_ = 0;
};

TEST_F(Languages, Two_Windows_Come_To_Rest_However_Fast_They_Change_Places) {
  Open();
  for (int i = 0; i < 5; ++i) {
    Main_View().activateWindow();
    View(List()).activateWindow();
    QTest::qWait(1);
  }
  constexpr int kAtRest = 200;  // milliseconds
  QTest::qWait(kAtRest);
  const FrontCounter counter;
  QTest::qWait(kAtRest);
  EXPECT_EQ(counter.Count(), 0);
}

TEST_F(Languages, Every_Way_Out_Closes_The_List) {
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

TEST_F(Languages, No_Closes_The_List_And_The_Language_Changes_All_The_Same) {
  Click(Screen().cmdAdd);
  Open();
  watchdog.Expect_Message(QMessageBox::No);
  Choose("de");
  ASSERT_EQ(watchdog.Messages().size(), 1U);
  EXPECT_EQ(watchdog.Messages()[0],
            (SeenMessage{"Norvane",
                         "Changing the language will clear saved data,\ndo you wish to continue",
                         QMessageBox::Warning}));
  EXPECT_EQ(Shown(Screen().Label10), "Deutsch 3.1");
  EXPECT_EQ(State().Calc_List.size(), 2U);
  EXPECT_FALSE(List().Shown());
  EXPECT_FALSE(View(List()).isVisible());
  Wait_Until_Active(Screen());
}

TEST_F(Languages, Yes_Leaves_The_List_Open) {
  Click(Screen().cmdAdd);
  Open();
  watchdog.Expect_Message(QMessageBox::Yes);
  Choose("de");
  EXPECT_EQ(Shown(Screen().Label10), "Deutsch 3.1");
  EXPECT_EQ(State().Calc_List.size(), 2U);
  EXPECT_TRUE(View(List()).isVisible());
  EXPECT_EQ(Marks(), std::vector<int>{Slot_Of("de")});
}

}  // namespace
}  // namespace norvane
