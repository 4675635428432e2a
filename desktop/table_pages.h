#pragma once

#include <QStringList>
#include <QVector>

#include "desktop/report_pages.h"

namespace norvane {

/// A table for paper.
struct TableReport {
  struct Column {
    QString heading;     ///< may have lines
    bool words = false;  ///< its cells are broken into lines at need, those of numbers never
  };

  QString title;
  QVector<Column> columns;
  QVector<QStringList> rows;  ///< a cell for each column
  QStringList sums;  ///< a last line in bold, or none; the first cell has the room of the empty
                     ///< ones behind it
};

/// A table over as many pages as it takes. Its headings stand at the top of each. It is as wide as
/// the page at most: letters get smaller where they have to.
class TablePages : public ReportPages {
 public:
  /// @param desktop has the texts of the language
  TablePages(const Desktop& desktop, TableReport table, ReportFrame frame);

  void Paint(QPagedPaintDevice& device) const override;
  QString Words() const override;

 private:
  TableReport table_;
  ReportFrame frame_;
  QString project_;
};

}  // namespace norvane
