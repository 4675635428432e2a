#include "desktop/tool_button.h"

#include <QEnterEvent>
#include <QFocusEvent>
#include <QPainter>

#include "desktop/colours.h"

namespace norvane {
namespace {

constexpr int kWidth = 44;
constexpr int kHeight = 34;
constexpr int kSignSize = 26;

}  // namespace

ToolButton::ToolButton(ToolSign sign, QWidget* parent) : QAbstractButton(parent), sign_(sign) {
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAttribute(Qt::WA_Hover);
}

QSize ToolButton::sizeHint() const { return {kWidth, kHeight}; }

void ToolButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF frame = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
  if (isChecked()) {
    QColor ground = kAccent;
    ground.setAlphaF(0.22F);
    painter.setBrush(ground);
    painter.setPen(QPen(kAccent, 1.5));
    painter.drawRoundedRect(frame, 5, 5);
  } else if (underMouse() || isDown()) {
    painter.setBrush(palette().color(QPalette::Midlight));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(frame, 5, 5);
  }
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRoundedRect(frame.adjusted(2, 2, -2, -2), 3, 3);
  }
  painter.translate((width() - kSignSize) / 2.0, (height() - kSignSize) / 2.0);
  Draw_Sign(painter, sign_, kSignSize, palette().color(QPalette::WindowText));
}

void ToolButton::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  emit Reached();
}

void ToolButton::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
    emit Reached();
  }
}

}  // namespace norvane
