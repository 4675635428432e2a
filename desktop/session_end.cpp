#include "desktop/session_end.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <csignal>

namespace norvane {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// What a handler may do is little: it writes a byte that the event loop reads.
int writing_end = -1;

extern "C" void Write_A_Byte(int) {
  const char byte = 0;
  if (write(writing_end, &byte, 1) < 0) return;  // the pipe is full of such bytes
}

void Listen_For(int number) {
  struct sigaction now {};
  // Who starts a program to outlive the session (nohup) has the signal ignored.
  if (sigaction(number, nullptr, &now) != 0 || now.sa_handler == SIG_IGN) return;
  struct sigaction ours {};
  ours.sa_handler = Write_A_Byte;
  ours.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigaction(number, &ours, nullptr);
}

}  // namespace

class SessionEnd::Listener {
 public:
  explicit Listener(const std::function<void()>& on_end) {
    if (pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    writing_end = ends_[1];
    heard_ = std::make_unique<QSocketNotifier>(ends_[0], QSocketNotifier::Read);
    QObject::connect(heard_.get(), &QSocketNotifier::activated, heard_.get(), [this, on_end] {
      std::array<char, 64> bytes;
      while (read(ends_[0], bytes.data(), bytes.size()) > 0) {
      }
      on_end();
    });
    for (const int number : kSignals) Listen_For(number);
  }
  ~Listener() {
    if (heard_ == nullptr) return;
    for (const int number : kSignals) {
      struct sigaction now {};
      sigaction(number, nullptr, &now);
      if (now.sa_handler == Write_A_Byte) std::signal(number, SIG_DFL);
    }
    heard_.reset();
    for (const int end : ends_) close(end);
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

 private:
  std::array<int, 2> ends_{-1, -1};
  std::unique_ptr<QSocketNotifier> heard_;
};

SessionEnd::SessionEnd(const std::function<void()>& on_end)
    : listener_(std::make_unique<Listener>(on_end)) {}

SessionEnd::~SessionEnd() = default;

}  // namespace norvane
