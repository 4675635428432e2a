#pragma once

#include "screen/model/field_array.h"
#include "screen/model/form.h"

namespace norvane {

struct Module1;

/// The dialog with the hours and days of the savings, a new lambda and a new alpha, a tab each. OK
/// takes the fields of all tabs. While it is hidden, `Text1` keeps the chosen product's lambda.
class Settings : public Form {
 public:
  static constexpr int kSavingTab = 0;
  static constexpr int kLambdaTab = 1;
  static constexpr int kAlphaTab = 2;

  explicit Settings(Module1& module1);

  void Load() override;
  void Close_Box() override;

  /// Writes the shared alpha into `Text3`, with a point.
  void Show_Alpha();

  Tabs SSTab1{*this, "SSTab1", {"Besparing", "Nieuwe Lambda", "Nieuwe Alpha"}};
  CaptionField Label7{*this, "Label7"};
  FieldArray<CaptionField> Label6{*this, "Label6", 0, 1};
  FieldArray<TextField> Text2{*this, "Text2", 0, 1};  ///< hours a day, days
  Stepper UpDown1_0{*this, "UpDown1", 0, Text2(0), 1, 24};
  Stepper UpDown1_1{*this, "UpDown1", 1, Text2(1), 1, 365};
  TextField Text1{*this, "Text1"};  ///< lambda at 40 degrees Celsius, W/mK
  FieldArray<CaptionField> Label1{*this, "Label1", 0, 0};
  CaptionField Label2{*this, "Label2"};
  TextField Text3{*this, "Text3"};     ///< alpha, W/m2K
  Button Command1{*this, "Command1"};  ///< OK
  Button Command2{*this, "Command2"};  ///< Cancel

 private:
  void Click_Command1();
  void Click_Command2();
  void Mark_Alpha(float alpha);

  Module1& module1_;
};

}  // namespace norvane
