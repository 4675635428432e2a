#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "calc/conversions.h"

class QPainter;
class QPalette;

namespace norvane {

/// A quantity with the part of it that a chart shows, divided into equal steps.
struct ChartAxis {
  double least = 0;
  double most = 0;
  double step = 0;
};

/// The smallest axis of so many round steps that holds both ends.
ChartAxis Round_Axis(double least, double most, int steps);

/// One of the quantities that a chart shows over another.
struct ChartLine {
  QString name;               ///< with the unit
  bool on_right = false;      ///< goes by the axis on the right
  std::vector<float> values;  ///< one for each place of the chart
  float at_present = 0;
};

/// A value of a line as text, with the decimals of the main screen's results.
QString Chart_Value(float value, const Locale& locale);

/// Some quantities over another one. Without lines there is nothing to show.
struct Chart {
  QString name;  ///< of the quantity across, with its unit
  ChartAxis across;
  ChartAxis left;
  ChartAxis right;
  std::vector<float> places;  ///< ascending
  std::vector<float> stops;   ///< of the catalogue, marked on the axis
  std::optional<float> present;
  std::vector<ChartLine> lines;  ///< at most as many as there are colours for
  Locale locale;
};

struct ChartColours {
  QColor text;
  QColor grid;
  std::array<QColor, 3> lines;
};

/// The colours for a theme of the desktop; those of the default palette are for paper.
ChartColours Chart_Colours(const QPalette& palette);

/// A text of a chart, and where it stands.
struct ChartText {
  QRectF room;
  Qt::Alignment alignment;
  QString text;
  int line = -1;  ///< whose colour it has
};

/// A chart with a place for everything, for a painter of any kind.
class ChartLayout {
 public:
  /// `reading` is the place whose values stand beside the names, by its number, instead of those
  /// at present.
  ChartLayout(const Chart& chart, const QRectF& area, const QFont& font,
              std::optional<std::size_t> reading = {});

  const QRectF& Plot() const { return plot_; }
  const std::vector<ChartText>& Texts() const { return texts_; }
  /// Where the sample of a line stands, in front of its name.
  QLineF Sample(std::size_t line) const;
  /// The number of the place that is nearest to a position.
  std::size_t Nearest(qreal x) const;
  qreal X(double across) const;
  QPointF Point(const ChartLine& line, double across, double value) const;

 private:
  void Add_Names(std::optional<std::size_t> reading);
  void Add_Row(qreal top, qreal left, const QString& name, const QString& value, int line);
  void Place_Plot();
  void Add_Scale(const ChartAxis& axis, bool on_right);
  void Add_Numbers_Across();

  const Chart& chart_;
  QRectF area_;
  QFont font_;
  qreal row_;  ///< the height of a row of text
  QRectF plot_;
  std::vector<ChartText> texts_;
};

/// Paints a chart as it was laid out, with the painter's font.
void Paint_Chart(QPainter& painter, const Chart& chart, const ChartLayout& layout,
                 const ChartColours& colours, std::optional<std::size_t> reading = {});

/// Lays a chart out and paints it, for paper.
void Paint_Chart(QPainter& painter, const QRectF& area, const Chart& chart,
                 const ChartColours& colours);

}  // namespace norvane
