#include "desktop/card.h"

#include <QPainter>

namespace norvane {

Card::Card(QWidget* parent) : QFrame(parent) {
  setMouseTracking(true);
  setContentsMargins(4, 2, 4, 2);
}

void Card::paintEvent(QPaintEvent*) {
  constexpr qreal kRadius = 6;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

}  // namespace norvane
