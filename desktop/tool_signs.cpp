#include <QPainter>
#include <QPainterPath>

#include "desktop/colours.h"
#include "desktop/tool_button.h"

namespace norvane {
namespace {

// Signs are drawn on a grid of this many units.
constexpr qreal kGrid = 26;
constexpr QPointF kMiddle(kGrid / 2, kGrid / 2);

/// The area with its edges on whole pixels of the screen.
QRectF Sharp(const QPainter& painter, const QRectF& area) {
  const QTransform& to_screen = painter.deviceTransform();
  return to_screen.inverted().mapRect(QRectF(to_screen.mapRect(area).toAlignedRect()));
}

/// A colour for the ground that ink of this colour is written on.
const QColor& Beside(const QColor& ink, const QColor& on_light, const QColor& on_dark) {
  constexpr int kMiddling = 128;
  return ink.lightness() > kMiddling ? on_dark : on_light;
}

void Fill_Disc(QPainter& painter, qreal radius, const QColor& top, const QColor& foot) {
  QLinearGradient light(0, kMiddle.y() - radius, 0, kMiddle.y() + radius);
  light.setColorAt(0, top);
  light.setColorAt(1, foot);
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawEllipse(kMiddle, radius, radius);
}

/// A pipe in its insulation, in section.
void Draw_Section(QPainter& painter, const QColor& ink, const QColor& lit, const QColor& wall,
                  const QColor& shade, qreal bore) {
  const QColor& rim = Beside(ink, kFoamRim, kFoamRimOnDark);
  Fill_Disc(painter, 13, rim, rim);
  Fill_Disc(painter, 12, kFoamCut, kFoam);
  Fill_Disc(painter, 8.4, kFoamShade, kBore);
  Fill_Disc(painter, 8, lit, wall);
  Fill_Disc(painter, bore, kBore, shade);
}

void Draw_Slab(QPainter& painter, const QColor& ink) {
  constexpr QPointF kSlant(6, -6);
  const QRectF foam = Sharp(painter, {1, 10, 18, 8});
  const QRectF plate = Sharp(painter, {foam.left(), foam.bottom(), foam.width(), 4});
  const auto fill = [&painter](const QPolygonF& face, const QColor& colour) {
    QPainterPath path;
    path.addPolygon(face);
    painter.fillPath(path, colour);
  };
  const auto side = [&kSlant](const QRectF& front) {
    return QPolygonF{front.topRight(), front.topRight() + kSlant, front.bottomRight() + kSlant,
                     front.bottomRight()};
  };
  fill(side(foam), kFoam);
  fill(side(plate), kSteel);
  fill({foam.topLeft(), foam.topLeft() + kSlant, foam.topRight() + kSlant, foam.topRight()},
       Beside(ink, kFoamRim, kFoamRimOnDark));
  painter.fillRect(foam, kFoamCut);
  painter.fillRect(plate, kSteelBright);
}

/// A pipe that lies across the sign.
void Draw_Lying_Pipe(QPainter& painter, qreal top) {
  const QRectF area = Sharp(painter, {0, top, kGrid, 6});
  QLinearGradient light(area.topLeft(), area.bottomLeft());
  light.setColorAt(0, kSteel);
  light.setColorAt(0.3, kSteelLight);
  light.setColorAt(1, kSteelShade);
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawRoundedRect(area, 2, 2);
}

/// Heat that rises from a pipe.
void Draw_Heat(QPainter& painter, const QColor& ink) {
  Draw_Lying_Pipe(painter, 20);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Beside(ink, kHeat, kHeatOnDark), 2.6, Qt::SolidLine, Qt::RoundCap));
  for (const qreal at : {5.0, 13.0, 21.0}) {
    QPainterPath wave(QPointF(at, 17));
    wave.cubicTo(at - 4.5, 12.5, at + 4.5, 7, at, 2);
    painter.drawPath(wave);
  }
}

