#include "desktop/chart_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace norvane {

ChartView::ChartView(QWidget* parent) : QWidget(parent) {
  setObjectName("chart");
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ChartView::minimumSizeHint() const { return {300, 200}; }

void ChartView::Set_Chart(Chart chart) {
  if (!Differ_In_Values_Only(chart, chart_)) layout_.reset();
  chart_ = std::move(chart);
  if (reading_ && *reading_ >= chart_.places.size()) reading_.reset();
  setCursor(chart_.lines.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
  update();
}

const ChartLayout& ChartView::Laid_Out() const {
  const QRectF area(contentsRect());
  if (layout_ && layout_->Area() == area && layout_->Font() == font()) {
    layout_->Write_Values(reading_);
  } else {
    layout_.emplace(chart_, area, font(), reading_);
  }
  return *layout_;
}

void ChartView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint_Chart(painter, chart_, Laid_Out(), Chart_Colours(palette()), reading_);
}

std::optional<std::size_t> ChartView::Place_At(const QPointF& position) const {
  if (chart_.lines.empty()) return std::nullopt;
  const ChartLayout& layout = Laid_Out();
  constexpr qreal kAround = 12;
  const QRectF plot = layout.Plot().adjusted(-kAround, -kAround, kAround, kAround);
  if (!plot.contains(position)) return std::nullopt;
  return layout.Nearest(position.x());
}

void ChartView::Read(std::optional<std::size_t> place) {
  if (std::exchange(reading_, place) != place) update();
}

void ChartView::mouseMoveEvent(QMouseEvent* event) { Read(Place_At(event->position())); }

void ChartView::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  Read(std::nullopt);
}

void ChartView::mousePressEvent(QMouseEvent* event) {
  const auto place = Place_At(event->position());
  if (event->button() == Qt::LeftButton && place) emit Chosen(chart_.places[*place]);
}

}  // namespace norvane
