#include "desktop/schedule/schedule_table_view.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>
#include <algorithm>

#include "desktop/desktop.h"
#include "desktop/schedule/schedule_model.h"
#include "desktop/schedule/schedule_texts.h"

namespace norvane {
namespace {

constexpr int kBesideText = 14;  // pixels, in a cell
constexpr int kNarrowest = 64;
constexpr int kWidest = 360;

}  // namespace

ScheduleDelegate::ScheduleDelegate(const Desktop& desktop, const ScheduleModel& model,
                                   QObject* parent)
    : QStyledItemDelegate(parent), desktop_(desktop), model_(model) {}

QWidget* ScheduleDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
  QWidget* editor = nullptr;
  if (model_.Holds_Kinds(index.column())) {
    auto* kinds = new QComboBox(parent);
    for (std::size_t kind = 0; kind < kKindWords.size(); ++kind) {
      kinds->addItem(Kind_Word(desktop_, static_cast<std::int16_t>(kind)));
    }
    editor = kinds;
  } else {
    editor = QStyledItemDelegate::createEditor(parent, option, index);
  }
  editor->setAccessibleName(
      model_.headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole).toString());
  return editor;
}

void ScheduleDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* kinds = qobject_cast<QComboBox*>(editor);
  if (kinds == nullptr) return QStyledItemDelegate::setEditorData(editor, index);
  kinds->setCurrentIndex(Kind_Of(index.data(Qt::EditRole).toString().toStdString()));
}

void ScheduleDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  const auto* kinds = qobject_cast<QComboBox*>(editor);
  if (kinds == nullptr) return QStyledItemDelegate::setModelData(editor, model, index);
  if (kinds->currentIndex() < 0) return;
  const std::string_view word = kKindWords[static_cast<std::size_t>(kinds->currentIndex())];
  // The same kind in another spelling stays.
  if (Kind_Of(index.data(Qt::EditRole).toString().toStdString()) == kinds->currentIndex()) return;
  model->setData(index, QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size())));
}

ScheduleTableView::ScheduleTableView(ScheduleModel& model) {
  setModel(&model);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::AnyKeyPressed);
  // Tab leaves the table; the arrows move in it.
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setWordWrap(false);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setMinimumSectionSize(kNarrowest);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setHighlightSections(false);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  connect(&model, &QAbstractItemModel::dataChanged, this,
          [this](const QModelIndex& first, const QModelIndex& last) {
            Make_Room(first.row(), last.row());
          });
  connect(&model, &QAbstractItemModel::rowsInserted, this,
          [this](const QModelIndex&, int first, int last) { Make_Room(first, last); });
}

int ScheduleTableView::Width_For(int column, int first, int last) const {
  QString longest;
  for (int row = first; row <= last; ++row) {
    const QString text = model()->index(row, column).data().toString();
    if (text.size() >= longest.size()) longest = text;
  }
  return std::min(fontMetrics().horizontalAdvance(longest + QChar('0')) + kBesideText, kWidest);
}

void ScheduleTableView::Size_Columns() {
  QHeaderView& header = *horizontalHeader();
  const QFontMetrics letters = header.fontMetrics();
  int lines = 1;
  for (int column = 0; column < model()->columnCount(); ++column) {
    const QString caption = model()->headerData(column, Qt::Horizontal).toString();
    int width = std::max(kNarrowest, Width_For(column, 0, model()->rowCount() - 1));
    for (const QString& word : caption.split(QRegularExpression("\\s"))) {
      width = std::max(width, letters.horizontalAdvance(word) + kBesideText);
    }
    setColumnWidth(column, width);
    const QRect wrapped =
        letters.boundingRect(QRect(0, 0, width - kBesideText, 1000), Qt::TextWordWrap, caption);
    lines = std::max(lines, (wrapped.height() + letters.leading()) / letters.lineSpacing());
  }
  header.setFixedHeight(lines * letters.lineSpacing() + kBesideText);
}

void ScheduleTableView::Make_Room(int first, int last) {
  for (int column = 0; column < model()->columnCount(); ++column) {
    const int width = Width_For(column, first, last);
    if (width > columnWidth(column)) setColumnWidth(column, width);
  }
}

void ScheduleTableView::Mark_Rows(int first, int count) {
  if (model()->rowCount() == 0) return;
  first = std::min(first, model()->rowCount() - 1);
  const int last = std::min(first + std::max(count, 1), model()->rowCount()) - 1;
  const int column = std::max(currentIndex().column(), 0);
  selectionModel()->setCurrentIndex(model()->index(first, column), QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(model()->index(first, 0), model()->index(last, 0)),
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(model()->index(last, column));
  scrollTo(model()->index(first, column));
}

std::pair<int, int> ScheduleTableView::Marked_Rows() const {
  const QItemSelection marked = selectionModel()->selection();
  if (!marked.isEmpty()) return {marked.first().top(), marked.first().height()};
  return {std::max(currentIndex().row(), 0), currentIndex().isValid() ? 1 : 0};
}

void ScheduleTableView::Finish_Editing() {
  if (state() == EditingState) setFocus(Qt::OtherFocusReason);
}

QString ScheduleTableView::As_Text() const {
  const auto line = [this](const auto& cell) {
    QStringList cells;
    for (int column = 0; column < model()->columnCount(); ++column) cells << cell(column);
    return cells.join('\t') + '\n';
  };
  const auto [first, count] = Marked_Rows();
  QString text = line([this](int column) {
    return model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
  });
  for (int row = first; row < first + count; ++row) {
    text += line([this, row](int column) {
      return model()->index(row, column).data().toString().replace('\t', ' ');
    });
  }
  return text;
}

void ScheduleTableView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(As_Text());
  } else if (enter && state() != EditingState && currentIndex().isValid()) {
    edit(currentIndex());
  } else {
    QTableView::keyPressEvent(event);
  }
}

}  // namespace norvane
