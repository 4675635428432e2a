#include <algorithm>
#include <cmath>

#include "calc/limits.h"
#include "calc/sizes.h"
#include "data/runtime_error.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr double kMeanLimit = 105;  // degrees Celsius
constexpr int kFirstHumidity = 3;   // the columns before it hold no humidity

using Entries = std::vector<std::optional<double>>;

/// The next index on a ring of `first` to the last of `list`.
std::int16_t Next_On_Ring(std::int16_t index, int direction, int first, const Entries& list) {
  const int last = static_cast<int>(list.size()) - 1;
  const std::int16_t next = To_Int16(index + direction);
  if (direction < 0) return next < first ? static_cast<std::int16_t>(last) : next;
  return next > last ? static_cast<std::int16_t>(first) : next;
}

/// The entry as a text, empty for the empty one.
std::string Text_Of_Entry(const Entries& list, int index, const Locale& locale) {
  if (index < 0 || index >= static_cast<int>(list.size())) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  const auto& entry = list[static_cast<std::size_t>(index)];
  return entry ? Format(*entry, locale) : "";
}

}  // namespace

// A text that a down click writes runs the field's whole handler, with its limits and a
// calculation; one that an up click writes only runs its conversion, as the flag is set.

void Warmt::DownClick(int Index) {
  Spin_Row(Index, Direction::kDown);
  Finish_Spin();
}

void Warmt::UpClick(int Index) {
  if (txtT(3).Visible() && Val(txtT(3).Text()) < kLeastDiameter) {
    module1_.desk.Set_Focus(txtT(3));
    Init_results();
    return;
  }
  Calc_Busy = true;
  Spin_Row(Index, Direction::kUp);
  Finish_Spin();
}

void Warmt::Finish_Spin() {
  Bereken();
  Calc_Busy = false;
}

void Warmt::Spin_Row(int Index, Direction direction) {
  switch (Index) {
    case 0:
      Spin_Temperature(0, direction);
      break;
    case 1:
      if (Calc_Mode == "T") {
        Spin_Temperature(1, direction);
      } else {
        Spin_Dew_Temperature(direction);
      }
      break;
    case 2:
      Spin_Thickness(direction);
      break;
    case 3:
      Spin_Diameter(direction);
      break;
    case 4:
      Spin_Humidity(direction);
      break;
    case 5:
      Spin_Length(direction);
      break;
    default:
      break;
  }
}

void Warmt::Spin_Temperature(int Index, Direction direction) {
  FieldArray<TextField>& F = Mode_Fields();
  const double v = Val(F(Index).Text());
  const double o = Val(F(1 - Index).Text());
  // The old value is what has to lie inside the range, so that an up click can pass its end.
  const Limits& range = kTemperatureLimits[Index];
  const bool starts = direction == Direction::kDown ? v > range.least : v < range.most;
  const double stepped = v + static_cast<int>(direction) * kTemperatureStep;
  if (!starts || std::abs(stepped + o) / 2 >= kMeanLimit) return;
  F(Index).Set_Text(Format(stepped, module1_.Locale()));
  Show_Fahrenheit(Index, F(Index));
}

void Warmt::Spin_Dew_Temperature(Direction direction) {
  Idx_A1 = Next_On_Ring(Idx_A1, static_cast<int>(direction), 1, Dew_Temps);
  txtC(1).Set_Text(Text_Of_Entry(Dew_Temps, Idx_A1, module1_.Locale()));
  if (direction == Direction::kDown) Show_Fahrenheit(1, txtC(1));
}

void Warmt::Spin_Thickness(Direction direction) {
  const auto steps = Thick_Steps();
  const double now = Val(txtT(2).Text());
  const auto step_to = [&](std::int16_t mm) {
    txtT(2).Set_Text(Format(mm, module1_.Locale()));
    Show_Inch_Of_Thickness(txtT(2));
  };
  if (direction == Direction::kDown) {
    const auto below =
        std::find_if(steps.rbegin(), steps.rend(), [&](auto mm) { return mm < now; });
    if (below != steps.rend()) step_to(*below);
  } else {
    const auto above = std::find_if(steps.begin(), steps.end(), [&](auto mm) { return mm > now; });
    if (above != steps.end()) step_to(*above);
  }
}

void Warmt::Spin_Diameter(Direction direction) {
  TextField& field = Mode_Fields()(3);
  const auto sizes = Pipe_Sizes(module1_.Sel_Size);
  for (std::size_t n = 0; n < sizes.size(); ++n) {
    const int mm = sizes[direction == Direction::kDown ? sizes.size() - 1 - n : n].mm;
    const double now = Val(field.Text());
    if (direction == Direction::kDown ? mm < now : mm > now) {
      field.Set_Text(Format(mm, module1_.Locale()));
      Show_Inch_Of_Diameter(field);
      return;
    }
    // On the sizes passed by, not behind the step: the shown inch text lags one up click behind.
    Show_Or_Hide_Inch(3);
  }
}

void Warmt::Spin_Humidity(Direction direction) {
  Idx_A4 = Next_On_Ring(Idx_A4, static_cast<int>(direction), kFirstHumidity, Dew_Hums);
  txtC(4).Set_Text(Text_Of_Entry(Dew_Hums, Idx_A4, module1_.Locale()));
}

void Warmt::Spin_Length(Direction direction) {
  const norvane::Locale locale = module1_.Locale();
  txtmtrs.Set_Text(Format(Val(txtmtrs.Text()) + static_cast<int>(direction), locale));
  if (direction == Direction::kDown && Val(txtmtrs.Text()) == 0) txtmtrs.Set_Text("1");
}

}  // namespace norvane
