// Workbook files of any texts and numbers, under locales with a point and with a comma, read back
// by a reader that knows the format alone.
//
// Input: whether a comma, the character set; then cells, each with its row, column, kind and value.

#include "spreadsheet/workbook.h"

#include <unistd.h>

#include <clocale>
#include <cmath>
#include <filesystem>

#include "host/code_page.h"
#include "input.h"
#include "require.h"
#include "workbook_reader.h"

extern "C" bool norvane_write_workbook_1(const norvane::Workbook& book,
                                         const std::filesystem::path& file);

namespace norvane {
namespace {

constexpr std::size_t kColumns = 26;
constexpr std::size_t kRows = 40;

std::optional<CellValue> Cell(Input& input, int charset) {
  if (input.Below(2) == 0) return input.Raw_Number<double>();
  std::string text = To_Utf8(input.Block(), charset);
  // An empty text is no cell, and a text of the C library ends at its first NUL.
  text.resize(std::min(text.size(), text.find('\0')));
  if (text.empty()) return std::nullopt;
  return text;
}

Workbook Book(Input& input, int charset) {
  Workbook book;
  while (!input.At_End()) {
    Workbook::Row& row = book.rows[static_cast<int>(input.Below(kRows))];
    const std::size_t column = input.Below(kColumns);
    row.resize(std::max(row.size(), column + 1));
    row[column] = Cell(input, charset);
  }
  return book;
}

/// Sixteen digits of a number; those nearest to the end of the range may lie beyond it.
bool Holds(double read, double written) {
  return std::abs(read - written) <= std::abs(written) * 1e-15 || std::abs(written) > 1.7e308;
}

void Compare(const Workbook& book, const std::map<std::string, CellValue>& read) {
  std::size_t cells = 0;
  for (const auto& [number, row] : book.rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      const auto& value = row[column];
      const auto* number_written = value ? std::get_if<double>(&*value) : nullptr;
      if (!value || (number_written != nullptr && !std::isfinite(*number_written))) continue;
      ++cells;
      const auto found = read.find(static_cast<char>('A' + column) + std::to_string(number + 1));
      Require(found != read.end(), "each cell is there");
      Require(found->second.index() == value->index(), "texts are texts, numbers numbers");
      if (number_written != nullptr) {
        Require(Holds(std::get<double>(found->second), *number_written), "a number is the number");
      } else {
        Require(found->second == *value, "a text is the text");
      }
    }
  }
  Require(read.size() == cells, "there is no other cell");
}

bool Has_Number_Beyond_Range(const Workbook& book) {
  for (const auto& [number, row] : book.rows) {
    for (const auto& value : row) {
      const auto* written = value ? std::get_if<double>(&*value) : nullptr;
      if (written != nullptr && std::isfinite(*written) && std::abs(*written) > 1.797e308)
        return true;
    }
  }
  return false;
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  static const std::filesystem::path file =
      "/dev/shm/norvane-fuzz-" + std::to_string(getpid()) + ".xlsx";
  static const bool there_is_a_comma = std::getenv("LOCPATH") != nullptr;
  Input input(data, size);
  const bool comma = input.Below(2) == 1;
  if (there_is_a_comma) {
    Require(std::setlocale(LC_ALL, comma ? "de_DE.UTF-8" : "C") != nullptr, "the locale is there");
  }
  const Workbook book = Book(input, static_cast<int>(input.Byte()));
  Require(norvane_write_workbook_1(book, file), "it is written");
  // A number that rounds to more than there is is no number for any reader.
  if (!Has_Number_Beyond_Range(book)) Compare(book, Cells_Of_Workbook(file));
  std::filesystem::remove(file);
  return 0;
}
