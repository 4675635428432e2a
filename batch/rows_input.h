#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "data/csv.h"

namespace norvane {

/// Whole rows of the input, one after another.
struct Block {
  std::string rows;
  std::size_t first_line = 1;  ///< of the input, from 1
  std::uint64_t number = 0;    ///< of blocks, from 0
};

/// A CSV file that is read in blocks, so that its size doesn't matter. No row may be longer than a
/// block. Each of its procedures throws `BatchProblem` for what can't be read.
class RowsInput {
 public:
  static constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

  /// Opens a path, or takes standard input for an empty one.
  explicit RowsInput(const std::string& path);

  /// The first row that isn't empty, without its line end. Called before `Next`.
  std::string Read_Header();
  /// Where it stands, from 1.
  std::size_t Header_Line() const { return header_line_; }
  /// How the rows behind the header are separated.
  void Set_Separator(char separator) { separator_ = separator; }

  /// The next rows; false behind the last.
  bool Next(Block& block);

  /// The size of a regular file, 0 for anything else.
  std::uint64_t Size() const;

 private:
  struct Close {
    void operator()(std::FILE* file) const;
  };

  /// Fills `pending_` up to a block.
  void Fill();
  /// How much of `pending_` are whole rows.
  std::size_t Whole_Rows() const;

  std::unique_ptr<std::FILE, Close> file_;
  std::string path_;
  std::string pending_;
  bool at_end_ = false;
  char separator_ = ',';
  std::size_t line_ = 1;
  std::size_t header_line_ = 1;
  std::uint64_t blocks_ = 0;
};

}  // namespace norvane
