#include "study/reason.h"

#include "calc/conversions.h"

namespace norvane {

std::string Words(const Reason& reason) {
  const std::string column(reason.column);
  switch (reason.code) {
    case Reason::kMissing:
      return column + " is missing";
    case Reason::kNoNumber:
      return column + " is no number";
    case Reason::kTooSmall:
      return column + " is below " + Text_Of_Single(static_cast<float>(reason.limit), Locale{});
    case Reason::kTooLarge:
      return column + " is above " + Text_Of_Single(static_cast<float>(reason.limit), Locale{});
    case Reason::kUnknownKind:
      return "kind is none of steel copper metric sheet";
    case Reason::kNoDewPoint:
      return "the dew-point table has no such temperature and humidity";
    case Reason::kBeyondRange:
      return "a result is beyond its range";
    case Reason::kFieldCount:
      return "the row has not as many fields as the header";
    case Reason::kNotUtf8:
      return "the row has bytes that are no UTF-8";
    case Reason::kQuoteLeftOpen:
      return "a quote is left open";
  }
  return {};
}

}  // namespace norvane