void Fill_Drop(QPainter& painter, const QColor& water, const QPointF& tip, qreal width,
               qreal height) {
  const qreal half = width / 2;
  const qreal belly = height - half;
  QPainterPath drop(tip);
  drop.cubicTo(tip + QPointF(half * 0.3, height * 0.25), tip + QPointF(half, belly - half * 0.6),
               tip + QPointF(half, belly));
  drop.cubicTo(tip + QPointF(half, belly + half * 0.56), tip + QPointF(half * 0.56, height),
               tip + QPointF(0, height));
  drop.cubicTo(tip + QPointF(-half * 0.56, height), tip + QPointF(-half, belly + half * 0.56),
               tip + QPointF(-half, belly));
  drop.cubicTo(tip + QPointF(-half, belly - half * 0.6), tip + QPointF(-half * 0.3, height * 0.25),
               tip);
  painter.fillPath(drop, water);
}

/// Drops on the underside of a pipe.
void Draw_Condensation(QPainter& painter, const QColor& ink) {
  Draw_Lying_Pipe(painter, 0);
  const QColor& water = Beside(ink, kWater, kWaterOnDark);
  Fill_Drop(painter, water, {13, 8}, 12, 18);
  Fill_Drop(painter, water, {3.6, 8}, 5, 8);
  Fill_Drop(painter, water, {22.4, 8}, 5, 8);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kWaterGlint, 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(QRectF(9.6, 16.6, 6.8, 6.8), 190 * 16, 60 * 16);
}

void Draw_Stroke(QPainter& painter, const QPainterPath& path, const QColor& colour,
                 qreal width = 2.4) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
}

void Draw_Alpha(QPainter& painter, const QColor& ink) {
  QPainterPath letter(QPointF(21, 6));
  letter.cubicTo(18.5, 14, 15.5, 21, 10, 21);
  letter.cubicTo(6.2, 21, 4, 18, 4, 13.8);
  letter.cubicTo(4, 9.2, 6.6, 6, 10.4, 6);
  letter.cubicTo(16.4, 6, 16, 21, 22, 21);
  Draw_Stroke(painter, letter, ink);
}

/// The letter lambda, `height` high.
void Draw_Lambda(QPainter& painter, const QPointF& top_left, qreal height, const QColor& ink) {
  const auto at = [&](qreal x, qreal y) { return top_left + QPointF(x, y) * height; };
  QPainterPath letter(at(0.08, 0.05));
  letter.cubicTo(at(0.22, -0.04), at(0.32, 0.05), at(0.38, 0.24));
  letter.lineTo(at(0.58, 0.82));
  letter.cubicTo(at(0.64, 0.99), at(0.72, 1.02), at(0.82, 0.93));
  letter.moveTo(at(0.44, 0.42));
  letter.lineTo(at(0.08, 1));
  Draw_Stroke(painter, letter, ink, 0.9 + 0.075 * height);
}

void Draw_New_Lambda(QPainter& painter, const QColor& ink) {
  Draw_Lambda(painter, {2, 4}, 20, ink);
  QPainterPath plus(QPointF(21, 2.5));
  plus.lineTo(21, 10.5);
  plus.moveTo(17, 6.5);
  plus.lineTo(25, 6.5);
  Draw_Stroke(painter, plus, Beside(ink, kAccentLine, kAccentLight));
}

void Draw_Fixed_Lambda(QPainter& painter, const QColor& ink, const QString& value) {
  Draw_Lambda(painter, {7.5, 0.5}, 12.5, ink);
  QFont digits("Arial");
  digits.setStyleHint(QFont::SansSerif);
  digits.setPixelSize(11);
  digits.setBold(true);
  painter.setFont(digits);
  painter.setPen(ink);
  painter.drawText(QRectF(-7, 14.5, kGrid + 14, 12), Qt::AlignCenter, value);
}

