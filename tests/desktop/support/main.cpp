#include <gtest/gtest.h>

#include <QPalette>

#include "desktop/application.h"
#include "frame/version.h"

namespace {

/// The colours of a usual dark desktop.
QPalette Dark_Palette() {
  const QColor window(0x2B, 0x2B, 0x2B);
  const QColor text(0xEE, 0xEE, 0xEE);
  QPalette palette(QColor(0x35, 0x35, 0x35), window);
  palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, QColor(0x35, 0x35, 0x35));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::HighlightedText}) {
    palette.setColor(role, text);
  }
  palette.setColor(QPalette::PlaceholderText, QColor(0x9A, 0x9A, 0x9A));
  palette.setColor(QPalette::Highlight, QColor(0x2A, 0x62, 0x9A));
  palette.setColor(QPalette::Link, QColor(0x6C, 0xB4, 0xF0));
  return palette;
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  norvane::Application application(argc, argv);
  QApplication::setApplicationName(norvane::kTitle);
  QApplication::setQuitOnLastWindowClosed(false);
  // A caret that blinks would paint on its own account.
  QApplication::setCursorFlashTime(0);
  if (qEnvironmentVariable("NORVANE_PALETTE") == QLatin1String("dark")) {
    QApplication::setPalette(Dark_Palette());
  }
  return RUN_ALL_TESTS();
}
