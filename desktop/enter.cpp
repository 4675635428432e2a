#include "desktop/enter.h"

#include <cstdlib>

#include "desktop/form_view.h"
#include "screen/warmt.h"

namespace norvane {

void Enter(FormView& view, Warmt& warmt, const InputRow& row, const std::string& text) {
  TextField& field = Field_Of(warmt, row);
  if (!field.Locked()) {
    view.Send_Text(field, QString::fromStdString(text));
    return;
  }
  const int clicks = Clicks_To(warmt, row, text);
  const UserAction click = clicks < 0 ? UserAction::kDown : UserAction::kUp;
  for (int i = 0; i < std::abs(clicks); ++i) view.Send(click, warmt.SpinButton1(row.index));
}

}  // namespace norvane
