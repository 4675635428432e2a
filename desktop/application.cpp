#include "desktop/application.h"

#include <exception>

namespace norvane {

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
