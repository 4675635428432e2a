#pragma once

#include <QWidget>
#include <functional>

#include "study/prices.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace norvane {

class ComparisonModel;
class FormView;
class ToolButton;
class Warmt;

/// The thicknesses of the present calculation beside one another, with what they cost. It follows
/// the main screen while it is open; a row that is chosen is pasted into the thickness there.
class CompareWindow : public QWidget {
  Q_OBJECT

 public:
  /// @param main the window of the main screen, whose child it is
  CompareWindow(FormView& main, Warmt& warmt);

  /// Shows the window and brings it to the front.
  void Open();
  /// Shows what the main screen and the prices are now, if the window is open.
  void Follow();

  /// In which the whole table has room.
  QSize sizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* Make_Prices();
  QWidget* Make_Table();
  QWidget* Make_Actions();
  QLineEdit* Make_Amount();

  void Show_All();
  void Name_Widgets();
  double Thickness_Of(int row) const;
  /// Makes the row of a thickness the current one, that of the present one where there is none.
  void Go_To(double thickness, int column);
  void Show_Prices();
  void Change(const std::function<void(Prices&)>& change);
  void Enter_Price();
  void Enter_Years();
  void Take(int row);
  bool Can_Take() const;
  void Copy();
  void Export();

  FormView& main_;
  Warmt& warmt_;
  Prices prices_;
  QLabel* price_heading_ = nullptr;
  QComboBox* fuel_ = nullptr;
  QLineEdit* price_ = nullptr;
  QLabel* years_heading_ = nullptr;
  QLineEdit* years_ = nullptr;
  QTableView* table_ = nullptr;
  ComparisonModel* model_;
  QPushButton* take_ = nullptr;
  QPushButton* copy_ = nullptr;
  ToolButton* export_ = nullptr;
};

}  // namespace norvane
