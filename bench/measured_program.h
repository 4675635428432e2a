#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "bench/x_screen.h"

namespace norvane {

/// A program with a window, and what has to be known to type in it.
struct MeasuredProgram {
  std::string name;
  std::vector<std::string> command;
  std::size_t windows;               ///< painted one after the other until it takes keys
  std::vector<std::string> prepare;  ///< keys that lead to the state which is measured
  std::vector<std::string> keys;     ///< each changes the picture, the last leads back
};

struct StartFigures {
  double painted_ms = 0;      ///< from the start to the first window with a picture
  double painted_cpu_ms = 0;  ///< what the processor did until then
  double loaded_cpu_ms = 0;   ///< and until it takes keys and is at rest
};

struct IdleFigures {
  double sleeps_per_second = 0;  ///< of all threads; each ends with a wake-up
  double paintings_per_second = 0;
};

struct TypingFigures {
  std::vector<double> first_ms;    ///< from a key to the first painting it leads to
  std::vector<double> answers_ms;  ///< and to the last
  std::size_t without_answer = 0;  ///< keys that changed no picture
  double cpu_of_key_ms = 0;
  std::uint64_t memory_at_start_kib = 0;
  std::uint64_t memory_after_keys_kib = 0;
  std::uint64_t mapped_files_kib = 0;
  IdleFigures with_caret;
  IdleFigures without_focus;
};

struct TypingPlan {
  int watched_keys = 300;  ///< one at a time, each waited for until nothing moves
  int quick_keys = 5000;   ///< one after the other's answer
  int idle_seconds = 10;
};

/// Nothing where the program doesn't come up.
std::optional<StartFigures> Measure_Start(XScreen& screen, const MeasuredProgram& program);
std::optional<TypingFigures> Measure_Typing(XScreen& screen, const MeasuredProgram& program,
                                            const TypingPlan& plan);

}  // namespace norvane
