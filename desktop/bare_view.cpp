#include "desktop/bare_view.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/colours.h"

namespace norvane {

BareView::BareView(Desktop& desktop, Form& form) : FormView(desktop, form) {
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  Close_By_Escape();
}

void BareView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(kAccentLine);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void BareView::mousePressEvent(QMouseEvent* event) {
  FormView::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) held_at_ = event->position().toPoint();
}

void BareView::mouseMoveEvent(QMouseEvent* event) {
  if (held_at_ && event->buttons().testFlag(Qt::LeftButton)) {
    move(event->globalPosition().toPoint() - *held_at_);
  }
  FormView::mouseMoveEvent(event);
}

void BareView::mouseReleaseEvent(QMouseEvent* event) {
  FormView::mouseReleaseEvent(event);
  held_at_.reset();
}

}  // namespace norvane
