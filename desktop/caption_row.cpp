#include "desktop/caption_row.h"

#include "desktop/twips.h"

namespace norvane {
namespace {

constexpr int kNarrowestColumn = 300;  // twips

}  // namespace

CaptionRow::CaptionRow(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setMinimumSectionSize(To_Pixels(kNarrowestColumn));
  connect(this, &QHeaderView::sectionResized, this, [this] { resized_ = true; });
}

void CaptionRow::mousePressEvent(QMouseEvent* event) {
  resized_ = false;
  QHeaderView::mousePressEvent(event);
}

void CaptionRow::mouseReleaseEvent(QMouseEvent* event) {
  QHeaderView::mouseReleaseEvent(event);
  if (!resized_) emit Clicked();
}

}  // namespace norvane
