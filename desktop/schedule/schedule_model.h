#pragma once

#include <QAbstractTableModel>

#include "schedule/schedule_document.h"

namespace norvane {

class Desktop;

/// A schedule as the table of a window: its columns, those of the results behind them, and last why
/// a row has none. Numbers show the decimal sign of the user's locale, whatever the file has.
class ScheduleModel : public QAbstractTableModel, public RowObserver {
  Q_OBJECT

 public:
  ScheduleModel(const Desktop& desktop, ScheduleDocument& document);
  ~ScheduleModel() override;

  /// Nothing of the document is touched any more until another one is shown.
  void Let_Go();
  /// Shows a document, another one or the same in another language.
  void Show(ScheduleDocument& document);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

  /// The first column of the results, which go on in the order of `kHeatLossColumns`.
  int First_Result() const;
  /// Whether a column holds words, and no numbers.
  bool Holds_Words(int column) const;
  /// Whether a column holds the kinds of objects, which are chosen and not typed.
  bool Holds_Kinds(int column) const;

  void Before_Change(const RowChange& change) override;
  void After_Change(const RowChange& change) override;

 signals:
  void Rows_Changed();

 private:
  QString Field(int row, int column) const;
  QString Result(int row, int place) const;
  QString Cell(int row, int column) const;
  QString Heading(int column) const;

  const Desktop& desktop_;
  ScheduleDocument* document_;
};

}  // namespace norvane
