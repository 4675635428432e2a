// A guided tour for where there is no display: the desktop program on an offscreen screen, driven
// by real key and mouse events. Each screen is saved as a picture and the answers are printed.

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/tour/workbook_rows.h"
#include "frame/version.h"
#include "host/failed_writes.h"
#include "spreadsheet/xlsx_spreadsheet.h"

namespace {

using norvane::Desktop;
using norvane::Form;
using norvane::FormView;

class Tour {
 public:
  Tour(const std::filesystem::path& folder, const QString& pictures)
      : pictures_(pictures), desktop_(folder, [this](const auto& place, auto& waiting) {
          return std::make_unique<norvane::XlsxSpreadsheet>(
              place, waiting, [this](const auto& file) { Keep_Workbook(file.string()); });
        }) {}

  void Walk();
  bool Went_Well() { return desktop_.program().Ended() && !desktop_.program().Failed(); }

 private:
  norvane::Module1& State() { return desktop_.program().State(); }
  FormView& View(Form& form) { return *desktop_.View_Of(form); }

  template <class Widget>
  Widget& Find(Form& form, const QString& name) {
    auto* widget = View(form).findChild<Widget*>(name);
    if (widget == nullptr) qFatal("no widget %s", qPrintable(name));
    return *widget;
  }

  void Type(Form& form, const QString& field, const QString& text);
  void Paste(Form& form, const QString& field, const QString& text);
  void Click(Form& form, const QString& button);
  /// Waits until what was asked of the window is on it.
  void Settle() { QTest::qWait(60); }
  void Save(Form& form, const QString& name);
  void Print_Answers(const QString& title, const QStringList& values);

  void Show_Heat_Loss();
  void Show_Sheet();
  void Show_Condensation();
  void Show_Settings();
  void Show_Languages();
  void Show_Addresses();
  void Show_Totals();

  void Keep_Workbook(const std::string& file);

