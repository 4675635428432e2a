// Where the window of a form lies: as the form says, as far as the screen has room, and back to the
// form when the user or the window manager has moved it.

#include <QApplication>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <utility>

#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/placement.h"
#include "desktop/twips.h"

namespace norvane {
namespace {

/// As wide as that of any common window manager, so that the first window needn't jump.
constexpr QMargins kUsualFrame(4, 38, 4, 4);

}  // namespace

void FormView::Belong_To_Main_Window() {
  FormView* main_window = desktop_.Main_Window();
  if (main_window == nullptr || windowType() != Qt::Dialog) return;
  create();
  windowHandle()->setTransientParent(main_window->windowHandle());
}

void FormView::Leave_Main_Window() {
  // Qt would take the focus from a window of its own for the main window behind the window
  // manager's back, and the two would disagree on who has it.
  if (windowHandle() != nullptr) windowHandle()->setTransientParent(nullptr);
}

QMargins FormView::Frame() const {
  if (windowFlags().testFlag(Qt::FramelessWindowHint)) return {};
  for (const FormView* window : {this, static_cast<const FormView*>(desktop_.Main_Window())}) {
    if (window == nullptr || window->windowHandle() == nullptr) continue;
    const QMargins frame = window->windowHandle()->frameMargins();
    if (!frame.isNull()) return frame;
  }
  return kUsualFrame;
}

QPoint FormView::Wished_Place(const QSize& size) const {
  const Place& place = form_->Place();
  // A window that needs more than its form's size keeps the middle that the form gives it.
  return {To_Pixels(place.left) - (size.width() - To_Pixels(place.width)) / 2,
          To_Pixels(place.top) - (size.height() - To_Pixels(place.height)) / 2};
}

void FormView::Place_Window() {
  const QWidget* page = scrolled_page_ == nullptr ? this : scrolled_page_;
  const Place& place = form_->Place();
  const QSize least = page->minimumSizeHint();
  const QSize size = QSize(To_Pixels(place.width), To_Pixels(place.height)).expandedTo(least);
  const int scroll_bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  placed_ =
      Place_Inside(desktop_.Work_Area(), {Wished_Place(size), size, least, Frame()}, scroll_bar);
  if (placed_.scrolls && scrolled_page_ == nullptr) Let_Scroll();
  made_smaller_ = placed_.size != size;
  resize(placed_.size);
  move(placed_.place);
}

void FormView::Let_Scroll() {
  scrolled_page_ = new QWidget(this);
  scrolled_page_->setMouseTracking(true);
  scrolled_page_->setLayout(layout());  // with all that is laid out in it
  auto* area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(scrolled_page_);
  area->viewport()->setMouseTracking(true);
  // The window's own ground shows through.
  area->viewport()->setAutoFillBackground(false);
  scrolled_page_->setAutoFillBackground(false);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(area);
  area->lower();  // below what lies over the page
  connect(qApp, &QApplication::focusChanged, area, [this, area](QWidget*, QWidget* now) {
    if (scrolled_page_->isAncestorOf(now)) area->ensureWidgetVisible(now);
  });
}

void FormView::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  Tell_Place_Later();
}

void FormView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Tell_Place_Later();
}

void FormView::Tell_Place_Later() {
  // Later, since a window is also resized while the program's changes are being shown.
  place_untold_ = true;
  QTimer::singleShot(0, this, &FormView::Tell_Place);
}

void FormView::Tell_Place_Anew() {
  place_untold_ = true;
  Tell_Place();
}

bool FormView::Is_Newly_Framed() {
  // How thick its frame is shows when the window manager has put it around the window.
  if (framed_ || windowHandle()->frameMargins().isNull()) return false;
  framed_ = true;
  return true;
}

bool FormView::Lies_As_Placed() const {
  // A place or a size that the user has given by then is his.
  constexpr int kRounded = 2;  // pixels, where the display's own are no whole number of these
  const QPoint off = windowHandle()->framePosition() - placed_.place;
  return size() == placed_.size && off.manhattanLength() <= kRounded;
}

void FormView::Tell_Place() {
  if (form_ == nullptr || !form_->Shown() || !isVisible() || isMinimized() || !place_untold_)
    return;
  if (Is_Newly_Framed() && !isMaximized() && Lies_As_Placed() &&
      (made_smaller_ || !desktop_.Work_Area().contains(windowHandle()->frameGeometry()))) {
    Place_Window();
  }
  // Behind a dialog the program takes no events; it is told when the dialog has gone.
  const Form* modal = desktop_.program().State().desk.Modal();
  if (modal != nullptr && modal != form_) return;
  place_untold_ = false;
  const QScopedValueRollback<bool> telling(telling_place_, true);
  const Place& told = form_->Place();
  const QPoint place = windowHandle()->framePosition();
  if (place != QPoint(To_Pixels(told.left), To_Pixels(told.top))) {
    UserEvent moved{UserAction::kMove, *form_};
    moved.left = To_Twips(place.x());
    moved.top = To_Twips(place.y());
    desktop_.Answer(moved);
  }
  if (form_ == nullptr || size() == QSize(To_Pixels(told.width), To_Pixels(told.height))) return;
  UserEvent resized{UserAction::kResize, *form_};
  resized.width = To_Twips(width());
  resized.height = To_Twips(height());
  desktop_.Answer(resized);
}

}  // namespace norvane
