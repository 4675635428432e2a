#pragma once

#include <QString>

class QPagedPaintDevice;
class QPainter;
class QRectF;

namespace norvane {

class Desktop;

/// What a report is headed by, and what stands at the foot of its pages beside their numbers.
struct ReportFrame {
  QString project;  ///< may be empty
  QString date;
};

/// The pages of a report, laid out anew for each device.
class ReportPages {
 public:
  virtual ~ReportPages() = default;

  /// Paints all pages, each with its number.
  virtual void Paint(QPagedPaintDevice& device) const = 0;
  /// What the pages say, to tell whether it has changed.
  virtual QString Words() const = 0;
};

/// The line under a report's title; empty for a project without a name.
QString Project_Line(const Desktop& desktop, const ReportFrame& frame);

/// The foot of a page: the project, the date, the number of the page and how many there are.
/// @param page from 1
void Paint_Foot(QPainter& painter, const QRectF& foot, const ReportFrame& frame, int page,
                int pages);

}  // namespace norvane
