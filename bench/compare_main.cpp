// Measures Norvane and other calculators with a window, by turns, on the display it is started on.
//   norvane-compare NORVANE LINE_EDIT [ROUNDS KEYS QUICK_KEYS IDLE_SECONDS]
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/measured_program.h"

namespace norvane {
namespace {

/// A sum whose last digit comes and goes, for the calculators that know sums.
const std::vector<std::string> kSum{"5", "plus", "3", "5"};
const std::vector<std::string> kDigit{"BackSpace", "5"};

bool Is_Installed(const std::string& program) {
  const char* path = std::getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  std::string folder;
  if (program.find('/') != std::string::npos) return access(program.c_str(), X_OK) == 0;
  while (std::getline(folders, folder, ':')) {
    if (access((folder + '/' + program).c_str(), X_OK) == 0) return true;
  }
  return false;
}

std::vector<MeasuredProgram> Programs(const std::string& norvane, const std::string& line_edit) {
  // 4 mm of insulation, then back to the temperature of the medium, on which all results depend.
  const std::vector<std::string> insulate{"5",         "Tab",       "Tab",       "Tab", "4",
                                          "shift+Tab", "shift+Tab", "shift+Tab", "End"};
  std::vector<MeasuredProgram> programs{{"Norvane", {norvane}, 2, insulate, kDigit},
                                        {"SpeedCrunch", {"speedcrunch"}, 1, kSum, kDigit},
                                        {"KCalc", {"kcalc"}, 1, kSum, kDigit},
                                        {"galculator", {"galculator"}, 1, kSum, kDigit},
                                        {"Qt 6 line edit", {line_edit}, 1, kSum, kDigit}};
  std::erase_if(programs, [](const MeasuredProgram& program) {
    if (Is_Installed(program.command.front())) return false;
    std::printf("%s isn't there.\n", program.name.c_str());
    return true;
  });
  return programs;
}

double Middle(std::vector<double> figures) {
  if (figures.empty()) return 0;
  std::sort(figures.begin(), figures.end());
  return figures[figures.size() / 2];
}

double Worst(const std::vector<double>& figures) {
  return figures.empty() ? 0 : *std::max_element(figures.begin(), figures.end());
}

void Print_Starts(const std::vector<MeasuredProgram>& programs, XScreen& screen, int rounds) {
  std::map<std::string, std::vector<double>> painted;
  std::map<std::string, std::vector<double>> painted_cpu;
  std::map<std::string, std::vector<double>> loaded_cpu;
  // The first round only brings the files into memory.
  for (int round = 0; round <= rounds; ++round) {
    for (const MeasuredProgram& program : programs) {
      const auto figures = Measure_Start(screen, program);
      if (!figures || round == 0) continue;
      painted[program.name].push_back(figures->painted_ms);
      painted_cpu[program.name].push_back(figures->painted_cpu_ms);
      loaded_cpu[program.name].push_back(figures->loaded_cpu_ms);
    }
  }
  std::printf("%-15s %6s %22s %11s %11s\n", "", "", "first window painted", "CPU till", "CPU till");
  std::printf("%-15s %6s %10s %11s %11s %11s\n", "start, ms", "starts", "median", "worst", "then",
              "loaded");
  for (const MeasuredProgram& program : programs) {
    const auto& times = painted[program.name];
    std::printf("%-15s %6zu %10.1f %11.1f %11.1f %11.1f\n", program.name.c_str(), times.size(),
                Middle(times), Worst(times), Middle(painted_cpu[program.name]),
                Middle(loaded_cpu[program.name]));
  }
}

void Print_Typing(const std::vector<MeasuredProgram>& programs, XScreen& screen,
                  const TypingPlan& plan) {
  constexpr double kKibi = 1024;
  std::printf("\n%-15s %6s %30s %7s %16s %9s %21s\n", "", "", "key to painting, ms", "CPU",
              "memory, MB", "files", "wake-ups / s at rest");
  std::printf("%-15s %6s %10s %9s %9s %7s %8s %7s %9s %10s %10s\n", "", "keys", "first", "last",
              "worst", "ms/key", "start", "typed", "MB", "caret", "no focus");
  for (const MeasuredProgram& program : programs) {
    const auto figures = Measure_Typing(screen, program, plan);
    if (!figures) {
      std::printf("%-15s didn't come up or ended by itself\n", program.name.c_str());
      continue;
    }
    std::printf("%-15s %6zu %10.2f %9.2f %9.2f %7.2f %8.1f %7.1f %9.1f %10.1f %10.1f\n",
                program.name.c_str(), figures->answers_ms.size(), Middle(figures->first_ms),
                Middle(figures->answers_ms), Worst(figures->answers_ms), figures->cpu_of_key_ms,
                static_cast<double>(figures->memory_at_start_kib) / kKibi,
                static_cast<double>(figures->memory_after_keys_kib) / kKibi,
                static_cast<double>(figures->mapped_files_kib) / kKibi,
                figures->with_caret.sleeps_per_second, figures->without_focus.sleeps_per_second);
    if (figures->without_answer > 0) {
      std::printf("%-15s %zu keys changed nothing\n", "", figures->without_answer);
    }
    std::fflush(stdout);
  }
}

int Compare(const std::vector<std::string>& arguments) {
  const auto number = [&](std::size_t index, int otherwise) {
    return index < arguments.size() ? std::atoi(arguments[index].c_str()) : otherwise;
  };
  XScreen screen;
  const auto programs = Programs(arguments[1], arguments[2]);
  const TypingPlan usual;
  Print_Starts(programs, screen, number(3, 15));
  std::fflush(stdout);
  Print_Typing(
      programs, screen,
      {number(4, usual.watched_keys), number(5, usual.quick_keys), number(6, usual.idle_seconds)});
  return 0;
}

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("norvane-compare NORVANE LINE_EDIT [ROUNDS KEYS QUICK_KEYS IDLE_SECONDS]\n", stderr);
    return 2;
  }
  try {
    return norvane::Compare({argv, argv + argc});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "norvane-compare: %s\n", error.what());
    return 1;
  }
}
