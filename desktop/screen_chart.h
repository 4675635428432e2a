#pragma once

#include <QTimer>
#include <cstdint>
#include <optional>

#include "desktop/chart_view.h"
#include "screen/inputs.h"

namespace norvane {

class FormView;

/// The chart of the main screen. It is drawn anew when the numbers have been painted, and only when
/// something has changed of what it shows. A click enters the thickness or the humidity there.
class ScreenChart : public ChartView {
  Q_OBJECT

 public:
  ScreenChart(FormView& view, Warmt& warmt);

  /// Something on the screen may have changed.
  void Follow() { later_.start(); }

 private:
  /// What the chart depends on.
  struct Subject {
    std::optional<HeatFlowInput> heat_loss;
    std::optional<CondensationOnScreen> condensation;
    std::int16_t language = -1;

    bool operator==(const Subject&) const = default;
  };

  void Draw_Anew();
  void Tell_Values();
  void Enter_Place(float place);

  FormView& view_;
  Warmt& warmt_;
  QTimer later_;
  Subject subject_;
};

}  // namespace norvane
