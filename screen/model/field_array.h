#pragma once

#include <deque>
#include <string>

#include "data/runtime_error.h"

namespace norvane {

class Form;

/// A control array: elements of one kind under one name, `first` to `last`, reached as in
/// `Label4(3)`.
template <class T>
class FieldArray {
 public:
  FieldArray(Form& form, const std::string& name, int first, int last) : first_(first) {
    for (int index = first; index <= last; ++index) elements_.emplace_back(form, name, index);
  }

  /// Throws `RuntimeError` 9 for an element that the array doesn't have.
  /// @param index `first` to `last`
  T& operator()(int index) {
    if (index < first_ || index > UBound()) {
      throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
    }
    return elements_[static_cast<std::size_t>(index - first_)];
  }

  int UBound() const { return first_ + static_cast<int>(elements_.size()) - 1; }

  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }

 private:
  int first_;
  std::deque<T> elements_;
};

}  // namespace norvane
