#pragma once

#include <QFontMetricsF>
#include <vector>

#include "desktop/table_pages.h"

class QPaintDevice;

namespace norvane {

/// A table with a width for each column and a height for each row, for a device of any resolution.
class TableLayout {
 public:
  TableLayout(const TableReport& table, const QFont& font, qreal width, QPaintDevice& device);

  /// The font that the table has room for.
  const QFont& Font() const { return font_; }
  /// That of headings and sums.
  QFont Bold() const;
  qreal Heading_Height() const { return heading_height_; }
  qreal Row_Height(qsizetype row) const { return heights_[static_cast<std::size_t>(row)]; }
  /// That of a row whose cells have one line each, such as the sums.
  qreal Line_Height() const { return metrics_.height() + 2 * gap_; }
  qreal Width() const;

  void Paint_Headings(QPainter& painter, qreal top) const;
  void Paint_Row(QPainter& painter, qreal top, qsizetype row) const;
  void Paint_Sums(QPainter& painter, qreal top) const;

 private:
  void Measure();
  qreal Widest(qsizetype column) const;
  qreal Longest_Word(qsizetype column) const;
  void Choose_Widths(qreal room);
  void Measure_Rows();
  QRectF Cell(qsizetype column, qreal top, qreal height) const;

  const TableReport& table_;
  QFont font_;
  QPaintDevice& device_;
  QFontMetricsF metrics_;
  QFontMetricsF bold_;
  qreal gap_ = 0;  ///< around texts
  qreal heading_height_ = 0;
  std::vector<qreal> widths_;   ///< by column
  std::vector<qreal> heights_;  ///< by row
};

}  // namespace norvane
