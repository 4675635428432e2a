#pragma once

#include <QTextObjectInterface>

#include "desktop/chart.h"

namespace norvane {

/// The name of an object's picture, and that of the chart, among the images of a report.
inline constexpr const char* kObjectFigure = "object";
inline constexpr const char* kChartFigure = "chart";

/// The size of the chart on paper, in 96th of an inch.
inline constexpr QSize kChartOnPaper(640, 200);

/// Paints the images of a report's text: the chart as lines and letters, sharp at any resolution,
/// in the colours of paper whatever theme the desktop has.
class ReportFigures : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  /// @param picture the number of the object's picture
  /// @param chart outlives the text
  /// @param parent the text
  ReportFigures(int picture, const Chart& chart, QTextDocument& parent);

  QSizeF intrinsicSize(QTextDocument* text, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& room, QTextDocument* text, int position,
                  const QTextFormat& format) override;

 private:
  int picture_;
  const Chart& chart_;
};

}  // namespace norvane
