#include "desktop/background.h"

#include <QLinearGradient>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/object_picture.h"

namespace norvane {

void Draw_Background(QPainter& painter, const QSize& size, qreal strength) {
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient ground(0, 0, 0, size.height());
  ground.setColorAt(0, QColor(252, 253, 250));
  ground.setColorAt(1, QColor(228, 238, 218));
  painter.fillRect(QRect(QPoint(0, 0), size), ground);

  painter.save();
  painter.setOpacity(strength);
  const qreal scale = size.width() / (ObjectPicture::kWidth * 1.25);
  painter.translate(size.width() * 0.12, size.height() * 0.14);
  painter.scale(scale, scale);
  constexpr int kThickCopper = 14;
  Draw_Object(painter, kThickCopper);
  painter.restore();

  constexpr int kBand = 10;
  painter.fillRect(0, size.height() - kBand, size.width(), kBand, kAccent);
  painter.setPen(QPen(kAccent.darker(130), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
}

}  // namespace norvane
