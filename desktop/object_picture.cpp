#include "desktop/object_picture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "desktop/colours.h"

namespace norvane {
namespace {

constexpr qreal kMiddle = ObjectPicture::kHeight / 2.0;
constexpr qreal kPipeRadius = 15;
constexpr qreal kFlattening = 0.34;  // of a circle that is seen from the side
constexpr int kBareSheet = 19;

// Outer radius of the insulation by thickness class.
constexpr qreal kFoamRadius[] = {18.5, 22.5, 27, 32, 37.5, 44};

/// Light from above on a lying cylinder.
QLinearGradient Round_Light(const QColor& color, qreal radius) {
  QLinearGradient light(0, kMiddle - radius, 0, kMiddle + radius);
  light.setColorAt(0.0, color.darker(115));
  light.setColorAt(0.28, color.lighter(150));
  light.setColorAt(0.55, color);
  light.setColorAt(1.0, color.darker(190));
  return light;
}

/// A cylinder from `left` to `right`, round at its left end.
void Draw_Cylinder(QPainter& painter, qreal left, qreal right, qreal radius, const QColor& color) {
  QPainterPath body;
  body.setFillRule(Qt::WindingFill);
  body.addRect(left, kMiddle - radius, right - left, 2 * radius);
  body.addEllipse(QPointF(left, kMiddle), radius * kFlattening, radius);
  painter.fillPath(body, Round_Light(color, radius));
}

/// The face that a cylinder shows at its right end.
void Draw_Face(QPainter& painter, qreal at, qreal radius, const QColor& color) {
  painter.setPen(QPen(color.darker(150), 1));
  painter.setBrush(color);
  painter.drawEllipse(QPointF(at, kMiddle), radius * kFlattening, radius);
}

/// The pores of the foam, which tell it from the wall at a glance.
void Draw_Pores(QPainter& painter, qreal at, qreal inner, qreal outer) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(150, 156, 162));
  const qreal middle = (inner + outer) / 2;
  constexpr int kPores = 14;
  for (int i = 0; i < kPores; ++i) {
    const qreal angle = i * 2 * 3.14159265358979 / kPores;
    painter.drawEllipse(
        QPointF(at + middle * kFlattening * std::cos(angle), kMiddle + middle * std::sin(angle)),
        0.7, 1.1);
  }
}

void Draw_Pipe(QPainter& painter, int family, int thickness_class) {
  constexpr qreal kLeft = 24;
  constexpr qreal kCut = 150;
  constexpr qreal kRight = 232;
  const QColor walls[] = {kSteel, kCopper, kPlastic};
  const QColor& wall = walls[family];
  const qreal foam = kFoamRadius[thickness_class];

  Draw_Cylinder(painter, kLeft, kCut, foam, kFoam);
  Draw_Face(painter, kCut, foam, kFoam.lighter(145));
  Draw_Pores(painter, kCut, kPipeRadius, foam);
  Draw_Cylinder(painter, kCut, kRight, kPipeRadius, wall);
  Draw_Face(painter, kRight, kPipeRadius, wall.lighter(125));
  Draw_Face(painter, kRight, kPipeRadius * 0.74, wall.darker(260));
}

/// A board seen from its front and from above.
void Draw_Board(QPainter& painter, qreal top, qreal height, const QColor& color) {
  constexpr qreal kLeft = 30;
  constexpr qreal kRight = 204;
  constexpr qreal kDepthX = 28;
  constexpr qreal kDepthY = 18;
  painter.setPen(QPen(color.darker(150), 1));
  painter.setBrush(color.lighter(130));
  painter.drawPolygon(QPolygonF{QPointF(kLeft, top), QPointF(kLeft + kDepthX, top - kDepthY),
                                QPointF(kRight + kDepthX, top - kDepthY), QPointF(kRight, top)});
  painter.setBrush(color.darker(125));
  painter.drawPolygon(QPolygonF{QPointF(kRight, top), QPointF(kRight + kDepthX, top - kDepthY),
                                QPointF(kRight + kDepthX, top - kDepthY + height),
                                QPointF(kRight, top + height)});
  painter.setBrush(color);
  painter.drawRect(QRectF(kLeft, top, kRight - kLeft, height));
}

void Draw_Sheet(QPainter& painter, bool insulated) {
  Draw_Board(painter, 66, 12, kSteel.lighter(135));
  if (insulated) Draw_Board(painter, 34, 31, kFoam.lighter(120));
}

}  // namespace

ObjectPicture::ObjectPicture(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ObjectPicture::Set_Number(int number) {
  if (number == number_) return;
  number_ = number;
  update();
}

void ObjectPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Draw_Object(painter, number_);
}

void Draw_Object(QPainter& painter, int number) {
  painter.setRenderHint(QPainter::Antialiasing);
  if (number >= kBareSheet && number <= ObjectPicture::kPictures) {
    Draw_Sheet(painter, number != kBareSheet);
  } else if (number >= 1 && number < kBareSheet) {
    Draw_Pipe(painter, (number - 1) % 3, (number - 1) / 3);
  }
}

}  // namespace norvane
