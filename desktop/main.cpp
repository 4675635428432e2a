#include <QApplication>

#include "desktop/desktop.h"
#include "frame/version.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(norvane::kTitle);
  QApplication::setQuitOnLastWindowClosed(false);
  norvane::Desktop desktop(QCoreApplication::applicationDirPath().toStdString());
  desktop.Start();
  if (desktop.program().Ended()) return desktop.program().Failed() ? 3 : 0;
  return QApplication::exec();
}
