#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "study/compare.h"

namespace norvane {

enum class Mode { kHeatLoss, kCompare, kCondensation };
enum class OutputFormat { kCsv, kJsonLines, kWorkbook };
enum class Task { kCalculate, kTemplate, kListColumns, kHelp, kVersion };

/// What the command line asks for.
struct Options {
  Task task = Task::kCalculate;
  Mode mode = Mode::kHeatLoss;
  std::string input;   ///< a path; empty for standard input
  std::string output;  ///< a path; empty for standard output
  std::optional<OutputFormat> format;
  std::optional<char> decimal;
  std::optional<char> separator;
  std::optional<std::string> columns;  ///< the header of an input that has none
  bool write_header = true;
  bool quiet = false;
  int threads = 0;  ///< 0 for as many as there are cores
  std::vector<Insulation> choices;
  std::optional<EnergyPrice> energy;
  std::optional<double> years;
  std::string prices;  ///< a path; what it holds counts where no option says otherwise
};

struct UsageProblem {
  std::string words;
};

/// Reads the command line.
std::variant<Options, UsageProblem> Read_Options(int argc, char** argv);

/// The format that is asked for, or else that the name of the output has.
OutputFormat Format_Of(const Options& options);

Question Question_Of(Mode mode);

/// What `--help` prints.
std::string Help();

}  // namespace norvane
