#include <array>

#include "batch/row_writer.h"
#include "calc/shown_number.h"
#include "data/utf8.h"

namespace norvane {
namespace {

/// A JSON string (RFC 8259).
void Append_String(std::string_view text, std::string& out) {
  constexpr const char* kDigits = "0123456789abcdef";
  out += '"';
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (byte < 0x20) {
      out += "\\u00";
      out += kDigits[byte / 16];
      out += kDigits[byte % 16];
    } else {
      out += c;
    }
  }
  out += '"';
}

class JsonWriter : public RowWriter {
 public:
  explicit JsonWriter(const Job& job) : job_(job), columns_(job.Results().Columns()) {}

  void Header(std::string&) const override {}

  void Row(const InputRow& input, const ResultRow& result, std::string& out) const override {
    const std::size_t first = out.size();
    for (const std::size_t i : job_.Kept()) Field(input.fields[i], i, out);
    for (std::size_t i = 0; i < columns_.size(); ++i) Result(result.cells[i], columns_[i], out);
    if (!result.remark.empty()) {
      Name(kRemarkColumn, out);
      Append_String(result.remark, out);
    }
    // What stands before the first name is a comma.
    if (out.size() == first) out += ',';
    out[first] = '{';
    out += "}\n";
  }

 private:
  static void Name(std::string_view name, std::string& out) {
    out += ',';
    Append_String(name, out);
    out += ':';
  }

  void Field(std::string_view field, std::size_t i, std::string& out) const {
    const Column* const column = job_.Reader().Column_Of(i);
    double number = 0;
    const bool is_number = column != nullptr && column->number != nullptr &&
                           Read_Number(field, job_.Dialect().decimal, number);
    const std::string text = is_number ? std::string() : Mended_Utf8(Field_Text(field));
    if (!is_number && text.empty()) return;
    Name(job_.Names()[i], out);
    if (is_number) {
      Append_Number(number, '.', out);
    } else {
      Append_String(text, out);
    }
  }

  static void Result(const Cell& cell, const ResultColumn& column, std::string& out) {
    if (cell.kind == Cell::kEmpty) return;
    Name(column.name, out);
    if (cell.kind == Cell::kText) {
      Append_String(cell.text, out);
    } else if (cell.kind == Cell::kNumber) {
      Append_Number(cell.number, '.', out);
    } else {
      std::array<char, kLongestShown> digits;
      out.append(digits.data(), Write_Shown(digits.data(), cell.shown, column.decimals, '.'));
    }
  }

  const Job& job_;
  std::span<const ResultColumn> columns_;
};

}  // namespace

std::unique_ptr<RowWriter> Make_Json_Writer(const Job& job) {
  return std::make_unique<JsonWriter>(job);
}

}  // namespace norvane
