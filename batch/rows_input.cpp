#include "batch/rows_input.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "batch/problem.h"
#include "data/utf8.h"

namespace norvane {
namespace {

std::size_t Lines(std::string_view bytes) {
  return static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
}

}  // namespace

void RowsInput::Close::operator()(std::FILE* file) const {
  if (file != stdin) std::fclose(file);
}

RowsInput::RowsInput(const std::string& path)
    : file_(path.empty() ? stdin : std::fopen(path.c_str(), "rb")),
      path_(path.empty() ? "standard input" : path) {
  if (!file_) throw BatchProblem(path_ + ": " + std::strerror(errno));
  // Blocks are read whole.
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
  pending_.reserve(kBlockBytes);
}

std::uint64_t RowsInput::Size() const {
  std::error_code error;
  const auto size = std::filesystem::file_size(path_, error);
  return error ? 0 : size;
}

void RowsInput::Fill() {
  const std::size_t held = pending_.size();
  if (at_end_ || held == kBlockBytes) return;
  pending_.resize(kBlockBytes);
  const std::size_t read = std::fread(&pending_[held], 1, kBlockBytes - held, file_.get());
  const int error = errno;
  pending_.resize(held + read);
  if (std::ferror(file_.get()) != 0) throw BatchProblem(path_ + ": " + std::strerror(error));
  at_end_ = std::feof(file_.get()) != 0;
}

std::string RowsInput::Read_Header() {
  Fill();
  pending_.erase(0, pending_.size() - Without_Byte_Order_Mark(pending_).size());
  for (;;) {
    Fill();
    const std::size_t length = Length_Of_Row(pending_, separator_);
    if (length == std::string::npos && !at_end_) {
      throw BatchProblem(line_,
                         "the header is longer than " + std::to_string(kBlockBytes) + " bytes");
    }
    std::string header = pending_.substr(0, length);
    pending_.erase(0, header.size());
    const std::size_t lines = Lines(header);
    while (!header.empty() && (header.back() == '\n' || header.back() == '\r')) header.pop_back();
    if (header.empty() && pending_.empty() && at_end_)
      throw BatchProblem(line_, "there is no header");
    header_line_ = line_;
    line_ += lines;
    if (!header.empty()) return header;
  }
}

std::size_t RowsInput::Whole_Rows() const {
  if (at_end_) return pending_.size();
  if (pending_.find('"') == std::string::npos) return pending_.rfind('\n') + 1;
  std::size_t whole = 0;
  for (;;) {
    const std::size_t length = Length_Of_Row(std::string_view(pending_).substr(whole), separator_);
    if (length == std::string::npos) return whole;
    whole += length;
  }
}

bool RowsInput::Next(Block& block) {
  Fill();
  if (pending_.empty()) return false;
  const std::size_t whole = Whole_Rows();
  if (whole == 0) {
    throw BatchProblem(line_, "the row is longer than " + std::to_string(kBlockBytes) +
                                  " bytes; is a quote left open?");
  }
  block.rows.assign(pending_, 0, whole);
  block.first_line = line_;
  block.number = blocks_++;
  pending_.erase(0, whole);
  line_ += Lines(block.rows);
  return true;
}

}  // namespace norvane
