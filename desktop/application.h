#pragma once

#include <QApplication>
#include <functional>

namespace norvane {

/// Qt's application. A failure of C++ in an event that no other door has caught, such as a lack of
/// memory while a window is painted, comes to `on_failure`, inside of which `throw;` throws it
/// again.
class Application : public QApplication {
 public:
  Application(int& argc, char** argv);

  void Set_Failure(std::function<void()> on_failure) { on_failure_ = std::move(on_failure); }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  std::function<void()> on_failure_;
};

}  // namespace norvane
