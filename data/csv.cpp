#include "data/csv.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "data/text.h"

namespace norvane {
namespace {

constexpr char kQuote = '"';

/// What may stand between the columns, the usual one first.
constexpr std::string_view kSeparators = ",;\t";

void Append_Quoted(std::string& row, std::string_view text) {
  row += kQuote;
  for (const char c : text) {
    row += c;
    if (c == kQuote) row += kQuote;
  }
  row += kQuote;
}

/// Behind the quote that closes the field at `first`; npos when none does.
std::size_t Behind_Quoted(std::string_view bytes, std::size_t first) {
  std::size_t at = first + 1;
  while ((at = bytes.find(kQuote, at)) != std::string_view::npos) {
    if (at + 1 == bytes.size() || bytes[at + 1] != kQuote) return at + 1;
    at += 2;
  }
  return std::string_view::npos;
}

/// Reads digits with at most one decimal sign: up to 15 of them are a whole number that a double
/// holds, and so is the power of ten, so that their quotient is the nearest double.
bool Read_Plain(std::string_view text, char decimal, double& number) {
  constexpr std::array<double, 16> kPowers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (text.empty() || text.size() > kPowers.size()) return false;
  std::int64_t digits = 0;
  std::size_t count = 0;
  std::size_t behind_sign = text.size();
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (Is_Digit(c)) {
      digits = digits * 10 + (c - '0');
      ++count;
    } else if (c == decimal && behind_sign == text.size()) {
      behind_sign = at + 1;
    } else {
      return false;
    }
  }
  if (count == 0 || count >= kPowers.size()) return false;
  number = static_cast<double>(digits) / kPowers[text.size() - behind_sign];
  return true;
}

/// Any other number, by the library.
bool Read_Any(std::string_view text, char decimal, double& number) {
  std::string with_point(text);
  if (decimal != '.') {
    if (with_point.find('.') != std::string::npos) return false;
    std::replace(with_point.begin(), with_point.end(), decimal, '.');
  }
  double value = 0;
  const char* const end = with_point.data() + with_point.size();
  const auto read = std::from_chars(with_point.data(), end, value);
  // The library also reads words for what isn't finite.
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) return false;
  number = value;
  return true;
}

}  // namespace

CsvDialect Dialect_Of_Header(std::string_view header) {
  std::array<std::size_t, kSeparators.size()> counts{};
  bool begins_field = true;
  for (std::size_t at = 0; at < header.size(); ++at) {
    if (begins_field && header[at] == kQuote)
      at = std::min(Behind_Quoted(header, at), header.size());
    const std::size_t sign = at < header.size() ? kSeparators.find(header[at]) : kSeparators.npos;
    begins_field = sign != kSeparators.npos;
    if (begins_field) ++counts[sign];
  }
  const auto most = std::max_element(counts.begin(), counts.end());
  const char separator = kSeparators[static_cast<std::size_t>(most - counts.begin())];
  return {separator, separator == ';' ? ',' : '.'};
}

std::size_t Length_Of_Row(std::string_view bytes, char separator) {
  const std::size_t line_end = bytes.find('\n');
  if (bytes.substr(0, line_end).find(kQuote) == std::string_view::npos) {
    return line_end == std::string_view::npos ? line_end : line_end + 1;
  }
  std::size_t at = 0;
  while (at < bytes.size()) {
    if (bytes[at] == kQuote) at = std::min(Behind_Quoted(bytes, at), bytes.size());
    const auto ends_field = [&](char c) { return c == separator || c == '\n'; };
    at = static_cast<std::size_t>(
        std::find_if(bytes.begin() + static_cast<std::ptrdiff_t>(at), bytes.end(), ends_field) -
        bytes.begin());
    if (at < bytes.size() && bytes[at++] == '\n') return at;
  }
  return std::string_view::npos;
}

void Split_Row(std::string_view row, char separator, std::vector<std::string_view>& fields) {
  fields.clear();
  std::size_t first = 0;
  std::size_t at = 0;
  for (;;) {
    if (at < row.size() && row[at] == kQuote) at = std::min(Behind_Quoted(row, at), row.size());
    while (at < row.size() && row[at] != separator) ++at;
    fields.push_back(row.substr(first, at - first));
    if (at == row.size()) return;
    first = ++at;
  }
}

bool Is_Left_Open(std::string_view field) {
  return !field.empty() && field.front() == kQuote &&
         Behind_Quoted(field, 0) == std::string_view::npos;
}

std::string Field_Text(std::string_view field) {
  if (field.empty() || field.front() != kQuote) return std::string(field);
  std::string text;
  std::size_t at = 1;
  for (; at < field.size(); ++at) {
    if (field[at] == kQuote && (++at == field.size() || field[at] != kQuote)) break;
    text += field[at];
  }
  // What stands between the closing quote and the separator belongs to it, as spreadsheets read it.
  if (at < field.size()) text += field.substr(at);
  return text;
}

void Append_Field(std::string& row, std::string_view text, char separator) {
  const bool plain = text.find_first_of("\"\r\n") == std::string_view::npos &&
                     text.find(separator) == std::string_view::npos;
  if (plain) {
    row += text;
  } else {
    Append_Quoted(row, text);
  }
}

void Append_Name(std::string& header, std::string_view name) {
  if (name.find_first_of("\"\r\n,;\t") == std::string_view::npos) {
    header += name;
  } else {
    Append_Quoted(header, name);
  }
}

bool Read_Number(std::string_view field, char decimal, double& number) {
  if (!field.empty() && field.front() == kQuote && field.size() > 1 && field.back() == kQuote) {
    field = field.substr(1, field.size() - 2);
  }
  std::string_view text = Trim(field, " \t");
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
  // A second sign is none that belongs there.
  if (text.empty() || !(Is_Digit(text.front()) || text.front() == decimal)) return false;
  double size = 0;
  if (!Read_Plain(text, decimal, size) && !Read_Any(text, decimal, size)) return false;
  number = negative ? -size : size;
  return true;
}

}  // namespace norvane
