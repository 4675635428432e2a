#include "desktop/input_picker.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "desktop/desktop.h"
#include "desktop/enter.h"
#include "desktop/form_view.h"
#include "desktop/number_edit.h"
#include "desktop/own_texts.h"
#include "desktop/picker.h"
#include "desktop/picker_arrow.h"
#include "screen/warmt.h"

namespace norvane {

Choices InputPicker::Choices_Of(const InputRow& row) const {
  return norvane::Choices_Of(warmt_, row, view_.desktop().program().State().Sel_Size);
}

void InputPicker::Offer(NumberEdit& edit, const InputRow& row) {
  const Offered offered{row, &edit, new PickerArrow(edit)};
  offered_.push_back(offered);
  connect(offered.arrow, &PickerArrow::clicked, this, [this, offered] { Open(offered); });
  connect(&edit, &NumberEdit::Number_Begun, this, [this, offered](const QString& letter) {
    Open(offered);
    picker_->Begin_With(letter);
  });
  edit.Give_Steps([this, &edit, row]() -> NumberSteps {
    // A field that doesn't show may be one that the kind of object has no sizes for.
    if (!edit.isVisible()) return {};
    const Choices choices = Choices_Of(row);
    return {choices.limits.least, choices.limits.most, choices.step};
  });
  connect(&edit, &NumberEdit::Value_Asked_For, this, [this, &edit, row](double value) {
    if (edit.isVisible()) Enter(view_, warmt_, row, Text_To_Enter(value, Choices_Of(row)));
  });
}

void InputPicker::Name_Arrows() {
  const QString action = Own_Text(view_.desktop(), TextId::kChooseValue);
  for (const Offered& each : offered_) {
    const QString heading = view_.desktop().Text(warmt_.Label1(each.row.index).Caption());
    each.arrow->Name_After(heading, action);
  }
}

void InputPicker::Open(const Offered& offered) {
  if (picker_ == nullptr) {
    picker_ = new Picker(&view_);
    connect(picker_, &Picker::Taken, this, &InputPicker::Take);
    connect(picker_, &Picker::Passed, this, &InputPicker::Pass);
  }
  open_ = offered;
  offered.edit->setFocus(Qt::OtherFocusReason);
  const Desktop& desktop = view_.desktop();
  const Module1& state = view_.desktop().program().State();
  const int index = offered.row.index;
  PickerSubject subject;
  subject.choices = Choices_Of(offered.row);
  subject.locale = state.Locale();
  subject.name = desktop.Text(warmt_.Label1(index).Caption());
  subject.text = offered.edit->text();
  if (index <= warmt_.Label7.UBound()) subject.unit = desktop.Text(warmt_.Label7(index).Caption());
  if (index <= warmt_.Label8.UBound()) {
    subject.inch_unit = desktop.Text(warmt_.Label8(index).Caption());
  }
  picker_->Open_At(*offered.edit, subject);
}

void InputPicker::Take(const std::string& text) { Enter(view_, warmt_, open_.row, text); }

void InputPicker::Pass(bool forward) {
  // What was taken may have sent the user to another field.
  if (view_.focusWidget() != open_.edit) return;
  QKeyEvent tab(QEvent::KeyPress, forward ? Qt::Key_Tab : Qt::Key_Backtab,
                forward ? Qt::NoModifier : Qt::ShiftModifier);
  QCoreApplication::sendEvent(open_.edit, &tab);
}

}  // namespace norvane
