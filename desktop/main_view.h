#pragma once

#include "desktop/form_view.h"
#include "screen/warmt.h"

class QLayout;

namespace norvane {

class CompareWindow;
class InputCard;
class ObjectCard;
class OwnCommands;
class ResultCard;
class ToolStrip;

/// The main screen: menu labels and toolbar strip on top, input rows beside the insulated object,
/// the results below, the green band with the front end's own commands at the foot.
class MainView : public FormView {
  Q_OBJECT

 public:
  MainView(Desktop& desktop, Warmt& warmt);

 protected:
  void Arrange() override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QLayout* Make_Menu();
  QLayout* Make_Cards();
  QWidget* Make_Foot();
  void Compare();

  Warmt& warmt_;
  ToolStrip* tools_;
  InputCard* inputs_;
  ResultCard* results_;
  ObjectCard* object_;
  CompareWindow* compare_ = nullptr;  ///< made at its first use
  OwnCommands* commands_;
};

}  // namespace norvane
