#include "calc/limits.h"
#include "calc/sizes.h"
#include "data/text.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

/// Handlers that may run inside each other; where they come to an end, three do.
constexpr int kDeepest = 16;

/// Counts a call for as long as it runs.
class Running {
 public:
  explicit Running(int& calls) : calls_(calls) { ++calls_; }
  ~Running() { --calls_; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  int& calls_;
};

}  // namespace

void Warmt::Change(FieldArray<TextField>& F, int Index) {
  if (Index == 0 || Index == 1) Show_Fahrenheit(Index, F(Index));
  if (Calc_Busy) return;
  // The thickness of mode "C" knows no limit, but its field does: a result above it is cut and
  // calculated anew, and what isn't canonical of the new text ("177.0", or "177,3", which reads as
  // 177) is mended, which is cut again, without an end. Each handler ends with the result in place.
  if (changes_ == kDeepest) return;
  const Running running(changes_);
  switch (Index) {
    case 0:
    case 1:
      Limit_Temperature(Index, F(Index));
      break;
    case 2:
      Limit_Thickness(F(2));
      break;
    case 3:
      Limit_Diameter(F(3));
      break;
    default:
      break;
  }
  // The diameter gates every field of the array, on a sheet too, where nobody sees it.
  if (Val(F(3).Text()) < kLeastDiameter) {
    module1_.desk.Set_Focus(F(3));
    return;
  }
  Bereken();
}

// Each limit reads the text again wherever it needs the value: a write may have run a whole handler
// inside it.

void Warmt::Write_Canonically(TextField& field) {
  field.Set_Text(Format(Val(field.Text()), module1_.Locale()));
}

void Warmt::Limit_Temperature(int Index, TextField& field) {
  const Limits& limits = kTemperatureLimits[Index];
  const norvane::Locale locale = module1_.Locale();
  if (Val(field.Text()) < limits.least) field.Set_Text(Format(limits.least, locale));
  if (Val(field.Text()) > limits.most) field.Set_Text(Format(limits.most, locale));
  Write_Canonically(field);
}

void Warmt::Limit_Thickness(TextField& field) {
  if (Val(field.Text()) < 0) {
    field.Set_Text("0");
    Text2(2).Set_Caption("");
    Text2(2).Set_Visible(false);
    Label8(2).Set_Visible(false);
  }
  if (Val(field.Text()) > kMostThickness) {
    field.Set_Text("100");
    Show_Inch_Of_Thickness(field);
  }
  Write_Canonically(field);
  Show_Inch_Of_Thickness(field);
}

void Warmt::Limit_Diameter(TextField& field) {
  if (Val(field.Text()) < kLeastDiameter) Init_results();
  const double most = Pipe_Sizes(module1_.Sel_Size).back().mm;
  if (Val(field.Text()) > most) {
    field.Set_Text(Format(most, module1_.Locale()));
    Show_Inch_Of_Diameter(field);
    Show_Or_Hide_Inch(3);
  }
  Write_Canonically(field);
  Show_Inch_Of_Diameter(field);
  Show_Or_Hide_Inch(3);
}

void Warmt::Show_Inch_Of_Thickness(TextField& field) {
  Text2(2).Set_Caption(InchIso(To_Int16(Val(field.Text())), module1_.Sel_Size));
  Show_Or_Hide_Inch(2);
}

void Warmt::Show_Inch_Of_Diameter(TextField& field) {
  Text2(3).Set_Caption(Inch(To_Int16(Val(field.Text())), module1_.Sel_Size));
}

void Warmt::Show_Or_Hide_Inch(int Index) {
  const std::string& caption = Text2(Index).Caption();
  const bool nothing = Trim(caption).empty() || (Index == 2 && caption == "0");
  Text2(Index).Set_Visible(!nothing);
  Label8(Index).Set_Visible(!nothing);
}

void Warmt::Change_txtmtrs() {
  if (Val(txtmtrs.Text()) <= kMostLength) {
    module1_.Mtrs = To_Int16(Val(txtmtrs.Text()));
  } else {
    module1_.Mtrs = To_Int16(kMostLength);
    txtmtrs.Set_Text("10000");
    module1_.desk.Let_Events_Run();
  }
  Bereken();
}

void Warmt::Change_Text4() {
  if (!Calc_Busy) Bereken();
}

}  // namespace norvane
