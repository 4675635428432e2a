#pragma once

#include <QObject>
#include <vector>

#include "screen/choices.h"

namespace norvane {

class FormView;
class NumberEdit;
class Picker;
class PickerArrow;
class Warmt;

/// Offers a picker for each input field of the main screen, and plays what it is left with by the
/// ways of a user: a text as a paste, clicks on the spin pair where the field is locked. All fields
/// share one picker, which is made when it is needed first.
class InputPicker : public QObject {
  Q_OBJECT

 public:
  InputPicker(FormView& view, Warmt& warmt) : view_(view), warmt_(warmt) {}

  /// Gives a field its arrow, and the steps that a screen reader is told.
  void Offer(NumberEdit& edit, const InputRow& row);
  /// Gives each arrow the name of its field's heading.
  void Name_Arrows();

 private:
  struct Offered {
    InputRow row;
    NumberEdit* edit;
    PickerArrow* arrow;
  };

  void Open(const Offered& offered);
  Choices Choices_Of(const InputRow& row) const;
  void Take(const std::string& text);
  void Pass(bool forward);

  FormView& view_;
  Warmt& warmt_;
  std::vector<Offered> offered_;
  Offered open_{};
  Picker* picker_ = nullptr;
};

}  // namespace norvane
