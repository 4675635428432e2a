#include "spreadsheet/xlsx_spreadsheet.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <memory>
#include <utility>

#include "spreadsheet/patient_thread.h"
#include "spreadsheet/random_name.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kPatience{60};
constexpr int kColumns = 26;
constexpr double kNarrowest = 3;  // in digits, as the widths of columns are measured
constexpr double kWidest = 40;
constexpr const char* kWholeSheet = "A1:XFD1048576";

/// How many letters a UTF-8 text has.
double Letters(const std::string& text) {
  return static_cast<double>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

/// A new file's path in a new folder that is the user's alone.
fs::path New_File(const std::string& title) {
  const fs::path folder = fs::temp_directory_path() / Random_Name();
  if (!fs::create_directory(folder)) throw SpreadsheetFailure();
  fs::permissions(folder, fs::perms::owner_all);
  return folder / (title + ".xlsx");
}

}  // namespace

/// Writes a book to a file.
class XlsxSpreadsheet::Writer {
 public:
  Writer(const Book& book, const fs::path& file)
      : book_(book), workbook_(workbook_new(file.string().c_str())) {
    if (workbook_ == nullptr) throw SpreadsheetFailure();
    sheet_ = workbook_add_worksheet(workbook_, nullptr);
    bold_ = workbook_add_format(workbook_);
    format_set_bold(bold_);
  }

  ~Writer() {
    if (workbook_ != nullptr) workbook_close(workbook_);
  }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  void Write() {
    for (const auto& [row, cells] : book_.rows) {
      for (std::size_t column = 0; column < cells.size(); ++column) {
        if (cells[column]) Write_Cell(row, static_cast<int>(column), *cells[column]);
      }
    }
    Set_Up_Sheet();
    if (workbook_close(std::exchange(workbook_, nullptr)) != LXW_NO_ERROR) {
      throw SpreadsheetFailure();
    }
  }

 private:
  void Write_Cell(int row, int column, const CellValue& value) {
    const auto r = static_cast<lxw_row_t>(row);
    const auto c = static_cast<lxw_col_t>(column);
    const bool bold = std::any_of(book_.bold.begin(), book_.bold.end(),
                                  [&](const CellRange& range) { return range.Holds(column, row); });
    lxw_format* format = bold ? bold_ : nullptr;
    if (const auto* text = std::get_if<std::string>(&value)) {
      worksheet_write_string(sheet_, r, c, text->c_str(), format);
      Widen(column, Letters(*text));
    } else if (const double number = std::get<double>(value); std::isfinite(number)) {
      worksheet_write_number(sheet_, r, c, number, format);
    }
  }

  void Widen(int column, double width) {
    double& widest = widths_[static_cast<std::size_t>(column)];
    widest = std::max(widest, width + 1);
  }

  void Set_Up_Sheet() {
    for (int column = 0; column < kColumns; ++column) {
      const double width = widths_[static_cast<std::size_t>(column)];
      if (width == 0) continue;
      const auto c = static_cast<lxw_col_t>(column);
      worksheet_set_column(sheet_, c, c, std::clamp(width, kNarrowest, kWidest), nullptr);
    }
    // Texts that look like numbers are meant to be texts.
    worksheet_ignore_errors(sheet_, LXW_IGNORE_NUMBER_STORED_AS_TEXT, kWholeSheet);
    worksheet_set_landscape(sheet_);
    worksheet_fit_to_pages(sheet_, 1, 0);
    const bool header = std::any_of(book_.bold.begin(), book_.bold.end(),
                                    [](const CellRange& range) { return range.first_row == 0; });
    if (!header) return;
    worksheet_repeat_rows(sheet_, 0, 0);
    worksheet_freeze_panes(sheet_, 1, 0);
  }

  const Book& book_;
  lxw_workbook* workbook_;
  lxw_worksheet* sheet_ = nullptr;
  lxw_format* bold_ = nullptr;
  std::array<double, kColumns> widths_{};
};

XlsxSpreadsheet::XlsxSpreadsheet(const fs::path& program_folder, SpreadsheetWaiting& waiting,
                                 OpenFile open)
    : files_(program_folder), waiting_(waiting), open_(std::move(open)) {}

XlsxSpreadsheet::Book& XlsxSpreadsheet::Need_Book() {
  if (!book_) throw SpreadsheetFailure();
  return *book_;
}

void XlsxSpreadsheet::Open(const std::string& name, int charset) {
  const fs::path path = files_.Path_Of(name);
  std::error_code error;
  if (!fs::is_regular_file(path, error)) throw SpreadsheetFailure();
  book_ = Book{path.stem().string(), charset, {}, {}};
}

void XlsxSpreadsheet::Set_Book_Visible() { Need_Book(); }

void XlsxSpreadsheet::Select(int sheet) {
  Need_Book();
  if (sheet != 1) throw SpreadsheetFailure();
}

void XlsxSpreadsheet::ClearContents(const std::string& range) {
  Book& book = Need_Book();
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
  Row& row = book.rows[cells.first_row];
  row.resize(std::max(row.size(), column + values.size()));
  for (CellValue& value : In_Utf8(values, book.charset)) {
    const auto* text = std::get_if<std::string>(&value);
    const bool empty = text != nullptr && text->empty();
    row[column++] = empty ? std::nullopt : std::optional(std::move(value));
  }
}

void XlsxSpreadsheet::Bold(const std::string& range) {
  Need_Book().bold.push_back(Read_Range(range));
}

void XlsxSpreadsheet::Release() {
  if (!book_) return;
  // Shared with the thread, which may outlive the patience.
  const auto book = std::make_shared<const Book>(*std::exchange(book_, std::nullopt));
  try {
    const fs::path file = New_File(book->title);
    PatientThread(waiting_, kPatience).Run([book, file] { Writer(*book, file).Write(); });
    open_(file);
  } catch (const SpreadsheetFailure&) {
    // A step that fails is passed over without a word.
  } catch (const fs::filesystem_error&) {
    // The same.
  }
}

}  // namespace norvane
