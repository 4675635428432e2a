#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "catalogue/address_form.h"
#include "catalogue/settings_form.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "folder_of_program.h"
#include "frame/about_form.h"
#include "frame/lang_form.h"
#include "frame/shared_state.h"
#include "input.h"
#include "same_as_model.h"
#include "screen/warmt.h"
#include "totals/total_form.h"
#include "watchdog.h"

namespace norvane {

/// A text with decimal points as the user's locale writes it.
std::string Number(std::string text);

/// The whole program on the display, not started yet.
class DesktopTest : public testing::Test {
 protected:
  explicit DesktopTest(const Desktop::SpreadsheetMaker& make_spreadsheet = Make_Spreadsheet);
  ~DesktopTest() override;

  Module1& State() { return desktop.program().State(); }
  Warmt& Screen() { return *State().forms.warmt; }

  FormView& View(const Form& form);
  FormView& Main_View() { return View(Screen()); }
  QWidget& Widget(const Field& field);
  QLineEdit& Edit(const TextField& field) { return dynamic_cast<QLineEdit&>(Widget(field)); }
  QLabel& Label(const CaptionField& field) { return dynamic_cast<QLabel&>(Widget(field)); }
  QWidget& Arrow(const Field& spin, const QString& half);

  void Click(const Field& field) { norvane::Click(Widget(field)); }
  void Click(QWidget& widget) { norvane::Click(widget); }
  void Click(QWidget& window, const QPoint& at) { norvane::Click(window, at); }
  void Hover(const Field& field) { norvane::Hover(Widget(field)); }
  void Hover(QWidget& window, const QPoint& at) { norvane::Hover(window, at); }
  void Step_Up(const Field& spin) { norvane::Click(Arrow(spin, "up")); }
  void Step_Down(const Field& spin) { norvane::Click(Arrow(spin, "down")); }
  /// Clicks into the field and marks its whole text.
  void Mark(const TextField& field);
  /// Pastes a text over all that the field holds.
  void Paste(const TextField& field, const QString& text);

  /// What a widget of the main screen shows.
  std::string Shown(const TextField& field) { return Edit(field).text().toStdString(); }
  std::string Shown(const CaptionField& field) {
    return As_Read(Label(field).text()).toStdString();
  }

  void Wait_Until_Active(const Form& form);

  FolderOfProgram folder;
  Watchdog watchdog;
  Desktop desktop;
};

/// The same, with the main screen in front as the splash screen leaves it.
class WindowTest : public DesktopTest {
 protected:
  using DesktopTest::DesktopTest;

  void SetUp() override;
  /// Whatever a test did, the window shows what the program holds.
  void TearDown() override;
};

}  // namespace norvane
