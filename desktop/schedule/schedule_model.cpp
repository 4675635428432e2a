#include "desktop/schedule/schedule_model.h"

#include <algorithm>
#include <array>

#include "calc/shown_number.h"
#include "desktop/desktop.h"
#include "desktop/schedule/schedule_texts.h"
#include "schedule/typed_number.h"

namespace norvane {
namespace {

constexpr int kResults = static_cast<int>(kHeatLossColumns.size());

std::size_t Index(int number) { return static_cast<std::size_t>(number); }

/// What of a long text a cell shows, in one line.
QString In_A_Cell(const std::string& text) {
  constexpr qsizetype kLetters = 200;
  QString shown = QString::fromStdString(text);
  if (shown.size() > kLetters) shown = shown.left(kLetters) + QChar(0x2026);
  return shown.replace('\n', ' ').replace('\r', ' ');
}

}  // namespace

ScheduleModel::ScheduleModel(const Desktop& desktop, ScheduleDocument& document)
    : desktop_(desktop), document_(&document) {
  document.Set_Observer(this);
}

ScheduleModel::~ScheduleModel() {
  if (document_ != nullptr) document_->Set_Observer(nullptr);
}

void ScheduleModel::Let_Go() {
  beginResetModel();
  if (document_ != nullptr) document_->Set_Observer(nullptr);
  document_ = nullptr;
  endResetModel();
}

void ScheduleModel::Show(ScheduleDocument& document) {
  beginResetModel();
  document_ = &document;
  document.Set_Observer(this);
  endResetModel();
}

int ScheduleModel::First_Result() const { return static_cast<int>(document_->Table().Columns()); }

int ScheduleModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || document_ == nullptr ? 0 : static_cast<int>(document_->Table().Rows());
}

int ScheduleModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || document_ == nullptr ? 0 : First_Result() + kResults + 1;
}

bool ScheduleModel::Holds_Kinds(int column) const {
  if (column >= First_Result()) return false;
  const Column* meaning = document_->Table().Meaning_Of(Index(column));
  return meaning != nullptr && meaning->name == "kind";
}

bool ScheduleModel::Holds_Words(int column) const {
  if (column >= First_Result()) return column == First_Result() + kResults;
  const Column* meaning = document_->Table().Meaning_Of(Index(column));
  return meaning == nullptr || meaning->number == nullptr;
}

QString ScheduleModel::Field(int row, int column) const {
  const ScheduleTable& table = document_->Table();
  const std::string& text = table.Text(Index(row), Index(column));
  if (Holds_Kinds(column)) {
    const std::int16_t kind = Kind_Of(text);
    return kind < 0 ? In_A_Cell(text) : Kind_Word(desktop_, kind);
  }
  if (Holds_Words(column)) return In_A_Cell(text);
  return In_A_Cell(Number_To_Show(text, table.Decimal(), desktop_.Decimal_Separator()));
}

QString ScheduleModel::Result(int row, int place) const {
  const auto* shown = std::get_if<ShownHeatLoss>(&document_->Table().Result(Index(row)));
  if (shown == nullptr) return {};
  if (!shown->saves && Index(place) >= kFirstSaving) return QStringLiteral("\u2013");
  std::array<char, kLongestShown> text;
  const char* end =
      Write_Shown(text.data(), shown->values[Index(place)], kHeatLossColumns[Index(place)].decimals,
                  desktop_.Decimal_Separator());
  return QString::fromLatin1(text.data(), end - text.data());
}

QString ScheduleModel::Cell(int row, int column) const {
  const int place = column - First_Result();
  if (place < 0) return Field(row, column);
  if (place < kResults) return Result(row, place);
  return Remark_On(desktop_, document_->Table().Result(Index(row)));
}

QVariant ScheduleModel::data(const QModelIndex& index, int role) const {
  if (index.row() >= rowCount() || index.column() >= columnCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return Cell(index.row(), index.column());
    case Qt::EditRole:
      if (index.column() >= First_Result()) return {};
      if (!Holds_Words(index.column())) return Field(index.row(), index.column());
      return QString::fromStdString(
          document_->Table().Text(Index(index.row()), Index(index.column())));
    case Qt::TextAlignmentRole:
      return int(Qt::AlignVCenter | (Holds_Words(index.column()) ? Qt::AlignLeft : Qt::AlignRight));
    default:
      return {};
  }
}

QString ScheduleModel::Heading(int column) const {
  const int place = column - First_Result();
  if (place == kResults) return Remark_Heading(desktop_);
  if (place >= 0) return Heading_Of_Result(desktop_, Index(place));
  const Column* meaning = document_->Table().Meaning_Of(Index(column));
  return meaning != nullptr ? Heading_Of(desktop_, *meaning)
                            : In_A_Cell(document_->Table().Name_Of(Index(column)));
}

QVariant ScheduleModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
  }
  if (section >= columnCount()) return {};
  if (role == Qt::TextAlignmentRole) {
    return int(Qt::AlignVCenter | (Holds_Words(section) ? Qt::AlignLeft : Qt::AlignRight)) |
           int(Qt::TextWordWrap);
  }
  if (role == Qt::DisplayRole) return Heading(section);
  if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) {
    return Heading(section).replace('\n', ' ');
  }
  return {};
}

Qt::ItemFlags ScheduleModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() && index.column() < First_Result() ? flags | Qt::ItemIsEditable : flags;
}

bool ScheduleModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || index.row() >= rowCount() || index.column() >= First_Result()) {
    return false;
  }
  std::string text = value.toString().toStdString();
  // What the cell shows shortened, or by another sign, isn't changed by looking at it.
  if (value == data(index, Qt::EditRole)) return true;
  if (!Holds_Words(index.column())) {
    text = Number_To_Keep(text, desktop_.Decimal_Separator(), document_->Table().Decimal());
  }
  document_->Set_Text(Index(index.row()), Index(index.column()), text);
  return true;
}

void ScheduleModel::Before_Change(const RowChange& change) {
  const int alike = static_cast<int>(change.first + std::min(change.removed, change.inserted));
  if (change.inserted > change.removed) {
    beginInsertRows({}, alike, static_cast<int>(change.first + change.inserted) - 1);
  } else if (change.inserted < change.removed) {
    beginRemoveRows({}, alike, static_cast<int>(change.first + change.removed) - 1);
  }
}

void ScheduleModel::After_Change(const RowChange& change) {
  if (change.inserted > change.removed) {
    endInsertRows();
  } else if (change.inserted < change.removed) {
    endRemoveRows();
  }
  const int first = static_cast<int>(change.first);
  const int alike = static_cast<int>(std::min(change.removed, change.inserted));
  if (alike > 0) emit dataChanged(index(first, 0), index(first + alike - 1, columnCount() - 1));
  emit Rows_Changed();
}

}  // namespace norvane
