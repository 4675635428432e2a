#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <thread>

#include "batch/interruption.h"
#include "batch/job.h"
#include "batch/options.h"
#include "batch/problem.h"
#include "batch/run.h"
#include "host/failed_writes.h"
#include "study/schedule_file.h"

namespace norvane {
namespace {

enum ExitStatus { kAllWell = 0, kSomeRowsBad = 1, kUnusable = 2 };

void Say(const std::string& words) {
  std::fputs(("norvane-batch: " + words + "\n").c_str(), stderr);
}

int Print(const std::string& text) {
  const bool written = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
  if (!written) Say("standard output can't be written to");
  return written ? kAllWell : kUnusable;
}

/// The columns of the input and of the results, a line each.
std::string Column_List(const Options& options) {
  const auto line = [](std::string_view name, const std::string& meaning) {
    std::string text(name);
    text.resize(std::max<std::size_t>(text.size() + 2, 26), ' ');
    return text + meaning + "\n";
  };
  std::string text = "Columns of the input:\n";
  const Question question = Question_Of(options.mode);
  for (const Column& column : Columns()) {
    if (!Is_Asked(column, question)) continue;
    const std::string usual =
        column.usual.empty() ? "" : "; " + std::string(column.usual) + " when left out";
    text +=
        line(column.name, std::string(column.meaning) + (column.required ? " (needed)" : usual));
  }
  text += "\nColumns of the results:\n";
  const auto answer = Make_Answer(options);
  for (const ResultColumn& column : answer->Columns()) {
    text += line(column.name, std::string(column.meaning));
  }
  return text + line(kRemarkColumn, "no saving, or why the row has no result");
}

std::string Template(const Options& options) {
  ScheduleFile schedule = New_Schedule(Question_Of(options.mode), options.decimal.value_or('.'));
  if (options.separator) schedule.dialect.separator = *options.separator;
  return Write_Schedule(schedule);
}

std::string Sums(const Report& report, Mode mode) {
  const ScheduleSums& sums = report.sums;
  std::string text = std::to_string(sums.rows) + " rows";
  if (sums.without_result > 0) {
    text += ", " + std::to_string(sums.without_result) + " without a result, the first in line " +
            std::to_string(report.first_bad_line);
  }
  if (mode != Mode::kHeatLoss) return text;
  if (sums.without_saving > 0) {
    text += ", " + std::to_string(sums.without_saving) + " without a saving";
  }
  return text + "; saved: gas " + sums.gas.Text(2, '.') + " m3, oil " + sums.oil.Text(2, '.') +
         " l, or electricity " + sums.electricity.Text(2, '.') + " kWh";
}

int Threads(const Options& options) {
  constexpr unsigned kMost = 64;
  if (options.threads > 0) return options.threads;
  return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, kMost));
}

int Calculate(const Options& options) {
  Let_Writes_Fail();
  RowsInput input(options.input);
  const std::string header = options.columns ? *options.columns : input.Read_Header();
  const Job job(options, header, input.Header_Line());
  input.Set_Separator(job.Dialect().separator);
  if (const std::string names = job.Unread(); !names.empty() && !options.quiet) {
    Say("passed on unread: " + names);
  }
  Hold_Interruptions();
  const auto output = Make_Output(options, job);
  Clear_Up_At_Interruption(output->Unfinished());
  Report report;
  {
    Progress progress(!options.quiet, input.Size());
    report = Run(input, job, *output, progress, Threads(options), options.write_header);
  }
  output->Finish();
  if (!options.quiet) Say(Sums(report, options.mode));
  return report.sums.without_result > 0 ? kSomeRowsBad : kAllWell;
}

int Carry_Out(const Options& options) {
  switch (options.task) {
    case Task::kHelp:
      return Print(Help());
    case Task::kVersion:
      return Print("norvane-batch " + std::string(NORVANE_VERSION) + "\n");
    case Task::kTemplate:
      return Print(Template(options));
    case Task::kListColumns:
      return Print(Column_List(options));
    case Task::kCalculate:
      break;
  }
  return Calculate(options);
}

int Main(int argc, char** argv) {
  const auto options = Read_Options(argc, argv);
  if (const auto* problem = std::get_if<UsageProblem>(&options)) {
    Say(problem->words + "; --help tells more");
    return kUnusable;
  }
  try {
    return Carry_Out(std::get<Options>(options));
  } catch (const std::exception& problem) {
    Say(problem.what());
    return kUnusable;
  }
}

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) { return norvane::Main(argc, argv); }
