#include "desktop/spin_arrows.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/accessible.h"

namespace norvane {
namespace {

constexpr int kRepeatDelay = 400;  // milliseconds
constexpr int kRepeatInterval = 120;

}  // namespace

SpinArrows::SpinArrows(QWidget* parent) : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  for (const int direction : {1, -1}) {
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(direction > 0 ? "up" : "down");
    arrow->setArrowType(direction > 0 ? Qt::UpArrow : Qt::DownArrow);
    arrow->setAutoRepeat(true);
    arrow->setAutoRepeatDelay(kRepeatDelay);
    arrow->setAutoRepeatInterval(kRepeatInterval);
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setFixedSize(20, 14);
    connect(arrow, &QToolButton::clicked, this, [this, direction] { emit Stepped(direction); });
    column->addWidget(arrow);
    (direction > 0 ? up_ : down_) = arrow;
  }
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SpinArrows::Name_After(const QString& field) {
  Tell(*up_, field + " +");
  Tell(*down_, field + " \u2212");
}

}  // namespace norvane
