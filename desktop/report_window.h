#pragma once

#include <QPrinter>
#include <QWidget>
#include <functional>
#include <memory>

#include "desktop/report_pages.h"

class QLabel;
class QLineEdit;
class QPrintPreviewWidget;
class QPushButton;

namespace norvane {

class Desktop;

/// A report as its pages will be, to be printed or saved as PDF.
class ReportWindow : public QWidget {
  Q_OBJECT

 public:
  /// Makes the pages of what is there to report; null while there is nothing.
  using Maker = std::function<std::unique_ptr<ReportPages>(const ReportFrame& frame)>;

  /// @param parent the window that it belongs to
  /// @param make is called anew when something may have changed
  ReportWindow(QWidget& parent, Desktop& desktop, QPageLayout::Orientation orientation,
               const Maker& make);
  ~ReportWindow() override;

  /// Shows the window and brings it to the front.
  void Open();
  /// Shows what there is to report now, if the window is open.
  void Follow();
  /// Writes the report into a file that has its name only when it is whole; why not, or nothing.
  QString Save_As(const QString& path);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* Make_Actions();
  void Show_All();
  void Keep_Project();
  void Print();
  void Ask_Where_To_Save();

  Desktop& desktop_;
  Maker make_;
  QPageLayout page_;
  QPrinter printer_;
  std::unique_ptr<ReportPages> pages_;
  QLabel* project_heading_ = nullptr;
  QLineEdit* project_ = nullptr;
  QPushButton* print_ = nullptr;
  QPushButton* save_ = nullptr;
  QPrintPreviewWidget* preview_;
};

}  // namespace norvane
