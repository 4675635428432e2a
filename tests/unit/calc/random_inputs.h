#pragma once

#include <cstdint>
#include <string>

#include "calc/condensation.h"
#include "calc/conversions.h"
#include "calc/heat_loss.h"

namespace norvane {

/// Inputs drawn at random over all that the screen lets through. The same seed gives the same
/// inputs everywhere.
class RandomInputs {
 public:
  explicit RandomInputs(std::uint64_t seed) : state_(seed) {}

  Locale Draw_Locale();
  HeatLossInput Draw_Heat_Loss(const Locale& locale);
  /// Nearly always one that needs less than 120 mm, so that a million of them take seconds.
  CondensInput Draw_Condensation(const Locale& locale);

 private:
  std::uint64_t Draw();
  int From(int least, int most);
  bool One_In(int count) { return From(1, count) == 1; }
  /// A number in tenths or hundredths between two whole limits, mostly a whole one.
  double Number(int least, int most);
  /// A field in mm as metres in single precision.
  float Metres(double mm) { return static_cast<float>(mm / 1000.0); }
  double Diameter_Mm(int Sel_Size);
  float Lambda();
  std::string Alpha_Text(const Locale& locale);
  CondensInput Draw_Any_Condensation(const Locale& locale);

  std::uint64_t state_;
};

}  // namespace norvane
