#include "desktop/spoken/spoken_list.h"

#include <QComboBox>
#include <QPointer>

namespace norvane {
namespace {

/// An item of a list, by its place.
class SpokenItem : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  SpokenItem(QComboBox& list, int place) : list_(&list), place_(place) {}

  bool isValid() const override { return list_ != nullptr && place_ < list_->count(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(list_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text part) const override {
    return part == QAccessible::Name && isValid() ? list_->itemText(place_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override { return isValid() ? parent()->rect() : QRect(); }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    state.selectable = true;
    state.selected = isValid() && list_->currentIndex() == place_;
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action != pressAction() || !isValid()) return;
    QComboBox* list = list_;
    QMetaObject::invokeMethod(
        list,
        [list, place = place_] {
          list->hidePopup();
          list->setCurrentIndex(place);
          emit list->activated(place);
        },
        Qt::QueuedConnection);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<QComboBox> list_;
  int place_;
};

}  // namespace

SpokenList::SpokenList(QComboBox* list) : QAccessibleWidget(list, QAccessible::ComboBox) {}

SpokenList::~SpokenList() {
  for (const QAccessible::Id item : items_) QAccessible::deleteAccessibleInterface(item);
}

QComboBox& SpokenList::List() const { return *static_cast<QComboBox*>(widget()); }

int SpokenList::childCount() const { return List().count(); }

QAccessibleInterface* SpokenList::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  while (items_.size() <= static_cast<std::size_t>(index)) {
    auto* item = new SpokenItem(List(), static_cast<int>(items_.size()));
    items_.push_back(QAccessible::registerAccessibleInterface(item));
  }
  return QAccessible::accessibleInterface(items_[static_cast<std::size_t>(index)]);
}

int SpokenList::indexOfChild(const QAccessibleInterface* child) const {
  for (int index = 0; index < static_cast<int>(items_.size()); ++index) {
    if (this->child(index) == child) return index;
  }
  return -1;
}

QAccessibleInterface* SpokenList::childAt(int, int) const { return nullptr; }

QString SpokenList::text(QAccessible::Text part) const {
  return part == QAccessible::Value ? List().currentText() : QAccessibleWidget::text(part);
}

QAccessible::State SpokenList::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.expandable = true;
  state.hasPopup = true;
  return state;
}

QStringList SpokenList::actionNames() const {
  return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
}

void SpokenList::doAction(const QString& action) {
  if (action != showMenuAction()) return QAccessibleWidget::doAction(action);
  QMetaObject::invokeMethod(&List(), &QComboBox::showPopup, Qt::QueuedConnection);
}

}  // namespace norvane
