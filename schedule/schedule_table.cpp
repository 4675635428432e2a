#include "schedule/schedule_table.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace norvane {
namespace {

using Difference = std::vector<ScheduleLine>::difference_type;

constexpr Question kQuestion = Question::kHeatLoss;

/// The header's names, and behind them those of an object that it lacks.
std::vector<std::string> All_Names(const std::vector<std::string>& header, char decimal) {
  const std::vector<std::string_view> views(header.begin(), header.end());
  const ObjectReader reader(views, decimal, kQuestion);
  std::vector<std::string> names = header;
  for (const Column& column : Columns()) {
    if (!Is_Asked(column, kQuestion)) continue;
    bool there = false;
    for (std::size_t i = 0; i < header.size(); ++i) there |= reader.Column_Of(i) == &column;
    if (!there) names.emplace_back(column.name);
  }
  return names;
}

ObjectReader Reader_Of(const std::vector<std::string>& names, char decimal) {
  const std::vector<std::string_view> views(names.begin(), names.end());
  return {views, decimal, kQuestion};
}

}  // namespace

ScheduleTable::ScheduleTable(ScheduleFile file)
    : dialect_(file.dialect),
      names_(All_Names(file.header, dialect_.decimal)),
      of_file_(file.header.size()),
      reader_(Reader_Of(names_, dialect_.decimal)) {
  std::vector<ScheduleLine> lines;
  lines.reserve(file.rows.size());
  for (auto& fields : file.rows) lines.push_back({std::move(fields), {}});
  Replace(0, 0, std::move(lines));
}

const std::string& ScheduleTable::Text(std::size_t row, std::size_t column) const {
  static const std::string kEmpty;
  const ScheduleLine& line = lines_[row];
  const auto& texts = column < of_file_ ? line.fields : line.added;
  const std::size_t place = column < of_file_ ? column : column - of_file_;
  return place < texts.size() ? texts[place] : kEmpty;
}

ScheduleSums ScheduleTable::Sums() const {
  ScheduleSums sums;
  for (const ScheduleRow& row : results_) {
    if (const auto* shown = std::get_if<ShownHeatLoss>(&row)) {
      sums.Add(*shown);
    } else {
      sums.Add_Without_Result();
    }
  }
  return sums;
}

ScheduleLine ScheduleTable::With_Text(ScheduleLine line, std::size_t column,
                                      const std::string& text) const {
  // A line that was too short has all its fields from now on.
  if (line.fields.size() < of_file_) line.fields.resize(of_file_);
  if (column < of_file_) {
    line.fields[column] = text;
    return line;
  }
  line.added.resize(names_.size() - of_file_);
  line.added[column - of_file_] = text;
  const auto empty = [](const std::string& each) { return each.empty(); };
  if (std::all_of(line.added.begin(), line.added.end(), empty)) line.added.clear();
  return line;
}

ScheduleLine ScheduleTable::Empty_Line() const { return {std::vector<std::string>(of_file_), {}}; }

ScheduleRow ScheduleTable::Result_Of(const ScheduleLine& line) const {
  if (line.fields.size() != of_file_) return Reason{Reason::kFieldCount, {}};
  std::vector<std::string_view> fields(line.fields.begin(), line.fields.end());
  fields.insert(fields.end(), line.added.begin(), line.added.end());
  fields.resize(names_.size());
  Object object;
  if (const auto reason = reader_.Read(fields, object)) return *reason;
  return Schedule_Row(object);
}

std::vector<ScheduleLine> ScheduleTable::Replace(std::size_t first, std::size_t count,
                                                 std::vector<ScheduleLine> lines) {
  std::vector<ScheduleRow> results;
  results.reserve(lines.size());
  for (const ScheduleLine& line : lines) results.push_back(Result_Of(line));

  const std::size_t alike = std::min(count, lines.size());
  const auto exchange = [&](auto& all, auto& with) {
    const auto from = all.begin() + static_cast<Difference>(first);
    std::swap_ranges(with.begin(), with.begin() + static_cast<Difference>(alike), from);
    const auto end = from + static_cast<Difference>(alike);
    if (count > alike) {
      const auto last = end + static_cast<Difference>(count - alike);
      with.insert(with.end(), std::make_move_iterator(end), std::make_move_iterator(last));
      all.erase(end, last);
    } else {
      const auto more = with.begin() + static_cast<Difference>(alike);
      all.insert(end, std::make_move_iterator(more), std::make_move_iterator(with.end()));
      with.erase(more, with.end());
    }
  };
  exchange(results_, results);
  exchange(lines_, lines);
  return lines;
}

std::vector<bool> ScheduleTable::Added_In_Use() const {
  std::vector<bool> in_use(names_.size() - of_file_);
  for (const ScheduleLine& line : lines_) {
    for (std::size_t i = 0; i < line.added.size(); ++i) {
      if (!line.added[i].empty()) in_use[i] = true;
    }
  }
  return in_use;
}

ScheduleFile ScheduleTable::File() const {
  ScheduleFile file;
  file.dialect = dialect_;
  const std::vector<bool> in_use = Added_In_Use();
  file.header.assign(names_.begin(), names_.begin() + static_cast<Difference>(of_file_));
  for (std::size_t i = 0; i < in_use.size(); ++i) {
    if (in_use[i]) file.header.push_back(names_[of_file_ + i]);
  }
  file.rows.reserve(lines_.size());
  for (const ScheduleLine& line : lines_) {
    auto& fields = file.rows.emplace_back(line.fields);
    // A line that is too short stays so, and one that is too long stays longer than the header.
    if (fields.size() < of_file_) continue;
    for (std::size_t i = 0; i < in_use.size(); ++i) {
      if (in_use[i]) fields.push_back(i < line.added.size() ? line.added[i] : std::string());
    }
  }
  return file;
}

}  // namespace norvane
