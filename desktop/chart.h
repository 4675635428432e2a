#pragma once

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QRegion>
#include <QStaticText>
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

  bool operator==(const ChartAxis&) const = default;
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

/// Whether two charts differ in nothing but values, so that all else stands where it stood.
bool Differ_In_Values_Only(const Chart& one, const Chart& other);

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
  int line = -1;         ///< whose colour it has
  QStaticText prepared;  ///< the text, shaped once for all paintings
};

/// A chart with a place for everything, for a painter of any kind.
class ChartLayout {
 public:
  /// `reading` is the place whose values stand beside the names, by its number, instead of those
  /// at present.
  ChartLayout(const Chart& chart, const QRectF& area, const QFont& font,
              std::optional<std::size_t> reading = {});

  const QRectF& Plot() const { return plot_; }
  const QRectF& Area() const { return area_; }
  const QFont& Font() const { return font_; }
  const std::vector<ChartText>& Texts() const { return texts_; }
  /// Writes the values of the chart as it is now, or of a place; all else stays.
  void Write_Values(std::optional<std::size_t> reading);
  /// Where something looks otherwise when other values are written.
  QRegion Of_Values() const;
  /// Where the sample of a line stands, in front of its name.
  QLineF Sample(std::size_t line) const;
  /// The number of the place that is nearest to a position.
  std::size_t Nearest(qreal x) const;
  qreal X(double across) const;
  QPointF Point(const ChartLine& line, double across, double value) const;
  /// The curve of a line, without the points that a straight line comes within a tenth of.
  QList<QLineF> Curve(const ChartLine& line) const;

 private:
  void Add_Text(const QRectF& room, Qt::Alignment alignment, const QString& text, int line);
  void Add_Names();
  void Write_Value(std::size_t name, const QString& value);
  QStaticText Prepared(const QString& text) const;
  void Place_Plot();
  void Add_Scale(const ChartAxis& axis, bool on_right);
  void Add_Numbers_Across();

  const Chart& chart_;
  QRectF area_;
  QFont font_;
  qreal row_;  ///< the height of a row of text
  QRectF plot_;
  std::vector<ChartText> texts_;  ///< the names, all that stays, the values
  std::size_t lasting_ = 0;       ///< how many of the texts aren't values
};

/// Paints a chart as it was laid out, with the painter's font.
/// @param wanted what is to be painted, in whole or at least; empty for all
void Paint_Chart(QPainter& painter, const Chart& chart, const ChartLayout& layout,
                 const ChartColours& colours, std::optional<std::size_t> reading = {},
                 const QRegion& wanted = {});

/// Lays a chart out and paints it, for paper.
void Paint_Chart(QPainter& painter, const QRectF& area, const Chart& chart,
                 const ChartColours& colours);

}  // namespace norvane
