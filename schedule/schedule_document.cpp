#include "schedule/schedule_document.h"

#include <algorithm>
#include <utility>

namespace norvane {

std::vector<ScheduleLine> ScheduleDocument::Lines(std::size_t first, std::size_t count) const {
  std::vector<ScheduleLine> lines;
  lines.reserve(count);
  for (std::size_t row = first; row < first + count; ++row) lines.push_back(table_.Line(row));
  return lines;
}

bool ScheduleDocument::Has(std::size_t first, std::size_t count) const {
  return count > 0 && first < table_.Rows() && count <= table_.Rows() - first;
}

RowChange ScheduleDocument::Exchange(Edit& edit) {
  const RowChange change{edit.first, edit.count, edit.lines.size()};
  if (observer_ != nullptr) observer_->Before_Change(change);
  edit.count = edit.lines.size();
  edit.lines = table_.Replace(change.first, change.removed, std::move(edit.lines));
  if (observer_ != nullptr) observer_->After_Change(change);
  return change;
}

void ScheduleDocument::Do(Edit edit) {
  // What was kept behind this point can't come again.
  if (kept_at_ && *kept_at_ > done_) kept_at_.reset();
  edits_.resize(done_);
  edits_.push_back(std::move(edit));
  Exchange(edits_[done_++]);
}

void ScheduleDocument::Set_Text(std::size_t row, std::size_t column, const std::string& text) {
  if (!Has(row, 1) || column >= table_.Columns() || table_.Text(row, column) == text) return;
  Do({row, 1, {table_.With_Text(table_.Line(row), column, text)}});
}

void ScheduleDocument::Insert(std::size_t at, std::vector<ScheduleLine> lines) {
  if (lines.empty()) return;
  Do({std::min(at, table_.Rows()), 0, std::move(lines)});
}

void ScheduleDocument::Duplicate(std::size_t first, std::size_t count) {
  if (Has(first, count)) Insert(first + count, Lines(first, count));
}

void ScheduleDocument::Delete(std::size_t first, std::size_t count) {
  if (Has(first, count)) Do({first, count, {}});
}

void ScheduleDocument::Move_Up(std::size_t first, std::size_t count) {
  if (first == 0 || !Has(first, count)) return;
  auto lines = Lines(first - 1, count + 1);
  std::rotate(lines.begin(), lines.begin() + 1, lines.end());
  Do({first - 1, count + 1, std::move(lines)});
}

void ScheduleDocument::Move_Down(std::size_t first, std::size_t count) {
  if (!Has(first, count) || !Has(first, count + 1)) return;
  auto lines = Lines(first, count + 1);
  std::rotate(lines.begin(), lines.end() - 1, lines.end());
  Do({first, count + 1, std::move(lines)});
}

std::optional<RowChange> ScheduleDocument::Undo() {
  if (!Can_Undo()) return std::nullopt;
  return Exchange(edits_[--done_]);
}

std::optional<RowChange> ScheduleDocument::Redo() {
  if (!Can_Redo()) return std::nullopt;
  return Exchange(edits_[done_++]);
}

}  // namespace norvane
