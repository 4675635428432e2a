#pragma once

#include "desktop/form_view.h"
#include "totals/total_form.h"

namespace norvane {

class GridModel;

/// The screen of the saved calculations.
class TotalView : public FormView {
  Q_OBJECT

 public:
  TotalView(Desktop& desktop, Total& total);
};

}  // namespace norvane
