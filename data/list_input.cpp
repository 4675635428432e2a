#include "data/list_input.h"

#include <algorithm>

#include "data/text.h"

namespace norvane {
namespace {}  // namespace

std::optional<std::string> ListInput::Next_Field() {
  if (At_End()) return std::nullopt;
  at_ = std::min(file_.find_first_not_of(kBlanks, at_), file_.size());
  std::string field;
  if (!At_End() && file_[at_] == '"') {
    const std::size_t begin = ++at_;
    at_ = std::min(file_.find_first_of("\"\r\n", begin), file_.size());
    field = file_.substr(begin, at_ - begin);
    at_ = std::min(file_.find_first_of(",\r\n", at_), file_.size());
  } else {
    const std::size_t begin = at_;
    at_ = std::min(file_.find_first_of(",\r\n", begin), file_.size());
    field = Trim(file_.substr(begin, at_ - begin), kBlanks);
  }
  if (!At_End() && file_[at_] == ',') {
    ++at_;
  } else {
    Skip_Line_End();
  }
  return field;
}

std::string_view ListInput::Next_Line() {
  const std::size_t begin = at_;
  at_ = std::min(file_.find_first_of(kLineEnds, begin), file_.size());
  const std::string_view line = file_.substr(begin, at_ - begin);
  Skip_Line_End();
  return line;
}

void ListInput::Skip_Line_End() {
  if (At_End()) return;
  const bool carriage_return = file_[at_] == '\r';
  ++at_;
  if (carriage_return && !At_End() && file_[at_] == '\n') ++at_;
}

}  // namespace norvane
