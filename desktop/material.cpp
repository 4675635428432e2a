#include "desktop/material.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cstdint>

#include "desktop/colours.h"

namespace norvane {
namespace {

QColor Mixed(const QColor& a, const QColor& b, qreal part_of_b) {
  const auto mix = [part_of_b](int x, int y) { return qRound(x + (y - x) * part_of_b); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// A number from 0 to 1 that looks like chance and is the same at every painting.
qreal Scatter(int column, int row, int kind) {
  std::uint32_t hash = static_cast<std::uint32_t>(column) * 374761393U +
                       static_cast<std::uint32_t>(row) * 668265263U +
                       static_cast<std::uint32_t>(kind) * 69069U;
  hash = (hash ^ (hash >> 13U)) * 1274126177U;
  return static_cast<qreal>((hash ^ (hash >> 16U)) & 0xFFFFU) / 65535.0;
}

}  // namespace

const Material kSteelMaterial{kSteelLight, kSteel, kSteelShade, true};
const Material kCopperMaterial{kCopperLight, kCopper, kCopperShade, true};
const Material kPlasticMaterial{kPlasticLight, kPlastic, kPlasticShade, false};
const Material kFoamMaterial{kFoamLight, kFoam, kFoamShade, false};

QLinearGradient Round_Light(const Material& material, qreal top, qreal foot) {
  QLinearGradient light(0, top, 0, foot);
  light.setColorAt(0, Mixed(material.body, material.shade, 0.45));
  if (material.metal) {
    light.setColorAt(0.14, material.body);
    light.setColorAt(0.24, material.light);
    light.setColorAt(0.31, material.light);
    light.setColorAt(0.46, Mixed(material.body, material.light, 0.15));
  } else {
    light.setColorAt(0.26, material.light);
  }
  light.setColorAt(0.60, material.body);
  light.setColorAt(0.87, material.shade);
  // What the ground throws back.
  light.setColorAt(1, Mixed(material.shade, material.body, 0.7));
  return light;
}

QColor Veil(QColor colour, qreal strength) {
  colour.setAlphaF(static_cast<float>(strength));
  return colour;
}

void Draw_Cells(QPainter& painter, const QRectF& area, const QSizeF& pitch,
                const std::function<bool(const QPointF&)>& inside) {
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(Veil(kFoamCell, 0.7));
  const int rows = qRound(area.height() / pitch.height());
  const int columns = qRound(area.width() / pitch.width());
  for (int row = 0; row <= rows; ++row) {
    for (int column = 0; column <= columns; ++column) {
      const qreal across = column + (row % 2) * 0.5 + 0.5 * (Scatter(column, row, 1) - 0.5);
      const qreal down = row + 0.5 * (Scatter(column, row, 2) - 0.5);
      const QPointF at = area.topLeft() + QPointF(across * pitch.width(), down * pitch.height());
      if (!inside(at)) continue;
      const qreal size = 0.15 + 0.17 * Scatter(column, row, 3);
      const qreal rx = size * pitch.width();
      const qreal ry = size * pitch.height();
      const QPointF cell[] = {at + QPointF(-rx, 0),      at + QPointF(-rx / 2, -ry),
                              at + QPointF(rx / 2, -ry), at + QPointF(rx, 0),
                              at + QPointF(rx / 2, ry),  at + QPointF(-rx / 2, ry)};
      painter.drawConvexPolygon(cell, 6);
    }
  }
  painter.restore();
}

void Draw_Shadow(QPainter& painter, const QRectF& area) {
  const qreal flatness = area.height() / area.width();
  painter.save();
  painter.translate(area.center());
  painter.scale(1, flatness);
  QRadialGradient dark(QPointF(), area.width() / 2);
  dark.setColorAt(0, Veil(Qt::black, 0.42));
  dark.setColorAt(0.6, Veil(Qt::black, 0.22));
  dark.setColorAt(1, Veil(Qt::black, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(dark);
  painter.drawEllipse(QPointF(), area.width() / 2, area.width() / 2);
  painter.restore();
}

void Draw_Dimension(QPainter& painter, const QPointF& upper, const QPointF& lower, qreal from) {
  constexpr QPointF kHead(1.9, 4.6);  // of half an arrowhead
  constexpr qreal kTail = 11;
  painter.setPen(QPen(kAccent, 1));
  painter.drawLine(QPointF(from, upper.y()), upper + QPointF(6, 0));
  // Two arrowheads need room; else one points from outside.
  const bool outside = lower.y() - upper.y() < 3 * kHead.y();
  painter.drawLine(outside ? upper - QPointF(0, kTail) : upper, lower);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kAccent);
  const auto point = [&painter, &kHead](const QPointF& tip, qreal way) {
    painter.drawPolygon(QPolygonF{tip, tip + QPointF(-kHead.x(), way * kHead.y()),
                                  tip + QPointF(kHead.x(), way * kHead.y())});
  };
  point(upper, outside ? -1 : 1);
  if (!outside) point(lower, -1);
}

}  // namespace norvane
