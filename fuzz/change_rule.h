#pragma once

#include <map>

#include "screen/model/form.h"

namespace norvane {

/// Watches over the change rule on all forms: `On_Change` is raised by every text that differs from
/// the one before, and by no other.
class ChangeRule {
 public:
  /// From the making of a form on.
  void Watch(Form& form);

  /// No text has changed without a word.
  void Require_Told(const Form& form) const;

  /// How often any `On_Change` was raised.
  int raised = 0;

 private:
  std::map<const TextField*, std::string> last_;
};

}  // namespace norvane
