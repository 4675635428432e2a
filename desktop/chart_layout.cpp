#include <QFontMetricsF>
#include <QLineF>
#include <algorithm>
#include <cmath>
#include <limits>

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

bool Differ_In_Values_Only(const Chart& one, const Chart& other) {
  const auto same_line = [](const ChartLine& line, const ChartLine& of_other) {
    return line.name == of_other.name && line.on_right == of_other.on_right;
  };
  return one.name == other.name && one.across == other.across && one.left == other.left &&
         one.right == other.right && one.stops == other.stops &&
         one.locale.decimal_separator == other.locale.decimal_separator &&
         std::ranges::equal(one.lines, other.lines, same_line);
}

ChartLayout::ChartLayout(const Chart& chart, const QRectF& area, const QFont& font,
                         std::optional<std::size_t> reading)
    : chart_(chart), area_(area), font_(font), row_(QFontMetricsF(font).height() + 2) {
  if (chart.lines.empty()) return;
  Place_Plot();
  Add_Names();
  Add_Scale(chart.left, false);
  Add_Scale(chart.right, true);
  Add_Numbers_Across();
  lasting_ = texts_.size();
  Write_Values(reading);
}

void ChartLayout::Add_Text(const QRectF& room, Qt::Alignment alignment, const QString& text,
                           int line) {
  texts_.push_back({room, alignment, text, line, Prepared(text)});
}

QStaticText ChartLayout::Prepared(const QString& text) const {
  QStaticText prepared(text);
  prepared.setTextFormat(Qt::PlainText);
  prepared.prepare({}, font_);
  return prepared;
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

void ChartLayout::Add_Names() {
  qreal top = area_.top();
  const qreal left = area_.left() + kSample + kGap;
  for (std::size_t i = 0; i < chart_.lines.size(); ++i, top += row_) {
    Add_Text({left, top, area_.right() - left, row_}, Qt::AlignLeft, chart_.lines[i].name,
             static_cast<int>(i));
  }
  Add_Text({area_.left(), area_.bottom() - row_, area_.width(), row_}, Qt::AlignLeft, chart_.name,
           -1);
}

void ChartLayout::Write_Values(std::optional<std::size_t> reading) {
  if (chart_.lines.empty()) return;
  const auto at = reading ? chart_.places[*reading] : chart_.present;
  for (std::size_t i = 0; i < chart_.lines.size(); ++i) {
    const ChartLine& line = chart_.lines[i];
    const float value = reading ? line.values[*reading] : line.at_present;
    Write_Value(i, at ? Chart_Value(value, chart_.locale) : QString());
  }
  Write_Value(chart_.lines.size(),
              at ? QString::fromStdString(Text_Of_Single(*at, chart_.locale)) : QString());
}

void ChartLayout::Write_Value(std::size_t name, const QString& value) {
  const std::size_t place = lasting_ + name;
  if (place < texts_.size() && texts_[place].text == value) return;
  const qreal width = QFontMetricsF(font_).horizontalAdvance(value);
  QRectF room = texts_[name].room;
  room.setRight(area_.right());
  texts_[name].room = room.adjusted(0, 0, -width - kGap, 0);
  room.setLeft(area_.right() - width);
  if (place == texts_.size()) {
    Add_Text(room, Qt::AlignRight, value, texts_[name].line);
  } else {
    texts_[place].room = room;
    texts_[place].text = value;
    texts_[place].prepared = Prepared(value);
  }
}

QRegion ChartLayout::Of_Values() const {
  constexpr int kAround = 6;  // what dots and thick lines stand out of the plot by
  QRegion region = plot_.toAlignedRect().adjusted(-kAround, -kAround, kAround, kAround);
  for (std::size_t i = lasting_; i < texts_.size(); ++i) region += texts_[i].room.toAlignedRect();
  return region;
}

void ChartLayout::Add_Scale(const ChartAxis& axis, bool on_right) {
  const double range = axis.most - axis.least;
  for (double number = axis.least; number < axis.most + axis.step / 2; number += axis.step) {
    const qreal y = plot_.bottom() - plot_.height() * (number - axis.least) / range;
    const QRectF room =
        on_right
            ? QRectF(plot_.right() + kGap, y - row_ / 2, area_.right() - plot_.right() - kGap, row_)
            : QRectF(area_.left(), y - row_ / 2, plot_.left() - kGap - area_.left(), row_);
    Add_Text(room, on_right ? Qt::AlignLeft : Qt::AlignRight, Text_Of(number, chart_.locale), -1);
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
    Add_Text(room, Qt::AlignHCenter, text, -1);
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

QList<QLineF> ChartLayout::Curve(const ChartLine& line) const {
  constexpr qreal kInvisible = 0.1;
  constexpr qreal kAny = std::numeric_limits<qreal>::infinity();
  QList<QLineF> parts;
  QPointF from = Point(line, chart_.places.front(), line.values.front());
  QPointF to = from;
  // The slopes of the lines onwards that come close enough to all points since.
  qreal least = -kAny;
  qreal most = kAny;
  for (std::size_t i = 1; i < chart_.places.size(); ++i) {
    const QPointF next = Point(line, chart_.places[i], line.values[i]);
    const auto slope_to = [&](qreal off) {
      return (next.y() + off - from.y()) / (next.x() - from.x());
    };
    if (slope_to(0) < least || slope_to(0) > most) {
      parts << QLineF(from, to);
      from = to;
      least = -kAny;
      most = kAny;
    }
    least = std::max(least, slope_to(-kInvisible));
    most = std::min(most, slope_to(kInvisible));
    to = next;
  }
  return parts << QLineF(from, to);
}

std::size_t ChartLayout::Nearest(qreal x) const {
  const auto nearest =
      std::ranges::min_element(chart_.places, {}, [&](float at) { return std::abs(X(at) - x); });
  return static_cast<std::size_t>(nearest - chart_.places.begin());
}

}  // namespace norvane
