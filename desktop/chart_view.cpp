#include "desktop/chart_view.h"

#include <QMouseEvent>
#include <QPaintEvent>
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
  const bool stays = layout_ && Is_Laid_Out() && Differ_In_Values_Only(chart, chart_);
  if (stays) {
    update(layout_->Of_Values());
  } else {
    layout_.reset();
    update();
  }
  chart_ = std::move(chart);
  if (reading_ && *reading_ >= chart_.places.size()) reading_.reset();
  if (stays) {
    layout_->Write_Values(reading_);
    update(layout_->Of_Values());
  }
  const Qt::CursorShape shape = chart_.lines.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

bool ChartView::Is_Laid_Out() const {
  return layout_->Area() == QRectF(contentsRect()) && layout_->Font() == font();
}

const ChartLayout& ChartView::Laid_Out() const {
  if (!layout_ || !Is_Laid_Out()) layout_.emplace(chart_, contentsRect(), font(), reading_);
  return *layout_;
}

void ChartView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  Paint_Chart(painter, chart_, Laid_Out(), Chart_Colours(palette()), reading_, event->region());
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
  if (std::exchange(reading_, place) == place) return;
  if (layout_) {
    update(layout_->Of_Values());
    layout_->Write_Values(reading_);
    update(layout_->Of_Values());
  } else {
    update();
  }
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
