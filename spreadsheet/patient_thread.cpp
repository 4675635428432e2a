#include "spreadsheet/patient_thread.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

#include "platform/spreadsheet.h"

namespace norvane {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kMoment{20};

}  // namespace

/// What both threads hold.
struct PatientThread::Shared {
  std::mutex mutex;
  std::condition_variable changed;
  std::function<void()> work;
  bool at_end = false;
  std::thread thread;

  static void Work(const std::shared_ptr<Shared>& shared) {
    std::unique_lock lock(shared->mutex);
    while (true) {
      shared->changed.wait(lock, [&] { return shared->work != nullptr || shared->at_end; });
      if (shared->work == nullptr) return;
      // The work is let go of on this thread, before anybody is handed its result's successor.
      auto work = std::exchange(shared->work, nullptr);
      lock.unlock();
      work();
      work = nullptr;
      lock.lock();
    }
  }
};

PatientThread::PatientThread(SpreadsheetWaiting& waiting, std::chrono::milliseconds patience)
    : waiting_(waiting), patience_(patience), shared_(std::make_shared<Shared>()) {
  try {
    shared_->thread = std::thread([shared = shared_] { Shared::Work(shared); });
  } catch (const std::system_error&) {
    throw SpreadsheetFailure();  // the system has no more threads to give
  }
}

PatientThread::~PatientThread() {
  {
    const std::lock_guard lock(shared_->mutex);
    shared_->at_end = true;
  }
  shared_->changed.notify_one();
  if (lost_) {
    shared_->thread.detach();
  } else {
    shared_->thread.join();
  }
}

void PatientThread::Hand_Over(std::function<void()> work) {
  if (lost_) throw SpreadsheetFailure();
  {
    const std::lock_guard lock(shared_->mutex);
    shared_->work = std::move(work);
  }
  shared_->changed.notify_one();
}

void PatientThread::Wait_Until(const std::function<bool(std::chrono::milliseconds moment)>& done) {
  const auto end = Clock::now() + patience_;
  while (!done(kMoment)) {
    if (Clock::now() >= end) {
      lost_ = true;
      throw SpreadsheetFailure();
    }
    waiting_.Wait_A_Moment();
  }
}

void PatientThread::Pause(std::chrono::milliseconds time) {
  const auto end = Clock::now() + time;
  for (auto left = time; left.count() > 0;
       left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now())) {
    std::this_thread::sleep_for(std::min(left, kMoment));
    waiting_.Wait_A_Moment();
  }
}

}  // namespace norvane
