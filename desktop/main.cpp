#include <QFont>
#include <exception>
#include <iostream>

#include "desktop/app_icon.h"
#include "desktop/application.h"
#include "desktop/desktop.h"
#include "desktop/own_fonts.h"
#include "desktop/session_end.h"
#include "frame/version.h"
#include "host/failed_writes.h"

namespace {

constexpr int kFailed = 3;

/// The exit status.
int Run(int argc, char** argv) {
  norvane::Application application(argc, argv);
  QApplication::setApplicationName(norvane::kTitle);
  QApplication::setDesktopFileName("norvane");
  norvane::Use_Own_Fonts_At_Need(QCoreApplication::applicationDirPath());
  // Where the font of most languages is missing, one with the same widths stands for it.
  QFont::insertSubstitutions("Arial", {"Liberation Sans", "Arimo", "Nimbus Sans", "Helvetica"});
  QApplication::setQuitOnLastWindowClosed(false);
  norvane::Desktop desktop(QCoreApplication::applicationDirPath().toStdString());
  application.Set_Failure([&desktop] { desktop.Fail(); });
  const norvane::SessionEnd session_end([&desktop] { desktop.End_Session(); });
  try {
    desktop.Start();
    // Drawn when the splash is on the screen already: no window needs it before.
    if (!desktop.program().Ended()) QApplication::setWindowIcon(norvane::App_Icon());
  } catch (const std::exception&) {
    desktop.Fail();
  }
  if (desktop.program().Ended()) return desktop.program().Failed() ? kFailed : 0;
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  norvane::Let_Writes_Fail();
  try {
    return Run(argc, argv);
  } catch (const std::exception& problem) {
    // Before there is a window that could say so.
    std::cerr << norvane::kTitle << ": error: " << problem.what() << '\n';
    return kFailed;
  }
}
