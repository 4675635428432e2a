#include <QFontMetricsF>
#include <QLineF>
#include <algorithm>
#include <cmath>

#include "desktop/chart.h"

namespace norvane {
namespace {

constexpr qreal kGap = 6;      // between texts, and between texts and lines
constexpr qreal kSample = 20;  // the length of the samples before the names

QString Text_Of(double number, const Locale& locale) {
  return QString::fromStdString(Format(number, locale));
}

}  // namespace

QString Chart_Value(float value, const Locale& locale) {
  return QString::fromStdString(Format(value, "##0.0", locale));
}

ChartAxis Round_Axis(double least, double most, int steps) {
  constexpr double kRound[] = {1, 2, 2.5, 5, 10};
  constexpr double kNoRange = 1e-6;
  if (most - least < kNoRange) most = least + 1;
  const double power = std::pow(10, std::floor(std::log10((most - least) / steps)));
  ChartAxis axis;
  for (const double round : kRound) {
    axis.step = round * power;
    axis.least = std::floor(least / axis.step) * axis.step;
    axis.most = axis.least + steps * axis.step;
    if (axis.most >= most) return axis;
  }
  // Ends that lie on both sides of a round number may need one size more.
  axis.step = 2 * kRound[4] * power;
  axis.least = std::floor(least / axis.step) * axis.step;
  axis.most = axis.least + steps * axis.step;
  return axis;
}

ChartLayout::ChartLayout(const Chart& chart, const QRectF& area, const QFont& font,
                         std::optional<std::size_t> reading)
    : chart_(chart), area_(area), font_(font), row_(QFontMetricsF(font).height() + 2) {
  if (chart.lines.empty()) return;
  Place_Plot();
  Add_Names(reading);
  Add_Scale(chart.left, false);
  Add_Scale(chart.right, true);
  Add_Numbers_Across();
}

void ChartLayout::Place_Plot() {
  const QFontMetricsF metrics(font_);
  const auto widest = [&](const ChartAxis& axis) {
    qreal width = 0;
    for (double number = axis.least; number < axis.most + axis.step / 2; number += axis.step) {
      width = std::max(width, metrics.horizontalAdvance(Text_Of(number, chart_.locale)));
    }
    return width + kGap;
  };
  const qreal names = static_cast<qreal>(chart_.lines.size()) * row_ + row_ / 2 + kGap;
  plot_ = area_.adjusted(widest(chart_.left), names, -widest(chart_.right), -2 * row_ - kGap);
}

void ChartLayout::Add_Row(qreal top, qreal left, const QString& name, const QString& value,
                          int line) {
  const QRectF row(left, top, area_.right() - left, row_);
  const qreal width = QFontMetricsF(font_).horizontalAdvance(value);
  texts_.push_back({row.adjusted(0, 0, -width - kGap, 0), Qt::AlignLeft, name, line});
  texts_.push_back({row.adjusted(row.width() - width, 0, 0, 0), Qt::AlignRight, value, line});
}

void ChartLayout::Add_Names(std::optional<std::size_t> reading) {
  const auto shown = [&](float at_present, const std::vector<float>& values) {
    if (reading) return Chart_Value(values[*reading], chart_.locale);
    return chart_.present ? Chart_Value(at_present, chart_.locale) : QString();
  };
  qreal top = area_.top();
  for (std::size_t i = 0; i < chart_.lines.size(); ++i, top += row_) {
    const ChartLine& line = chart_.lines[i];
    Add_Row(top, area_.left() + kSample + kGap, line.name, shown(line.at_present, line.values),
            static_cast<int>(i));
  }
  const auto at = reading ? chart_.places[*reading] : chart_.present;
  Add_Row(area_.bottom() - row_, area_.left(), chart_.name,
          at ? QString::fromStdString(Text_Of_Single(*at, chart_.locale)) : QString(), -1);
}

void ChartLayout::Add_Scale(const ChartAxis& axis, bool on_right) {
  const double range = axis.most - axis.least;
  for (double number = axis.least; number < axis.most + axis.step / 2; number += axis.step) {
    const qreal y = plot_.bottom() - plot_.height() * (number - axis.least) / range;
    const QRectF room =
        on_right
            ? QRectF(plot_.right() + kGap, y - row_ / 2, area_.right() - plot_.right() - kGap, row_)
            : QRectF(area_.left(), y - row_ / 2, plot_.left() - kGap - area_.left(), row_);
    texts_.push_back(
        {room, on_right ? Qt::AlignLeft : Qt::AlignRight, Text_Of(number, chart_.locale), -1});
  }
}

void ChartLayout::Add_Numbers_Across() {
  const QFontMetricsF metrics(font_);
  // The steps of the scale first, then as many stops as there is room for.
  std::vector<double> numbers;
  const ChartAxis& across = chart_.across;
  for (double number = across.least; number < across.most + across.step / 2;
       number += across.step) {
    numbers.push_back(number);
  }
  numbers.insert(numbers.end(), chart_.stops.begin(), chart_.stops.end());
  std::vector<QRectF> taken;
  for (const double number : numbers) {
    const QString text = Text_Of(number, chart_.locale);
    const qreal width = metrics.horizontalAdvance(text);
    const QRectF room(X(number) - width / 2, plot_.bottom() + kGap, width, row_);
    const QRectF around = room.adjusted(-kGap / 2, 0, kGap / 2, 0);
    const bool free = std::none_of(taken.begin(), taken.end(),
                                   [&](const QRectF& other) { return other.intersects(around); });
    if (!free) continue;
    taken.push_back(around);
    texts_.push_back({room, Qt::AlignHCenter, text, -1});
  }
}

QLineF ChartLayout::Sample(std::size_t line) const {
  const qreal y = area_.top() + (static_cast<qreal>(line) + 0.5) * row_;
  return {area_.left(), y, area_.left() + kSample, y};
}

qreal ChartLayout::X(double across) const {
  const ChartAxis& axis = chart_.across;
  return plot_.left() + plot_.width() * (across - axis.least) / (axis.most - axis.least);
}

QPointF ChartLayout::Point(const ChartLine& line, double across, double value) const {
  const ChartAxis& axis = line.on_right ? chart_.right : chart_.left;
  return {X(across),
          plot_.bottom() - plot_.height() * (value - axis.least) / (axis.most - axis.least)};
}

std::size_t ChartLayout::Nearest(qreal x) const {
  const auto nearest =
      std::ranges::min_element(chart_.places, {}, [&](float at) { return std::abs(X(at) - x); });
  return static_cast<std::size_t>(nearest - chart_.places.begin());
}

}  // namespace norvane
