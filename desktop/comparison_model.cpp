#include "desktop/comparison_model.h"

#include <QColor>
#include <QFont>

#include "desktop/colours.h"

namespace norvane {
namespace {

/// In lines of about so many letters, since a table of twelve columns has to fit the screen.
QString In_Lines(const QString& heading) {
  constexpr qsizetype kLetters = 13;
  QString lines;
  qsizetype length = 0;
  for (const QString& word : heading.split(' ')) {
    const bool fits = length + word.size() < kLetters;
    if (!lines.isEmpty()) lines += fits ? ' ' : '\n';
    length = (fits ? length + 1 : 0) + word.size();
    lines += word;
  }
  return lines;
}

/// Lets the ground of any theme through.
QColor Ground_Of_Present() {
  constexpr int kOpacity = 60;
  QColor colour = kAccent;
  colour.setAlpha(kOpacity);
  return colour;
}

}  // namespace

void ComparisonModel::Show(ComparisonTable table) {
  const bool same_shape = table.rows.size() == table_.rows.size();
  if (!same_shape) beginResetModel();
  table_ = std::move(table);
  if (!same_shape) {
    endResetModel();
  } else if (!table_.rows.empty()) {
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  }
}

int ComparisonModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int ComparisonModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ComparisonTable::kColumns;
}

QVariant ComparisonModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const ComparisonTable::Row& row = table_.rows[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return QString::fromStdString(row.cells[static_cast<std::size_t>(index.column())].text);
    case Qt::TextAlignmentRole:
      return int(Qt::AlignVCenter |
                 (index.column() == ComparisonTable::kMarks ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::BackgroundRole:
      return row.present ? QVariant(Ground_Of_Present()) : QVariant();
    case Qt::FontRole: {
      QFont font;
      font.setBold(row.economic);
      return font;
    }
    default:
      return {};
  }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto place = static_cast<std::size_t>(section);
  if (orientation != Qt::Horizontal || place >= table_.headings.size()) return {};
  const QString heading = QString::fromStdString(table_.headings[place]);
  if (role == Qt::DisplayRole) return In_Lines(heading);
  if (role == Qt::AccessibleTextRole) return heading;
  return {};
}

Qt::ItemFlags ComparisonModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (index.column() == ComparisonTable::kCost) flags |= Qt::ItemIsEditable;
  return flags;
}

bool ComparisonModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || index.column() != ComparisonTable::kCost) return false;
  const std::string text = value.toString().trimmed().toStdString();
  const std::optional<double> cost = Read_Amount(text);
  if (!cost && !text.empty()) return false;
  emit Cost_Entered(table_.rows[static_cast<std::size_t>(index.row())].thickness_mm, cost);
  return true;
}

}  // namespace norvane
