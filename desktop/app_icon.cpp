#include "desktop/app_icon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <cmath>
#include <vector>

#include "desktop/colours.h"
#include "desktop/material.h"

namespace norvane {
namespace {

constexpr qreal kGrid = 256;

/// A square with round corners, a disc if they are as wide as itself, coloured from top to foot.
struct Shape {
  QPointF middle;
  qreal half;  // of its width
  qreal corner;
  QColor top;
  QColor foot;
};

void Add_Disc(std::vector<Shape>& shapes, const QPointF& middle, qreal radius, const QColor& top,
              const QColor& foot) {
  shapes.push_back({middle, radius, radius, top, foot});
}

/// Cells spread over the ring between two radii, each turned on by the golden angle.
void Add_Cells(std::vector<Shape>& shapes, qreal inner, qreal outer) {
  constexpr int kCells = 150;
  constexpr qreal kGoldenAngle = 2.39996322972865332;
  for (int i = 0; i < kCells; ++i) {
    const qreal area = (i + 0.5) / kCells;
    const qreal ring = std::sqrt(inner * inner + area * (outer * outer - inner * inner));
    const QPointF at(kGrid / 2 + ring * std::sin(i * kGoldenAngle),
                     kGrid / 2 + ring * std::cos(i * kGoldenAngle));
    const qreal radius = 2.2 + 0.5 * (i * 7 % 5);
    Add_Disc(shapes, at, radius, Veil(kFoamShade, 0.75), Veil(kFoamRim, 0.25));
  }
}

/// From back to front, on a grid of `kGrid` by `kGrid`.
std::vector<Shape> Shapes() {
  const QPointF middle(kGrid / 2, kGrid / 2);
  std::vector<Shape> shapes{{middle, 128, 54, kAccentLight, kAccentLine}};
  Add_Disc(shapes, middle + QPointF(0, 7), 107, Veil(kAccentDark, 0.75), Veil(kAccentDark, 0.75));
  Add_Disc(shapes, middle, 106, kFoamRim, kFoamShade);
  Add_Disc(shapes, middle, 102, kFoamCut, kFoamShade);
  Add_Cells(shapes, 69, 97);
  Add_Disc(shapes, middle, 66, Veil(Qt::black, 0.45), Veil(Qt::black, 0.25));
  Add_Disc(shapes, middle, 63, kCopperShade, kCopperShade);
  Add_Disc(shapes, middle, 62, kCopperLight, kCopper);
  Add_Disc(shapes, middle, 40, kCopperShade, kCopper);
  Add_Disc(shapes, middle, 37, kAccentDark, kAccentLight);
  return shapes;
}

QByteArray Stop(int offset, const QColor& colour) {
  return "<stop offset=\"" + QByteArray::number(offset) + "\" stop-color=\"" +
         colour.name().toLatin1() + "\" stop-opacity=\"" +
         QByteArray::number(colour.alphaF(), 'g', 3) + "\"/>";
}

QByteArray Svg_Attribute(const char* name, qreal value) {
  return QByteArray(" ") + name + "=\"" + QByteArray::number(value, 'g', 6) + "\"";
}

}  // namespace

void Draw_App_Icon(QPainter& painter, qreal size) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kGrid, size / kGrid);
  painter.setPen(Qt::NoPen);
  for (const Shape& shape : Shapes()) {
    const QPointF half(shape.half, shape.half);
    const QRectF area(shape.middle - half, shape.middle + half);
    QLinearGradient light(area.topLeft(), area.bottomLeft());
    light.setColorAt(0, shape.top);
    light.setColorAt(1, shape.foot);
    painter.setBrush(light);
    painter.drawRoundedRect(area, shape.corner, shape.corner);
  }
  painter.restore();
}

QByteArray App_Icon_Svg() {
  QByteArray lights;
  QByteArray areas;
  int number = 0;
  for (const Shape& shape : Shapes()) {
    const QByteArray light = "light" + QByteArray::number(++number);
    lights += "<linearGradient id=\"" + light + "\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\">" +
              Stop(0, shape.top) + Stop(1, shape.foot) + "</linearGradient>\n";
    areas += "<rect" + Svg_Attribute("x", shape.middle.x() - shape.half) +
             Svg_Attribute("y", shape.middle.y() - shape.half) +
             Svg_Attribute("width", 2 * shape.half) + Svg_Attribute("height", 2 * shape.half) +
             Svg_Attribute("rx", shape.corner) + " fill=\"url(#" + light + ")\"/>\n";
  }
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 256 256\">\n<defs>\n" + lights +
         "</defs>\n" + areas + "</svg>\n";
}

QIcon App_Icon() {
  QIcon icon;
  for (const int size : kIconSizes) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    Draw_App_Icon(painter, size);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace norvane
