#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "calc/dew_point.h"
#include "frame/text_id.h"
#include "screen/model/field_array.h"
#include "screen/model/form.h"

namespace norvane {

struct Module1;
struct UserEvent;

/// The main screen. Input rows have the same index in all their arrays: 0 medium temperature
/// (degrees Celsius), 1 ambient temperature, 2 insulation thickness (mm), 3 pipe diameter (mm),
/// 4 relative humidity (percent), 5 length or area (m or m2).
class Warmt : public Form {
 public:
  explicit Warmt(Module1& module1);

  // warmt.cpp: the events of the form itself
  void Load() override;
  void Activate() override;
  void Resize() override;
  void Hover() override;
  void Close_Box() override;
  /// Leaves the program: unloads its forms and ends it.
  [[noreturn]] void Leave();

  // init.cpp
  void Init();
  void Init_toolbar();
  void Init_results();
  /// Shows the picture of an object: `Soort` is its kind, `Dikte` its thickness in mm.
  void GetPic(std::int16_t Soort, std::int16_t Dikte);
  /// Colours the heading of an input row as a heat scale, `Wrd` in degrees Celsius.
  void Color(float Wrd, std::int16_t Index);

  // bereken.cpp, bereken_warmt.cpp, bereken_condens.cpp
  /// Runs the calculation of the current mode and colours the lambda.
  void Bereken();
  void Bereken_Warmt();
  void Bereken_Condens();
  /// Opens the settings for a new lambda or a new alpha.
  void New_Lambda();
  void New_Alpha();
  /// What stands above the savings: hours, days and metres that they are for.
  std::string Saving_Heading() const;

  /// The text that tells what a button of the toolbars does.
  TextId Tooltip_Of(const Button& button) const;

  // input.cpp
  void Change(FieldArray<TextField>& F, int Index);
  void Change_txtmtrs();
  void Change_Text4();
  /// Shows or hides the inch form of row 2 or 3 by whether it says anything.
  void Show_Or_Hide_Inch(int Index);

  // spinning.cpp
  void DownClick(int Index);
  void UpClick(int Index);

  // toolbar.cpp
  void Click_cmdToolBar0(int Index);
  void Click_cmdToolBar1(int Index);
  void Click_cmdToolBarT();
  void Click_cmdToolBarC();
  void Click_cmdToolBar3(int Index);
  void Click_cmdToolBar4(int Index);
  void Click_cmdToolBar5(int Index);
  void Click_LblTooltip();
  void Click_lblMenu(int Index);
  void Open_Language();
  /// Adds what the screen shows to the list of calculations.
  void Click_cmdAdd();

  // kinds.cpp
  /// Hands the chosen product's lambda to the settings.
  void Click_Combo1();
  /// Puts the screen into a kind of object, with its defaults.
  void Select_Kind(std::int16_t kind);
  void Select_Lambda(int index);
  void Show_Saving_Settings();

  // Input rows.
  FieldArray<CaptionField> Label1{*this, "Label1", 0, 5};  ///< headings
  FieldArray<TextField> txtT{*this, "txtT", 0, 3};         ///< mode "T"
  FieldArray<TextField> txtC{*this, "txtC", 0, 4};         ///< mode "C"
  TextField txtmtrs{*this, "txtmtrs"};
  FieldArray<CaptionField> Label7{*this, "Label7", 0, 4};  ///< units
  FieldArray<CaptionField> Text2{*this, "Text2", 0, 3};    ///< degrees Fahrenheit, inch
  FieldArray<CaptionField> Label8{*this, "Label8", 0, 3};  ///< their units
  FieldArray<SpinPair> SpinButton1{*this, "SpinButton1", 0, 5};
  /// Never visible: carries alpha (W/m2K) between settings, kinds and calculations.
  FieldArray<TextField> Text4{*this, "Text4", 1, 1};

  // Result rows.
  FieldArray<CaptionField> Label2{*this, "Label2", 0, 1};  ///< the Greek letters of rows 0 and 1
  FieldArray<CaptionField> Label3{*this, "Label3", 0, 8};  ///< headings
  /// 0 lambda (W/mK), 1 alpha (W/m2K), 2 surface (degrees Celsius), 3 and 4 heat flow bare and
  /// insulated (W/m or W/m2), 5 saving in percent, 6 saving (W/m or W/m2), 7 gas (m3), 8 oil
  /// (litres), 9 electricity (kWh)
  FieldArray<CaptionField> Label4{*this, "Label4", 0, 9};
  FieldArray<CaptionField> Label9{*this, "Label9", 0, 8};  ///< units
  CaptionField Label6{*this, "Label6"};                    ///< heads the savings

