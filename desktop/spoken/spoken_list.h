#pragma once

#include <QAccessibleWidget>
#include <vector>

class QComboBox;

namespace norvane {

/// A list that drops down, and below it its items, each of which is chosen by a press. It has a
/// name of its own; its value is the chosen item.
class SpokenList : public QAccessibleWidget {
 public:
  explicit SpokenList(QComboBox* list);
  ~SpokenList() override;
  SpokenList(const SpokenList&) = delete;
  SpokenList& operator=(const SpokenList&) = delete;

  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QString text(QAccessible::Text part) const override;
  QAccessible::State state() const override;
  QStringList actionNames() const override;
  void doAction(const QString& action) override;

 private:
  QComboBox& List() const;

  mutable std::vector<QAccessible::Id> items_;  ///< made when they are asked for
};

}  // namespace norvane
