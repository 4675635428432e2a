#include "desktop/card.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPalette>

namespace norvane {
namespace {

/// A colour on the way from the ground of entry fields (0) to that of their text (1).
QColor Between(const QPalette& palette, float part) {
  const QColor ground = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const auto mixed = [part](float from, float to) { return from + part * (to - from); };
  return QColor::fromRgbF(mixed(ground.redF(), text.redF()), mixed(ground.greenF(), text.greenF()),
                          mixed(ground.blueF(), text.blueF()));
}

constexpr float kLinePart = 0.28F;
constexpr float kDarkGroundPart = 0.09F;

QColor Ground(const QPalette& palette) {
  constexpr int kMiddling = 128;
  const bool dark = palette.color(QPalette::Base).lightness() < kMiddling;
  return Between(palette, dark ? kDarkGroundPart : 0);
}

}  // namespace

Card::Card(QWidget* parent) : QFrame(parent) { setContentsMargins(4, 2, 4, 2); }

void Card::paintEvent(QPaintEvent* event) {
  constexpr int kRadius = 6;
  QPainter painter(this);
  // What changes while the user types lies inside, where the rounded outline needn't be drawn.
  if (rect().adjusted(kRadius, 1, -kRadius, -1).contains(event->rect())) {
    painter.fillRect(event->rect(), Ground(palette()));
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Between(palette(), kLinePart));
  painter.setBrush(Ground(palette()));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

void CardRule::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), Between(palette(), kLinePart));
}

}  // namespace norvane
