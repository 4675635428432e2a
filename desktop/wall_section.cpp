#include "desktop/wall_section.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/chart.h"
#include "desktop/colours.h"
#include "desktop/material.h"

namespace norvane {
namespace {

// Where the layers end, as parts of the width: the medium, the pipe or plate, the insulation.
constexpr qreal kMediumEnd = 0.16;
constexpr qreal kMetalEnd = 0.20;
constexpr qreal kFoamEnd = 0.62;

}  // namespace

WallSection::WallSection(QWidget* parent) : QWidget(parent) {
  setObjectName("wall_section");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void WallSection::Set_Temperatures(const DewPointOnScreen& told, const Locale& locale,
                                   const QString& unit) {
  if (told == told_ && unit == unit_) return;
  told_ = told;
  locale_ = locale;
  unit_ = unit;
  update();
}

qreal WallSection::Height_Of(float degrees) const {
  const auto [least, most] = std::minmax({told_.T_med, told_.T_amb, told_.T_surf, told_.T_dew});
  const qreal row = fontMetrics().height() + 2;
  const qreal room = height() - 2 * row;
  if (most - least < 0.05F) return height() / 2.0;
  return row + room * static_cast<qreal>(most - degrees) / static_cast<qreal>(most - least);
}

void WallSection::Draw_Layers(QPainter& painter) const {
  const qreal metal = width() * kMediumEnd;
  const qreal foam = width() * kMetalEnd;
  const qreal air = width() * kFoamEnd;
  painter.fillRect(QRectF(0, 0, metal, height()), Veil(kWater, 0.18));
  painter.fillRect(QRectF(metal, 0, foam - metal, height()), kSteel);
  painter.fillRect(QRectF(foam, 0, air - foam, height()), Veil(kFoamRim, 0.35));
}

void WallSection::Write(QPainter& painter, const QRectF& room, float degrees,
                        Qt::Alignment alignment) const {
  painter.drawText(room, static_cast<int>(alignment | Qt::AlignVCenter),
                   Chart_Value(degrees, locale_) + ' ' + unit_);
}

void WallSection::Draw_Temperatures(QPainter& painter) const {
  const ChartColours colours = Chart_Colours(palette());
  const qreal foam = width() * kMetalEnd;
  const qreal air = width() * kFoamEnd;
  const qreal film = air + width() * 0.06;  // the air that the wall warms or cools
  QPainterPath way(QPointF(0, Height_Of(told_.T_med)));
  way.lineTo(foam, Height_Of(told_.T_med));
  way.lineTo(air, Height_Of(told_.T_surf));
  way.quadTo(air + width() * 0.01, Height_Of(told_.T_amb), film, Height_Of(told_.T_amb));
  way.lineTo(width(), Height_Of(told_.T_amb));
  const qreal dew = Height_Of(told_.T_dew);
  painter.setPen(QPen(colours.lines[2], 2, Qt::DotLine));
  painter.drawLine(QPointF(air, dew), QPointF(width(), dew));
  painter.setPen(QPen(colours.lines[1], 2));
  painter.drawPath(way);

  const qreal row = fontMetrics().height() + 2;
  const auto above = [&](float degrees) { return Height_Of(degrees) - row - 1; };
  const auto below = [&](float degrees) { return Height_Of(degrees) + 1; };
  painter.setPen(colours.text);
  Write(painter,
        QRectF(foam + 6, told_.T_med > told_.T_surf ? above(told_.T_med) : below(told_.T_med),
               air - foam, row),
        told_.T_med, Qt::AlignLeft);
  Write(painter, QRectF(film, above(told_.T_amb), width() - film - 4, row), told_.T_amb,
        Qt::AlignRight);
  painter.setPen(colours.lines[2]);
  Write(painter, QRectF(film, below(told_.T_dew), width() - film - 4, row), told_.T_dew,
        Qt::AlignRight);
}

void WallSection::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  Draw_Layers(painter);
  Draw_Temperatures(painter);
}

}  // namespace norvane
