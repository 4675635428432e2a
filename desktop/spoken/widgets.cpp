#include "desktop/spoken/widgets.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>

#include "desktop/card.h"
#include "desktop/form_view.h"
#include "desktop/number_edit.h"
#include "desktop/spoken/announcement.h"
#include "desktop/spoken/spoken_list.h"
#include "desktop/spoken/spoken_number.h"
#include "desktop/tool_button.h"
#include "desktop/tool_strip.h"

namespace norvane {
namespace {

/// The window of a form; one that belongs to another is a dialog.
class SpokenWindow : public QAccessibleWidget {
 public:
  explicit SpokenWindow(QWidget* window) : QAccessibleWidget(window) {}

  QAccessible::Role role() const override {
    const auto type = widget()->windowType();
    return type == Qt::Dialog || type == Qt::Tool ? QAccessible::Dialog : QAccessible::Window;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.modal = widget()->isModal();
    return state;
  }
};

/// A picture button: one of several of which one is chosen, or one that is pressed.
class SpokenTool : public QAccessibleWidget {
 public:
  explicit SpokenTool(ToolButton* button) : QAccessibleWidget(button) {}

  QAccessible::Role role() const override {
    return Tool().isCheckable() ? QAccessible::RadioButton : QAccessible::Button;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = Tool().isCheckable();
    state.checked = Tool().isChecked();
    state.pressed = Tool().isDown();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    // The click comes by a timer, when whoever acts has been answered: a dialog may come of it.
    Tool().animateClick();
  }

 private:
  ToolButton& Tool() const { return *static_cast<ToolButton*>(widget()); }
};

QAccessibleInterface* Interface_Of(const QString&, QObject* object) {
  if (auto* view = dynamic_cast<FormView*>(object)) return new SpokenWindow(view);
  if (auto* tool = qobject_cast<ToolButton*>(object)) return new SpokenTool(tool);
  if (auto* edit = qobject_cast<NumberEdit*>(object)) return new SpokenNumber(edit);
  if (auto* list = qobject_cast<QComboBox*>(object)) return new SpokenList(list);
  if (auto* told = qobject_cast<Announcement*>(object)) return new SpokenAnnouncement(told);
  if (auto* strip = qobject_cast<ToolStrip*>(object)) {
    return new QAccessibleWidget(strip, QAccessible::ToolBar);
  }
  auto* card = qobject_cast<Card*>(object);
  return card == nullptr ? nullptr : new QAccessibleWidget(card, QAccessible::Grouping);
}

}  // namespace

void Use_Spoken_Widgets() { QAccessible::installFactory(Interface_Of); }

}  // namespace norvane
