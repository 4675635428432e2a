#include "batch/progress.h"

#include <algorithm>
#include <cstdio>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace norvane {
namespace {

constexpr std::chrono::milliseconds kPause{200};
constexpr std::uint64_t kWidth = 40;
constexpr const char* kClearLine = "\r\x1B[K";

bool Messages_Go_To_A_Terminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

Progress::Progress(bool wanted, std::uint64_t bytes)
    : shown_(wanted && Messages_Go_To_A_Terminal()), all_bytes_(bytes) {}

Progress::~Progress() {
  if (drawn_) std::fputs(kClearLine, stderr);
}

void Progress::Advance(std::uint64_t bytes, std::uint64_t rows) {
  bytes_ += bytes;
  rows_ += rows;
  const auto now = std::chrono::steady_clock::now();
  if (!shown_ || now - last_ < kPause) return;
  last_ = now;
  drawn_ = true;
  Draw();
}

void Progress::Draw() const {
  std::string line = kClearLine;
  if (all_bytes_ > 0) {
    const std::uint64_t done = std::min(bytes_, all_bytes_);
    const std::uint64_t filled = done * kWidth / all_bytes_;
    line += '[' + std::string(filled, '#') + std::string(kWidth - filled, ' ') + "] " +
            std::to_string(done * 100 / all_bytes_) + " %, ";
  }
  line += std::to_string(rows_) + " rows";
  std::fputs(line.c_str(), stderr);
}

}  // namespace norvane
