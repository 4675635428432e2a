#pragma once

#include <ctime>

namespace norvane {

/// The processor time of this process, which other programs on a busy machine don't lengthen.
class ProcessorTime {
 public:
  /// Seconds since the last call, or since the making.
  double Restart() {
    const std::clock_t begin = begin_;
    begin_ = std::clock();
    return static_cast<double>(begin_ - begin) / CLOCKS_PER_SEC;
  }

 private:
  std::clock_t begin_ = std::clock();
};

}  // namespace norvane
