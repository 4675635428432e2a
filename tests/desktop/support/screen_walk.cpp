#include "screen_walk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <algorithm>

#include "desktop/schedule/schedule_window.h"
#include "report/kept_prices.h"

namespace norvane {
namespace {

struct Kind {
  const char* name;
  QStringList inputs;  ///< medium, ambient, diameter where there is one, thickness
};

// The first is the pipe of the documents.
const Kind kKinds[] = {{"steel", {"80", "15", "21", "13"}},
                       {"copper", {"60", "20", "22", "9"}},
                       {"plastic", {"45", "-10", "110", "20"}},
                       {"sheet", {"80", "15", "", "50"}}};

QImage Grab(QWidget& window) {
  return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

}  // namespace

void ScreenWalk::Walk_In(const std::string& code) {
  constexpr int kForAllScreens = 60000;  // milliseconds
  watchdog.Set_Patience(kForAllScreens);
  Start();
  Choose_Language(code);
  Walk_Through_Addresses();
  Walk_Through_States();
  Walk_Through_Pickers();
  Walk_Through_Settings();
  Save_Lines();
  Walk_Through_Totals();
  Walk_Through_Own_Windows();
  Walk_Through_Tooltips();
  Walk_Through_Large_Values();
  Walk_Through_Schedule();
  Walk_Through_Question_Of_Language(code);
}

void ScreenWalk::Show(const std::string& screen, QWidget& window) {
  Settle();
  const QImage picture = Grab(window);
  Look_At(screen, window, picture, picture);
}

void ScreenWalk::Show(const std::string& screen, const Form& form) { Show(screen, View(form)); }

void ScreenWalk::Show_Question(const std::string& screen) {
  watchdog.Expect([this, screen](QWidget& box) {
    Show(screen, box);
    Click_No(box);
  });
}

void ScreenWalk::Click_No(QWidget& box) {
  if (auto* message = qobject_cast<QMessageBox*>(&box)) {
    Click(*message->button(QMessageBox::No));
  } else {
    ADD_FAILURE() << "a dialog came where a question was expected";
  }
}

void ScreenWalk::Start() {
  desktop.Start();
  const About& about = *State().forms.about;
  Wait_Until_Active(about);
  Show("splash", about);
  for (int i = 0; i < 3; ++i) desktop.Tick(State().forms.about->Timer1);
  Wait_Until_Active(Screen());
}

int ScreenWalk::Slot_Of(const std::string& code) {
  const auto& codes = State().languages.Lang_Code;
  const auto slot = std::find(codes.begin(), codes.end(), code);
  if (slot == codes.end()) throw std::runtime_error("no language " + code);
  return static_cast<int>(slot - codes.begin());
}

void ScreenWalk::Choose_Language(const std::string& code) {
  Click(Screen().lblMenu(1));
  Wait_Until_Active(Languages());
  Click(Languages().Label2(Slot_Of(code)));
  Show("languages", Languages());
  Click(Languages().OK);
  Wait_Until_Active(Screen());
}

void ScreenWalk::Walk_Through_Addresses() {
  Click(Screen().lblMenu(2));
  const Address& addresses = *State().forms.address;
  Wait_Until_Active(addresses);
  Show("addresses", addresses);
  Click(addresses.OK);
  Wait_Until_Active(Screen());
}

void ScreenWalk::Set_Inputs(const QStringList& medium_ambient_diameter_thickness) {
  int place = 0;
  for (const int index : {0, 1, 3, 2}) {
    const QString& text = medium_ambient_diameter_thickness[place++];
    if (!text.isEmpty()) Paste(Screen().txtT(index), text);
  }
}

void ScreenWalk::Walk_Through_States() {
  for (const bool heat_loss : {false, true}) {
    Click(heat_loss ? Screen().cmdToolBarT : Screen().cmdToolBarC);
    for (int kind = 3; kind >= 0; --kind) {
      Click(Screen().cmdToolBar1(kind));
      if (heat_loss) {
        Set_Inputs(kKinds[kind].inputs);
      } else {
        // The Fahrenheit of the other mode stays until something changes.
        Paste(Screen().txtC(0), "6");
        Step_Up(Screen().SpinButton1(1));
      }
      Show((heat_loss ? "heat-loss-" : "condensation-") + std::string(kKinds[kind].name), Screen());
    }
  }
}

void ScreenWalk::Walk_Through_Pickers() {
  Click(Screen().cmdToolBarC);
  Show_Picker("picker-humidity", Screen().txtC(4));
  Click(Screen().cmdToolBarT);
  Show_Picker("picker-temperature", Screen().txtT(0));
  Show_Picker("picker-diameter", Screen().txtT(3));
  Show_Picker("picker-length", Screen().txtmtrs);
}

void ScreenWalk::Show_Picker(const std::string& screen, const TextField& field) {
  // From a toolbar button's tooltip, which may lie over the field.
  Hover(Main_View(), {3, Main_View().height() / 2});
  Click(field);
  Press(Qt::Key_F4);
  auto* picker = Main_View().findChild<QWidget*>("picker");
  ASSERT_TRUE(picker != nullptr && picker->isVisible()) << "no picker";
  Settle();
  const QImage window = Grab(Main_View());
  Look_At(screen, *picker, window, window);
  Press(Qt::Key_Escape);
}

void ScreenWalk::Walk_Through_Settings() {
  watchdog.Expect([this](QWidget& dialog) {
    auto& bar = dynamic_cast<QTabBar&>(Widget(Settings_Form().SSTab1));
    const char* const screens[] = {"settings-savings", "settings-lambda", "settings-alpha"};
    for (int tab = 0; tab < bar.count(); ++tab) {
      Click(dialog, bar.mapTo(&dialog, bar.tabRect(tab).center()));
      Show(screens[tab], dialog);
    }
    // Neither is the usual one, which the main screen marks.
    Paste(Settings_Form().Text3, "9");
    Click(dialog, bar.mapTo(&dialog, bar.tabRect(Settings::kLambdaTab).center()));
    Paste(Settings_Form().Text1, "0.045");
    Click(Settings_Form().Command1);
  });
  Click(Screen().cmdToolBar5(0));
  Wait_Until_Active(Screen());
  Show("marked-values", Screen());
}

void ScreenWalk::Save_Lines() {
  Click(Screen().cmdToolBar4(1));
  Click(Screen().cmdToolBar1(0));
  Set_Inputs(kKinds[0].inputs);
  for (const char* thickness : {"9", "13", "20"}) {
    Paste(Screen().txtT(2), thickness);
    Click(Screen().cmdAdd);
  }
  Show("lines-saved", Screen());
}

void ScreenWalk::Walk_Through_Own_Windows() {
  Change_Prices(desktop.files(), [](Prices& prices) {
    prices.energy[0] = 1.2;
    prices.of_pipe = {{13, 4.2}, {20, 5.5}, {30, 8.9}};
  });
  Press(Qt::Key_T, Qt::ControlModifier);
  auto* comparison = Main_View().findChild<QWidget*>("compare");
  ASSERT_TRUE(comparison != nullptr && Comes_To_Front(*comparison)) << "no comparison";
  Show("comparison", *comparison);
  Press(Qt::Key_Escape);
  Wait_Until_Active(Screen());
  Press(Qt::Key_P, Qt::ControlModifier);
  auto* report = Main_View().findChild<QWidget*>("report");
  ASSERT_TRUE(report != nullptr && Comes_To_Front(*report)) << "no report";
  Show("report", *report);
  Press(Qt::Key_Escape);
  Wait_Until_Active(Screen());
}

void ScreenWalk::Open_Totals() {
  Click(Screen().picTotal);
  Wait_Until_Active(Totals());
}

void ScreenWalk::Walk_Through_Totals() {
  Open_Totals();
  Show("totals", Totals());
  watchdog.Expect([this](QWidget& box) {
    Show("question-deletion", box);
    Show("totals-marked", Totals());
    Click_No(box);
  });
  const auto& table = dynamic_cast<QTableView&>(Widget(Totals().grdResult));
  const QRect cell = table.visualRect(table.model()->index(0, 1));
  Click(View(Totals()), table.viewport()->mapTo(&View(Totals()), cell.center()));
  constexpr int kLongest = 3000;  // milliseconds
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return watchdog.Content() && QApplication::activeModalWidget() == nullptr; },
      kLongest));
  View(Totals()).close();
  Wait_Until_Active(Screen());
}

