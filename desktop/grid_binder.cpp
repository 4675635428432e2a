#include "desktop/grid_binder.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "desktop/form_view.h"
#include "desktop/row_table.h"
#include "desktop/twips.h"

namespace norvane {
namespace {

// The columns that hold words; numbers stand in all others.
constexpr int kLastWordColumn = 2;

/// The rows of the selection, from the one where it began to the one where it ends.
std::pair<int, int> Selected_Rows(const QTableView& table) {
  const QModelIndexList rows = table.selectionModel()->selectedRows();
  if (rows.isEmpty()) return {-1, -1};
  const auto [low, high] = std::minmax_element(
      rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.row() < b.row(); });
  const int end = table.currentIndex().row();
  return end == low->row() ? std::pair(high->row(), low->row())
                           : std::pair(low->row(), high->row());
}

}  // namespace

GridModel::GridModel(const Grid& grid, std::function<QString(const std::string&)> shown)
    : grid_(&grid), shown_(std::move(shown)) {}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || grid_ == nullptr ? 0 : std::max(grid_->Rows() - 1, 0);
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || grid_ == nullptr ? 0 : grid_->Cols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  // A line can have gone while its repaint was still to come.
  if (index.row() >= rowCount() || index.column() >= columnCount()) return {};
  if (role == Qt::TextAlignmentRole) {
    return int(Qt::AlignVCenter |
               (index.column() > kLastWordColumn ? Qt::AlignRight : Qt::AlignLeft));
  }
  if (role != Qt::DisplayRole) return {};
  return shown_(grid_->Cell(index.row() + 1, index.column()));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= columnCount() || grid_->Rows() == 0) return {};
  if (role == Qt::TextAlignmentRole) {
    const Qt::Alignment side = section > kLastWordColumn ? Qt::AlignRight : Qt::AlignLeft;
    return int(side | Qt::AlignVCenter) | int(Qt::TextWordWrap);
  }
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return shown_(grid_->Cell(0, section));
}

void GridModel::Reset() {
  beginResetModel();
  endResetModel();
}

void GridModel::Let_Go() {
  beginResetModel();
  grid_ = nullptr;
  endResetModel();
}

GridBinder::GridBinder(FormView& view, Grid& field, RowTable& table)
    : Binder(view, field, table),
      field_(field),
      table_(table),
      model_(field, [this](const std::string& bytes) { return Shown(bytes); }) {
  table.setModel(&model_);
  QObject::connect(&table, &RowTable::Picked, &table, [this] { Pick(); });
  QObject::connect(&table, &RowTable::Copy_Asked, &table, [this] { Copy(); });
}

void GridBinder::Show_Field() {
  Show_Font();
  model_.Reset();
  // Widths that the user has dragged stay while the columns do.
  if (std::exchange(columns_shown_, field_.Cols()) != field_.Cols()) Size_Columns();
  table_.verticalHeader()->setDefaultSectionSize(table_.fontMetrics().height() + 8);
  Mark_Rows();
}

void GridBinder::Mark_Rows() {
  table_.clearSelection();
  if (field_.Row() == 0) return;
  const auto [low, high] = std::minmax({field_.Row(), field_.RowSel()});
  QItemSelectionModel& marked = *table_.selectionModel();
  const QItemSelection rows(model_.index(low - 1, 0), model_.index(high - 1, 0));
  marked.select(rows, QItemSelectionModel::Select | QItemSelectionModel::Rows);
  marked.setCurrentIndex(model_.index(field_.RowSel() - 1, 0), QItemSelectionModel::NoUpdate);
}

void GridBinder::Size_Columns() {
  QHeaderView& header = *table_.horizontalHeader();
  const int margin =
      2 * (header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header) + 1);
  const QFontMetrics letters = header.fontMetrics();
  int lines = 1;
  for (int i = 0; i < field_.Cols(); ++i) {
    const QString caption = model_.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
    // As wide as the grid says, but no word of the caption is cut.
    int width = To_Pixels(field_.ColWidth(i));
    for (const QString& word : caption.split(' ')) {
      width = std::max(width, letters.horizontalAdvance(word) + margin);
    }
    table_.setColumnWidth(i, width);
    const QRect wrapped =
        letters.boundingRect(QRect(0, 0, width - margin, 1000), Qt::TextWordWrap, caption);
    lines = std::max(lines, (wrapped.height() + letters.leading()) / letters.lineSpacing());
  }
  header.setFixedHeight(lines * letters.lineSpacing() + 2 * margin);
}

void GridBinder::Pick() {
  const auto [from, to] = Selected_Rows(table_);
  if (from >= 0) {
    Send(UserAction::kPickRows, from + 1, to + 1);
  } else {
    Send(UserAction::kClick);
  }
}

void GridBinder::Copy() const {
  const auto [from, to] = Selected_Rows(table_);
  if (from < 0) return;
  QStringList lines;
  for (int row = std::min(from, to); row <= std::max(from, to); ++row) {
    QStringList cells;
    for (int column = 1; column < model_.columnCount(); ++column) {
      cells << model_.index(row, column).data().toString();
    }
    lines << cells.join('\t');
  }
  QApplication::clipboard()->setText(lines.join('\n') + '\n');
}

}  // namespace norvane
