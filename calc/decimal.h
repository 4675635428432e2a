#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// A finite number as the decimal text that stands for it: 0.d1 d2 d3 ... x 10^exponent, without
/// trailing zeros. Zero has no digits and no sign.
class Decimal {
 public:
  /// At most `digits` significant digits of the value; of a single the fewest that read back as it.
  /// @param value a finite number
  /// @param digits from 1 to 17
  Decimal(double value, int digits);
  Decimal(float value, int digits);

  /// Plain digits without needless zeros, or the form 1.5E+20 when the number has more than
  /// `widest` digits before its point.
  /// @param widest digits before the point
  /// @param decimal_separator the sign before the decimals
  std::string Bare(int widest, char decimal_separator) const;

  /// Rounded half away from zero to the decimals of `mask`, with at least as many digits before
  /// the point as the mask has zeros there. A result of zero has no minus sign.
  /// @param mask of '#' and '0' with a point
  /// @param decimal_separator the sign before the decimals
  std::string Under_Mask(std::string_view mask, char decimal_separator) const;

 private:
  /// Takes sign, digits and exponent from a text of the form d.ddde+xx.
  void Read_Scientific(std::string_view text);
  void Round_To_Decimals(int decimals);
  /// The digits before the point, none when the number is below 1; zeros fill up to the point.
  std::string Whole_Part() const;
  /// The digits behind the point.
  std::string Fraction() const;

  bool negative_ = false;
  std::string digits_;
  int exponent_ = 0;
};

}  // namespace norvane
