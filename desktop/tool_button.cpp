#include "desktop/tool_button.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include "desktop/colours.h"
#include "desktop/flat_button.h"
#include "desktop/material.h"

namespace norvane {
namespace {

constexpr int kWidth = 44;
constexpr int kHeight = 34;
constexpr int kSignSize = 26;
constexpr qreal kLine = 1.5;

bool focus_handed_on = false;  // to whichever button is the next

}  // namespace

ToolButton::ToolButton(ToolSign sign, QWidget* parent) : QAbstractButton(parent), sign_(sign) {
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAttribute(Qt::WA_Hover);
  setMouseTracking(true);
}

QSize ToolButton::sizeHint() const { return {kWidth, kHeight}; }

void ToolButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor& ink = palette().color(QPalette::WindowText);
  // A frame of whole pixels of the screen is a sharp one.
  const qreal line = qRound(kLine * devicePixelRatioF()) / devicePixelRatioF();
  const QRectF frame = Frame_Of(*this, line);
  if (isChecked()) {
    painter.setBrush(Veil(kAccent, 0.22));
    painter.setPen(QPen(kAccent, line));
    painter.drawRoundedRect(frame, kButtonCorner, kButtonCorner);
  } else {
    Draw_Touch(painter, *this, frame, ink);
  }
  const qreal gap = 1.5 * line;
  Draw_Focus(painter, *this, frame.adjusted(gap, gap, -gap, -gap), ink, line / 2);
  painter.translate((width() - kSignSize) / 2.0, (height() - kSignSize) / 2.0);
  Draw_Sign(painter, sign_, kSignSize, ink);
}

void ToolButton::mouseMoveEvent(QMouseEvent* event) {
  QAbstractButton::mouseMoveEvent(event);
  event->accept();
  // A pressed button hears of the mouse wherever that goes.
  if (rect().contains(event->position().toPoint())) emit Moved_Over();
}

bool ToolButton::focusNextPrevChild(bool next) {
  // A button that hides hands on its focus as the key does, but nobody has come by keyboard then.
  const QScopedValueRollback<bool> handing_on(focus_handed_on, isHidden());
  return QAbstractButton::focusNextPrevChild(next);
}

void ToolButton::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  if (focus_handed_on) return;
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
    emit Focus_Came();
  }
}

void ToolButton::focusOutEvent(QFocusEvent* event) {
  QAbstractButton::focusOutEvent(event);
  // A window that only waits behind another keeps its focus.
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
    emit Focus_Went();
  }
}

}  // namespace norvane