  QDir pictures_;
  QTextStream out_{stdout};
  Desktop desktop_;
};

void Tour::Type(Form& form, const QString& field, const QString& text) {
  auto& edit = Find<QLineEdit>(form, field);
  edit.setFocus();
  edit.selectAll();
  QTest::keyClicks(&edit, text);
}

void Tour::Paste(Form& form, const QString& field, const QString& text) {
  auto& edit = Find<QLineEdit>(form, field);
  edit.setFocus();
  edit.selectAll();
  QApplication::clipboard()->setText(text);
  QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
}

void Tour::Click(Form& form, const QString& button) {
  QTest::mouseClick(&Find<QAbstractButton>(form, button), Qt::LeftButton);
  Settle();
}

void Tour::Save(Form& form, const QString& name) {
  Settle();
  const QString file = pictures_.filePath(name + ".png");
  View(form).grab().save(file);
  out_ << "picture " << QDir::current().relativeFilePath(file) << Qt::endl;
}

void Tour::Print_Answers(const QString& title, const QStringList& values) {
  Form& warmt = State().forms.warmt.Get();
  out_ << '\n' << title << '\n';
  for (const QString& entry : values) {
    const QStringList names = entry.split(' ');
    const auto text = [&](const QString& name) {
      auto* edit = View(warmt).findChild<QLineEdit*>(name);
      return edit != nullptr ? edit->text() : Find<QLabel>(warmt, name).text();
    };
    out_ << "  " << text(names[0]).leftJustified(34) << text(names[1]).rightJustified(10) << ' '
         << text(names[2]) << '\n';
  }
  out_ << Qt::endl;
}

void Tour::Show_Heat_Loss() {
  Form& warmt = State().forms.warmt.Get();
  Type(warmt, "txtT(0)", "80");
  Type(warmt, "txtT(1)", "15");
  // As a whole: the first digit alone would be a diameter too small, which becomes 10 at once.
  Paste(warmt, "txtT(3)", "21");
  Type(warmt, "txtT(2)", "13");
  Save(warmt, "1-heat-loss");
  Print_Answers("A steel pipe of 21 mm in 13 mm of insulation, 80 inside, 15 outside",
                {"Label3(0) Label4(0) Label9(0)", "Label3(1) Label4(1) Label9(1)",
                 "Label3(2) Label4(2) Label9(2)", "Label3(3) Label4(3) Label9(3)",
                 "Label3(4) Label4(4) Label9(4)", "Label3(5) Label4(6) Label9(5)",
                 "Label3(6) Label4(7) Label9(6)", "Label3(7) Label4(8) Label9(7)",
                 "Label3(8) Label4(9) Label9(8)"});
}

void Tour::Show_Sheet() {
  Form& warmt = State().forms.warmt.Get();
  Click(warmt, "cmdToolBar1(3)");
  Type(warmt, "txtT(2)", "50");
  Save(warmt, "2-sheet");
  Print_Answers("A sheet in 50 mm of insulation",
                {"Label3(2) Label4(2) Label9(2)", "Label3(3) Label4(3) Label9(3)",
                 "Label3(4) Label4(4) Label9(4)", "Label3(5) Label4(6) Label9(5)"});
}

void Tour::Show_Condensation() {
  Form& warmt = State().forms.warmt.Get();
  Click(warmt, "cmdToolBar1(0)");
  Click(warmt, "cmdToolBarC");
  Save(warmt, "3-condensation");
  Print_Answers("No condensation on a steel pipe of 10 mm, 10 inside, 24 and 60 % outside",
                {"Label1(2) txtC(2) Label7(2)", "Label3(2) Label4(2) Label9(2)"});
  Click(warmt, "cmdToolBarT");
}

void Tour::Show_Settings() {
  // The dialog keeps the event loop of the click until it is closed.
  QTimer::singleShot(200, desktop_.View_Of(State().forms.warmt.Get()), [this] {
    Form& settings = State().forms.settings.Get();
    Save(settings, "4-settings");
    QTest::keyClick(&View(settings), Qt::Key_Escape);
  });
  Click(State().forms.warmt.Get(), "cmdToolBar5(0)");
}

void Tour::Show_Languages() {
  Form& warmt = State().forms.warmt.Get();
  Click(warmt, "lblMenu(1)");
  Form& lang = State().forms.lang.Get();
  Save(lang, "5-languages");
  const auto choose = [&](const std::string& code, const QString& picture) {
    for (int slot = 0; slot < norvane::LanguageTables::kSlots; ++slot) {
      if (State().languages.Lang_Code[static_cast<std::size_t>(slot)] != code) continue;
      Click(lang, QString("Label2(%1)").arg(slot));
      Save(warmt, picture);
      return;
    }
  };
  choose("de", "6-german");
  choose("ru", "7-russian");
  choose("en", "8-english-again");
  Click(lang, "OK");
}

void Tour::Show_Addresses() {
  Click(State().forms.warmt.Get(), "lblMenu(2)");
  Form& address = State().forms.address.Get();
  Save(address, "9-addresses");
  Click(address, "OK");
}

void Tour::Show_Totals() {
  Form& warmt = State().forms.warmt.Get();
  for (const char* thickness : {"9", "13", "20"}) {
    Type(warmt, "txtT(2)", thickness);
    Click(warmt, "cmdAdd");
  }
  Click(warmt, "picTotal");
  Form& total = State().forms.total.Get();
  Save(total, "10-totals");
  out_ << "\nThree pipes. " << Find<QLabel>(total, "Label1").text() << "\n" << Qt::endl;
  Click(total, "Toolbar1");
  View(total).close();
}

void Tour::Keep_Workbook(const std::string& file) {
  const QString kept = pictures_.filePath("10-totals.xlsx");
  QFile::rename(QString::fromStdString(file), kept);
  out_ << "workbook " << QDir::current().relativeFilePath(kept) << ", some of its columns\n";
  for (const QStringList& row : norvane::Workbook_Rows(kept)) {
    for (const int column : {2, 7, 8, 17, 18, 19}) {
      out_ << "  " << row.value(column).leftJustified(20, ' ', true);
    }
    out_ << '\n';
  }
  out_ << Qt::endl;
}

void Tour::Walk() {
  desktop_.Start();
  Form& about = State().forms.about.Get();
  Save(about, "0-splash");
  constexpr int kLongestSplash = 10000;  // milliseconds
  if (!QTest::qWaitFor([&] { return State().forms.warmt.Get().Shown(); }, kLongestSplash)) return;
  Show_Heat_Loss();
  Show_Sheet();
  Show_Condensation();
  Show_Settings();
  Show_Languages();
  Show_Addresses();
  Show_Totals();
  Click(State().forms.warmt.Get(), "lblMenu(3)");
}

/// Leaves out what the offscreen screen has to say about the window manager that it lacks.
void Print_Warning(QtMsgType, const QMessageLogContext&, const QString& text) {
  const bool about_offscreen =
      text.startsWith("This plugin does not support") || text.startsWith("QStandardPaths:");
  if (!about_offscreen) QTextStream(stderr) << text << Qt::endl;
}

}  // namespace

int main(int argc, char** argv) {
  norvane::Let_Writes_Fail();
  qInstallMessageHandler(Print_Warning);
  QApplication application(argc, argv);
  QApplication::setApplicationName(norvane::kTitle);
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 3 || !QDir().mkpath(arguments[2])) {
    QTextStream(stderr) << "usage: norvane-tour FOLDER PICTURES\n";
    return 2;
  }
  Tour tour(arguments[1].toStdString(), arguments[2]);
  tour.Walk();
  return tour.Went_Well() ? 0 : 1;
}
