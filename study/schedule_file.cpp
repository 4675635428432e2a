#include "study/schedule_file.h"

#include <algorithm>

#include "data/utf8.h"
#include "study/object_reader.h"
#include "study/result.h"

namespace norvane {
namespace {

/// Takes rows off the front of the bytes, and counts their lines.
class RowsOfBytes {
 public:
  RowsOfBytes(std::string_view bytes, char separator) : rest_(bytes), separator_(separator) {}

  /// The next row without its line end. False behind the last.
  bool Next(std::string_view& row) {
    line_ += lines_of_row_;
    if (rest_.empty()) return false;
    const std::size_t length = std::min(Length_Of_Row(rest_, separator_), rest_.size());
    row = rest_.substr(0, length);
    rest_.remove_prefix(length);
    lines_of_row_ = static_cast<std::size_t>(std::count(row.begin(), row.end(), '\n'));
    if (!row.empty() && row.back() == '\n') row.remove_suffix(1);
    if (!row.empty() && row.back() == '\r') row.remove_suffix(1);
    return true;
  }

  /// Where the last row began, from 1.
  std::size_t Line() const { return line_; }

 private:
  std::string_view rest_;
  char separator_;
  std::size_t line_ = 1;
  std::size_t lines_of_row_ = 0;
};

std::vector<std::string> Texts(std::string_view row, char separator) {
  std::vector<std::string_view> fields;
  Split_Row(row, separator, fields);
  std::vector<std::string> texts;
  texts.reserve(fields.size());
  for (const std::string_view field : fields) texts.push_back(Field_Text(field));
  return texts;
}

void Append_Header(std::string& bytes, const std::vector<std::string>& names, char separator) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) bytes += separator;
    Append_Name(bytes, names[i]);
  }
  bytes += "\r\n";
}

void Append_Row(std::string& bytes, const std::vector<std::string>& texts, char separator) {
  const std::size_t first = bytes.size();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) bytes += separator;
    Append_Field(bytes, texts[i], separator);
  }
  // A row of one empty field would be an empty line, which is passed over.
  if (bytes.size() == first) bytes += "\"\"";
  bytes += "\r\n";
}

/// As views, for the reader.
std::vector<std::string_view> Views(const std::vector<std::string>& texts) {
  return {texts.begin(), texts.end()};
}

}  // namespace

ScheduleFile New_Schedule(Question question, char decimal) {
  ScheduleFile schedule;
  schedule.dialect = {decimal == ',' ? ';' : ',', decimal};
  for (const Column& column : Columns()) {
    if (Is_Asked(column, question)) schedule.header.emplace_back(column.name);
  }
  return schedule;
}

std::variant<ScheduleFile, ScheduleFileProblem> Read_Schedule(std::string_view bytes,
                                                              Question question) {
  bytes = Without_Byte_Order_Mark(bytes);
  ScheduleFile schedule;
  schedule.dialect = Dialect_Of_Header(bytes.substr(0, bytes.find('\n')));
  RowsOfBytes rows(bytes, schedule.dialect.separator);
  std::string_view row;
  while (rows.Next(row)) {
    if (row.empty()) continue;
    if (!Is_Utf8(row)) return ScheduleFileProblem{rows.Line(), Words({Reason::kNotUtf8, {}})};
    auto texts = Texts(row, schedule.dialect.separator);
    if (!schedule.header.empty()) {
      schedule.rows.push_back(std::move(texts));
      continue;
    }
    schedule.header = std::move(texts);
    const ObjectReader reader(Views(schedule.header), schedule.dialect.decimal, question);
    if (const std::string words = reader.Problem(); !words.empty()) {
      return ScheduleFileProblem{rows.Line(), words};
    }
  }
  if (schedule.header.empty()) return ScheduleFileProblem{1, "there is no header"};
  return schedule;
}

std::string Write_Schedule(const ScheduleFile& schedule) {
  std::string bytes;
  Append_Header(bytes, schedule.header, schedule.dialect.separator);
  for (const auto& row : schedule.rows) Append_Row(bytes, row, schedule.dialect.separator);
  return bytes;
}

ScheduleFile Without_Results(ScheduleFile schedule) {
  const auto is_result = [](std::string_view name) {
    return std::ranges::find(kHeatLossColumns, name, &ResultColumn::name) != kHeatLossColumns.end();
  };
  if (std::ranges::none_of(schedule.header, is_result)) return schedule;
  for (std::size_t column = schedule.header.size(); column-- > 0;) {
    const std::string& name = schedule.header[column];
    if (!is_result(name) && name != kRemarkColumn) continue;
    const auto place = static_cast<std::ptrdiff_t>(column);
    schedule.header.erase(schedule.header.begin() + place);
    for (auto& row : schedule.rows) {
      if (column < row.size()) row.erase(row.begin() + place);
    }
  }
  return schedule;
}

std::vector<std::variant<Object, Reason>> Objects_Of(const ScheduleFile& schedule,
                                                     Question question) {
  const ObjectReader reader(Views(schedule.header), schedule.dialect.decimal, question);
  std::vector<std::variant<Object, Reason>> objects;
  objects.reserve(schedule.rows.size());
  for (const auto& row : schedule.rows) {
    Object object;
    const auto reason = reader.Read(Views(row), object);
    if (reason) {
      objects.emplace_back(*reason);
    } else {
      objects.emplace_back(object);
    }
  }
  return objects;
}

}  // namespace norvane
