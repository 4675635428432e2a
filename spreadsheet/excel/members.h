#pragma once

#include <chrono>
#include <string>

#include "spreadsheet/excel/variant.h"

namespace norvane {

/// Throws `SpreadsheetFailure` for a result that tells of one.
void Require(HRESULT result);

/// Asks objects of another program for their members, by name at run time and in English: a program
/// of another language than the user's would refuse the user's. A program that is busy is asked
/// again until the patience is at an end. Whatever can't be done throws `SpreadsheetFailure`.
class Members {
 public:
  explicit Members(std::chrono::milliseconds patience) : patience_(patience) {}

  Variant Get(const Variant& object, const wchar_t* member) const;
  Variant Get(const Variant& object, const wchar_t* member, Variant argument) const;
  void Put(const Variant& object, const wchar_t* member, Variant value) const;
  void Call(const Variant& object, const wchar_t* member) const;

 private:
  Variant Ask(const Variant& object, const wchar_t* member, WORD how, Variant* argument) const;

  std::chrono::milliseconds patience_;
};

}  // namespace norvane
