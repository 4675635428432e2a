#include "desktop/report_window.h"

#include <QBuffer>
#include <QDate>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QSaveFile>
#include <QScreen>
#include <QShortcut>

#include "desktop/accessible.h"
#include "desktop/desktop.h"
#include "desktop/own_texts.h"
#include "frame/version.h"
#include "report/kept_prices.h"

namespace norvane {
namespace {

constexpr QMarginsF kMargins(20, 15, 15, 15);  // millimetres

}  // namespace

ReportWindow::ReportWindow(QWidget& parent, Desktop& desktop, QPageLayout::Orientation orientation,
                           const Maker& make)
    : QWidget(&parent, Qt::Window),
      desktop_(desktop),
      make_(make),
      page_(QPageSize(QPageSize::A4), orientation, kMargins, QPageLayout::Millimeter),
      printer_(QPrinter::HighResolution),
      preview_(new QPrintPreviewWidget(&printer_)) {
  setObjectName("report");
  printer_.setPageLayout(page_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Make_Actions());
  column->addWidget(preview_, 1);
  connect(preview_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* printer) {
    if (pages_ != nullptr) pages_->Paint(*printer);
  });
  new QShortcut(Qt::Key_Escape, this, [this] { close(); });
  new QShortcut(QKeySequence::Print, this, [this] { Print(); });
  new QShortcut(QKeySequence::Save, this, [this] { Ask_Where_To_Save(); });
}

ReportWindow::~ReportWindow() = default;

QWidget* ReportWindow::Make_Actions() {
  constexpr int kProjectWidth = 220;
  auto* actions = new QWidget;
  auto* row = new QHBoxLayout(actions);
  row->setContentsMargins(0, 0, 0, 0);
  project_heading_ = new QLabel;
  project_ = new QLineEdit;
  project_->setObjectName("report_project");
  project_->setMinimumWidth(kProjectWidth);
  project_heading_->setBuddy(project_);
  print_ = new QPushButton;
  save_ = new QPushButton;
  row->addWidget(project_heading_);
  row->addWidget(project_, 1);
  row->addWidget(print_);
  row->addWidget(save_);
  connect(project_, &QLineEdit::textEdited, this, &ReportWindow::Follow);
  connect(project_, &QLineEdit::editingFinished, this, &ReportWindow::Keep_Project);
  connect(print_, &QPushButton::clicked, this, &ReportWindow::Print);
  connect(save_, &QPushButton::clicked, this, &ReportWindow::Ask_Where_To_Save);
  return actions;
}

void ReportWindow::Open() {
  if (!isVisible()) {
    constexpr QSize kWanted(620, 820);
    const bool upright = page_.orientation() == QPageLayout::Portrait;
    constexpr double kPartOfScreen = 0.9;
    project_->setText(QString::fromStdString(Kept_Prices(desktop_.files()).project));
    project_->setModified(false);
    Show_All();
    resize((upright ? kWanted : kWanted.transposed())
               .boundedTo(screen()->availableSize() * kPartOfScreen));
    project_->setFocus();
    show();
  }
  raise();
  activateWindow();
}

void ReportWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Follow();
}

void ReportWindow::Follow() {
  if (isVisible()) Show_All();
}

void ReportWindow::Show_All() {
  const ReportFrame frame{project_->text().simplified(),
                          QLocale().toString(QDate::currentDate(), QLocale::ShortFormat)};
  auto pages = make_(frame);
  if (pages == nullptr) return;
  const QString title = Own_Text(desktop_, TextId::kReport);
  if (windowTitle() != title) setWindowTitle(title);
  project_heading_->setText(Own_Text(desktop_, TextId::kProject));
  print_->setText(Own_Text(desktop_, TextId::kPrint));
  save_->setText(Own_Text(desktop_, TextId::kSavePdf));
  Tell(*project_, project_heading_->text());
  Tell(*preview_, title);
  const bool same = pages_ != nullptr && pages_->Words() == pages->Words();
  pages_ = std::move(pages);
  if (!same) preview_->updatePreview();
}

void ReportWindow::Keep_Project() {
  if (!project_->isModified()) return;
  project_->setModified(false);
  const std::string name = project_->text().simplified().toStdString();
  Change_Prices(desktop_.files(), [&](Prices& prices) { prices.project = name; });
}

void ReportWindow::Print() {
  Keep_Project();
  QPrintDialog dialog(&printer_, this);
  if (dialog.exec() == QDialog::Accepted) pages_->Paint(printer_);
}

void ReportWindow::Ask_Where_To_Save() {
  Keep_Project();
  const QString path =
      QFileDialog::getSaveFileName(this, save_->text(), windowTitle() + ".pdf", "PDF (*.pdf)");
  if (path.isEmpty()) return;
  const QString problem = Save_As(path);
  if (!problem.isEmpty()) QMessageBox::warning(this, windowTitle(), path + "\n" + problem);
}

QString ReportWindow::Save_As(const QString& path) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&bytes);
    pdf.setPageLayout(page_);
    pdf.setTitle(windowTitle());
    pdf.setCreator(kTitle);
    pages_->Paint(pdf);
  }
  QSaveFile file(path);
  const bool saved =
      file.open(QIODevice::WriteOnly) && file.write(bytes.data()) == bytes.size() && file.commit();
  return saved ? QString() : file.errorString();
}

}  // namespace norvane
