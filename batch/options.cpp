#include "batch/options.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>

#include "data/csv.h"

namespace norvane {
namespace {

constexpr int kMostThreads = 64;

/// Takes the value of an option; false when it isn't understood.
using Take = bool (*)(Options& options, const std::string& value);

/// A row of `--help`: an option, what takes its value, and how both are shown.
struct Option {
  const char* name;
  char letter;        ///< 0 for none
  const char* value;  ///< how the value is called, null for none
  Take take;
  const char* meaning;
};

template <class Value, std::size_t count>
bool Take_Word(const std::string& word, const std::pair<const char*, Value> (&words)[count],
               Value& value) {
  for (const auto& [name, meant] : words) {
    if (word != name) continue;
    value = meant;
    return true;
  }
  return false;
}

bool Take_Mode(Options& options, const std::string& value) {
  constexpr std::pair<const char*, Mode> kWords[] = {{"heat-loss", Mode::kHeatLoss},
                                                     {"compare", Mode::kCompare},
                                                     {"condensation", Mode::kCondensation}};
  return Take_Word(value, kWords, options.mode);
}

bool Take_Format(Options& options, const std::string& value) {
  constexpr std::pair<const char*, OutputFormat> kWords[] = {{"csv", OutputFormat::kCsv},
                                                             {"jsonl", OutputFormat::kJsonLines},
                                                             {"xlsx", OutputFormat::kWorkbook}};
  return Take_Word(value, kWords, options.format.emplace());
}

bool Take_Decimal(Options& options, const std::string& value) {
  constexpr std::pair<const char*, char> kWords[] = {{"point", '.'}, {"comma", ','}};
  return Take_Word(value, kWords, options.decimal.emplace());
}

bool Take_Separator(Options& options, const std::string& value) {
  constexpr std::pair<const char*, char> kWords[] = {
      {"comma", ','}, {"semicolon", ';'}, {"tab", '\t'}};
  return Take_Word(value, kWords, options.separator.emplace());
}

bool Take_Price(Options& options, const std::string& value, Fuel fuel) {
  if (options.energy) return false;
  options.energy = EnergyPrice{fuel, 0};
  return Read_Number(value, '.', options.energy->per_unit) && options.energy->per_unit >= 0;
}

/// A list by commas of thicknesses, each with "=" and its cost or without.
bool Take_Thicknesses(Options& options, const std::string& value) {
  std::vector<std::string_view> items;
  Split_Row(value, ',', items);
  for (const std::string_view item : items) {
    Insulation choice;
    const std::size_t equals = item.find('=');
    if (!Read_Number(item.substr(0, equals), '.', choice.thickness_mm)) return false;
    if (equals != std::string_view::npos) {
      double& cost = choice.cost.emplace();
      if (!Read_Number(item.substr(equals + 1), '.', cost) || cost < 0) return false;
    }
    options.choices.push_back(choice);
  }
  return true;
}

bool Take_Years(Options& options, const std::string& value) {
  return Read_Number(value, '.', options.years.emplace()) && options.years > 0;
}

bool Take_Threads(Options& options, const std::string& value) {
  double number = 0;
  if (!Read_Number(value, '.', number) || number < 1 || number > kMostThreads) return false;
  options.threads = static_cast<int>(number);
  return options.threads == number;
}

template <Task task>
bool Take_Task(Options& options, const std::string&) {
  options.task = task;
  return true;
}

constexpr Option kOptions[] = {
    {"mode", 'm', "MODE", Take_Mode, "heat-loss (when left out), compare or condensation"},
    {"output", 'o', "FILE",
     [](Options& options, const std::string& value) {
       options.output = value;
       return !value.empty();
     },
     "write there instead of to standard output"},
    {"format", 'f', "FORMAT", Take_Format,
     "csv, jsonl or xlsx; when left out, by the name of the output"},
    {"decimal", 'd', "SIGN", Take_Decimal,
     "point or comma; when left out, comma where semicolons stand\nbetween the columns, else "
     "point"},
    {"separator", 's', "SIGN", Take_Separator,
     "comma, semicolon or tab; when left out, as in the header"},
    {"columns", 'c', "NAMES", Take{[](Options& options, const std::string& value) {
       options.columns = value;
       return !value.empty();
     }},
     "the header of an input that has none, such as a part of a\nlarger one"},
    {"no-header", 0, nullptr,
     [](Options& options, const std::string&) {
       options.write_header = false;
       return true;
     },
     "write none"},
    {"thicknesses", 't', "LIST", Take_Thicknesses,
     "compare: such as 13,20,25 or, with the cost of a metre or\nsquare metre, 13=4.20,20=5.50"},
    {"prices", 'p', "FILE",
     [](Options& options, const std::string& value) {
       options.prices = value;
       return !value.empty();
     },
     "compare: the prices.ini of a Norvane folder; what another\noption says counts instead"},
    {"gas-price", 0, "PRICE",
     [](Options& options, const std::string& value) {
       return Take_Price(options, value, Fuel::kGas);
     },
     "compare: of a cubic metre"},
    {"oil-price", 0, "PRICE",
     [](Options& options, const std::string& value) {
       return Take_Price(options, value, Fuel::kOil);
     },
     "compare: of a litre"},
    {"electricity-price", 0, "PRICE",
     [](Options& options, const std::string& value) {
       return Take_Price(options, value, Fuel::kElectricity);
     },
     "compare: of a kilowatt-hour; one of the three"},
    {"years", 'y', "YEARS", Take_Years,
     "compare: over which insulation is paid off; 10 when left out"},
    {"threads", 'j', "NUMBER", Take_Threads,
     "at most 64; when left out, as many as there are cores"},
    {"template", 0, nullptr, Take_Task<Task::kTemplate>,
     "print an empty input of the mode, and end"},
    {"list-columns", 0, nullptr, Take_Task<Task::kListColumns>,
     "print all columns of the mode with their meaning, and end"},
    {"quiet", 'q', nullptr,
     [](Options& options, const std::string&) {
       options.quiet = true;
       return true;
     },
     "no progress, no sums; problems alone"},
    {"help", 'h', nullptr, Take_Task<Task::kHelp>, "print this, and end"},
    {"version", 'V', nullptr, Take_Task<Task::kVersion>, "print the version, and end"},
};

std::string Letters() {
  std::string letters = ":";
  for (const Option& one : kOptions) {
    if (one.letter == 0) continue;
    letters += one.letter;
    if (one.value != nullptr) letters += ':';
  }
  return letters;
}

/// Options without a letter have numbers behind all letters.
constexpr int kFirstNumber = 256;

std::vector<option> Long_Options() {
  std::vector<option> long_options;
  int number = kFirstNumber;
  for (const Option& one : kOptions) {
    long_options.push_back(
        {one.name, one.value != nullptr ? required_argument : no_argument, nullptr, number++});
  }
  long_options.push_back({nullptr, 0, nullptr, 0});
  return long_options;
}

const Option* Find_Option(int found) {
  if (found >= kFirstNumber) return &kOptions[found - kFirstNumber];
  for (const Option& one : kOptions) {
    if (one.letter != 0 && one.letter == found) return &one;
  }
  return nullptr;
}

/// As `getopt_long` saw it last.
std::string Last_Argument(char** argv) { return argv[optind - 1]; }

}  // namespace

std::variant<Options, UsageProblem> Read_Options(int argc, char** argv) {
  Options options;
  const std::string letters = Letters();
  const std::vector<option> long_options = Long_Options();
  opterr = 0;
  optind = 1;
  for (;;) {
    const int found = getopt_long(argc, argv, letters.c_str(), long_options.data(), nullptr);
    if (found == -1) break;
    const Option* const one = Find_Option(found);
    if (found == ':') return UsageProblem{Last_Argument(argv) + " needs a value"};
    if (one == nullptr) return UsageProblem{Last_Argument(argv) + " isn't understood"};
    const std::string value = optarg == nullptr ? "" : optarg;
    if (!one->take(options, value)) {
      return UsageProblem{"--" + std::string(one->name) + " " + value + " isn't understood"};
    }
  }
  if (argc - optind > 1) return UsageProblem{"there is more than one input"};
  if (optind < argc && std::string_view(argv[optind]) != "-") options.input = argv[optind];
  if (Format_Of(options) == OutputFormat::kWorkbook && options.output.empty()) {
    return UsageProblem{"a workbook needs --output"};
  }
  return options;
}

OutputFormat Format_Of(const Options& options) {
  if (options.format) return *options.format;
  const std::string_view name = options.output;
  if (name.ends_with(".xlsx")) return OutputFormat::kWorkbook;
  if (name.ends_with(".jsonl")) return OutputFormat::kJsonLines;
  return OutputFormat::kCsv;
}

Question Question_Of(Mode mode) {
  constexpr std::array<Question, 3> kQuestions = {Question::kHeatLoss, Question::kComparison,
                                                  Question::kCondensation};
  return kQuestions[static_cast<std::size_t>(mode)];
}

std::string Help() {
  constexpr std::size_t kIndent = 29;
  std::string text =
      "Usage: norvane-batch [OPTION]... [FILE]\n"
      "Calculates the insulation of a schedule of pipes and sheets, a row each.\n"
      "FILE is CSV with a header, standard input when it is left out or -.\n\n";
  for (const Option& one : kOptions) {
    std::string line =
        one.letter == 0 ? std::string("      ") : std::string("  -") + one.letter + ", ";
    line += std::string("--") + one.name;
    if (one.value != nullptr) line += std::string(" ") + one.value;
    line.resize(std::max(line.size() + 1, kIndent), ' ');
    for (const char* c = one.meaning; *c != '\0'; ++c) {
      line += *c;
      if (*c == '\n') line.append(kIndent, ' ');
    }
    text += line + "\n";
  }
  return text +
         "\nExit status: 0 when every row has a result, 1 when some have a reason instead, 2 when\n"
         "the input or the output can't be used.\n";
}

}  // namespace norvane
