#pragma once

#include <QWidget>

#include "calc/conversions.h"
#include "screen/answer.h"

namespace norvane {

/// A section of the insulated wall, with the temperature on its way from the medium through the
/// insulation to the air, and the dew point of that air. The thicknesses aren't to scale.
class WallSection : public QWidget {
  Q_OBJECT

 public:
  explicit WallSection(QWidget* parent = nullptr);

  void Set_Temperatures(const DewPointOnScreen& told, const Locale& locale, const QString& unit);

  QSize minimumSizeHint() const override { return {300, 80}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  qreal Height_Of(float degrees) const;
  void Draw_Layers(QPainter& painter) const;
  void Draw_Temperatures(QPainter& painter) const;
  void Write(QPainter& painter, const QRectF& room, float degrees, Qt::Alignment alignment) const;

  DewPointOnScreen told_;
  Locale locale_;
  QString unit_;
};

}  // namespace norvane
