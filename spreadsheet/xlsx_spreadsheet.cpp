#include "spreadsheet/xlsx_spreadsheet.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

#include "spreadsheet/patient_thread.h"
#include "spreadsheet/plug_in.h"
#include "spreadsheet/workbook_folder.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kPatience{60};

/// A folder that goes again unless something lies in it.
struct NewFolder {
  NewFolder() = default;
  NewFolder(const NewFolder&) = delete;
  NewFolder& operator=(const NewFolder&) = delete;
  ~NewFolder() {
    std::error_code error;
    fs::remove(path, error);
  }

  fs::path path = New_Workbook_Folder();
};

/// A workbook's file in a folder of its own. However the writing ends, neither of them is left
/// unless the file is whole.
struct NewFile {
  explicit NewFile(const fs::path& title) : path(folder.path / title) { path += ".xlsx"; }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() {
    std::error_code error;
    if (!whole) fs::remove(path, error);
  }

  NewFolder folder;
  fs::path path;
  bool whole = false;
};

}  // namespace

XlsxSpreadsheet::XlsxSpreadsheet(const fs::path& program_folder, SpreadsheetWaiting& waiting,
                                 OpenFile open)
    : files_(program_folder),
      plug_in_(program_folder / "norvane_workbook.so"),
      waiting_(waiting),
      open_(std::move(open)) {}

WriteWorkbook* XlsxSpreadsheet::Writer() const {
  return reinterpret_cast<WriteWorkbook*>(Function_Of_Plug_In(plug_in_, kWriteWorkbook));
}

XlsxSpreadsheet::Book& XlsxSpreadsheet::Need_Book() {
  if (!book_) throw SpreadsheetFailure();
  return *book_;
}

void XlsxSpreadsheet::Open(const std::string& name, int charset) {
  const fs::path path = files_.Path_Of(name);
  std::error_code error;
  if (!fs::is_regular_file(path, error)) throw SpreadsheetFailure();
  book_ = Book{path.stem(), charset, {}};
}

void XlsxSpreadsheet::Set_Book_Visible() { Need_Book(); }

void XlsxSpreadsheet::Select(int sheet) {
  Need_Book();
  if (sheet != 1) throw SpreadsheetFailure();
}

void XlsxSpreadsheet::ClearContents(const std::string& range) {
  Workbook& book = Need_Book().cells;
  const CellRange cleared = Read_Range(range);
  for (auto& [row, cells] : book.rows) {
    for (std::size_t column = 0; column < cells.size(); ++column) {
      if (cleared.Holds(static_cast<int>(column), row)) cells[column].reset();
    }
  }
}

void XlsxSpreadsheet::Value(const std::string& range, const std::vector<CellValue>& values) {
  Book& book = Need_Book();
  const CellRange cells = Read_Row(range, values);
  auto column = static_cast<std::size_t>(cells.first_column);
  Workbook::Row& row = book.cells.rows[cells.first_row];
  row.resize(std::max(row.size(), column + values.size()));
  for (CellValue& value : In_Utf8(values, book.charset)) {
    const auto* text = std::get_if<std::string>(&value);
    const bool empty = text != nullptr && text->empty();
    row[column++] = empty ? std::nullopt : std::optional(std::move(value));
  }
}

void XlsxSpreadsheet::Bold(const std::string& range) {
  Need_Book().cells.bold.push_back(Read_Range(range));
}

void XlsxSpreadsheet::Release() {
  if (!book_) return;
  // Shared with the thread, which may outlive the patience.
  const auto book = std::make_shared<const Book>(*std::exchange(book_, std::nullopt));
  WriteWorkbook* const write = Writer();
  if (write == nullptr) return;
  try {
    // First of all, since without it there is to be no folder either.
    PatientThread thread(waiting_, kPatience);
    const auto file = std::make_shared<NewFile>(book->title);
    const auto task = [=] { return file->whole = write(book->cells, file->path); };
    if (thread.Run(task)) open_(file->path);
  } catch (const SpreadsheetFailure&) {
    // A step that fails is passed over without a word.
  } catch (const fs::filesystem_error&) {
    // The same.
  }
}

}  // namespace norvane
