#pragma once

#include <QLabel>

#include "desktop/columns.h"

namespace norvane {

/// A computed number in one of the columns. It only ever grows, and only for a number that is wider
/// than its column: what stands around it isn't laid out anew while the user types.
class NumberLabel : public QLabel {
  Q_OBJECT

 public:
  NumberLabel(QGridLayout& grid, int row, CardColumn column);

  void Show_Number(const QString& number);
};

}  // namespace norvane
