#include "calc/dew_point.h"

#include <cmath>
#include <vector>

#include "calc/conversions.h"
#include "data/runtime_error.h"
#include "data/string_table.h"

namespace norvane {
namespace {

int Count_In(int id) { return To_Int16(Val(String_Table(id))); }
int Dew_Rows() { return Count_In(401); }
int Dew_Columns() { return Count_In(402); }

std::string Percent(float value) { return Text_Of_Single(value, Locale{}) + "%"; }

/// What the two searches compare with, read from the string table once.
struct SearchKeys {
  std::vector<double> temperatures;          // by row - 1
  std::vector<std::string_view> humidities;  // by column - 1, such as "60%"
  std::vector<float> humidity_values;        // by column - 1; not a number where the text is none
  Dew_Table differences;

  SearchKeys() {
    for (int row = 1; row <= Dew_Rows(); ++row) {
      temperatures.push_back(Val(String_Table(Dew_Cell_Id(row, 1))));
    }
    for (int column = 1; column <= Dew_Columns(); ++column) {
      const std::string_view text = String_Table(Dew_Cell_Id(0, column));
      const float value = To_Single(Val(text));
      humidities.push_back(text);
      humidity_values.push_back(text == Percent(value) ? value : std::nanf(""));
    }
  }
};

/// The place of `wanted` counted from 1, or one past the last.
template <class List, class Value>
int Place_Of(const List& list, const Value& wanted) {
  int place = 1;
  for (const auto& value : list) {
    if (value == wanted) break;
    ++place;
  }
  return place;
}

}  // namespace

int Dew_Cell_Id(int row, int column) { return 10000 + 100 * row + column; }

Dew_Table::Dew_Table() {
  for (int row = 1; row <= Dew_Rows(); ++row) {
    for (int column = 1; column <= Dew_Columns(); ++column) {
      cells_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)] =
          To_Single(Val(String_Table(Dew_Cell_Id(row, column))));
    }
  }
}

float Dew_Table::operator()(int row, int column) const {
  if (row < 1 || row > kRows || column < 1 || column > kColumns) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return cells_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
}

float Trt_DauwPunt(float iTA, float iRv) {
  static const SearchKeys keys;
  const int row = Place_Of(keys.temperatures, static_cast<double>(iTA));
  // The humidity is matched as text, so 60.5 finds no column; equal values have equal texts.
  int column = Place_Of(keys.humidity_values, iRv);
  if (column > static_cast<int>(keys.humidities.size())) {
    column = Place_Of(keys.humidities, Percent(iRv));
  }
  return To_Single(static_cast<double>(iTA) - keys.differences(row, column));
}

}  // namespace norvane
