#pragma once

#include <array>
#include <string>

namespace norvane {

/// The string-table id of a cell of the dew-point table; row 0 holds the headings.
/// @param row from 0
/// @param column from 0
int Dew_Cell_Id(int row, int column);

/// The dew-point table as numbers, filled from the string table. Indices count from 1; cells that
/// the string table doesn't fill are 0.
class Dew_Table {
 public:
  static constexpr int kRows = 100;
  static constexpr int kColumns = 20;

  Dew_Table();

  /// How many degrees the dew point lies below the ambient temperature of `row` at the humidity of
  /// `column`; columns 1 and 2 hold the ambient temperature and the vapour concentration.
  /// @param row from 1 to `kRows` - 1
  /// @param column from 1 to `kColumns` - 1
  float operator()(int row, int column) const;

 private:
  std::array<std::array<float, kColumns>, kRows> cells_{};
};

/// The dew point in degrees Celsius of air of `iTA` degrees and `iRv` percent relative humidity.
/// Both are looked up exactly, without interpolation; what the table doesn't hold gives `iTA`.
/// @param iTA ambient temperature, degrees Celsius
/// @param iRv relative humidity, percent
float Trt_DauwPunt(float iTA, float iRv);

}  // namespace norvane
