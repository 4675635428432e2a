#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QRectF>
#include <functional>

class QPainter;

namespace norvane {

/// How a material of the pictures takes the light.
struct Material {
  QColor light;
  QColor body;
  QColor shade;
  bool metal;  // with a hard highlight
};

extern const Material kSteelMaterial;
extern const Material kCopperMaterial;
extern const Material kPlasticMaterial;
extern const Material kFoamMaterial;

/// Light from above on a lying cylinder between `top` and `foot`.
QLinearGradient Round_Light(const Material& material, qreal top, qreal foot);

/// A colour that lets through what lies under it; `strength` from 0 to 1.
QColor Veil(QColor colour, qreal strength);

/// The cells of cut foam in that part of `area` for which `inside` holds; `pitch` is the distance
/// from one cell to the next, across and down.
void Draw_Cells(QPainter& painter, const QRectF& area, const QSizeF& pitch,
                const std::function<bool(const QPointF&)>& inside);

/// The soft shadow of something that stands on the foot of `area`.
void Draw_Shadow(QPainter& painter, const QRectF& area);

/// A thickness as a drawing gives it: an arrow from `upper` down to `lower`, and a line to it from
/// `from`, at the height of `upper`.
void Draw_Dimension(QPainter& painter, const QPointF& upper, const QPointF& lower, qreal from);

}  // namespace norvane
