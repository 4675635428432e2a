#pragma once

#include <chrono>
#include <memory>

namespace norvane {

/// Makes a thread one that talks to other programs, as long as this lives on it. A program that
/// refuses a call because it is busy is called again until the patience is at an end. Throws
/// `SpreadsheetFailure` where there is no talking.
class Apartment {
 public:
  explicit Apartment(std::chrono::milliseconds patience);
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  /// Whether the caller is on that thread.
  bool Is_Here() const;

 private:
  unsigned long thread_;
};

}  // namespace norvane
