#include "spreadsheet/excel/members.h"

#include "platform/spreadsheet.h"

namespace norvane {
namespace {

constexpr LCID kEnglish = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
constexpr DWORD kBetweenCalls = 100;  // milliseconds

/// What Excel answers by itself, past all message filters, while a cell is being edited.
constexpr auto kExcelIsBusy = static_cast<HRESULT>(0x800AC472);

bool Is_Busy(HRESULT result) {
  return result == kExcelIsBusy || result == RPC_E_CALL_REJECTED ||
         result == RPC_E_SERVERCALL_RETRYLATER;
}

}  // namespace

void Require(HRESULT result) {
  if (FAILED(result)) throw SpreadsheetFailure();
}

Variant Members::Ask(const Variant& object, const wchar_t* member, WORD how,
                     Variant* argument) const {
  IDispatch* const asked = object.Object();
  if (asked == nullptr) throw SpreadsheetFailure();
  const auto end = std::chrono::steady_clock::now() + patience_;
  const auto in_time = [&](const auto& call) {
    HRESULT result = call();
    while (Is_Busy(result) && std::chrono::steady_clock::now() < end) {
      Sleep(kBetweenCalls);
      result = call();
    }
    Require(result);
  };
  DISPID number = 0;
  auto* name = const_cast<wchar_t*>(member);
  in_time([&] { return asked->GetIDsOfNames(IID_NULL, &name, 1, kEnglish, &number); });

  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS arguments{};
  if (argument != nullptr) {
    arguments.rgvarg = argument->Raw();
    arguments.cArgs = 1;
  }
  if (how == DISPATCH_PROPERTYPUT) {
    arguments.rgdispidNamedArgs = &put;
    arguments.cNamedArgs = 1;
  }
  Variant result;
  in_time([&] {
    return asked->Invoke(number, IID_NULL, kEnglish, how, &arguments, result.Raw(), nullptr,
                         nullptr);
  });
  return result;
}

Variant Members::Get(const Variant& object, const wchar_t* member) const {
  return Ask(object, member, DISPATCH_PROPERTYGET, nullptr);
}

Variant Members::Get(const Variant& object, const wchar_t* member, Variant argument) const {
  return Ask(object, member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, &argument);
}

void Members::Put(const Variant& object, const wchar_t* member, Variant value) const {
  Ask(object, member, DISPATCH_PROPERTYPUT, &value);
}

void Members::Call(const Variant& object, const wchar_t* member) const {
  Ask(object, member, DISPATCH_METHOD, nullptr);
}

}  // namespace norvane
