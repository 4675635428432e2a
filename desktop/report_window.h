#pragma once

#include <QPrinter>
#include <QWidget>
#include <memory>

#include "desktop/report_pages.h"

class QLabel;
class QLineEdit;
class QPrintPreviewWidget;
class QPushButton;

namespace norvane {

class FormView;
class Warmt;

/// The report of the present calculation as its pages will be, to be printed or saved as PDF. It
/// follows the main screen while it is open.
class ReportWindow : public QWidget {
  Q_OBJECT

 public:
  /// @param main the window of the main screen, whose child it is
  ReportWindow(FormView& main, Warmt& warmt);
  ~ReportWindow() override;

  /// Shows the window and brings it to the front.
  void Open();
  /// Shows what the main screen holds now, if the window is open.
  void Follow();
  /// Writes the report into a file that has its name only when it is whole; why not, or nothing.
  QString Save_As(const QString& path);

 private:
  QWidget* Make_Actions();
  void Show_All();
  void Keep_Project();
  void Print();
  void Ask_Where_To_Save();

  FormView& main_;
  Warmt& warmt_;
  QPrinter printer_;
  std::unique_ptr<ReportPages> pages_;
  QLabel* project_heading_ = nullptr;
  QLineEdit* project_ = nullptr;
  QPushButton* print_ = nullptr;
  QPushButton* save_ = nullptr;
  QPrintPreviewWidget* preview_;
};

}  // namespace norvane
