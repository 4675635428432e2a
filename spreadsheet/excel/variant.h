#pragma once

#define NOGDI  // has a GetObject of its own
#include <windows.h>

#include <string>
#include <utility>

namespace norvane {

/// A value as it goes over to Excel and comes back.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(bool truth) : Variant() {
    value_.vt = VT_BOOL;
    value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
  }
  explicit Variant(int number) : Variant() {
    value_.vt = VT_I4;
    value_.lVal = number;
  }
  explicit Variant(double number) : Variant() {
    value_.vt = VT_R8;
    value_.dblVal = number;
  }
  explicit Variant(const std::wstring& text) : Variant() {
    value_.vt = VT_BSTR;
    value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  }
  /// Takes over an array of texts (`VT_BSTR`) or of values (`VT_VARIANT`).
  Variant(SAFEARRAY* array, VARTYPE of) : Variant() {
    value_.vt = static_cast<VARTYPE>(VT_ARRAY | of);
    value_.parray = array;
  }
  /// Takes over a reference.
  explicit Variant(IDispatch* object) : Variant() {
    value_.vt = VT_DISPATCH;
    value_.pdispVal = object;
  }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  Variant(Variant&& other) noexcept : value_(std::exchange(other.value_, VARIANT{})) {}
  Variant& operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }

  VARIANT* Raw() { return &value_; }
  /// The object that it is, or null.
  IDispatch* Object() const { return value_.vt == VT_DISPATCH ? value_.pdispVal : nullptr; }
  /// Forgets the value without letting go of it.
  void Abandon() { VariantInit(&value_); }

 private:
  VARIANT value_;
};

}  // namespace norvane
