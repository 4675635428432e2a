#pragma once

#include <QWidget>

#include "desktop/chart.h"

namespace norvane {

/// Shows a chart. The mouse over it reads the values of the nearest place, and a click chooses it.
class ChartView : public QWidget {
  Q_OBJECT

 public:
  explicit ChartView(QWidget* parent = nullptr);

  void Set_Chart(Chart chart);
  const Chart& Shown_Chart() const { return chart_; }
  /// Where everything stands now.
  const ChartLayout& Laid_Out() const;

  QSize minimumSizeHint() const override;

 signals:
  void Chosen(float place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  bool Is_Laid_Out() const;
  void Read(std::optional<std::size_t> place);
  std::optional<std::size_t> Place_At(const QPointF& position) const;

  Chart chart_;
  mutable std::optional<ChartLayout> layout_;  ///< for as long as only values change
  std::optional<std::size_t> reading_;         ///< the place under the mouse
};

}  // namespace norvane
