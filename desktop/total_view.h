#pragma once

#include "desktop/form_view.h"
#include "totals/total_form.h"

class QPushButton;

namespace norvane {

/// The screen of the saved calculations.
class TotalView : public FormView {
  Q_OBJECT

 public:
  TotalView(Desktop& desktop, Total& total);

 protected:
  void Arrange() override;

 private:
  QPushButton* delete_;  ///< the marked lines
};

}  // namespace norvane
