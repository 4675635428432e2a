#include "desktop/screen_chart.h"

#include <utility>

#include "desktop/accessible.h"
#include "desktop/chart_of_screen.h"
#include "desktop/desktop.h"
#include "desktop/enter.h"
#include "desktop/form_view.h"
#include "desktop/own_texts.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr InputRow kThickness{2, true};
constexpr InputRow kHumidity{4, false};

}  // namespace

ScreenChart::ScreenChart(FormView& view, Warmt& warmt) : view_(view), warmt_(warmt) {
  later_.setSingleShot(true);
  later_.setInterval(0);
  later_.callOnTimeout([this] { Draw_Anew(); });
  connect(this, &ChartView::Chosen, this, &ScreenChart::Enter_Place);
}

void ScreenChart::Draw_Anew() {
  Desktop& desktop = view_.desktop();
  if (view_.form() == nullptr || desktop.program().Ended()) return;
  const Module1& state = desktop.program().State();
  Subject subject{Heat_Loss_On_Screen(state, warmt_), Condensation_On_Screen(state, warmt_),
                  state.Lang_Index};
  // A metre has the same curves whatever use is made of how many.
  if (subject.heat_loss) subject.heat_loss->Mtrs = 1;
  if (std::exchange(subject_, subject) == subject) return;
  setFont(view_.Widget_Of(warmt_.Label3(2))->font());
  Set_Chart(Chart_Of_Screen(desktop, warmt_));
  Tell_Values();
}

void ScreenChart::Tell_Values() {
  QStringList told;
  if (Shown_Chart().present) {
    for (const ChartLine& line : Shown_Chart().lines) {
      told << line.name + ": " + Chart_Value(line.at_present, Shown_Chart().locale);
    }
  }
  Tell(*this, Own_Text(view_.desktop(), TextId::kChart), told.join("; "));
}

void ScreenChart::Enter_Place(float place) {
  const std::string text = Text_Of_Single(place, Locale{});
  Enter(view_, warmt_, subject_.heat_loss ? kThickness : kHumidity, text);
}

}  // namespace norvane
