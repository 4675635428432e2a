#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

#include "frame/version.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationName(norvane::kTitle);
  QApplication::setQuitOnLastWindowClosed(false);
  // A caret that blinks would paint on its own account.
  QApplication::setCursorFlashTime(0);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
  return RUN_ALL_TESTS();
}
