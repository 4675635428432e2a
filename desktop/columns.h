#pragma once

#include <QGridLayout>

namespace norvane {

/// The columns that the input rows and the result rows share, so that all numbers of the main
/// screen stand right-aligned under one another with their units beside them.
enum CardColumn {
  kLetterColumn,
  kHeadingColumn,
  kNumberColumn,
  kArrowsColumn,
  kUnitColumn,
  kSecondNumberColumn,
  kSecondUnitColumn,
};

constexpr int kRowHeight = 27;  // pixels
constexpr int kMargin = 14;     // around the cards of the main screen

/// The columns' least widths. The heading has room for texts that are 60 % longer than the English
/// ones.
constexpr int kColumnWidth[] = {20, 266, 92, 22, 70, 66, 48};

/// Gives a grid these columns. They stand still when rows come and go.
inline void Lay_Out_Columns(QGridLayout& grid) {
  for (int column = 0; column <= kSecondUnitColumn; ++column) {
    grid.setColumnMinimumWidth(column, kColumnWidth[column]);
  }
  grid.setColumnStretch(kSecondUnitColumn, 1);
  grid.setHorizontalSpacing(6);
}

}  // namespace norvane
