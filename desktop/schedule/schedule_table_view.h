#pragma once

#include <QStyledItemDelegate>
#include <QTableView>

namespace norvane {

class Desktop;
class ScheduleModel;

/// The editor of a cell: a list of the kinds of objects, or a line.
class ScheduleDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  ScheduleDelegate(const Desktop& desktop, const ScheduleModel& model, QObject* parent);

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;

 private:
  const Desktop& desktop_;
  const ScheduleModel& model_;
};

/// The rows of a schedule. Rows are marked whole, cells are edited by Enter, F2 or by typing.
class ScheduleTableView : public QTableView {
  Q_OBJECT

 public:
  explicit ScheduleTableView(ScheduleModel& model);

  /// Gives the columns the width of their headings and texts.
  void Size_Columns();
  /// Marks rows, and brings them into sight.
  void Mark_Rows(int first, int count);
  /// The marked rows, the first one and how many; the current one alone where none is.
  std::pair<int, int> Marked_Rows() const;
  /// Ends what is being edited in a cell, as Enter does.
  void Finish_Editing();
  /// The marked rows with the headings, for the clipboard.
  QString As_Text() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Makes columns wider where rows from `first` to `last` need it.
  void Make_Room(int first, int last);
  int Width_For(int column, int first, int last) const;
};

}  // namespace norvane
