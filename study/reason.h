#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// Why an object has no result.
struct Reason {
  enum Code {
    kMissing,        ///< the column has no number
    kNoNumber,       ///< what stands in the column is no number
    kTooSmall,       ///< below `limit`
    kTooLarge,       ///< above `limit`
    kUnknownKind,    ///< the column `kind` has none of its words
    kNoDewPoint,     ///< the dew-point table has no such temperature, humidity, or cell
    kBeyondRange,    ///< a value of the calculation leaves its range
    kFieldCount,     ///< the row has more fields than the header has, or fewer
    kNotUtf8,        ///< the row has bytes that are no UTF-8
    kQuoteLeftOpen,  ///< a quoted field doesn't end
  };

  Code code;
  std::string_view column;  ///< where one column is to blame
  double limit = 0;
};

/// The reason in words, such as "medium_C is above 115".
/// @param reason with its column and limit
std::string Words(const Reason& reason);

}  // namespace norvane