  CaptionField Label0{*this, "Label0"};  ///< the kind of object
  PictureField Picture2{*this, "Picture2"};
  ListField Combo1{*this, "Combo1"};  ///< products
  Button cmdAdd{*this, "cmdAdd"};
  PictureField picTotal{*this, "picTotal"};

  // The toolbar strip and its tooltip.
  PictureField picToolbar{*this, "picToolbar"};
  FieldArray<Button> cmdToolBar0{*this, "cmdToolBar0", 0, 0};
  FieldArray<Button> cmdToolBar1{*this, "cmdToolBar1", 0, 3};
  Button cmdToolBarT{*this, "cmdToolBarT"};
  Button cmdToolBarC{*this, "cmdToolBarC"};
  FieldArray<Button> cmdToolBar3{*this, "cmdToolBar3", 0, 0};
  FieldArray<Button> cmdToolBar4{*this, "cmdToolBar4", 0, 2};
  FieldArray<Button> cmdToolBar5{*this, "cmdToolBar5", 0, 0};
  PictureField picToolTip{*this, "picToolTip"};
  CaptionField LblTooltip{*this, "LblTooltip"};

  FieldArray<CaptionField> lblMenu{*this, "lblMenu", 0, 3};
  CaptionField Label10{*this, "Label10"};  ///< the current language
  CaptionField Label5{*this, "Label5"};    ///< the band at the foot
  CaptionField Line1{*this, "Line1"};

  std::string Calc_Mode;       ///< "T" heat loss; anything else counts as "C", condensation
  bool Calc_Busy = false;      ///< stops the change handlers while code writes fields
  bool First_Warmt = false;    ///< heat-loss defaults still to be applied
  bool First_Condens = false;  ///< condensation defaults still to be applied

  std::int16_t Idx_A1 = 0;  ///< row of `Dew_Temps` that mode "C" stands at
  std::int16_t Idx_A4 = 0;  ///< column of `Dew_Hums` that mode "C" stands at
  /// Degrees Celsius by row, and percent by column, 0 where a column holds none. Both count from 1;
  /// their index 0 is empty.
  std::vector<std::optional<double>> Dew_Temps;
  std::vector<std::optional<double>> Dew_Hums;
  norvane::Dew_Table Dew_Table;

  std::int16_t Hover_Group = 0;               ///< the toolbar group that the mouse was last over
  std::array<std::int16_t, 6> Hover_Index{};  ///< and its button in each group

 private:
  void Design_Captions();
  void Design_Visibility();
  void Design_Toolbar();
  void Connect_Fields();
  void Connect_Toolbar();

  void Fill_Dew_Point_Arrays();

  void Show_Mode(bool heat_loss);
  void Warmt_Defaults();
  void Condens_Defaults();
  void Default_Temperature(int Index, TextField& field, double degrees);
  void Default_Diameter(TextField& field);
  void Show_Fahrenheit(int Index, TextField& field);
  void Show_Lambda_And_Alpha(float lambda_T);
  void Colour_Lambda();
  bool Shows_Sheet() const;

  void Write_Canonically(TextField& field);
  void Limit_Temperature(int Index, TextField& field);
  void Limit_Thickness(TextField& field);
  void Limit_Diameter(TextField& field);
  void Show_Inch_Of_Thickness(TextField& field);
  void Show_Inch_Of_Diameter(TextField& field);

  enum class Direction { kDown = -1, kUp = 1 };
  FieldArray<TextField>& Mode_Fields() { return Calc_Mode == "T" ? txtT : txtC; }
  void Spin_Row(int Index, Direction direction);
  void Spin_Temperature(int Index, Direction direction);
  void Spin_Dew_Temperature(Direction direction);
  void Spin_Thickness(Direction direction);
  void Spin_Diameter(Direction direction);
  void Spin_Humidity(Direction direction);
  void Spin_Length(Direction direction);
  void Finish_Spin();

  void Press(int group, FieldArray<Button>& buttons, int Index);
  void Press_Mode(bool heat_loss);
  void Hover_Button(int group, int Index, const Button& button);

  void Show_Pipe_Rows(std::int16_t kind);
  void Show_Sheet_Rows();
  void Show_Common_Rows();

  Module1& module1_;
  std::map<const Button*, TextId> tooltips_;
  int changes_ = 0;  ///< handlers of `txtT` and `txtC` under way, inside each other
};

/// Whether what a user does ends the program, unless it is refused.
/// @param event of any form
bool Leads_Out(const UserEvent& event);

}  // namespace norvane