/// Coins, and an arrow that falls: cost that goes down.
void Draw_Saving(QPainter& painter, const QColor& ink) {
  painter.setPen(QPen(kCoinLine, 1.2));
  for (const qreal top : {19.0, 14.5, 10.0}) {
    QPainterPath coin(QPointF(1, top));
    coin.lineTo(1, top + 3);
    coin.arcTo(QRectF(1, top, 15, 6), 180, 180);
    coin.lineTo(16, top);
    painter.setBrush(kCoin.darker(115));
    painter.drawPath(coin);
    painter.setBrush(kCoin);
    painter.drawEllipse(QRectF(1, top - 3, 15, 6));
  }
  QPainterPath arrow(QPointF(21, 3));
  arrow.lineTo(21, 21);
  arrow.moveTo(17, 17.4);
  arrow.lineTo(21, 21.4);
  arrow.lineTo(25, 17.4);
  Draw_Stroke(painter, arrow, Beside(ink, kAccentLine, kAccentLight));
}

void Draw_Sum(QPainter& painter, const QColor& ink) {
  QPainterPath sum(QPointF(20.5, 7));
  sum.lineTo(20.5, 3);
  sum.lineTo(5.5, 3);
  sum.lineTo(13.5, 13);
  sum.lineTo(5.5, 23);
  sum.lineTo(20.5, 23);
  sum.lineTo(20.5, 19);
  Draw_Stroke(painter, sum, ink);
}

/// The sheet of a workbook, with its caption row.
void Draw_Spreadsheet(QPainter& painter, const QColor& ink) {
  const QRectF sheet = Sharp(painter, {2, 4, 22, 18});
  const qreal row = sheet.height() / 4;
  painter.fillRect(QRectF(sheet.topLeft(), QSizeF(sheet.width(), row)),
                   Beside(ink, kAccentLine, kAccentLight));
  painter.setPen(QPen(ink, 1.4));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(sheet);
  for (int i = 1; i < 4; ++i) {
    const qreal y = sheet.top() + i * row;
    painter.drawLine(QPointF(sheet.left(), y), QPointF(sheet.right(), y));
  }
  for (const qreal part : {0.36, 0.68}) {
    const qreal x = sheet.left() + part * sheet.width();
    painter.drawLine(QPointF(x, sheet.top()), QPointF(x, sheet.bottom()));
  }
}

void Draw_On_Grid(QPainter& painter, ToolSign sign, const QColor& ink) {
  switch (sign) {
    case ToolSign::kTotal:
      return Draw_Sum(painter, ink);
    case ToolSign::kSteelPipe:
      return Draw_Section(painter, ink, kSteelBright, kSteel, kSteelShade, 4.4);
    case ToolSign::kCopperTube:
      return Draw_Section(painter, ink, kCopperLight, kCopper, kCopperShade, 6.2);
    case ToolSign::kMetricPipe:
      return Draw_Section(painter, ink, kPlasticLight, kPlastic, kPlasticShade, 5.6);
    case ToolSign::kSheet:
      return Draw_Slab(painter, ink);
    case ToolSign::kHeatLoss:
      return Draw_Heat(painter, ink);
    case ToolSign::kCondensation:
      return Draw_Condensation(painter, ink);
    case ToolSign::kAlpha:
      return Draw_Alpha(painter, ink);
    case ToolSign::kNewLambda:
      return Draw_New_Lambda(painter, ink);
    case ToolSign::kLambda038:
      return Draw_Fixed_Lambda(painter, ink, ".038");
    case ToolSign::kLambda040:
      return Draw_Fixed_Lambda(painter, ink, ".040");
    case ToolSign::kSaving:
      return Draw_Saving(painter, ink);
    case ToolSign::kSpreadsheet:
      return Draw_Spreadsheet(painter, ink);
  }
}

}  // namespace

void Draw_Sign(QPainter& painter, ToolSign sign, qreal size, const QColor& ink) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kGrid, size / kGrid);
  Draw_On_Grid(painter, sign, ink);
  painter.restore();
}

}  // namespace norvane
