#include "desktop/busy.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWindow>

#include "frame/version.h"

namespace norvane {
namespace {

constexpr int kLongList = 2000;  // rows; fewer are written before anybody could read

}  // namespace

void Busy::Wait_A_Moment() {
  if (!pointer_shown_) QApplication::setOverrideCursor(Qt::BusyCursor);
  pointer_shown_ = true;
  const QScopedValueRollback<bool> painting(painting_, true);
  // No event of the user: the program is in the middle of one.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Busy::Progress(int done, int total) {
  if (total < kLongList) {
    progress_.reset();
    return;
  }
  if (!progress_) {
    // No window's child: one that closes meanwhile would take it along.
    progress_ = std::make_unique<QProgressDialog>();
    Lay_Over(QApplication::activeWindow());
    progress_->setWindowTitle(kTitle);
    progress_->setCancelButton(nullptr);
    progress_->setMinimumDuration(0);
    progress_->setWindowModality(Qt::ApplicationModal);
  }
  progress_->setMaximum(total);
  progress_->setLabelText(QString("%1 / %2").arg(done).arg(total));
  const QScopedValueRollback<bool> painting(painting_, true);
  progress_->setValue(done);
  Wait_A_Moment();
}

void Busy::Lay_Over(const QWidget* window) {
  if (window == nullptr) return;
  progress_->winId();
  progress_->windowHandle()->setTransientParent(window->windowHandle());
  progress_->move(window->geometry().center() - progress_->rect().center());
}

void Busy::End() {
  // A window that is resized or activated meanwhile ends an event of its own.
  if (painting_) return;
  progress_.reset();
  if (pointer_shown_) QApplication::restoreOverrideCursor();
  pointer_shown_ = false;
}

}  // namespace norvane
