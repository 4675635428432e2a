#include "change_rule.h"

#include "require.h"

namespace norvane {

void ChangeRule::Watch(Form& form) {
  for (Field* field : form.Fields()) {
    auto* text = dynamic_cast<TextField*>(field);
    if (text == nullptr || !text->On_Change) continue;
    last_[text] = text->Text();
    text->On_Change = [this, text, handler = text->On_Change] {
      ++raised;
      Require(text->Text() != last_[text], "a text that stays the same raises no change");
      last_[text] = text->Text();
      handler();
    };
  }
}

void ChangeRule::Require_Told(const Form& form) const {
  for (const Field* field : form.Fields()) {
    const auto* text = dynamic_cast<const TextField*>(field);
    const auto last = last_.find(text);
    if (text == nullptr || last == last_.end()) continue;
    Require(text->Text() == last->second, "a text that differs raises a change");
  }
}

}  // namespace norvane
