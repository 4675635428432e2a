#include "desktop/background.h"

#include <QLinearGradient>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/material.h"
#include "desktop/object_picture.h"

namespace norvane {
namespace {

constexpr qreal kBand = 10;

void Fill_Ground(QPainter& painter, const QSize& size, qreal strength) {
  QLinearGradient ground(0, 0, 0, size.height());
  ground.setColorAt(0, Veil(kGroundTop, strength));
  ground.setColorAt(1, Veil(kGround, strength));
  painter.fillRect(QRect(QPoint(), size), ground);
}

/// The squares of drawing paper.
void Draw_Squares(QPainter& painter, const QSize& size) {
  constexpr int kSquare = 20;
  painter.setPen(QPen(Veil(kAccent, 0.10), 1));
  for (int x = kSquare; x < size.width(); x += kSquare) {
    painter.drawLine(QPointF(x + 0.5, 0), QPointF(x + 0.5, size.height()));
  }
  for (int y = kSquare; y < size.height(); y += kSquare) {
    painter.drawLine(QPointF(0, y + 0.5), QPointF(size.width(), y + 0.5));
  }
}

}  // namespace

void Draw_Background(QPainter& painter, const QSize& size, qreal strength) {
  painter.setRenderHint(QPainter::Antialiasing);
  Fill_Ground(painter, size, 1);
  Draw_Squares(painter, size);

  painter.save();
  const qreal scale = size.width() * 1.14 / ObjectPicture::kWidth;
  painter.translate(-size.width() * 0.18, size.height() * 0.25);
  painter.rotate(-8);
  painter.scale(scale, scale);
  constexpr int kThickCopper = 14;
  Draw_Object(painter, kThickCopper);
  painter.restore();
  // What is to show less strongly is covered with the ground again.
  if (strength < 1) Fill_Ground(painter, size, 1 - strength);

  painter.fillRect(QRectF(0, size.height() - kBand, size.width(), kBand), kAccent);
  painter.setPen(QPen(kAccentLine, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
}

}  // namespace norvane
