#include "desktop/flat_button.h"

#include <QPainter>
#include <QStyle>

#include "desktop/material.h"

namespace norvane {
namespace {

constexpr int kCross = 9;
constexpr int kCrossWidth = 27;
constexpr int kCrossHeight = 21;

}  // namespace

QRectF Frame_Of(const QWidget& widget, qreal line) {
  return QRectF(widget.rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
}

void Draw_Touch(QPainter& painter, const QAbstractButton& button, const QRectF& frame,
                const QColor& ink) {
  if (!button.underMouse() && !button.isDown()) return;
  painter.setBrush(Veil(ink, button.isDown() ? 0.18 : 0.09));
  painter.setPen(Qt::NoPen);
  painter.drawRoundedRect(frame, kButtonCorner, kButtonCorner);
}

void Draw_Focus(QPainter& painter, const QAbstractButton& button, const QRectF& frame,
                const QColor& ink, qreal line) {
  if (!button.hasFocus()) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Veil(ink, 0.65), line));
  painter.drawRoundedRect(frame, kButtonCorner, kButtonCorner);
}

void TextButton::paintEvent(QPaintEvent*) {
  constexpr int kBeside = 6;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor& ink = palette().color(QPalette::WindowText);
  const qreal line = 1 / devicePixelRatioF();
  const QRectF frame = Frame_Of(*this, line);
  Draw_Touch(painter, *this, frame, ink);
  Draw_Focus(painter, *this, frame, ink, line);
  painter.setPen(ink);
  const bool letter_shown = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  painter.drawText(rect().adjusted(kBeside, 0, -kBeside, 0),
                   Qt::AlignVCenter | (letter_shown ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                   text());
}

CloseCross::CloseCross(QWidget* parent) : QToolButton(parent) {
  setText(QChar(0xD7));
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
}

QSize CloseCross::sizeHint() const { return {kCrossWidth, kCrossHeight}; }

void CloseCross::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor& ink = palette().color(QPalette::WindowText);
  Draw_Touch(painter, *this, rect(), ink);
  painter.setPen(QPen(ink, 1.2, Qt::SolidLine, Qt::RoundCap));
  QRectF cross(0, 0, kCross, kCross);
  cross.moveCenter(QRectF(rect()).center());
  painter.drawLine(cross.topLeft(), cross.bottomRight());
  painter.drawLine(cross.bottomLeft(), cross.topRight());
}

}  // namespace norvane
