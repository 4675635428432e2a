#include "desktop/splash_view.h"

#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/background.h"
#include "desktop/colours.h"

namespace norvane {

SplashView::SplashView(Desktop& desktop, About& about) : FormView(desktop, about) {
  setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(28, 28, 28, 24);
  auto* title = new QLabel;
  // The ground is light under every theme of the desktop.
  setPalette(QPalette(kGround));
  column->addStretch();
  column->addWidget(title);
  Bind<CaptionBinder>(about.Label1, *title);
  Bind<TimerBinder>(about.Timer1, *new QTimer(this));
}

void SplashView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Draw_Background(painter, size(), 1.0);
}

}  // namespace norvane
