#pragma once

#include <QFrame>
#include <QString>
#include <utility>
#include <vector>

#include "desktop/tool_button.h"

class QBoxLayout;

namespace norvane {

class Button;
class FormView;
class TipButton;
class Warmt;

/// The strip of picture buttons on the main screen, and the box under a button that tells what the
/// button does, and by which key.
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
  struct Tool {
    Button* field;
    ToolButton* button;
    QString key;
  };

  void Add_Group(QBoxLayout& row, const std::vector<std::pair<Button*, ToolSign>>& group);
  /// A `choice` is one of a group of which one is chosen.
  void Add_Button(QBoxLayout& row, Button& field, ToolSign sign, bool choice);
  /// Clicks a button for its key. An input field that the user was at keeps the keyboard, or the
  /// one that has come into its place.
  void Press_By_Key(Button& field);
  void Make_Tooltip();
  /// Mouse or keyboard has come to a button.
  void Reach(ToolButton& button, Button& field);
  /// Gives the box its one size, in which the longest tip of all languages has room.
  void Size_Tooltip();

  FormView& view_;
  Warmt& warmt_;
  QFrame* tooltip_;
  TipButton* tip_ = nullptr;
  bool tooltip_sized_ = false;
  ToolButton* reached_ = nullptr;
  bool brought_by_focus_ = false;  ///< the keyboard was the last to come to a button
  std::vector<Tool> tools_;
};

}  // namespace norvane
