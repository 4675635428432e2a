#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "spreadsheet/waiting.h"

namespace norvane {

/// Counts how often it was asked to paint, and keeps what it was told.
class TestWaiting : public SpreadsheetWaiting {
 public:
  void Wait_A_Moment() override { ++moments; }
  void Progress(int done, int total) override {
    told.emplace_back(done, total);
    if (on_progress) on_progress();
  }

  int moments = 0;
  std::vector<std::pair<int, int>> told;
  std::function<void()> on_progress;
};

}  // namespace norvane
