#include "window_test.h"

#include <langinfo.h>
#include <locale.h>

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QScreen>
#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace norvane {

std::string Number(std::string text) {
  // Asked of the C library, since the program asks Qt.
  const locale_t user = newlocale(LC_NUMERIC_MASK, "", nullptr);
  const char* sign = user == nullptr ? "." : nl_langinfo_l(RADIXCHAR, user);
  if (std::string_view(sign) == ",") std::replace(text.begin(), text.end(), '.', ',');
  if (user != nullptr) freelocale(user);
  return text;
}

DesktopTest::DesktopTest(const Desktop::SpreadsheetMaker& make_spreadsheet)
    : desktop(folder.Path(), make_spreadsheet) {
  // Where no window comes to lie under the real pointer.
  QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
}

DesktopTest::~DesktopTest() = default;

FormView& DesktopTest::View(const Form& form) {
  FormView* view = desktop.View_Of(form);
  if (view == nullptr) throw std::runtime_error("no window for " + form.Name());
  return *view;
}

QWidget& DesktopTest::Widget(const Field& field) {
  QWidget* widget = View(field.form()).Widget_Of(field);
  if (widget == nullptr) throw std::runtime_error("no widget for " + field.Name());
  return *widget;
}

QWidget& DesktopTest::Arrow(const Field& spin, const QString& half) {
  auto* arrow = Widget(spin).findChild<QWidget*>(half);
  if (arrow == nullptr) throw std::runtime_error("no arrow " + half.toStdString());
  return *arrow;
}

void DesktopTest::Mark(const TextField& field) {
  Click(field);
  Press(Qt::Key_A, Qt::ControlModifier);
}

void DesktopTest::Paste(const TextField& field, const QString& text) {
  Mark(field);
  QGuiApplication::clipboard()->setText(text);
  Press(Qt::Key_V, Qt::ControlModifier);
}

void DesktopTest::Wait_Until_Active(const Form& form) {
  ASSERT_TRUE(form.Shown()) << form.Name() << " isn't shown";
  ASSERT_TRUE(Comes_To_Front(View(form))) << form.Name() << " isn't in front";
}

void WindowTest::SetUp() {
  desktop.Start();
  for (int i = 0; i < 3; ++i) desktop.Tick(State().forms.about->Timer1);
  Wait_Until_Active(Screen());
}

void WindowTest::TearDown() {
  if (!desktop.program().Ended()) Expect_Same_As_Model(Main_View());
}

}  // namespace norvane
