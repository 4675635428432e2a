#include "study/object_reader.h"

#include <algorithm>

#include "data/csv.h"
#include "data/text.h"

namespace norvane {
namespace {

const Column* Find_Column(std::string_view name) {
  const auto columns = Columns();
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [&](const Column& column) { return column.name == name; });
  return found == columns.end() ? nullptr : &*found;
}

bool Is_Empty(std::string_view field) { return field.find_first_not_of(" \t\"") == field.npos; }

}  // namespace

std::int16_t Kind_Of(std::string_view field) {
  const std::string text = Field_Text(Trim(field, " \t"));
  for (std::size_t kind = 0; kind < kKindWords.size(); ++kind) {
    const char digit = static_cast<char>('0' + kind);
    if (text == kKindWords[kind] || (text.size() == 1 && text.front() == digit)) {
      return static_cast<std::int16_t>(kind);
    }
  }
  return -1;
}

ObjectReader::ObjectReader(std::span<const std::string_view> header, char decimal,
                           Question question)
    : decimal_(decimal), question_(question) {
  for (const std::string_view field : header) {
    const std::string name = Field_Text(Trim(field, " \t"));
    const Column* const column = Find_Column(name);
    if (column == nullptr) {
      unknown_.push_back(name);
    } else if (Has(*column)) {
      twice_ = name;
    }
    columns_.push_back(column != nullptr && Is_Asked(*column, question) ? column : nullptr);
  }
}

bool ObjectReader::Has(const Column& column) const {
  return std::find(columns_.begin(), columns_.end(), &column) != columns_.end();
}

std::string ObjectReader::Problem() const {
  if (!twice_.empty()) return "the column " + twice_ + " stands there twice";
  std::string names;
  for (const Column& column : Columns()) {
    if (!column.required || !Is_Asked(column, question_) || Has(column)) continue;
    names += names.empty() ? "" : ", ";
    names += column.name;
  }
  return names.empty() ? names : "these columns are missing: " + names;
}

std::optional<Reason> ObjectReader::Read(std::span<const std::string_view> fields,
                                         Object& object) const {
  object = Object();
  if (fields.size() != columns_.size()) return Reason{Reason::kFieldCount, {}};
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const Column* const column = columns_[i];
    if (column == nullptr) continue;
    if (column->number != nullptr) {
      if (Read_Number(fields[i], decimal_, object.*column->number) || Is_Empty(fields[i])) continue;
      return Reason{Reason::kNoNumber, column->name};
    }
    if (column->name != "kind") continue;
    object.kind = Kind_Of(fields[i]);
    if (object.kind < 0) return Reason{Reason::kUnknownKind, column->name};
  }
  return std::nullopt;
}

}  // namespace norvane
