#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>
#include <vector>

namespace norvane {

/// What a message box said.
struct SeenMessage {
  QString title;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;

  bool operator==(const SeenMessage&) const = default;
};

/// Deals with modal windows, which hold up whoever opened them: an expected one goes to whoever
/// expects it, any other fails the test and is closed. A test that takes too long fails as well.
class Watchdog {
 public:
  Watchdog();
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

  /// The next modal window is this procedure's; it has to be closed when the procedure returns.
  void Expect(std::function<void(QWidget& window)> procedure);
  /// The next modal window is a message box; its button is clicked.
  void Expect_Message(QMessageBox::StandardButton answer);

  /// A test that does much takes longer than others.
  void Set_Patience(int milliseconds) { patience_ = milliseconds; }

  const std::vector<SeenMessage>& Messages() const { return messages_; }
  /// Whether all that was expected has come.
  bool Content() const { return expected_.empty() && !at_work_; }

 private:
  void Look();
  void Hand_Over(QWidget& window);
  void Close(QWidget& window);

  QTimer timer_;
  int patience_ = 15000;  // milliseconds for the test
  int looks_ = 0;
  bool at_work_ = false;
  std::vector<QPointer<QWidget>> seen_;
  std::deque<std::function<void(QWidget&)>> expected_;
  std::vector<SeenMessage> messages_;
};

}  // namespace norvane
