#pragma once

#include <windows.h>

#include <chrono>
#include <thread>

namespace norvane {

/// An open file, closed at the end.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() {
    if (Is_Open()) CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  bool Is_Open() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Raw() const { return handle_; }

 private:
  HANDLE handle_;
};

/// Whether an error passes by itself: somebody else has the file open just now.
inline bool Is_Busy(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_ACCESS_DENIED || error == ERROR_DELETE_PENDING;
}

/// Tries until it goes well, fails for good, or the patience is at an end. What is forbidden looks
/// like what is busy, so that the patience is what a read-only folder costs.
template <class Attempt>
bool Try_While_Busy(const Attempt& attempt, std::chrono::milliseconds patience) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!attempt()) {
    if (!Is_Busy(GetLastError()) || std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

}  // namespace norvane
