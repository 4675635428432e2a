#pragma once

#include <QAbstractTableModel>

#include "desktop/binder.h"
#include "screen/model/grid.h"

namespace norvane {

class RowTable;

/// The cells of a grid as Qt's views read them; its caption row is their header.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  GridModel(const Grid& grid, std::function<QString(const std::string&)> shown);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  void Reset();
  /// The grid goes; from here on there are no rows.
  void Let_Go();

 private:
  const Grid* grid_;
  std::function<QString(const std::string&)> shown_;
};

/// A grid as a table whose rows are marked by mouse or keyboard; letting the mouse go, or Delete,
/// is the pick that the program hears of. The rows that the program holds as picked are marked.
class GridBinder : public Binder {
 public:
  GridBinder(FormView& view, Grid& field, RowTable& table);

  void Let_Go() override { model_.Let_Go(); }

 protected:
  void Show_Field() override;

 private:
  void Size_Columns();
  void Mark_Rows();
  void Pick();
  void Copy() const;

  Grid& field_;
  RowTable& table_;
  GridModel model_;
  int columns_shown_ = 0;
};

}  // namespace norvane
