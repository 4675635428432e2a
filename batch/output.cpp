#include "batch/output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "batch/problem.h"
#include "host/unfinished_file.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

void Write_All(std::string_view rows, std::FILE* file, const std::string& name) {
  if (std::fwrite(rows.data(), 1, rows.size(), file) == rows.size()) return;
  throw BatchProblem(errno == EPIPE ? name + " was closed before the last row"
                                    : name + ": " + std::strerror(errno));
}

/// An open file that nothing can be put beside: standard output, a device, a named pipe.
class StreamOutput : public Output {
 public:
  StreamOutput(std::FILE* file, std::string name) : file_(file), name_(std::move(name)) {
    if (file_ == nullptr) throw BatchProblem(name_ + ": " + std::strerror(errno));
    // Rows come in blocks.
    std::setvbuf(file_, nullptr, _IONBF, 0);
  }
  ~StreamOutput() override {
    if (file_ != nullptr && file_ != stdout) std::fclose(file_);
  }
  StreamOutput(const StreamOutput&) = delete;
  StreamOutput& operator=(const StreamOutput&) = delete;

  void Write(std::string_view rows) override { Write_All(rows, file_, name_); }

  void Finish() override {
    // Some file systems tell of a full disk at the end alone.
    if (std::fclose(std::exchange(file_, nullptr)) != 0) {
      throw BatchProblem(name_ + ": " + std::strerror(errno));
    }
  }

 private:
  std::FILE* file_;
  std::string name_;
};

class FileOutput : public Output {
 public:
  explicit FileOutput(const std::string& path) : file_(path), name_(path) {}
  void Write(std::string_view rows) override { Write_All(rows, file_.File(), name_); }
  void Finish() override { file_.Commit(); }
  fs::path Unfinished() const override { return file_.Beside(); }

 private:
  UnfinishedFile file_;
  std::string name_;
};

bool Is_Device(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  return fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
}

}  // namespace

std::unique_ptr<Output> Make_Output(const Options& options, const Job& job) {
  if (job.Format() == OutputFormat::kWorkbook) return Make_Workbook_Output(options, job);
  if (options.output.empty()) return std::make_unique<StreamOutput>(stdout, "standard output");
  if (Is_Device(options.output)) {
    return std::make_unique<StreamOutput>(std::fopen(options.output.c_str(), "wb"), options.output);
  }
  return std::make_unique<FileOutput>(options.output);
}

}  // namespace norvane
