#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace norvane {

struct Module1;
class Warmt;

/// The main result of the mode, from what the screen shows: the heat flow with insulation, or the
/// thickness that is needed.
struct Answer {
  std::string value;
  std::string unit;
  bool heat_loss = false;
  std::optional<std::string> saving;  ///< of heat loss, with its sign; none where nothing is saved
  std::optional<std::int16_t> next_size;  ///< of condensation, mm: the next step that is sold

  bool operator==(const Answer&) const = default;
};

/// Nothing while the results are blank.
std::optional<Answer> Answer_On_Screen(const Module1& module1, Warmt& warmt);

/// The air of condensation, and the surface in it; degrees Celsius.
struct DewPointOnScreen {
  float T_dew = 0;
  /// How far the shown surface lies above the dew point. None of a sheet, whose shown surface isn't
  /// that of the needed thickness.
  std::optional<float> surface_above;
  float T_med = 0;
  float T_amb = 0;
  float T_surf = 0;  ///< at the needed thickness

  bool operator==(const DewPointOnScreen&) const = default;
};

/// Nothing in heat loss, while the results are blank, and where the dew point isn't known.
std::optional<DewPointOnScreen> Dew_Point_On_Screen(const Module1& module1, Warmt& warmt);

}  // namespace norvane
