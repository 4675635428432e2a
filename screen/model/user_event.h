#pragma once

#include <string>

namespace norvane {

class Field;
class Form;

enum class UserAction {
  kSetText,  ///< the whole text of a text field becomes `text`, as one change
  kClick,
  kDown,  ///< one half of a spin pair or stepper
  kUp,
  kHover,     ///< the mouse moves over the field, or over the form itself
  kChoose,    ///< item `first` of a list, from 0
  kPickTab,   ///< tab `first`, from 0
  kPickRows,  ///< a drag from row `first` to row `last` of a grid, and the mouse let go
  kActivate,  ///< the form is brought to the front
  kResize,    ///< the form gets the size `width` by `height`, in twips
  kMove,  ///< the form comes to lie at `left` and `top`, in twips, and isn't brought to the front
  kCloseBox,
};

/// Something that the user does, on a field or, without one, on the form itself.
struct UserEvent {
  UserAction action;
  Form& form;
  Field* field = nullptr;
  std::string text = {};
  int first = 0;
  int last = 0;
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

}  // namespace norvane
