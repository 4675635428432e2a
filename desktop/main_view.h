#pragma once

#include "desktop/form_view.h"
#include "screen/warmt.h"

class QFrame;
class QGridLayout;
class QLayout;
class QPushButton;
class QVBoxLayout;

namespace norvane {

class ToolButton;
enum class ToolSign;

/// The main screen: menu labels and toolbar strip on top, input rows beside the picture of the
/// object, results below, the green band at the foot.
class MainView : public FormView {
  Q_OBJECT

 public:
  MainView(Desktop& desktop, Warmt& warmt);

 protected:
  void Arrange() override;
  void showEvent(QShowEvent* event) override;

 private:
  QLayout* Make_Menu();
  QWidget* Make_Toolbar();
  ToolButton& Add_Tool(QLayout& strip, Button& field, ToolSign sign);
  void Make_Tooltip();
  QWidget* Make_Inputs();
  void Add_Input_Row(QGridLayout& grid, int row, int index);
  void Add_Length_Row(QGridLayout& grid, int row);
  QWidget* Make_Object();
  QWidget* Make_Results();
  void Add_Result_Row(QGridLayout& grid, int row, int heading, int value);
  QWidget* Make_Foot();

  void Place_Tooltip();
  void Name_Fields();

  Warmt& warmt_;
  QFrame* saving_line_ = nullptr;
  QFrame* tooltip_ = nullptr;
  ToolButton* reached_ = nullptr;
  std::vector<std::pair<Button*, ToolButton*>> tools_;
};

}  // namespace norvane
