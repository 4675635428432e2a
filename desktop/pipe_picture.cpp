#include "desktop/pipe_picture.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "desktop/colours.h"
#include "desktop/material.h"

namespace norvane {
namespace {

constexpr qreal kAxis = 47.5;  // with whole radii, outlines lie on whole pixels
constexpr qreal kBack = 27;    // where the foam begins, is cut, and where the pipe ends
constexpr qreal kCut = 158;
constexpr qreal kEnd = 240;
constexpr qreal kDimension = 200.5;
constexpr qreal kPipeRadius = 14;
constexpr qreal kFlattening = 0.42;  // of a circle that is seen from the side

// Outer radius of the insulation by thickness class.
constexpr qreal kFoamRadius[] = {18, 23, 28, 33, 38, 44};

struct Family {
  const Material& wall;
  qreal bore;  // radius
  qreal end;   // radius of the open end, less than the pipe's where its edge is broken
  bool thread;
};

const Family kFamilies[] = {{kSteelMaterial, 8.6, kPipeRadius, true},
                            {kCopperMaterial, 11.9, kPipeRadius, false},
                            {kPlasticMaterial, 10, 12.4, false}};

QRectF Around(qreal at, qreal radius) {
  return {at - radius * kFlattening, kAxis - radius, 2 * radius * kFlattening, 2 * radius};
}

/// The outline of a cylinder without the face at its right end, or of one that gets thinner.
QPainterPath Cylinder(qreal left, qreal radius, qreal right, qreal right_radius) {
  QPainterPath outline(QPointF(right, kAxis - right_radius));
  outline.arcTo(Around(left, radius), 90, 180);
  outline.lineTo(right, kAxis + right_radius);
  return outline;
}

/// A shade that fades from left to right without a visible end.
QLinearGradient Fading_Shade(qreal left, qreal right, qreal strength) {
  QLinearGradient shade(left, 0, right, 0);
  shade.setColorAt(0, Veil(Qt::black, strength));
  shade.setColorAt(0.35, Veil(Qt::black, strength * 0.42));
  shade.setColorAt(0.7, Veil(Qt::black, strength * 0.09));
  shade.setColorAt(1, Veil(Qt::black, 0));
  return shade;
}

void Draw_Skin(QPainter& painter, qreal radius) {
  const QPainterPath outline = Cylinder(kBack, radius, kCut, radius);
  painter.fillPath(outline, Round_Light(kFoamMaterial, kAxis - radius, kAxis + radius));
  constexpr qreal kReach = 64;  // of the dark at the far end
  const QLinearGradient depth = Fading_Shade(kBack - radius * kFlattening, kBack + kReach, 0.30);
  painter.fillPath(Cylinder(kBack, radius, kBack + kReach, radius), depth);
  painter.strokePath(outline, QPen(Veil(kFoamRim, 0.9), 1));

  // The glued seam of the tube.
  constexpr qreal kHeight = 0.42;
  const qreal forward = radius * kFlattening * std::sqrt(1 - kHeight * kHeight);
  const QPointF from(kBack - forward, kAxis - kHeight * radius);
  const QPointF to(kCut - forward, kAxis - kHeight * radius);
  painter.setPen(QPen(Veil(kFoamShade, 0.8), 0.8));
  painter.drawLine(from, to);
  painter.setPen(QPen(Veil(kFoamLight, 0.8), 0.8));
  painter.drawLine(from + QPointF(0, 0.9), to + QPointF(0, 0.9));
}

void Draw_Cut(QPainter& painter, qreal radius) {
  painter.save();
  painter.translate(kCut, kAxis);
  painter.scale(kFlattening, 1);
  QLinearGradient ground(0, -radius, 0, radius);
  ground.setColorAt(0, kFoamCutLight);
  ground.setColorAt(1, kFoamCut);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawEllipse(QPointF(), radius, radius);

  const qreal inner = kPipeRadius + 0.8;
  const qreal outer = radius - 1.6;
  Draw_Cells(painter, {-radius, -radius, 2 * radius, 2 * radius}, {4.6, 2.7},
             [=](const QPointF& at) {
               const qreal squared = at.x() * at.x() + at.y() * at.y();
               return squared > inner * inner && squared < outer * outer;
             });

  // The pipe keeps the light from the foam beside it.
  const qreal reach = std::min(radius, kPipeRadius + 6);
  QRadialGradient shade(QPointF(), reach);
  shade.setColorAt(kPipeRadius / reach, Veil(Qt::black, 0.5));
  shade.setColorAt(1, Veil(Qt::black, 0));
  painter.setBrush(shade);
  painter.drawEllipse(QPointF(), reach, reach);
  painter.restore();
  painter.setPen(QPen(kFoamRim, 1));
  painter.drawEllipse(Around(kCut, radius));
}

void Draw_Thread(QPainter& painter, const Material& wall) {
  constexpr int kTurns = 7;
  constexpr qreal kPitch = 2.8;
  painter.setPen(QPen(Veil(wall.shade, 0.85), 1.2));
  for (int turn = 1; turn <= kTurns; ++turn) {
    painter.drawArc(Around(kEnd - turn * kPitch, kPipeRadius), 90 * 16, 180 * 16);
  }
}

/// The open end: the wall as it is sawn off, and the look into the pipe.
void Draw_Opening(QPainter& painter, const Family& family) {
  QPainterPath face;
  face.addEllipse(Around(kEnd, family.end));
  QLinearGradient sawn(0, kAxis - family.end, 0, kAxis + family.end);
  sawn.setColorAt(0, family.wall.light);
  sawn.setColorAt(1, family.wall.body);
  painter.fillPath(face, sawn);
  painter.strokePath(face, QPen(Veil(family.wall.shade, 0.8), 0.8));

  const QRectF hole = Around(kEnd, family.bore);
  QLinearGradient inside(hole.topLeft(), hole.bottomRight());
  inside.setColorAt(0.35, kBore);
  inside.setColorAt(1, family.wall.shade);
  painter.setPen(Qt::NoPen);
  painter.setBrush(inside);
  painter.drawEllipse(hole);
  painter.setBrush(Qt::NoBrush);
}

void Draw_Bare_Pipe(QPainter& painter, const Family& family) {
  const QLinearGradient light = Round_Light(family.wall, kAxis - kPipeRadius, kAxis + kPipeRadius);
  const QPen edge(Veil(family.wall.shade, 0.7), 0.8);
  const qreal broken = kEnd - 3 * (kPipeRadius - family.end);
  const QPainterPath outline = Cylinder(kCut, kPipeRadius, broken, kPipeRadius);
  painter.fillPath(outline, light);
  constexpr qreal kReach = 34;  // of the foam's shadow
  const QLinearGradient shade = Fading_Shade(kCut - 6, kCut + kReach, 0.55);
  painter.fillPath(Cylinder(kCut, kPipeRadius, kCut + kReach, kPipeRadius), shade);
  painter.strokePath(outline, edge);
  if (broken < kEnd) {
    const QPainterPath cone = Cylinder(broken, kPipeRadius, kEnd, family.end);
    painter.fillPath(cone, light);
    painter.fillPath(cone, Veil(family.wall.light, 0.35));
    painter.strokePath(cone, edge);
  }
  if (family.thread) Draw_Thread(painter, family.wall);
  Draw_Opening(painter, family);
}

}  // namespace

void Draw_Pipe(QPainter& painter, int family, int thickness_class) {
  const qreal foam = kFoamRadius[thickness_class];
  Draw_Shadow(painter, {kBack - foam * kFlattening, kAxis + foam - 3, kCut - kBack + foam, 8});
  painter.setBrush(Qt::NoBrush);
  Draw_Skin(painter, foam);
  Draw_Cut(painter, foam);
  Draw_Bare_Pipe(painter, kFamilies[family]);
  Draw_Dimension(painter, {kDimension, kAxis - foam}, {kDimension, kAxis - kPipeRadius}, kCut + 4);
}

}  // namespace norvane
