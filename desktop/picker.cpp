#include "desktop/picker.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/accessible.h"

namespace norvane {
namespace {

constexpr int kRowsShown = 8;
constexpr int kPickerMargin = 7;  // pixels
constexpr int kRowPadding = 8;    // above and below a text of the list, together
constexpr int kCellPadding = 16;  // beside it
constexpr int kLongestLine = 9;   // letters; every number in reach of a field has room

QTableWidgetItem* Cell(const QString& text) {
  auto* cell = new QTableWidgetItem(text);
  cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return cell;
}

QTableWidget* Make_List() {
  auto* list = new QTableWidget(0, 2);
  list->setObjectName("picker_list");
  list->horizontalHeader()->hide();
  list->verticalHeader()->hide();
  list->setShowGrid(false);
  list->setFrameShape(QFrame::NoFrame);
  list->setFocusPolicy(Qt::NoFocus);
  list->setSelectionBehavior(QAbstractItemView::SelectRows);
  list->setSelectionMode(QAbstractItemView::SingleSelection);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->horizontalHeader()->setMinimumSectionSize(0);
  list->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  return list;
}

}  // namespace

Picker::Picker(QWidget* parent)
    : QFrame(parent), line_(new QLineEdit), limits_(new QLabel), list_(Make_List()) {
  setObjectName("picker");
  setFrameShape(QFrame::StyledPanel);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  hide();
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPickerMargin, kPickerMargin, kPickerMargin, kPickerMargin);
  column->addWidget(line_);
  column->addWidget(limits_);
  column->addWidget(list_);
  line_->setObjectName("picker_line");
  line_->setAlignment(Qt::AlignRight);
  line_->setMaxLength(kLongestLine);
  limits_->setObjectName("picker_limits");
  limits_->setTextFormat(Qt::PlainText);
  setFocusProxy(line_);
  connect(line_, &QLineEdit::textChanged, this, &Picker::Find_Place);
  connect(list_, &QTableWidget::cellClicked, this, [this](int row) {
    line_->setText(list_->item(row, 0)->text());
    Take();
  });
}

void Picker::Open_At(QWidget& field, const PickerSubject& subject) {
  field_ = &field;
  subject_ = subject;
  setFont(field.font());
  const QString comma = subject.locale.decimal_separator == ',' ? "[.,]" : "[.]";
  delete line_->validator();
  line_->setValidator(new QRegularExpressionValidator(
      QRegularExpression("[-\u2212]?[0-9]*" + comma + "?[0-9]*"), line_));
  Fill();
  line_->setText(subject.text);
  line_->selectAll();
  Find_Place();
  Place_At(field);
  show();
  raise();
  line_->setFocus(Qt::PopupFocusReason);
}

void Picker::Begin_With(const QString& letter) { line_->setText(letter); }

void Picker::Fill() {
  const Limits& limits = subject_.choices.limits;
  const QString reach = QString("%1 \u2026 %2 ").arg(limits.least).arg(limits.most);
  limits_->setText((reach + subject_.unit).trimmed());
  setAccessibleName(subject_.name);
  Tell(*line_, subject_.name, limits_->text());
  Tell(*list_, subject_.name);

  const auto& entries = subject_.choices.entries;
  bool any_inch = false;
  list_->setRowCount(static_cast<int>(entries.size()));
  for (int row = 0; row < list_->rowCount(); ++row) {
    const Choice& entry = entries[static_cast<std::size_t>(row)];
    const QString inch = QString::fromStdString(entry.inch);
    list_->setItem(row, 0, Cell(QString::fromStdString(entry.text)));
    list_->setItem(row, 1, Cell(inch.isEmpty() ? inch : inch + ' ' + subject_.inch_unit));
    any_inch = any_inch || !inch.isEmpty();
  }
  list_->setColumnHidden(1, !any_inch);
}

void Picker::Place_At(const QWidget& field) {
  const int row_height = fontMetrics().height() + kRowPadding;
  list_->verticalHeader()->setDefaultSectionSize(row_height);
  list_->setFixedHeight(row_height * std::min(kRowsShown, list_->rowCount()));
  const int columns = list_->isColumnHidden(1) ? 1 : 2;
  int cell = 0;
  for (int row = 0; row < list_->rowCount(); ++row) {
    for (int column = 0; column < columns; ++column) {
      cell = std::max(cell, fontMetrics().horizontalAdvance(list_->item(row, column)->text()));
    }
  }
  const int bar = list_->verticalScrollBar()->sizeHint().width();
  list_->setMinimumWidth(columns * (cell + kCellPadding) + bar);
  layout()->activate();
  resize(minimumSizeHint().expandedTo({field.width(), 0}));

  const QWidget& window = *parentWidget();
  const QRect at(field.mapTo(&window, QPoint()), field.size());
  const bool below = at.bottom() + height() < window.height();
  const int left = std::min(at.left(), window.width() - width());
  move(std::max(left, 0), below ? at.bottom() + 1 : std::max(at.top() - height(), 0));
}

void Picker::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  qApp->installEventFilter(this);
}

void Picker::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  qApp->removeEventFilter(this);
}

bool Picker::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && object->isWidgetType() && object != this &&
      !isAncestorOf(static_cast<QWidget*>(object))) {
    Close();
  }
  if (object == line_ && event->type() == QEvent::FocusOut) hide();
  if (object == line_ && event->type() == QEvent::KeyPress &&
      Press(static_cast<QKeyEvent*>(event)->key())) {
    return true;
  }
  return QFrame::eventFilter(object, event);
}

bool Picker::Press(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
      Move(key == Qt::Key_Up ? -1 : 1);
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      Move(key == Qt::Key_PageUp ? -kRowsShown : kRowsShown);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Take();
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (Take()) emit Passed(key == Qt::Key_Tab);
      return true;
    case Qt::Key_Escape:
    case Qt::Key_F2:
    case Qt::Key_F4:
      Close();
      return true;
    default:
      return false;
  }
}

void Picker::Find_Place() {
  const std::string typed = line_->text().toStdString();
  const auto taken = Text_To_Enter(typed, subject_.choices, subject_.locale);
  const auto place = static_cast<int>(Place_Of(typed, subject_.choices, subject_.locale));
  list_->setCurrentCell(place, 0, QItemSelectionModel::NoUpdate);
  const auto& entries = subject_.choices.entries;
  const auto same =
      std::ranges::find_if(entries, [&taken](const Choice& entry) { return entry.text == taken; });
  if (same == entries.end()) {
    list_->clearSelection();
  } else {
    list_->selectRow(static_cast<int>(same - entries.begin()));
  }
  list_->scrollTo(list_->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void Picker::Move(int rows) {
  // From a number that isn't in the list the first step goes to the place that it has found.
  const bool marked = !list_->selectedItems().isEmpty();
  const int place = list_->currentRow() + (marked ? rows : 0);
  line_->setText(list_->item(std::clamp(place, 0, list_->rowCount() - 1), 0)->text());
  line_->selectAll();
}

void Picker::Close() {
  // Hidden with the focus, it would hand that on to the widget behind it.
  field_->setFocus(Qt::OtherFocusReason);
  hide();
}

bool Picker::Take() {
  const QString typed = line_->text();
  const auto text = Text_To_Enter(typed.toStdString(), subject_.choices, subject_.locale);
  if (!text && typed != subject_.text) return false;
  Close();
  if (typed != subject_.text) emit Taken(*text);
  return true;
}

}  // namespace norvane
