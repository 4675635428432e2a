#include "desktop/chart.h"

#include <QPainter>
#include <QPalette>
#include <array>
#include <cmath>

#include "desktop/colours.h"

namespace norvane {
namespace {

constexpr qreal kStop = 5;  // the length of the marks below the axis
constexpr qreal kDot = 3.5;
constexpr qreal kThick = 2;  // the lines

QPen Pen_Of(std::size_t line, const ChartColours& colours) {
  // Those who don't tell the colours apart tell the dashes.
  constexpr std::array<Qt::PenStyle, 3> kStyles = {Qt::SolidLine, Qt::DashLine, Qt::DotLine};
  QPen pen(colours.lines[line], kThick, kStyles.at(line));
  pen.setCapStyle(Qt::FlatCap);
  return pen;
}

/// A line on whole pixels is sharp.
qreal Whole(qreal at) { return std::floor(at) + 0.5; }

void Paint_Grid(QPainter& painter, const Chart& chart, const ChartLayout& layout,
                const ChartColours& colours) {
  const QRectF& plot = layout.Plot();
  painter.setPen(QPen(colours.grid, 1));
  const double range = chart.left.most - chart.left.least;
  for (double at = 0; at < range + chart.left.step / 2; at += chart.left.step) {
    const qreal y = Whole(plot.bottom() - plot.height() * at / range);
    painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
  }
  painter.setPen(QPen(colours.text, 1));
  const qreal foot = Whole(plot.bottom());
  for (const float stop : chart.stops) {
    const qreal x = Whole(layout.X(stop));
    painter.drawLine(QPointF(x, foot), QPointF(x, foot + kStop));
  }
}

/// What a pen leaves of a curve: the dashes, that go on around its corners.
QList<QLineF> Pieces(const QList<QLineF>& curve, const QPen& pen) {
  const QList<qreal> pattern = pen.dashPattern();  // in widths of the pen, by turns drawn and not
  if (pattern.isEmpty()) return curve;
  QList<QLineF> pieces;
  qsizetype turn = 0;
  qreal left = pattern[0] * pen.widthF();
  for (const QLineF& part : curve) {
    const qreal length = part.length();
    for (qreal from = 0; from < length;) {
      const bool ends = from + left <= length;
      const qreal to = ends ? from + left : length;
      if (turn % 2 == 0) pieces << QLineF(part.pointAt(from / length), part.pointAt(to / length));
      if (ends) turn = (turn + 1) % pattern.size();
      left = ends ? pattern[turn] * pen.widthF() : left - (to - from);
      from = to;
    }
  }
  return pieces;
}

bool Is_Wanted(const QRectF& place, const QRegion& wanted) {
  return wanted.isEmpty() || wanted.intersects(place.toAlignedRect());
}

void Paint_Lines(QPainter& painter, const Chart& chart, const ChartLayout& layout,
                 const ChartColours& colours, const QRegion& wanted) {
  for (std::size_t i = 0; i < chart.lines.size(); ++i) {
    painter.setPen(Pen_Of(i, colours));
    const QLineF sample = layout.Sample(i);
    const QRectF around(sample.p1() - QPointF(0, kThick), sample.p2() + QPointF(0, kThick));
    if (Is_Wanted(around, wanted)) painter.drawLine(sample);
    // Qt paints single straight lines several times faster than a curve, and than dashes.
    const QList<QLineF> pieces = Pieces(layout.Curve(chart.lines[i]), painter.pen());
    painter.setPen(QPen(colours.lines[i], kThick, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(pieces);
  }
}

void Paint_Mark(QPainter& painter, const Chart& chart, const ChartLayout& layout,
                const ChartColours& colours, double across, const auto& value_of) {
  const QRectF& plot = layout.Plot();
  const qreal x = Whole(layout.X(across));
  painter.setPen(QPen(colours.text, 1, Qt::DotLine));
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (std::size_t i = 0; i < chart.lines.size(); ++i) {
    painter.setBrush(colours.lines[i]);
    painter.drawEllipse(layout.Point(chart.lines[i], across, value_of(chart.lines[i])), kDot, kDot);
  }
}

/// Where a text begins, in its room.
QPointF Corner_Of(const ChartText& text) {
  const QSizeF free = text.room.size() - text.prepared.size();
  qreal along = 0;
  if (text.alignment & Qt::AlignRight) along = free.width();
  if (text.alignment & Qt::AlignHCenter) along = free.width() / 2;
  return text.room.topLeft() + QPointF(along, free.height() / 2);
}

}  // namespace

ChartColours Chart_Colours(const QPalette& palette) {
  constexpr int kMiddling = 128;
  const bool dark = palette.color(QPalette::Base).lightness() < kMiddling;
  QColor grid = palette.color(QPalette::Text);
  grid.setAlphaF(0.2F);
  if (dark) return {palette.color(QPalette::Text), grid, {kAccentLight, kHeatOnDark, kWaterOnDark}};
  return {palette.color(QPalette::Text), grid, {kAccentDark, kHeatDark, kWater}};
}

void Paint_Chart(QPainter& painter, const Chart& chart, const ChartLayout& layout,
                 const ChartColours& colours, std::optional<std::size_t> reading,
                 const QRegion& wanted) {
  if (chart.lines.empty()) return;
  Paint_Grid(painter, chart, layout, colours);
  painter.setRenderHint(QPainter::Antialiasing);
  Paint_Lines(painter, chart, layout, colours, wanted);
  if (chart.present) {
    Paint_Mark(painter, chart, layout, colours, *chart.present,
               [](const ChartLine& line) { return line.at_present; });
  }
  if (reading) {
    Paint_Mark(painter, chart, layout, colours, chart.places[*reading],
               [&](const ChartLine& line) { return line.values[*reading]; });
  }
  for (const ChartText& text : layout.Texts()) {
    if (!Is_Wanted(text.room, wanted)) continue;
    painter.setPen(text.line < 0 ? colours.text
                                 : colours.lines[static_cast<std::size_t>(text.line)]);
    painter.drawStaticText(Corner_Of(text), text.prepared);
  }
}

void Paint_Chart(QPainter& painter, const QRectF& area, const Chart& chart,
                 const ChartColours& colours) {
  Paint_Chart(painter, chart, ChartLayout(chart, area, painter.font()), colours);
}

}  // namespace norvane