void ScreenWalk::Walk_Through_Tooltips() {
  Show_Tooltip("totals", Screen().cmdToolBar0(0));
  for (int kind = 0; kind <= 3; ++kind) {
    Show_Tooltip(kKinds[kind].name, Screen().cmdToolBar1(kind));
  }
  Show_Tooltip("heat-loss", Screen().cmdToolBarT);
  Show_Tooltip("condensation", Screen().cmdToolBarC);
  Show_Tooltip("alpha", Screen().cmdToolBar3(0));
  Show_Tooltip("lambda", Screen().cmdToolBar4(0));
  Show_Tooltip("lambda-038", Screen().cmdToolBar4(1));
  if (Screen().cmdToolBar4(2).Visible()) Show_Tooltip("lambda-040", Screen().cmdToolBar4(2));
  Show_Tooltip("savings", Screen().cmdToolBar5(0));
  // The free ground at the window's left edge.
  Hover(Main_View(), {3, Main_View().height() / 2});
}

void ScreenWalk::Show_Tooltip(const std::string& name, const Button& button) {
  Hover(button);
  Settle();
  QWidget& box = Widget(Screen().picToolTip);
  ASSERT_TRUE(box.isVisible()) << "no tooltip";
  const QImage window = Grab(Main_View());
  const double bottom = (box.geometry().bottom() + 10) * window.devicePixelRatio();
  const QImage top = window.copy(0, 0, window.width(), static_cast<int>(bottom));
  Look_At("tooltip-" + name, box, window, top);
}

