#include "desktop/application.h"

#include <exception>

#include "desktop/spoken/widgets.h"

namespace norvane {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  Use_Spoken_Widgets();
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception&) {
    if (!on_failure_) throw;
    on_failure_();
    return false;
  }
}

}  // namespace norvane
