#include <algorithm>
#include <array>
#include <charconv>

#include "batch/row_writer.h"
#include "calc/shown_number.h"
#include "data/utf8.h"

namespace norvane {
namespace {

class CsvWriter : public RowWriter {
 public:
  explicit CsvWriter(const Job& job) : job_(job), columns_(job.Results().Columns()) {}

  void Header(std::string& out) const override {
    for (const std::size_t i : job_.Kept()) Name(job_.Names()[i], out);
    for (const ResultColumn& column : columns_) Name(column.name, out);
    out += kRemarkColumn;
    out += '\n';
  }

  void Row(const InputRow& input, const ResultRow& result, std::string& out) const override {
    if (input.sound && job_.Keeps_All()) {
      out += input.bytes;
      out += Separator();
    } else {
      for (const std::size_t i : job_.Kept()) Field(input, i, out);
    }
    Results(result, out);
    Append_Field(out, result.remark, Separator());
    out += '\n';
  }

 private:
  char Separator() const { return job_.Dialect().separator; }

  void Name(std::string_view name, std::string& out) const {
    Append_Name(out, name);
    out += Separator();
  }

  void Text(std::string_view text, std::string& out) const {
    Append_Field(out, text, Separator());
    out += Separator();
  }

  void Field(const InputRow& input, std::size_t i, std::string& out) const {
    if (input.sound) {
      out += input.fields[i];
      out += Separator();
    } else {
      Text(Mended_Utf8(Field_Text(input.fields[i])), out);
    }
  }

  void Results(const ResultRow& result, std::string& out) const {
    std::array<char, kLongestShown + 1> text;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const Cell& cell = result.cells[i];
      if (cell.kind == Cell::kShown) {
        char* const end =
            Write_Shown(text.data(), cell.shown, columns_[i].decimals, job_.Dialect().decimal);
        *end = Separator();
        out.append(text.data(), end + 1);
        continue;
      }
      if (cell.kind == Cell::kNumber) Append_Number(cell.number, job_.Dialect().decimal, out);
      if (cell.kind == Cell::kText) Append_Field(out, cell.text, Separator());
      out += Separator();
    }
  }

  const Job& job_;
  std::span<const ResultColumn> columns_;
};

}  // namespace

void Append_Number(double number, char decimal_separator, std::string& out) {
  std::array<char, 32> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
  std::replace(text.data(), end.ptr, '.', decimal_separator);
  out.append(text.data(), end.ptr);
}

std::unique_ptr<RowWriter> Make_Csv_Writer(const Job& job) {
  return std::make_unique<CsvWriter>(job);
}

}  // namespace norvane
