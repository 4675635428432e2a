#pragma once

#include <QAbstractTableModel>
#include <optional>

#include "report/comparison_table.h"

namespace norvane {

/// A comparison as a table, in which the costs can be edited.
class ComparisonModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(ComparisonTable table);
  const ComparisonTable& Shown() const { return table_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Refuses a text that is no amount; an empty one takes the cost away.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 signals:
  void Cost_Entered(double thickness_mm, std::optional<double> cost);

 private:
  ComparisonTable table_;
};

}  // namespace norvane
