#pragma once

#include "desktop/form_view.h"
#include "screen/warmt.h"

class QLayout;

namespace norvane {

class CompareWindow;
class InputCard;
class ObjectCard;
class OwnCommands;
class ReportPages;
class ReportWindow;
class ResultCard;
class ScheduleWindow;
class ToolStrip;
struct ReportFrame;

/// The main screen: menu labels and toolbar strip on top, input rows beside the insulated object,
/// the results below, the green band with the front end's own commands at the foot.
class MainView : public FormView {
  Q_OBJECT

 public:
  MainView(Desktop& desktop, Warmt& warmt);
  ~MainView() override;

 protected:
  void Arrange() override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QLayout* Make_Menu();
  QLayout* Make_Cards();
  QWidget* Make_Foot();
  void Compare();
  void Show_Schedule();
  void Report();
  /// The report of what is shown; null when the screen has gone.
  std::unique_ptr<ReportPages> Pages(const ReportFrame& frame);

  Warmt& warmt_;
  ToolStrip* tools_;
  InputCard* inputs_;
  ResultCard* results_;
  ObjectCard* object_;
  CompareWindow* compare_ = nullptr;  ///< made at its first use, as the next
  ReportWindow* report_ = nullptr;
  OwnCommands* commands_;
  std::unique_ptr<ScheduleWindow> schedule_;  ///< once it was asked for
};

}  // namespace norvane
