#pragma once

#include "desktop/card.h"

namespace norvane {

class FormView;
class ToolButton;
class Warmt;

/// The insulated object of the main screen: its kind, its picture, the products, and the way into
/// the list of totals.
class ObjectCard : public Card {
  Q_OBJECT

 public:
  ObjectCard(FormView& view, Warmt& warmt);

  /// Names what has no caption of its own, and tells how many lines wait in the totals.
  void Name_Fields();

 private:
  FormView& view_;
  Warmt& warmt_;
  ToolButton* total_;
};

}  // namespace norvane
