#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>

#include "spreadsheet/waiting.h"

namespace norvane {

/// A thread that works while somebody waits for it, but not for ever. When the patience is at an
/// end the thread is left to itself with what it is doing, so the work has to own, or share, all
/// that it touches.
class PatientThread {
 public:
  /// Throws `SpreadsheetFailure` when there can't be another thread.
  PatientThread(SpreadsheetWaiting& waiting, std::chrono::milliseconds patience);
  ~PatientThread();
  PatientThread(const PatientThread&) = delete;
  PatientThread& operator=(const PatientThread&) = delete;

  /// Does the work on the thread and returns or throws what it does. Throws `SpreadsheetFailure`
  /// when it isn't done in time, and from then on at once.
  template <class Work>
  auto Run(Work work) -> decltype(work()) {
    using Task = std::packaged_task<decltype(work())()>;
    const auto task = std::make_shared<Task>(std::move(work));
    auto result = task->get_future();
    Hand_Over([task] { (*task)(); });
    Wait_Until([&result](std::chrono::milliseconds moment) {
      return result.wait_for(moment) == std::future_status::ready;
    });
    return result.get();
  }

  /// Lets time pass.
  void Pause(std::chrono::milliseconds time);

  /// Whether work wasn't done in time.
  bool Lost() const { return lost_; }

 private:
  struct Shared;

  void Hand_Over(std::function<void()> work);
  void Wait_Until(const std::function<bool(std::chrono::milliseconds moment)>& done);

  SpreadsheetWaiting& waiting_;
  std::chrono::milliseconds patience_;
  std::shared_ptr<Shared> shared_;
  bool lost_ = false;
};

}  // namespace norvane
