#include "batch/run.h"

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "batch/problem.h"
#include "batch/row_writer.h"

namespace norvane {
namespace {

class Runner {
 public:
  Runner(RowsInput& input, const Job& job, Output& output, Progress& progress)
      : input_(input),
        job_(job),
        output_(output),
        progress_(progress),
        writer_(job.Format() == OutputFormat::kJsonLines ? Make_Json_Writer(job)
                                                         : Make_Csv_Writer(job)) {}

  void Write_Header() {
    std::string header;
    writer_->Header(header);
    output_.Write(header);
  }

  Report Calculate(int threads) {
    std::vector<std::thread> others;
    for (int i = 1; i < threads; ++i) others.emplace_back([this] { Work(); });
    Work();
    for (std::thread& other : others) other.join();
    if (problem_) std::rethrow_exception(problem_);
    return report_;
  }

 private:
  void Work() {
    try {
      Rows rows(job_, *writer_);
      Block block;
      std::string out;
      while (Take(block)) {
        out.clear();
        const Report report = rows.Calculate(block, out);
        Write(block, out, report);
      }
    } catch (...) {
      Stop(std::current_exception());
    }
  }

  /// The next block, unless a problem has stopped the run.
  bool Take(Block& block) {
    const std::lock_guard reading(reading_);
    return !stopped_ && input_.Next(block);
  }

  /// Waits until all blocks before this one are written.
  void Write(const Block& block, const std::string& out, const Report& report) {
    std::unique_lock writing(writing_);
    turn_.wait(writing, [&] { return problem_ || next_ == block.number; });
    if (problem_) return;
    try {
      output_.Write(out);
    } catch (const BatchProblem& problem) {
      throw BatchProblem(block.first_line, problem.what());
    }
    report_.Add(report);
    progress_.Advance(block.rows.size(), static_cast<std::uint64_t>(report.sums.rows));
    ++next_;
    turn_.notify_all();
  }

  void Stop(std::exception_ptr problem) {
    const std::lock_guard writing(writing_);
    if (!problem_) problem_ = std::move(problem);
    stopped_ = true;
    turn_.notify_all();
  }

  RowsInput& input_;
  const Job& job_;
  Output& output_;
  Progress& progress_;
  std::unique_ptr<RowWriter> writer_;

  std::atomic<bool> stopped_ = false;
  std::mutex reading_;
  std::mutex writing_;  // guards all that follows, and the output
  std::condition_variable turn_;
  std::uint64_t next_ = 0;
  std::exception_ptr problem_;
  Report report_;
};

}  // namespace

Report Run(RowsInput& input, const Job& job, Output& output, Progress& progress, int threads,
           bool write_header) {
  Runner runner(input, job, output, progress);
  if (write_header) runner.Write_Header();
  return runner.Calculate(threads);
}

}  // namespace norvane
