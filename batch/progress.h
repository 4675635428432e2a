#pragma once

#include <chrono>
#include <cstdint>

namespace norvane {

/// A bar on the terminal while the rows go by. Where the messages don't go to a terminal, and where
/// it isn't wanted, there is none.
class Progress {
 public:
  /// `bytes` of the input, 0 when nobody knows.
  Progress(bool wanted, std::uint64_t bytes);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Advance(std::uint64_t bytes, std::uint64_t rows);

 private:
  void Draw() const;

  bool shown_;
  bool drawn_ = false;
  std::uint64_t all_bytes_;
  std::uint64_t bytes_ = 0;
  std::uint64_t rows_ = 0;
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

}  // namespace norvane
