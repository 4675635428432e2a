#pragma once

#include "desktop/form_view.h"
#include "frame/about_form.h"

namespace norvane {

/// The splash screen.
class SplashView : public FormView {
  Q_OBJECT

 public:
  SplashView(Desktop& desktop, About& about);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace norvane
