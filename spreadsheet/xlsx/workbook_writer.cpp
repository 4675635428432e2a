#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "c_locale.h"
#include "cell_text.h"
#include "spreadsheet/workbook.h"
#include "whole_workbook.h"

namespace norvane {
namespace {

constexpr double kNarrowest = 3;  // in digits, as the widths of columns are measured
constexpr double kWidest = 40;
constexpr const char* kWholeSheet = "A1:XFD1048576";

/// How many letters a UTF-8 text has.
double Letters(const std::string& text) {
  return static_cast<double>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

/// As the library takes it: in UTF-8 on systems that don't name files by bytes.
std::string Name_Of(const std::filesystem::path& file) {
  const std::u8string name = file.u8string();
  return {name.begin(), name.end()};
}

class WorkbookWriter {
 public:
  WorkbookWriter(const Workbook& book, const std::filesystem::path& file)
      : book_(book), file_(workbook_new(Name_Of(file).c_str())) {}

  ~WorkbookWriter() {
    if (file_ != nullptr) workbook_close(file_);
  }
  WorkbookWriter(const WorkbookWriter&) = delete;
  WorkbookWriter& operator=(const WorkbookWriter&) = delete;

  bool Write() {
    if (file_ == nullptr) return false;
    sheet_ = workbook_add_worksheet(file_, nullptr);
    bold_ = workbook_add_format(file_);
    format_set_bold(bold_);
    for (const auto& [row, cells] : book_.rows) {
      for (std::size_t column = 0; column < cells.size(); ++column) {
        if (cells[column]) Write_Cell(row, static_cast<int>(column), *cells[column]);
      }
    }
    Set_Up_Sheet();
    return workbook_close(std::exchange(file_, nullptr)) == LXW_NO_ERROR;
  }

  /// The cells that the library has taken.
  std::size_t Cells() const { return cells_; }

 private:
  void Count(lxw_error error) {
    if (error == LXW_NO_ERROR) ++cells_;
  }

  void Write_Cell(int row, int column, const CellValue& value) {
    const auto r = static_cast<lxw_row_t>(row);
    const auto c = static_cast<lxw_col_t>(column);
    const bool bold = std::any_of(book_.bold.begin(), book_.bold.end(),
                                  [&](const CellRange& range) { return range.Holds(column, row); });
    lxw_format* format = bold ? bold_ : nullptr;
    if (const auto* text = std::get_if<std::string>(&value)) {
      Count(worksheet_write_string(sheet_, r, c, Cell_Text(*text).c_str(), format));
      Widen(column, Letters(*text));
    } else if (const double number = std::get<double>(value); std::isfinite(number)) {
      Count(worksheet_write_number(sheet_, r, c, number, format));
    }
  }

  void Widen(int column, double width) {
    const auto place = static_cast<std::size_t>(column);
    if (widths_.size() <= place) widths_.resize(place + 1);
    double& widest = widths_[place];
    widest = std::max(widest, width + 1);
  }

  void Set_Up_Sheet() {
    for (std::size_t column = 0; column < widths_.size(); ++column) {
      const double width = widths_[column];
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

  const Workbook& book_;
  lxw_workbook* file_;
  lxw_worksheet* sheet_ = nullptr;
  lxw_format* bold_ = nullptr;
  std::size_t cells_ = 0;
  std::vector<double> widths_;  // by column
};

}  // namespace
}  // namespace norvane

#ifdef _WIN32
#define NORVANE_EXPORTED __declspec(dllexport)
#else
#define NORVANE_EXPORTED __attribute__((visibility("default")))
#endif

extern "C" NORVANE_EXPORTED bool norvane_write_workbook_1(const norvane::Workbook& book,
                                                          const std::filesystem::path& file) {
  // The library prints numbers by the locale, and the format knows none.
  const norvane::CLocale plain;
  norvane::WorkbookWriter writer(book, file);
  return writer.Write() && norvane::Is_Whole_Workbook(file, writer.Cells());
}
