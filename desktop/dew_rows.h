#pragma once

#include <QLabel>
#include <array>

class QGridLayout;

namespace norvane {

class Desktop;
class NumberLabel;
class Warmt;
class WallSection;

/// What condensation knows beside its results: the dew point, how far the surface lies above it,
/// and a section of the wall. Hidden in heat loss.
class DewRows {
 public:
  static constexpr int kRows = 3;

  /// Takes so many rows of the results' columns from `place` on; the last one may be of any height.
  DewRows(QGridLayout& grid, int place);

  void Follow(Desktop& desktop, Warmt& warmt, const QFont& font);

 private:
  struct Row {
    QLabel* heading;
    NumberLabel* value;
    QLabel* unit;

    void Show(const QString& name, const QString& number, const QString& unit_text) const;
    void Set_Visible(bool visible) const;
  };

  std::array<Row, 2> rows_{};
  WallSection* section_;
};

}  // namespace norvane
