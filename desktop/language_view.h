#pragma once

#include "desktop/bare_view.h"
#include "frame/lang_form.h"

namespace norvane {

/// The list of languages: element i in the left column if i is even, in the right one if it is odd.
class LanguageView : public BareView {
  Q_OBJECT

 public:
  LanguageView(Desktop& desktop, Lang& lang);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* Make_List(Lang& lang);
  QWidget* Make_Entry(Lang& lang, int index);
};

}  // namespace norvane
