#pragma once

#include <QFrame>
#include <utility>
#include <vector>

#include "desktop/tool_button.h"

class QBoxLayout;

namespace norvane {

class Button;
class FormView;
class Warmt;

/// The strip of picture buttons on the main screen, and the box under a button that tells what the
/// button does.
class ToolStrip : public QFrame {
  Q_OBJECT

 public:
  ToolStrip(FormView& view, Warmt& warmt);

  /// Puts the box under the button that mouse or keyboard came to last.
  void Place_Tooltip();
  /// Gives each button its tooltip text as its name.
  void Name_Buttons();

 private:
  void Add_Group(QBoxLayout& row, const std::vector<std::pair<Button*, ToolSign>>& group);
  void Add_Button(QBoxLayout& row, Button& field, ToolSign sign);
  void Make_Tooltip();

  FormView& view_;
  Warmt& warmt_;
  QFrame* tooltip_;
  ToolButton* reached_ = nullptr;
  std::vector<std::pair<Button*, ToolButton*>> buttons_;
};

}  // namespace norvane
