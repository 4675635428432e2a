#include "desktop/tip_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace norvane {
namespace {

constexpr int kBehindKey = 6;  // pixels

}  // namespace

void TipButton::Show_Key(const QString& key) {
  key_ = key;
  update();
}

int TipButton::Room_For_Key() const { return fontMetrics().horizontalAdvance(key_) + kBehindKey; }

QSize TipButton::sizeHint() const {
  return QPushButton::sizeHint() + QSize(key_.isEmpty() ? 0 : Room_For_Key(), 0);
}

void TipButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  if (!key_.isEmpty()) option.rect.adjust(0, 0, -Room_For_Key(), 0);
  painter.drawControl(QStyle::CE_PushButton, option);
  QColor ink = option.palette.color(QPalette::ButtonText);
  ink.setAlphaF(0.75F);
  painter.setPen(ink);
  painter.drawText(rect().adjusted(0, 0, -kBehindKey, 0), Qt::AlignRight | Qt::AlignVCenter, key_);
}

}  // namespace norvane
