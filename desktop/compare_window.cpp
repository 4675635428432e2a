#include "desktop/compare_window.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTableView>

#include "desktop/accessible.h"
#include "desktop/colours.h"
#include "desktop/comparison_model.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/own_texts.h"
#include "desktop/tool_button.h"
#include "report/comparison_export.h"
#include "report/kept_prices.h"
#include "report/present_object.h"
#include "screen/warmt.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

constexpr double kMostOfScreen = 0.95;  // the frame needs room too

constexpr TextId kFuels[] = {TextId::kGasSum, TextId::kOilSum, TextId::kElectricitySum};

void Set_Text(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

void Set_Text(QPushButton& button, const QString& text) {
  if (button.text() != text) button.setText(text);
}

}  // namespace

CompareWindow::CompareWindow(FormView& main, Warmt& warmt)
    : QWidget(&main, Qt::Window), main_(main), warmt_(warmt), model_(new ComparisonModel(this)) {
  setObjectName("compare");
  auto* column = new QVBoxLayout(this);
  column->addWidget(Make_Prices());
  column->addWidget(Make_Table(), 1);
  column->addWidget(Make_Actions());
  new QShortcut(Qt::Key_Escape, this, [this] { close(); });
  new QShortcut(QKeySequence::Copy, this, [this] { Copy(); });
  connect(model_, &ComparisonModel::Cost_Entered, this,
          [this](double thickness_mm, std::optional<double> cost) {
            const std::int16_t kind = main_.desktop().program().State().Sel_Size;
            Change([=](Prices& prices) {
              auto& costs = prices.Costs_Of(kind);
              costs.erase(thickness_mm);
              if (cost) costs[thickness_mm] = *cost;
            });
          });
}

QLineEdit* CompareWindow::Make_Amount() {
  constexpr int kLetters = 9;
  auto* edit = new QLineEdit;
  edit->setAlignment(Qt::AlignRight);
  edit->setFixedWidth(edit->fontMetrics().averageCharWidth() * (kLetters + 2));
  return edit;
}

QWidget* CompareWindow::Make_Prices() {
  auto* strip = new QWidget;
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 0, 0);
  price_heading_ = new QLabel;
  fuel_ = new QComboBox;
  for (std::size_t i = 0; i < std::size(kFuels); ++i) fuel_->addItem("");
  fuel_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  price_ = Make_Amount();
  years_heading_ = new QLabel;
  years_ = Make_Amount();
  price_->setObjectName("compare_price");
  years_->setObjectName("compare_years");
  price_heading_->setBuddy(price_);
  years_heading_->setBuddy(years_);
  for (QWidget* widget : std::initializer_list<QWidget*>{price_heading_, fuel_, price_}) {
    row->addWidget(widget);
  }
  constexpr int kGap = 24;
  row->addSpacing(kGap);
  row->addWidget(years_heading_);
  row->addWidget(years_);
  row->addStretch();
  connect(fuel_, &QComboBox::activated, this, [this](int fuel) {
    Change([fuel](Prices& prices) { prices.fuel = static_cast<Fuel>(fuel); });
  });
  connect(price_, &QLineEdit::editingFinished, this, &CompareWindow::Enter_Price);
  connect(years_, &QLineEdit::editingFinished, this, &CompareWindow::Enter_Years);
  return strip;
}

QWidget* CompareWindow::Make_Table() {
  table_ = new QTableView;
  table_->setObjectName("compare_table");
  table_->setModel(model_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed);
  table_->setTabKeyNavigation(false);
  // Many themes mark rows in a colour from which white letters stand out too little.
  QPalette marked = table_->palette();
  marked.setColor(QPalette::Highlight, kAccentDark);
  marked.setColor(QPalette::HighlightedText, Qt::white);
  table_->setPalette(marked);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setHighlightSections(false);
  connect(table_, &QTableView::clicked, this, [this](const QModelIndex& cell) {
    if (cell.column() != ComparisonTable::kCost) Take(cell.row());
  });
  for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
    new QShortcut(
        key, table_, [this] { Take(table_->currentIndex().row()); }, Qt::WidgetShortcut);
  }
  return table_;
}

QWidget* CompareWindow::Make_Actions() {
  auto* actions = new QWidget;
  auto* row = new QHBoxLayout(actions);
  row->setContentsMargins(0, 0, 0, 0);
  take_ = new QPushButton;
  copy_ = new QPushButton;
  export_ = new ToolButton(ToolSign::kSpreadsheet);
  export_->setCheckable(false);
  Tell(*export_, kTotalWorkbook);
  export_->setToolTip(kTotalWorkbook);
  row->addWidget(take_);
  row->addWidget(copy_);
  row->addWidget(export_);
  row->addStretch();
  connect(take_, &QPushButton::clicked, this, [this] { Take(table_->currentIndex().row()); });
  connect(copy_, &QPushButton::clicked, this, &CompareWindow::Copy);
  connect(export_, &QAbstractButton::clicked, this, &CompareWindow::Export);
  return actions;
}

void CompareWindow::Open() {
  prices_ = Kept_Prices(main_.desktop().files());
  Show_All();
  if (!isVisible()) {
    resize(sizeHint().boundedTo(screen()->availableSize() * kMostOfScreen));
    table_->setFocus();
    show();
  }
  raise();
  activateWindow();
}

