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

 protected:
  /// The mouse on the strip's own ground isn't on the bare form.
  void mouseMoveEvent(QMouseEvent*) override {}

 private:
  void Add_Group(QBoxLayout& row, const std::vector<std::pair<Button*, ToolSign>>& group);
  /// A `choice` is one of a group of which one is chosen.
  void Add_Button(QBoxLayout& row, Button& field, ToolSign sign, bool choice);
  void Make_Tooltip();
  /// Mouse or keyboard has come to a button.
  void Reach(ToolButton& button, Button& field);
  /// Gives the box its one size, in which the longest tip of all languages has room.
  void Size_Tooltip();

  FormView& view_;
  Warmt& warmt_;
  QFrame* tooltip_;
  bool tooltip_sized_ = false;
  ToolButton* reached_ = nullptr;
  bool brought_by_focus_ = false;  ///< the keyboard was the last to come to a button
  std::vector<std::pair<Button*, ToolButton*>> buttons_;
};

}  // namespace norvane
