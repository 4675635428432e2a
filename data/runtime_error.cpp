#include "data/runtime_error.h"

namespace norvane {

const char* RuntimeError::what() const noexcept {
  switch (number_) {
    case kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case kOverflow:
      return "Overflow";
    case kOutOfMemory:
      return "Out of memory";
    case kSubscriptOutOfRange:
      return "Subscript out of range";
    case kDivisionByZero:
      return "Division by zero";
    case kTypeMismatch:
      return "Type mismatch";
    case kInternalError:
      return "Internal error";
    case kCannotCreateObject:
      return "ActiveX component can't create object";
  }
  return "Application-defined or object-defined error";
}

}  // namespace norvane