QSize CompareWindow::sizeHint() const {
  constexpr int kFrames = 8;
  QHeaderView& header = *table_->horizontalHeader();
  header.resizeSections(QHeaderView::ResizeToContents);
  const int rows = model_->rowCount() * table_->verticalHeader()->defaultSectionSize();
  const QSize least = QWidget::sizeHint();
  const int others = least.height() - table_->sizeHint().height();
  const QMargins margins = layout()->contentsMargins();
  return QSize(header.length() + margins.left() + margins.right() + kFrames,
               rows + header.sizeHint().height() + others + kFrames)
      .expandedTo(minimumSizeHint());
}

void CompareWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  // Another program, or a person, may have changed the prices meanwhile.
  if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
  prices_ = Kept_Prices(main_.desktop().files());
  Follow();
}

void CompareWindow::Follow() {
  if (isVisible() && main_.form() != nullptr) Show_All();
}

void CompareWindow::Show_All() {
  Name_Widgets();
  Show_Prices();
  const Desktop& desktop = main_.desktop();
  const Module1& module1 = main_.desktop().program().State();
  const auto wording = [&desktop](TextId id) { return Own_Text(desktop, id).toStdString(); };
  const auto object = Present_Object(module1, warmt_);
  ComparisonTable table =
      Comparison_Of(object.value_or(Object()), prices_, wording, module1.Locale());
  const QModelIndex current = table_->currentIndex();
  const double thickness = current.isValid() ? Thickness_Of(current.row()) : kNotGiven;
  model_->Show(std::move(table));
  Go_To(thickness, std::max(current.column(), 0));
  take_->setEnabled(Can_Take());
}

double CompareWindow::Thickness_Of(int row) const {
  return model_->Shown().rows[static_cast<std::size_t>(row)].thickness_mm;
}

void CompareWindow::Go_To(double thickness, int column) {
  int found = -1;
  for (int row = 0; row < model_->rowCount(); ++row) {
    const bool present = model_->Shown().rows[static_cast<std::size_t>(row)].present;
    if (Thickness_Of(row) == thickness || (present && found < 0)) found = row;
  }
  if (table_->currentIndex().row() != found) {
    table_->setCurrentIndex(model_->index(found, column));
  }
}

void CompareWindow::Name_Widgets() {
  const Desktop& desktop = main_.desktop();
  const QString title = Own_Text(desktop, TextId::kCompare);
  if (windowTitle() != title) setWindowTitle(title);
  Set_Text(*price_heading_, Own_Text(desktop, TextId::kEnergyPrice));
  Set_Text(*years_heading_, Own_Text(desktop, TextId::kYearsOfUse));
  Set_Text(*take_, Own_Text(desktop, TextId::kUseThickness));
  Set_Text(*copy_, Own_Text(desktop, TextId::kCopy));
  for (std::size_t i = 0; i < std::size(kFuels); ++i) {
    fuel_->setItemText(static_cast<int>(i), desktop.Text(kFuels[i]));
  }
  Tell(*fuel_, price_heading_->text());
  Tell(*price_, price_heading_->text(), fuel_->currentText());
  Tell(*years_, years_heading_->text());
  Tell(*table_, title);
}

void CompareWindow::Show_Prices() {
  const char sign = main_.desktop().Decimal_Separator();
  const auto text = [sign](const std::optional<double>& amount) {
    return amount ? QString::fromStdString(Amount_Text(*amount, sign)) : QString();
  };
  fuel_->setCurrentIndex(static_cast<int>(prices_.fuel));
  // Not while the user writes there.
  if (!price_->isModified())
    price_->setText(text(prices_.energy[static_cast<std::size_t>(prices_.fuel)]));
  if (!years_->isModified()) years_->setText(text(prices_.years));
}

void CompareWindow::Change(const std::function<void(Prices&)>& change) {
  change(prices_);
  Change_Prices(main_.desktop().files(), change);
  Follow();
}

void CompareWindow::Enter_Price() {
  if (!price_->isModified()) return;
  const std::string text = price_->text().trimmed().toStdString();
  const std::optional<double> price = Read_Amount(text);
  price_->setModified(false);
  if (!price && !text.empty()) return Follow();
  const auto fuel = static_cast<std::size_t>(prices_.fuel);
  Change([=](Prices& prices) { prices.energy[fuel] = price; });
}

void CompareWindow::Enter_Years() {
  if (!years_->isModified()) return;
  const double years = Read_Amount(years_->text().toStdString()).value_or(0);
  years_->setModified(false);
  if (!(years > 0 && years <= kMostYears)) return Follow();
  Change([=](Prices& prices) { prices.years = years; });
}

bool CompareWindow::Can_Take() const {
  return warmt_.Calc_Mode == "T";  // in the other mode the thickness is a result
}

void CompareWindow::Take(int row) {
  if (main_.form() == nullptr || !Can_Take() || row < 0 || row >= model_->rowCount()) return;
  const double thickness = Thickness_Of(row);
  // Fields read a point, whatever the user's signs are.
  main_.Send_Text(warmt_.txtT(2), QString::fromStdString(Amount_Text(thickness, '.')));
}

void CompareWindow::Copy() {
  QApplication::clipboard()->setText(QString::fromStdString(As_Text(model_->Shown())));
}

void CompareWindow::Export() {
  const ComparisonTable table = model_->Shown();
  Desktop& desktop = main_.desktop();
  desktop.Run([&] { Export_Comparison(desktop.program().State(), table); });
}

}  // namespace norvane
