#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "calc/conversions.h"

namespace norvane {

/// The kind of object, the values of `Sel_Size`.
enum Kind : std::int16_t {
  kSteelPipe = 0,   ///< pipe family 0, nominal steel sizes
  kCopperTube = 1,  ///< pipe family 1, copper tube
  kMetricPipe = 2,  ///< pipe family 2, metric sizes
  kSheet = 3,
};

/// Conductivity of the default material, at 0 degrees Celsius, W/mK.
inline constexpr float kDefaultLambda = 0.032F;

/// Conductivity of the other material that has a button of its own, at 0 degrees Celsius, W/mK.
inline constexpr float kSecondLambda = 0.034F;

/// Conductivity gained per degree of mean temperature, W/mK per degree Celsius.
inline constexpr double kLambdaSlope = 0.00015;

/// What a pipe without a diameter counts as, in metres.
inline constexpr float kEmptyDiameter = 10.0F;

/// An object in numbers alone. Temperatures, hours, days and metres may have decimals.
struct HeatFlowInput {
  double T_med = 0;  ///< medium, degrees Celsius
  double T_amb = 0;  ///< surroundings, degrees Celsius
  float d_ins = 0;   ///< insulation thickness, m
  float D_pipe = 0;  ///< outer diameter of the bare pipe, m; not read for a sheet
  float Alpha = 0;   ///< surface heat-transfer coefficient, W/m2K
  std::int16_t Sel_Size = kSteelPipe;
  float Lambda = 0;         ///< conductivity at 0 degrees Celsius, W/mK
  double Hr_Day = 0;        ///< operating hours a day
  double Days = 0;          ///< operating days
  double Mtrs = 0;          ///< m of pipe, m2 of sheet
  bool hot_medium = false;  ///< the medium is the warmer side

  bool operator==(const HeatFlowInput&) const = default;
};

/// An object as the main screen's fields hold it.
struct HeatLossInput {
  std::int16_t T_med = 0;  ///< medium, degrees Celsius
  std::int16_t T_amb = 0;  ///< surroundings, degrees Celsius
  double raw_T_med = 0;    ///< the same before rounding
  double raw_T_amb = 0;
  float d_ins = 0;         ///< insulation thickness, m
  float D_pipe = 0;        ///< outer diameter of the bare pipe, m; not read for a sheet
  std::string alpha_text;  ///< surface heat-transfer coefficient as typed, W/m2K; may be empty
  std::int16_t Sel_Size = kSteelPipe;
  float Lambda = 0;         ///< conductivity at 0 degrees Celsius, W/mK
  std::int16_t Hr_Day = 0;  ///< operating hours a day
  std::int16_t Days = 0;    ///< operating days
  std::int16_t Mtrs = 0;    ///< m of pipe, m2 of sheet
};

/// What makes the heat of a flow: in all hours, days and metres.
struct Fuels {
  double gas = 0;         ///< m3
  double oil = 0;         ///< litres
  float electricity = 0;  ///< kWh
};

/// What the insulation saves over all hours, days and metres; `difference` alone is for one metre.
struct Savings {
  std::int16_t Saving_Pct = 0;
  float difference = 0;   ///< |Q_bare - Q_ins|, W/m of pipe or W/m2 of sheet
  double gas = 0;         ///< m3
  double oil = 0;         ///< litres
  float electricity = 0;  ///< kWh
};

struct HeatLossResult {
  float lambda_T = 0;  ///< conductivity at mean temperature, W/mK
  float Alpha = 0;     ///< surface heat-transfer coefficient in effect, W/m2K
  float T_surf = 0;    ///< surface of the insulation, degrees Celsius
  float Q_bare = 0;    ///< heat flow, W/m of pipe or W/m2 of sheet
  float Q_ins = 0;
  /// Unset when the medium is the warmer side and the insulated object loses more than the bare
  /// one.
  std::optional<Savings> savings;
};

/// The surface heat-transfer coefficient of a kind of object, W/m2K: 12.5 for steel pipes and
/// sheets, 10 for copper tubes and metric pipes.
/// @param Sel_Size a `Kind`
float Default_Alpha(std::int16_t Sel_Size);

/// The surface heat-transfer coefficient in effect, W/m2K: the typed one when it is a number above
/// 0, else the default of the kind. Throws `RuntimeError` 13 for a text that is no number.
/// @param alpha_text as typed, in the user's number signs
/// @param Sel_Size a `Kind`
/// @param locale the user's number signs
float Effective_Alpha(const std::string& alpha_text, std::int16_t Sel_Size, const Locale& locale);

/// What makes the heat of a flow, W/m of pipe or W/m2 of sheet, through the object of `input`.
/// @param heat_flow W/m of pipe or W/m2 of sheet
/// @param input whose time and length or area count
Fuels Fuels_For(float heat_flow, const HeatFlowInput& input);

/// Steady heat flow through a bare and an insulated cylinder or plane wall (the textbook relations
/// for one layer with surface resistance, pi taken as 3.1415). The medium side's resistance is
/// neglected, and the insulated pipe's surface is taken at its outer diameter.
/// Throws `RuntimeError` 5, 6 or 11 where a value leaves the range of its type.
/// @param input the object and its use
HeatLossResult Heat_Loss(const HeatFlowInput& input);

/// An object of the main screen's fields in numbers alone. Throws `RuntimeError` 13 for an alpha
/// that is no number, 6 for temperatures whose sum or difference doesn't fit 16 bits.
/// @param input the object and its use
/// @param locale the user's number signs
HeatFlowInput In_Numbers(const HeatLossInput& input, const Locale& locale);

/// The heat loss of an object of the main screen's fields. Throws as `In_Numbers` does, too.
/// @param input the object and its use
/// @param locale the user's number signs
HeatLossResult Heat_Loss(const HeatLossInput& input, const Locale& locale);

}  // namespace norvane
