#include "desktop/sheet_picture.h"

#include <QPainter>
#include <QPainterPath>

#include "desktop/colours.h"
#include "desktop/material.h"

namespace norvane {
namespace {

constexpr QPointF kDepth(36, -26);
constexpr qreal kDimension = 226.5;

/// A lying board: the edges of its front, with the depth going up to the right.
struct Board {
  QRectF front;

  QPolygonF Top() const {
    return {front.topLeft(), front.topLeft() + kDepth, front.topRight() + kDepth, front.topRight()};
  }
  QPolygonF Side() const {
    return {front.topRight(), front.topRight() + kDepth, front.bottomRight() + kDepth,
            front.bottomRight()};
  }
  QPolygonF Outline() const {
    return {front.topLeft(),           front.topLeft() + kDepth,
            front.topRight() + kDepth, front.bottomRight() + kDepth,
            front.bottomRight(),       front.bottomLeft()};
  }
};

const Board kPlate{{13.5, 69.5, 194, 8}};
const Board kFoamBoard{{13.5, 43.5, 142, 26}};

void Fill(QPainter& painter, const QPolygonF& face, const QBrush& brush) {
  QPainterPath path;
  path.addPolygon(face);
  path.closeSubpath();
  painter.fillPath(path, brush);
}

void Draw_Plate(QPainter& painter) {
  QLinearGradient top(kPlate.front.topLeft(), kPlate.front.topRight() + kDepth);
  top.setColorAt(0, kSteel);
  top.setColorAt(0.35, kSteelLight);
  top.setColorAt(0.50, kSteelBright);
  top.setColorAt(0.72, kSteelLight);
  top.setColorAt(1, kSteel);
  Fill(painter, kPlate.Top(), top);
  QLinearGradient front(0, kPlate.front.top(), 0, kPlate.front.bottom());
  front.setColorAt(0, kSteel);
  front.setColorAt(1, kSteelShade);
  Fill(painter, kPlate.front, front);
  Fill(painter, kPlate.Side(), kSteelShade);
  painter.setPen(QPen(Veil(kSteelShade, 0.8), 0.8));
  painter.drawPolygon(kPlate.Outline());
  painter.setPen(QPen(kSteelLight, 1));
  painter.drawPolyline(
      QPolygonF{kPlate.front.topLeft(), kPlate.front.topRight(), kPlate.front.topRight() + kDepth});
}

void Draw_Foam_Board(QPainter& painter) {
  const QRectF& front = kFoamBoard.front;
  // It keeps the light from the plate beside it.
  QLinearGradient shade(front.bottomRight(), front.bottomRight() + QPointF(17, 12));
  shade.setColorAt(0, Veil(Qt::black, 0.5));
  shade.setColorAt(1, Veil(Qt::black, 0));
  Fill(painter,
       {front.bottomRight(), front.bottomRight() + kDepth,
        front.bottomRight() + kDepth + QPointF(26, 0), front.bottomRight() + QPointF(26, 0)},
       shade);

  QLinearGradient top(front.topLeft(), front.topRight() + kDepth);
  top.setColorAt(0, kFoam);
  top.setColorAt(0.55, kFoamLight);
  top.setColorAt(1, kFoam);
  Fill(painter, kFoamBoard.Top(), top);
  QLinearGradient cut(0, front.top(), 0, front.bottom());
  cut.setColorAt(0, kFoamCutLight);
  cut.setColorAt(1, kFoamCut);
  Fill(painter, front, cut);
  Draw_Cells(painter, front, {3.0, 2.7},
             [inner = front.adjusted(1.5, 1.5, -1.5, -1.5)](const QPointF& at) {
               return inner.contains(at);
             });
  Fill(painter, kFoamBoard.Side(), kFoam);
  painter.setPen(QPen(Veil(kFoamRim, 0.9), 1));
  painter.drawPolygon(kFoamBoard.Outline());
  painter.setPen(QPen(kFoamRim, 1));
  painter.drawPolyline(QPolygonF{front.topLeft(), front.topRight(), front.topRight() + kDepth});
  painter.drawLine(front.topRight(), front.bottomRight());
  const QPointF corner = front.topRight() + kDepth;
  Draw_Dimension(painter, {kDimension, corner.y()}, {kDimension, corner.y() + front.height()},
                 corner.x() + 4);
}

}  // namespace

void Draw_Sheet(QPainter& painter, bool insulated) {
  Draw_Shadow(painter, {8, 70, 220, 16});
  painter.setBrush(Qt::NoBrush);
  Draw_Plate(painter);
  if (insulated) Draw_Foam_Board(painter);
}

}  // namespace norvane
