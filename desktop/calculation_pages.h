#pragma once

#include <memory>

#include "desktop/chart.h"
#include "desktop/report_pages.h"

class QTextDocument;

namespace norvane {

struct CalculationReport;

/// The report of one calculation: its picture, inputs and results, its chart, and its formulas.
class CalculationPages : public ReportPages {
 public:
  /// @param desktop has the texts of the language
  /// @param chart without lines for none
  CalculationPages(const Desktop& desktop, const CalculationReport& report, Chart chart,
                   ReportFrame frame);

  void Paint(QPagedPaintDevice& device) const override;
  QString Words() const override { return html_; }

 private:
  std::unique_ptr<QTextDocument> Laid_Out_For(QPagedPaintDevice& device) const;

  ReportFrame frame_;
  QString html_;
  int picture_;  ///< of the object
  Chart chart_;
};

}  // namespace norvane
