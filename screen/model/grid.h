#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screen/model/field.h"

namespace norvane {

/// A grid of text cells whose row 0 holds the captions. The current row and the row where the
/// selection ends are told apart; both are 0 when nothing is selected.
class Grid : public Field {
 public:
  using Field::Field;

  int Rows() const { return static_cast<int>(rows_.size()); }
  int Cols() const { return static_cast<int>(column_widths_.size()); }

  /// The cell's text, empty where a row has no such cell. Throws `RuntimeError` 9 outside the grid.
  /// @param row 0 for the captions
  /// @param column from 0
  const std::string& Cell(int row, int column) const;
  /// In twips.
  /// @param column from 0
  double ColWidth(int column) const;

  int Row() const { return row_; }
  int RowSel() const { return row_sel_; }
  /// Makes a row the current one, and the selection to end there.
  /// @param row below `Rows`, 0 for none
  void Set_Row(int row);

  /// Throws all away but an empty caption row, with a column for each width.
  /// @param captions of row 0
  /// @param column_widths twips
  void Start(std::vector<std::string> captions, std::vector<double> column_widths);
  /// Appends a row, a cell for each tab-separated part of the text.
  /// @param text of all cells of the row
  void Add_Item(const std::string& text);

  /// The user drags over rows and lets the mouse go.
  /// @param from the row where the mouse went down
  /// @param to the row where it was let go
  void Pick_Rows(int from, int to);
  std::function<void()> On_Mouse_Up;

  std::optional<std::string> Reason_To_Refuse(const UserEvent& event) const override;
  void Carry_Out(const UserEvent& event) override;

 private:
  std::vector<std::vector<std::string>> rows_;
  std::vector<double> column_widths_;
  int row_ = 0;
  int row_sel_ = 0;
};

}  // namespace norvane
