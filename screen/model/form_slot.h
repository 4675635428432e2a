#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "screen/model/desk.h"
#include "screen/model/form.h"

namespace norvane {

/// The one instance of a form. Any reference to it creates the form and runs its Load first when
/// it isn't there; unloading throws it away, and the next reference makes a fresh one.
class FormReference {
 public:
  FormReference(Desk& desk, std::function<std::unique_ptr<Form>()> make)
      : desk_(desk), make_(std::move(make)) {}

  bool Loaded() const { return form_ != nullptr; }

  Form& Get() {
    if (!form_) {
      form_ = make_();
      desk_.Loaded(*form_);
      form_->Load();
    }
    return *form_;
  }

  /// Where the form lies, or lay when it was unloaded: that doesn't bring it back.
  Place Last_Place() { return form_ || !unloaded_place_ ? Get().Place() : *unloaded_place_; }

  /// Unloads the form; being a reference, it loads it first when it isn't there.
  void Unload() {
    unloaded_place_ = Get().Place();
    desk_.Unload(std::move(form_));
  }

 private:
  Desk& desk_;
  std::function<std::unique_ptr<Form>()> make_;
  std::unique_ptr<Form> form_;
  std::optional<Place> unloaded_place_;
};

/// A `FormReference` that knows the form's own type.
template <class T>
class FormSlot : public FormReference {
 public:
  using FormReference::FormReference;

  T& operator*() { return static_cast<T&>(Get()); }
  T* operator->() { return &**this; }
};

}  // namespace norvane
