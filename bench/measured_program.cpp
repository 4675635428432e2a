#include "bench/measured_program.h"

#include <algorithm>
#include <thread>

#include "bench/started_process.h"

namespace norvane {
namespace {

using namespace std::chrono_literals;

constexpr Milliseconds kPatience = 20s;
constexpr Milliseconds kQuietAfterStart = 350ms;  // less than a caret's blink
constexpr Milliseconds kQuietAfterKey = 150ms;    // a button shown pressed comes up before that
constexpr Milliseconds kAnswerPatience = 1s;

bool Is_Up(XScreen& screen, const MeasuredProgram& program) {
  if (!screen.Wait_For_Painted_Window(program.windows, kPatience)) return false;
  screen.Wait_Until_Quiet(kQuietAfterStart, kPatience);
  return true;
}

void Press_And_Rest(XScreen& screen, const std::string& key) {
  screen.Press(key);
  screen.Wait_Until_Quiet(kQuietAfterKey, kAnswerPatience);
  screen.Release(key);
  screen.Wait_Until_Quiet(kQuietAfterKey, kAnswerPatience);
}

void Type_Watched(XScreen& screen, const StartedProcess& process, const MeasuredProgram& program,
                  int count, TypingFigures& figures) {
  std::uint64_t picture = screen.Picture();
  const auto cpu_before = process.Processor_Time();
  for (int i = 0; i < count; ++i) {
    const std::string& key = program.keys[static_cast<std::size_t>(i) % program.keys.size()];
    const auto pressed = Clock::now();
    screen.Press(key);
    screen.Wait_For_Painting(kAnswerPatience);
    const auto first = screen.Last_Painting();
    screen.Wait_Until_Quiet(kQuietAfterKey, kAnswerPatience);
    const auto last = screen.Last_Painting();
    const std::uint64_t changed = screen.Picture();
    if (changed == picture) {
      ++figures.without_answer;
    } else {
      figures.first_ms.push_back(Milliseconds(first - pressed).count());
      figures.answers_ms.push_back(Milliseconds(last - pressed).count());
    }
    picture = changed;
    screen.Release(key);
    screen.Wait_Until_Quiet(10ms, kAnswerPatience);
  }
  figures.cpu_of_key_ms = (process.Processor_Time() - cpu_before).count() / std::max(count, 1);
}

void Type_Quickly(XScreen& screen, const MeasuredProgram& program, int count) {
  for (int i = 0; i < count; ++i) {
    const std::string& key = program.keys[static_cast<std::size_t>(i) % program.keys.size()];
    screen.Press(key);
    screen.Release(key);
    screen.Wait_For_Painting(kAnswerPatience);
    screen.Wait_Until_Quiet(1ms, kAnswerPatience);
  }
}

IdleFigures Stay_Idle(XScreen& screen, const StartedProcess& process, int seconds) {
  std::this_thread::sleep_for(2s);
  screen.Take_Paintings();
  const std::uint64_t before = process.Sleeps();
  std::this_thread::sleep_for(std::chrono::seconds(seconds));
  const std::uint64_t sleeps = process.Sleeps() - before;
  return {static_cast<double>(sleeps) / seconds,
          static_cast<double>(screen.Take_Paintings()) / seconds};
}

}  // namespace

std::optional<StartFigures> Measure_Start(XScreen& screen, const MeasuredProgram& program) {
  screen.Watch(0);
  const auto started = Clock::now();
  const StartedProcess process(program.command);
  screen.Watch(process.Pid());
  const auto painted = screen.Wait_For_Painted_Window(1, kPatience);
  if (!painted) return std::nullopt;
  StartFigures figures;
  figures.painted_cpu_ms = process.Processor_Time().count();
  figures.painted_ms = Milliseconds(*painted - started).count();
  if (!Is_Up(screen, program)) return std::nullopt;
  figures.loaded_cpu_ms = process.Processor_Time().count();
  return figures;
}

std::optional<TypingFigures> Measure_Typing(XScreen& screen, const MeasuredProgram& program,
                                            const TypingPlan& plan) {
  const StartedProcess process(program.command);
  screen.Watch(process.Pid());
  if (!Is_Up(screen, program)) return std::nullopt;
  TypingFigures figures;
  figures.memory_at_start_kib = process.Memory();
  figures.with_caret = Stay_Idle(screen, process, plan.idle_seconds);
  for (const std::string& key : program.prepare) Press_And_Rest(screen, key);
  Type_Watched(screen, process, program, plan.watched_keys, figures);
  Type_Quickly(screen, program, plan.quick_keys);
  screen.Wait_Until_Quiet(kQuietAfterStart, kPatience);
  figures.memory_after_keys_kib = process.Memory();
  figures.mapped_files_kib = process.Mapped_Files();
  screen.Take_Focus();
  figures.without_focus = Stay_Idle(screen, process, plan.idle_seconds);
  if (!process.Running()) return std::nullopt;
  return figures;
}

}  // namespace norvane
