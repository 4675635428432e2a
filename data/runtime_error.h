#pragma once

#include <exception>

namespace norvane {

/// A failure that no procedure of the program handles. It carries the runtime's classic number;
/// `Program` turns it into the platform's message box and the end of the program.
class RuntimeError : public std::exception {
 public:
  enum Number {
    kInvalidProcedureCall = 5,
    kOverflow = 6,
    kOutOfMemory = 7,
    kSubscriptOutOfRange = 9,
    kDivisionByZero = 11,
    kTypeMismatch = 13,
    kInternalError = 51,
    kCannotCreateObject = 429,
  };

  explicit RuntimeError(Number number) : number_(number) {}

  int number() const { return number_; }

  /// The classic words of the number, such as "Overflow" for 6.
  const char* what() const noexcept override;

 private:
  Number number_;
};

}  // namespace norvane
