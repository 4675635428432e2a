#pragma once

#include <array>
#include <charconv>
#include <sstream>
#include <string>
#include <vector>

namespace norvane {

inline constexpr int kHumidities = 14;

/// The figures of the dew-point table, a second time: the ambient temperature, the most vapour the
/// air can hold, then how many degrees the dew point lies below, for 30 to 95 percent.
inline constexpr const char* kDewFigures = R"(
-20  0.90    - 10.4  9.1  8.0  7.0  6.0  5.2  4.5  3.7  2.9  2.3  1.7  1.1  0.5
-15  1.40 12.3 10.8  9.6  8.3  7.3  6.4  5.4  4.6  3.8  3.1  2.4  1.8  1.2  0.6
-10  2.17 12.9 11.3  9.9  8.7  7.6  6.6  5.7  4.8  3.9  3.2  2.5  1.8  1.2  0.6
 -5  3.27 13.4 11.7 10.3  9.0  7.9  6.8  5.8  5.0  4.1  3.3  2.6  1.9  1.2  0.6
  0   4.8 13.9 12.2 10.7  9.3  8.1  7.1  6.0  5.1  4.2  3.5  2.7  1.9  1.3  0.7
  2   5.6 14.3 12.6 11.0  9.7  8.5  7.4  6.4  5.4  4.6  3.8  3.0  2.2  1.5  0.7
  4   6.4 14.7 13.0 11.4 10.1  8.9  7.7  6.7  5.8  4.9  4.0  3.1  2.3  1.5  0.7
  6   7.3 15.1 13.4 11.8 10.4  9.2  8.1  7.0  6.1  5.1  4.1  3.2  2.3  1.5  0.7
  8   8.3 15.6 13.8 12.2 10.8  9.6  8.4  7.3  6.2  5.1  4.2  3.2  2.3  1.5  0.8
 10   9.4 16.0 14.2 12.6 11.2 10.0  8.6  7.4  6.3  5.2  4.2  3.3  2.4  1.6  0.8
 12  10.7 16.5 14.6 13.0 11.6 10.1  8.8  7.5  6.3  5.3  4.3  3.3  2.4  1.6  0.8
 14  12.1 16.9 15.1 13.4 11.7 10.3  8.9  7.6  6.5  5.4  4.3  3.4  2.5  1.6  0.8
 16  13.6 17.4 15.5 13.6 11.9 10.4  9.0  7.8  6.6  5.5  4.4  3.5  2.5  1.7  0.8
 18  15.4 17.8 15.7 13.8 12.1 10.6  9.2  7.9  6.7  5.6  4.5  3.5  2.6  1.7  0.8
 20  17.3 18.1 15.9 14.0 12.3 10.7  9.3  8.0  6.8  5.6  4.6  3.6  2.6  1.7  0.8
 22  19.4 18.4 16.1 14.2 12.5 10.9  9.5  8.1  6.9  5.7  4.7  3.6  2.6  1.7  0.8
 24  21.8 18.6 16.4 14.4 12.6 11.1  9.6  8.2  7.0  5.8  4.7  3.7  2.7  1.8  0.8
 26  24.4 18.9 16.6 14.7 12.8 11.2  9.7  8.4  7.1  5.9  4.8  3.7  2.7  1.8  0.9
 28  27.2 19.2 16.6 14.9 13.0 11.4  9.9  8.5  7.2  6.0  4.9  3.8  2.8  1.8  0.9
 30  30.3 19.5 17.1 15.1 13.2 11.6 10.1  8.6  7.3  6.1  5.0  3.8  2.8  1.8  0.9
 35  39.4 20.2 17.7 15.7 13.7 12.0 10.4  9.0  7.6  6.3  5.1  4.0  2.9  1.9  0.9
 40  50.7 20.9 18.4 16.1 14.2 12.4 10.8  9.3  7.9  6.5  5.3  4.1  3.0  2.0  1.0
 45  64.5 21.6 19.0 16.7 14.7 12.8 11.2  9.6  8.1  6.8  5.5  4.3  3.1  2.1  1.0
 50  82.3 22.3 19.7 17.3 15.2 13.3 11.6  9.9  8.4  7.0  5.7  4.4  3.2  2.1  1.0
)";

struct DewRow {
  double T_amb = 0;
  std::array<double, kHumidities> below{};
  std::vector<std::string> texts;  ///< all sixteen columns as they are written
};

/// The number of a word, whatever the locale of the process.
template <class Number>
Number Figure(const std::string& word) {
  Number number = 0;
  std::from_chars(word.data(), word.data() + word.size(), number);
  return number;
}

inline std::vector<DewRow> Read_Dew_Figures() {
  std::vector<DewRow> rows;
  std::istringstream lines(kDewFigures);
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) {
    DewRow row;
    std::istringstream words(line);
    for (std::string word; words >> word;) row.texts.push_back(word);
    row.T_amb = Figure<double>(row.texts.at(0));
    for (std::size_t column = 0; column < kHumidities; ++column) {
      const std::string& text = row.texts.at(column + 2);
      row.below[column] = text == "-" ? 0 : Figure<double>(text);
    }
    rows.push_back(row);
  }
  return rows;
}

inline const std::vector<DewRow>& Dew_Figures() {
  static const std::vector<DewRow> rows = Read_Dew_Figures();
  return rows;
}

}  // namespace norvane
