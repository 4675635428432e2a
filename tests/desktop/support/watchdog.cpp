#include "watchdog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "input.h"

namespace norvane {
namespace {

constexpr int kInterval = 10;  // milliseconds
constexpr int kGrace = 3000;   // milliseconds to come to its end when the patience is over

}  // namespace

Watchdog::Watchdog() {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
  timer_.start(kInterval);
}

Watchdog::~Watchdog() { EXPECT_TRUE(Content()) << "a dialog that was expected didn't come"; }

void Watchdog::Expect(std::function<void(QWidget& window)> procedure) {
  expected_.push_back(std::move(procedure));
}

void Watchdog::Expect_Message(QMessageBox::StandardButton answer) {
  Expect([this, answer](QWidget& window) {
    auto* box = qobject_cast<QMessageBox*>(&window);
    if (box == nullptr) {
      ADD_FAILURE() << "a dialog came where a message was expected";
      Close(window);
      return;
    }
    messages_.push_back({box->windowTitle(), box->text(), box->icon()});
    if (QAbstractButton* button = box->button(answer)) {
      Click(*button);
    } else {
      ADD_FAILURE() << "the message has no such button";
      box->reject();
    }
  });
}

void Watchdog::Look() {
  QWidget* window = QApplication::activeModalWidget();
  // One that only tells how far something has come closes by itself.
  if (qobject_cast<QProgressDialog*>(window) != nullptr) window = nullptr;
  // One that lies under another comes up again when that is closed, and isn't new then.
  if (window != nullptr && std::find(seen_.begin(), seen_.end(), window) == seen_.end()) {
    seen_.emplace_back(window);
    Hand_Over(*window);
  }
  const int elapsed = ++looks_ * kInterval;
  if (elapsed == patience_) {
    ADD_FAILURE() << "the test takes too long";
    if (window != nullptr) Close(*window);
    QCoreApplication::exit(-1);
  } else if (elapsed > patience_ + kGrace) {
    std::fputs("the test doesn't come to its end\n", stderr);
    std::_Exit(1);
  }
}

void Watchdog::Hand_Over(QWidget& window) {
  // Not from the timer itself, which wouldn't run again before its slot returns.
  QTimer::singleShot(0, &window, [this, &window] {
    EXPECT_TRUE(Comes_To_Front(window)) << "the dialog doesn't come to the front";
    if (expected_.empty()) {
      const auto* box = qobject_cast<QMessageBox*>(&window);
      ADD_FAILURE() << "unexpected dialog "
                    << qPrintable(box != nullptr ? box->text() : window.windowTitle());
      Close(window);
      return;
    }
    const auto procedure = std::move(expected_.front());
    expected_.pop_front();
    at_work_ = true;
    const QPointer<QWidget> alive(&window);
    procedure(window);
    at_work_ = false;
    if (alive && alive->isVisible()) {
      ADD_FAILURE() << "the dialog is still open";
      Close(*alive);
    }
  });
}

void Watchdog::Close(QWidget& window) {
  if (auto* box = qobject_cast<QMessageBox*>(&window)) {
    box->reject();
  } else {
    window.close();
  }
}

}  // namespace norvane
