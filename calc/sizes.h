#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace norvane {

/// A stock size in mm and what the trade calls it in inch; the inch text may be empty.
struct StockSize {
  std::int16_t mm;
  const char* inch;
};

/// The outer diameters of a pipe family (0 steel, 1 copper, 2 metric), ascending; the tables
/// `Pipe_Sizes` and `Pipe_Inch` side by side. Throws `RuntimeError` 9 for any other family.
/// @param family a `Kind` of pipe
std::span<const StockSize> Pipe_Sizes(int family);

/// The insulation thicknesses of a pipe family, ascending: `Ins_Sizes` and `Ins_Inch`.
/// Throws `RuntimeError` 9 for any other family.
/// @param family a `Kind` of pipe
std::span<const StockSize> Ins_Sizes(int family);

/// The thicknesses in mm that the spin pair steps through; the first five end the picture classes.
std::span<const std::int16_t> Thick_Steps();

/// The inch text of a diameter in mm, empty when the family `Typ` has no such size. Only the
/// families 0 and 1 have inch texts.
/// @param Mm outer diameter, mm
/// @param Typ a `Kind`
std::string Inch(std::int16_t Mm, std::int16_t Typ);

/// The same for an insulation thickness in mm.
/// @param Mm thickness, mm
/// @param Typ a `Kind`
std::string InchIso(std::int16_t Mm, std::int16_t Typ);

}  // namespace norvane
