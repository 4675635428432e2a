#include "screen/model/grid.h"

#include <utility>

#include "data/runtime_error.h"
#include "data/text.h"
#include "screen/model/user_event.h"

namespace norvane {

const std::string& Grid::Cell(int row, int column) const {
  if (row < 0 || row >= Rows() || column < 0 || column >= Cols()) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  static const std::string kEmpty;
  const auto& cells = rows_[static_cast<std::size_t>(row)];
  const auto at = static_cast<std::size_t>(column);
  return at < cells.size() ? cells[at] : kEmpty;
}

double Grid::ColWidth(int column) const {
  if (column < 0 || column >= Cols()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  return column_widths_[static_cast<std::size_t>(column)];
}

void Grid::Set_Row(int row) {
  if (row < 0 || row >= Rows()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  row_ = row;
  row_sel_ = row;
  Notify(Attribute::kRow);
}

void Grid::Start(std::vector<std::string> captions, std::vector<double> column_widths) {
  rows_.clear();
  rows_.push_back(std::move(captions));
  column_widths_ = std::move(column_widths);
  row_ = 0;
  row_sel_ = 0;
  Notify(Attribute::kCells);
}

void Grid::Add_Item(const std::string& text) {
  rows_.push_back(Split(text, '\t'));
  Notify(Attribute::kCells);
}

void Grid::Pick_Rows(int from, int to) {
  row_ = from;
  row_sel_ = to;
  Notify(Attribute::kRow);
  if (On_Mouse_Up) On_Mouse_Up();
}

std::optional<std::string> Grid::Reason_To_Refuse(const UserEvent& event) const {
  if (event.action != UserAction::kPickRows) return Field::Reason_To_Refuse(event);
  for (const int row : {event.first, event.last}) {
    if (row < 1 || row >= Rows()) return "no such line";
  }
  return std::nullopt;
}

void Grid::Carry_Out(const UserEvent& event) {
  if (event.action != UserAction::kPickRows) return Field::Carry_Out(event);
  Pick_Rows(event.first, event.last);
}

}  // namespace norvane
