#include "spreadsheet/excel/excel.h"

#include <algorithm>

#include "host/windows/wide.h"

namespace norvane {
namespace {

constexpr const wchar_t* kClass = L"Excel.Application";
constexpr const char* kMainWindow = "XLMAIN";
constexpr UINT kReportAsRunning = 1042;

CLSID Class_Of_Excel() {
  CLSID id;
  Require(CLSIDFromProgID(kClass, &id));
  return id;
}

Variant To_Variant(const CellValue& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text == nullptr ? Variant(std::get<double>(value)) : Variant(Wide(*text));
}

/// A text in an array of texts stays a text; among values of all kinds Excel would read numbers
/// and dates into it.
bool Are_Texts(const Excel::Rows& rows) {
  return std::all_of(rows.begin(), rows.end(), [](const std::vector<CellValue>& row) {
    return std::all_of(row.begin(), row.end(), [](const CellValue& value) {
      return std::holds_alternative<std::string>(value);
    });
  });
}

Variant To_Array(const Excel::Rows& rows) {
  const VARTYPE of = Are_Texts(rows) ? VT_BSTR : VT_VARIANT;
  SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(rows.size()), 1},
                             {static_cast<ULONG>(rows.front().size()), 1}};
  SAFEARRAY* const array = SafeArrayCreate(of, 2, bounds);
  if (array == nullptr) throw SpreadsheetFailure();
  Variant whole(array, of);
  LONG place[] = {1, 1};
  for (const auto& row : rows) {
    place[1] = 1;
    for (const CellValue& value : row) {
      Variant cell = To_Variant(value);
      void* const element = of == VT_BSTR ? static_cast<void*>(cell.Raw()->bstrVal) : cell.Raw();
      Require(SafeArrayPutElement(array, place, element));
      ++place[1];
    }
    ++place[0];
  }
  return whole;
}

}  // namespace

Excel::Excel(std::chrono::milliseconds patience) : apartment_(patience), members_(patience) {}

Excel::~Excel() {
  if (apartment_.Is_Here()) return;
  // Objects can't be let go of from another thread.
  application_.Abandon();
  book_.Abandon();
}

bool Excel::Is_Installed() {
  CLSID id;
  return SUCCEEDED(CLSIDFromProgID(kClass, &id));
}

void Excel::Ask_To_Report() {
  if (const HWND window = FindWindowA(kMainWindow, nullptr)) {
    SendMessageA(window, kReportAsRunning, 0, 0);
  }
}

bool Excel::Attach() {
  IUnknown* running = nullptr;
  if (FAILED(GetActiveObject(Class_Of_Excel(), nullptr, &running))) return false;
  IDispatch* object = nullptr;
  const HRESULT result = running->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&object));
  running->Release();
  Require(result);
  application_ = Variant(object);
  return true;
}

void Excel::Start() {
  IDispatch* object = nullptr;
  Require(CoCreateInstance(Class_Of_Excel(), nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                           reinterpret_cast<void**>(&object)));
  application_ = Variant(object);
}

void Excel::Show() {
  const Variant application = members_.Get(by_file_ ? book_ : application_, L"Application");
  members_.Put(application, L"Visible", Variant(true));
}

void Excel::Open(const std::filesystem::path& path) {
  const Variant books = members_.Get(application_, L"Workbooks");
  book_ = members_.Get(books, L"Open", Variant(path.native()));
}

void Excel::Open_By_File(const std::filesystem::path& path) {
  IDispatch* object = nullptr;
  Require(CoGetObject(path.c_str(), nullptr, IID_IDispatch, reinterpret_cast<void**>(&object)));
  book_ = Variant(object);
  by_file_ = true;
}

void Excel::Show_Book() {
  if (!by_file_) {
    members_.Put(book_, L"Visible", Variant(true));
    return;
  }
  const Variant parent = members_.Get(book_, L"Parent");
  members_.Put(members_.Get(parent, L"Windows", Variant(1)), L"Visible", Variant(true));
}

void Excel::Select(int sheet) {
  members_.Call(members_.Get(book_, L"Worksheets", Variant(sheet)), L"Select");
}

Variant Excel::Range(const std::string& range) const {
  const Variant sheet = members_.Get(book_, L"Worksheets", Variant(1));
  return members_.Get(sheet, L"Range", Variant(Wide(range)));
}

void Excel::Clear(const std::string& range) { members_.Call(Range(range), L"ClearContents"); }

void Excel::Write(const std::string& range, const CellValue& value) {
  members_.Put(Range(range), L"Value", To_Variant(value));
}

void Excel::Write(const std::string& range, const Rows& rows) {
  members_.Put(Range(range), L"Value", To_Array(rows));
}

void Excel::Bold(const std::string& range) {
  members_.Put(members_.Get(Range(range), L"Font"), L"Bold", Variant(true));
}

}  // namespace norvane
