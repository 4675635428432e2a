#define NOGDI  // has a GetObject of its own
#define NOMINMAX
// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on

#include "spreadsheet/excel_spreadsheet.h"

#include <utility>

#include "spreadsheet/cell_range.h"

namespace norvane {
namespace {

constexpr const wchar_t* kClass = L"Excel.Application";
constexpr const wchar_t* kMainWindow = L"XLMAIN";
constexpr UINT kReportAsRunning = WM_USER + 18;

void Require(HRESULT result) {
  if (FAILED(result)) throw SpreadsheetFailure();
}

/// A value as it goes over to Excel and comes back.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  Variant(Variant&& other) noexcept : value_(std::exchange(other.value_, VARIANT{})) {}
  Variant& operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }

  static Variant Of(bool truth) {
    Variant variant;
    variant.value_.vt = VT_BOOL;
    variant.value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
    return variant;
  }
  static Variant Of(int number) {
    Variant variant;
    variant.value_.vt = VT_I4;
    variant.value_.lVal = number;
    return variant;
  }
  static Variant Of(double number) {
    Variant variant;
    variant.value_.vt = VT_R8;
    variant.value_.dblVal = number;
    return variant;
  }
  static Variant Of(const std::wstring& text) {
    Variant variant;
    variant.value_.vt = VT_BSTR;
    variant.value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return variant;
  }
  static Variant Of(SAFEARRAY* array) {
    Variant variant;
    variant.value_.vt = VT_ARRAY | VT_VARIANT;
    variant.value_.parray = array;
    return variant;
  }

  VARIANT* Raw() { return &value_; }
  IDispatch* Object() const {
    if (value_.vt != VT_DISPATCH || value_.pdispVal == nullptr) throw SpreadsheetFailure();
    return value_.pdispVal;
  }

 private:
  VARIANT value_;
};

/// Asks an object for a member by its name.
Variant Ask(IDispatch* object, const wchar_t* member, WORD how, Variant* argument = nullptr) {
  DISPID number = 0;
  auto* name = const_cast<wchar_t*>(member);
  Require(object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &number));
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
  Require(object->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, how, &arguments, result.Raw(),
                         nullptr, nullptr));
  return result;
}

Variant Get(const Variant& object, const wchar_t* member) {
  return Ask(object.Object(), member, DISPATCH_PROPERTYGET);
}

Variant Get(const Variant& object, const wchar_t* member, Variant argument) {
  return Ask(object.Object(), member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, &argument);
}

void Put(const Variant& object, const wchar_t* member, Variant value) {
  Ask(object.Object(), member, DISPATCH_PROPERTYPUT, &value);
}

void Call(const Variant& object, const wchar_t* member) {
  Ask(object.Object(), member, DISPATCH_METHOD);
}

std::wstring Wide(const std::string& utf8) {
  const int size = static_cast<int>(utf8.size());
  const int wide = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(wide), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), wide);
  return text;
}

/// A text goes with the apostrophe that keeps Excel from reading a number or a formula into it.
Variant To_Variant(const CellValue& value) {
  const auto* text = std::get_if<std::string>(&value);
  if (text == nullptr) return Variant::Of(std::get<double>(value));
  return text->empty() ? Variant() : Variant::Of(L"'" + Wide(*text));
}

Variant To_Row(const std::vector<CellValue>& values) {
  SAFEARRAYBOUND bounds[] = {{1, 1}, {static_cast<ULONG>(values.size()), 1}};
  SAFEARRAY* array = SafeArrayCreate(VT_VARIANT, 2, bounds);
  if (array == nullptr) throw SpreadsheetFailure();
  Variant row = Variant::Of(array);
  LONG place[] = {1, 1};
  for (const CellValue& value : values) {
    Require(SafeArrayPutElement(array, place, To_Variant(value).Raw()));
    ++place[1];
  }
  return row;
}

}  // namespace

struct ExcelSpreadsheet::Objects {
  Variant application;
  Variant book;

  Variant Sheet(int number) const { return Get(book, L"Worksheets", Variant::Of(number)); }
  Variant Range(const std::string& range) const {
    return Get(Sheet(1), L"Range", Variant::Of(Wide(range)));
  }
};

ExcelSpreadsheet::ExcelSpreadsheet(const std::filesystem::path& program_folder)
    : files_(program_folder), objects_(std::make_unique<Objects>()) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
}

ExcelSpreadsheet::~ExcelSpreadsheet() {
  objects_.reset();
  CoUninitialize();
}

bool ExcelSpreadsheet::Is_Installed() {
  CLSID id;
  return SUCCEEDED(CLSIDFromProgID(kClass, &id));
}

bool ExcelSpreadsheet::GetObject() {
  CLSID id;
  Require(CLSIDFromProgID(kClass, &id));
  IUnknown* running = nullptr;
  if (FAILED(GetActiveObject(id, nullptr, &running))) return false;
  Variant application;
  application.Raw()->vt = VT_DISPATCH;
  const HRESULT result = running->QueryInterface(
      IID_IDispatch, reinterpret_cast<void**>(&application.Raw()->pdispVal));
  running->Release();
  Require(result);
  objects_->application = std::move(application);
  return true;
}

void ExcelSpreadsheet::CreateObject() {
  CLSID id;
  Require(CLSIDFromProgID(kClass, &id));
  Variant application;
  application.Raw()->vt = VT_DISPATCH;
  Require(CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                           reinterpret_cast<void**>(&application.Raw()->pdispVal)));
  objects_->application = std::move(application);
}

void ExcelSpreadsheet::Set_Application_Visible() {
  Put(Get(objects_->application, L"Application"), L"Visible", Variant::Of(true));
}

void ExcelSpreadsheet::Open(const std::string& name, int charset) {
  const auto path = std::filesystem::absolute(files_.Path_Of(name));
  if (objects_->application.Raw()->vt != VT_DISPATCH && !GetObject()) CreateObject();
  const Variant books = Get(objects_->application, L"Workbooks");
  objects_->book = Get(books, L"Open", Variant::Of(path.wstring()));
  charset_ = charset;
}

void ExcelSpreadsheet::Set_Book_Visible() {
  Put(Get(objects_->book, L"Windows", Variant::Of(1)), L"Visible", Variant::Of(true));
}

void ExcelSpreadsheet::Select(int sheet) { Call(objects_->Sheet(sheet), L"Select"); }

void ExcelSpreadsheet::ClearContents(const std::string& range) {
  Call(objects_->Range(range), L"ClearContents");
}

void ExcelSpreadsheet::Value(const std::string& range, const std::vector<CellValue>& values) {
  const auto utf8 = In_Utf8(values, charset_);
  Put(objects_->Range(range), L"Value", To_Row(utf8));
}

void ExcelSpreadsheet::Bold(const std::string& range) {
  Put(Get(objects_->Range(range), L"Font"), L"Bold", Variant::Of(true));
}

void ExcelSpreadsheet::Ask_To_Report() {
  if (const HWND window = FindWindowW(kMainWindow, nullptr)) {
    SendMessageW(window, kReportAsRunning, 0, 0);
  }
}

void ExcelSpreadsheet::Release() { *objects_ = Objects(); }

}  // namespace norvane
