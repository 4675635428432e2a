#pragma once

#include "desktop/card.h"
#include "desktop/input_picker.h"

class QGridLayout;
class QLabel;

namespace norvane {

class FormView;
class Warmt;

/// The input rows of the main screen. The fields of both modes stand in the same places.
class InputCard : public Card {
  Q_OBJECT

 public:
  InputCard(FormView& view, Warmt& warmt);

  /// Gives each heading's letter to the field of its row that shows.
  void Follow_Mode();
  /// Gives each field the name and the unit that a screen reader tells.
  void Name_Fields();

 private:
  QLabel& Add_Heading(QGridLayout& grid, int row, int index);
  void Add_Row(QGridLayout& grid, int row, int index);
  void Add_Conversion(QGridLayout& grid, int row, int index);
  void Add_Length_Row(QGridLayout& grid, int row);

  FormView& view_;
  Warmt& warmt_;
  InputPicker picker_;
};

}  // namespace norvane
