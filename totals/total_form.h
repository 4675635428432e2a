#pragma once

#include <string>

#include "screen/model/form.h"
#include "screen/model/grid.h"

namespace norvane {

struct Module1;

/// The workbook that the export of the totals fills.
inline constexpr const char* kTotalWorkbook = "total.xls";

/// The screen of the saved calculations with the sums of their savings. Grid row r shows element r
/// of `Calc_List`.
class Total : public Form {
 public:
  explicit Total(Module1& module1);

  void Load() override;
  void Activate() override;
  void Resize() override;
  void Close_Box() override;

  /// Places the form beside the main screen.
  void Total_Init();
  /// Rebuilds grid and sums. Throws `RuntimeError` 13 where a cell to be summed is no number.
  void Fill_Total_Table();

  /// Hands the saved lines and sums to the spreadsheet program, in the sheet of the workbook
  /// `strFile` of the program's folder. A step that fails is passed over.
  void Xls_Export(const std::string& strFile);

  /// Asks a running spreadsheet program to report itself.
  void DetectExcel();

  Grid grdResult{*this, "grdResult"};
  Button Toolbar1{*this, "Toolbar1"};
  PictureField picTotal{*this, "picTotal"};
  CaptionField Label1{*this, "Label1"};  ///< the sums

  std::string Sums_Text;
  bool First_Activation = false;     ///< from Load to the first Activate
  bool Close_On_Activation = false;  ///< the last fill found nothing to show

 private:
  void Fill_Captions();
  void Fill_Lines();
  void Show_Sums();
  void Ask_To_Delete();
  void Delete_Lines(int low, int high);
  void Keep_Lines();

  Module1& module1_;
};

}  // namespace norvane
