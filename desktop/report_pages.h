#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <memory>

class QPagedPaintDevice;
class QTextDocument;

namespace norvane {

class Desktop;
struct CalculationReport;

/// What a report is headed by, and what stands at the foot of its pages beside their numbers.
struct ReportFrame {
  QString project;  ///< may be empty
  QString date;
};

/// A table over as many pages as it takes. Its headings stand at the top of each.
struct TableReport {
  QString title;
  QStringList headings;
  QVector<QStringList> rows;
  QStringList sums;  ///< a last line in bold, as many cells as there are headings, or none
};

/// The pages of a calculation or a table, laid out anew for each device.
class ReportPages {
 public:
  /// @param desktop has the texts of the language
  ReportPages(const Desktop& desktop, const CalculationReport& report, ReportFrame frame);
  ReportPages(const Desktop& desktop, const TableReport& table, ReportFrame frame);

  /// Paints all pages, each with its number.
  void Paint(QPagedPaintDevice& device) const;
  /// What the pages say, to tell whether it has changed.
  const QString& Html() const { return html_; }

 private:
  std::unique_ptr<QTextDocument> Laid_Out_For(QPagedPaintDevice& device) const;

  ReportFrame frame_;
  QString html_;
  int picture_ = 0;  ///< of an object, 0 for none
};

}  // namespace norvane