void ScreenWalk::Walk_Through_Large_Values() {
  Set_Inputs({"115", "-50", "4000", "300"});
  Paste(Screen().txtmtrs, "10000");
  Show("large-values", Screen());
  Click(Screen().cmdAdd);
  Open_Totals();
  Show("totals-of-large-values", Totals());
  View(Totals()).close();
  Wait_Until_Active(Screen());
}

void ScreenWalk::Walk_Through_Schedule() {
  Set_Inputs(kKinds[0].inputs);
  Press(Qt::Key_L, Qt::ControlModifier);
  const auto windows = QApplication::topLevelWidgets();
  const auto found = std::find_if(windows.begin(), windows.end(), [](QWidget* window) {
    return qobject_cast<ScheduleWindow*>(window) != nullptr;
  });
  ASSERT_NE(found, windows.end()) << "no schedule";
  QWidget& schedule = **found;
  ASSERT_TRUE(Comes_To_Front(schedule));
  for (int row = 0; row < 3; ++row) Press(Qt::Key_Return, Qt::ControlModifier);
  Settle();
  Hover(schedule, {3, 3});
  // A row without a result says why.
  auto& table = *schedule.findChild<QTableView*>();
  QAbstractItemModel& rows = *table.model();
  constexpr int kKind = 1;
  constexpr int kMedium = 2;
  rows.setData(rows.index(1, kMedium), "400");
  rows.setData(rows.index(2, kKind), "sheet");
  table.setCurrentIndex(rows.index(1, kMedium));
  Press(Qt::Key_Tab);
  Show("schedule", schedule);
  table.scrollTo(rows.index(1, rows.columnCount() - 1));
  Show("schedule-results", schedule);
  watchdog.Expect([this](QWidget& box) {
    Show("question-schedule", box);
    const auto buttons = dynamic_cast<QMessageBox&>(box).buttons();
    for (QAbstractButton* button : buttons) {
      if (dynamic_cast<QMessageBox&>(box).buttonRole(button) == QMessageBox::DestructiveRole) {
        return Click(*button);
      }
    }
  });
  schedule.close();
  Main_View().activateWindow();
  Wait_Until_Active(Screen());
}

void ScreenWalk::Walk_Through_Question_Of_Language(const std::string& code) {
  Click(Screen().lblMenu(1));
  Wait_Until_Active(Languages());
  Show_Question("question-language");
  Click(Languages().Label2(Slot_Of(code)));
}

}  // namespace norvane
