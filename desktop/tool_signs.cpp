#include <QPainter>
#include <QPainterPath>

#include "desktop/colours.h"
#include "desktop/tool_button.h"

namespace norvane {
namespace {

void Draw_Section(QPainter& painter, qreal s, const QColor& wall) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(kFoam);
  painter.drawEllipse(QPointF(s / 2, s / 2), s * 0.46, s * 0.46);
  painter.setBrush(wall);
  painter.drawEllipse(QPointF(s / 2, s / 2), s * 0.31, s * 0.31);
  painter.setBrush(wall.darker(240));
  painter.drawEllipse(QPointF(s / 2, s / 2), s * 0.21, s * 0.21);
}

void Draw_Slab(QPainter& painter, qreal s) {
  const auto layer = [&](qreal top, qreal height, const QColor& color) {
    QPainterPath face;
    face.addRect(s * 0.04, s * top, s * 0.92, s * height);
    painter.fillPath(face, color);
  };
  layer(0.24, 0.34, kFoam);
  layer(0.58, 0.18, kSteel);
}

void Draw_Flame(QPainter& painter, qreal s) {
  QPainterPath flame(QPointF(s * 0.52, s * 0.04));
  flame.cubicTo(s * 0.58, s * 0.30, s * 0.86, s * 0.40, s * 0.82, s * 0.68);
  flame.cubicTo(s * 0.80, s * 0.88, s * 0.64, s * 0.97, s * 0.50, s * 0.97);
  flame.cubicTo(s * 0.32, s * 0.97, s * 0.18, s * 0.84, s * 0.18, s * 0.66);
  flame.cubicTo(s * 0.18, s * 0.50, s * 0.30, s * 0.44, s * 0.34, s * 0.28);
  flame.cubicTo(s * 0.42, s * 0.36, s * 0.44, s * 0.42, s * 0.44, s * 0.50);
  flame.cubicTo(s * 0.54, s * 0.40, s * 0.56, s * 0.22, s * 0.52, s * 0.04);
  painter.fillPath(flame, QColor(217, 83, 25));
  QPainterPath core(QPointF(s * 0.52, s * 0.52));
  core.cubicTo(s * 0.56, s * 0.64, s * 0.68, s * 0.68, s * 0.66, s * 0.80);
  core.cubicTo(s * 0.64, s * 0.92, s * 0.40, s * 0.94, s * 0.36, s * 0.80);
  core.cubicTo(s * 0.34, s * 0.68, s * 0.50, s * 0.66, s * 0.52, s * 0.52);
  painter.fillPath(core, QColor(250, 190, 60));
}

void Draw_Drop(QPainter& painter, qreal s) {
  QPainterPath drop(QPointF(s * 0.5, s * 0.04));
  drop.cubicTo(s * 0.60, s * 0.28, s * 0.82, s * 0.46, s * 0.82, s * 0.66);
  drop.cubicTo(s * 0.82, s * 0.85, s * 0.68, s * 0.97, s * 0.5, s * 0.97);
  drop.cubicTo(s * 0.32, s * 0.97, s * 0.18, s * 0.85, s * 0.18, s * 0.66);
  drop.cubicTo(s * 0.18, s * 0.46, s * 0.40, s * 0.28, s * 0.5, s * 0.04);
  painter.fillPath(drop, QColor(46, 122, 190));
  painter.setPen(QPen(QColor(220, 238, 252), s * 0.07, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(QRectF(s * 0.31, s * 0.48, s * 0.38, s * 0.38), 190 * 16, 60 * 16);
}

void Draw_Letter(QPainter& painter, qreal s, const QColor& ink, QChar letter,
                 const QString& below = {}) {
  QFont font("Liberation Serif");
  font.setStyleHint(QFont::Serif);
  font.setItalic(true);
  font.setPixelSize(qRound(below.isEmpty() ? s * 0.95 : s * 0.70));
  painter.setFont(font);
  painter.setPen(ink);
  const QRectF upper(-s * 0.3, below.isEmpty() ? 0 : -s * 0.12, s * 1.6,
                     below.isEmpty() ? s * 0.92 : s * 0.72);
  painter.drawText(upper, Qt::AlignCenter, letter);
  if (below.isEmpty()) return;
  QFont small("Arial");
  small.setPixelSize(qRound(s * 0.42));
  small.setBold(true);
  painter.setFont(small);
  painter.drawText(QRectF(-s * 0.3, s * 0.58, s * 1.6, s * 0.46), Qt::AlignCenter, below);
}

/// A star beside a letter: the value is a new one.
void Draw_Star(QPainter& painter, qreal s) {
  painter.setPen(QPen(kAccent.darker(125), s * 0.09, Qt::SolidLine, Qt::RoundCap));
  const QPointF middle(s * 0.90, s * 0.18);
  const qreal arm = s * 0.15;
  painter.drawLine(middle - QPointF(arm, 0), middle + QPointF(arm, 0));
  painter.drawLine(middle - QPointF(0, arm), middle + QPointF(0, arm));
}

/// A coin with an arrow that falls: cost that goes down.
void Draw_Saving(QPainter& painter, qreal s, const QColor& ink) {
  painter.setPen(QPen(QColor(150, 110, 10), s * 0.06));
  painter.setBrush(QColor(240, 196, 60));
  painter.drawEllipse(QPointF(s * 0.42, s * 0.48), s * 0.36, s * 0.36);
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QPointF(s * 0.42, s * 0.48), s * 0.23, s * 0.23);
  painter.setPen(QPen(ink, s * 0.08, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawLine(QPointF(s * 0.90, s * 0.22), QPointF(s * 0.90, s * 0.88));
  painter.drawPolyline(QPolygonF{QPointF(s * 0.78, s * 0.74), QPointF(s * 0.90, s * 0.90),
                                 QPointF(s * 1.02, s * 0.74)});
}

void Draw_Sum(QPainter& painter, qreal s, const QColor& ink) {
  painter.setPen(QPen(ink, s * 0.09, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
  painter.drawPolyline(QPolygonF{QPointF(s * 0.80, s * 0.26), QPointF(s * 0.80, s * 0.12),
                                 QPointF(s * 0.20, s * 0.12), QPointF(s * 0.54, s * 0.50),
                                 QPointF(s * 0.20, s * 0.88), QPointF(s * 0.80, s * 0.88),
                                 QPointF(s * 0.80, s * 0.74)});
}

}  // namespace

void Draw_Sign(QPainter& painter, ToolSign sign, qreal size, const QColor& ink) {
  constexpr char16_t kAlphaLetter = 0x3B1;
  constexpr char16_t kLambdaLetter = 0x3BB;
  painter.setRenderHint(QPainter::Antialiasing);
  switch (sign) {
    case ToolSign::kTotal:
      return Draw_Sum(painter, size, ink);
    case ToolSign::kSteelPipe:
      return Draw_Section(painter, size, kSteel.lighter(140));
    case ToolSign::kCopperTube:
      return Draw_Section(painter, size, kCopper.lighter(125));
    case ToolSign::kMetricPipe:
      return Draw_Section(painter, size, kPlastic.lighter(150));
    case ToolSign::kSheet:
      return Draw_Slab(painter, size);
    case ToolSign::kHeatLoss:
      return Draw_Flame(painter, size);
    case ToolSign::kCondensation:
      return Draw_Drop(painter, size);
    case ToolSign::kAlpha:
      return Draw_Letter(painter, size, ink, kAlphaLetter);
    case ToolSign::kNewLambda:
      Draw_Letter(painter, size, ink, kLambdaLetter);
      return Draw_Star(painter, size);
    case ToolSign::kLambda038:
      return Draw_Letter(painter, size, ink, kLambdaLetter, ".038");
    case ToolSign::kLambda040:
      return Draw_Letter(painter, size, ink, kLambdaLetter, ".040");
    case ToolSign::kSaving:
      return Draw_Saving(painter, size, ink);
  }
}

}  // namespace norvane
