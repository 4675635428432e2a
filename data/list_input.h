#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace norvane {

/// Sequential reading of a text file that is held in memory, by fields or by lines. CR LF, LF and
/// CR all end a line.
class ListInput {
 public:
  explicit ListInput(std::string_view file) : file_(file) {}

  bool At_End() const { return at_ >= file_.size(); }

  /// The next field, or nothing at the end of the file. A field ends at a comma or at the end of
  /// its line and loses the blanks and tabs around it; one in double quotes is taken as it stands
  /// between them, ends with its line when the quote isn't closed, and what follows it up to the
  /// comma is dropped.
  std::optional<std::string> Next_Field();

  /// The rest of the current line. Only to be called before the end of the file.
  std::string_view Next_Line();

 private:
  void Skip_Line_End();

  std::string_view file_;
  std::size_t at_ = 0;
};

}  // namespace norvane
