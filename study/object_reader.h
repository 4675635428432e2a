#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "study/object.h"
#include "study/reason.h"

namespace norvane {

/// The kind that a field of the column `kind` tells; -1 for a word that is none.
/// @param field as it stands, with its quotes
std::int16_t Kind_Of(std::string_view field);

/// Reads the objects of a schedule's rows: which field belongs to which column is told by the
/// header, in any order, and columns of other names are passed over.
class ObjectReader {
 public:
  /// `header` holds the names as fields, `decimal` is the decimal sign of the rows. Columns that
  /// the question doesn't ask for aren't read.
  /// @param header the names, a field each
  /// @param decimal '.' or ','
  /// @param question whose columns are read
  ObjectReader(std::span<const std::string_view> header, char decimal, Question question);

  /// What makes the header unusable, in words: a required column that is missing, or one that
  /// stands there twice. Empty when nothing does.
  std::string Problem() const;
  /// The names in the header that are no columns.
  const std::vector<std::string>& Unknown() const { return unknown_; }

  std::size_t Field_Count() const { return columns_.size(); }
  /// The column of a field of the rows, null for one that isn't read.
  /// @param field from 0, below `Field_Count`
  const Column* Column_Of(std::size_t field) const { return columns_[field]; }

  /// Reads the fields of a row into `object`, of its usual values to begin with.
  /// @param fields as many as the header has, or the row has a reason
  /// @param object keeps its usual values where a field is empty
  std::optional<Reason> Read(std::span<const std::string_view> fields, Object& object) const;

 private:
  bool Has(const Column& column) const;

  std::vector<const Column*> columns_;  // by field
  std::vector<std::string> unknown_;
  std::string twice_;
  char decimal_;
  Question question_;
};

}  // namespace norvane
