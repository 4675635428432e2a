#pragma once

#include <cstdint>

#include "screen/model/field_array.h"
#include "screen/model/form.h"

namespace norvane {

struct Module1;

/// The dialog that lists the languages; a click on a name changes the language at once. Element i
/// of its arrays is the language of slot i.
class Lang : public Form {
 public:
  explicit Lang(Module1& module1);

  void Load() override;
  void Close_Box() override;

  /// Changes the language to that of a slot, and asks first when that costs saved lines; the answer
  /// doesn't stop the change.
  /// @param TheLanNr the slot
  void Select_Language(std::int16_t TheLanNr);

  FieldArray<CaptionField> Label2{*this, "Label2", 0, 19};  ///< names of the languages
  FieldArray<CaptionField> Label3{*this, "Label3", 0, 13};  ///< and their versions
  FieldArray<PictureField> imgCheck{*this, "imgCheck", 0, 19};
  CaptionField Label1{*this, "Label1"};
  Button OK{*this, "OK"};
  PictureField imgExit{*this, "imgExit"};

 private:
  void Click_Label2(int Index);
  void Clear_Saved_Lines();

  Module1& module1_;
};

/// Shows the dialog in the middle of the screen.
/// @param module1 of the program
void Show_Lang_Dialog(Module1& module1);

}  // namespace norvane
