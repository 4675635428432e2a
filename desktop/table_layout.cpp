#include "desktop/table_layout.h"

#include <QPainter>
#include <algorithm>
#include <numeric>

namespace norvane {
namespace {

constexpr qreal kNoEnd = 1e6;
constexpr int kBroken = Qt::TextWordWrap | Qt::TextWrapAnywhere;

QFont In_Bold(QFont font) {
  font.setBold(true);
  return font;
}

qreal Width_Of_Lines(const QFontMetricsF& metrics, const QString& text) {
  return metrics.boundingRect(QRectF(0, 0, kNoEnd, kNoEnd), 0, text).width();
}

std::size_t Index(qsizetype number) { return static_cast<std::size_t>(number); }

}  // namespace

TableLayout::TableLayout(const TableReport& table, const QFont& font, qreal width,
                         QPaintDevice& device)
    : table_(table),
      font_(font),
      device_(device),
      metrics_(font, &device),
      bold_(In_Bold(font), &device) {
  Measure();
  // Widths go with the size of the letters, nearly.
  for (int attempt = 0; Width() > width && attempt < 8; ++attempt) {
    Choose_Widths(width);
    if (Width() <= width) break;
    font_.setPointSizeF(font_.pointSizeF() * std::max(0.5, width / Width()) * 0.99);
    metrics_ = QFontMetricsF(font_, &device_);
    bold_ = QFontMetricsF(Bold(), &device_);
    Measure();
  }
  Measure_Rows();
}

QFont TableLayout::Bold() const { return In_Bold(font_); }

qreal TableLayout::Width() const { return std::accumulate(widths_.begin(), widths_.end(), 0.0); }

qreal TableLayout::Widest(qsizetype column) const {
  qreal widest = 0;
  for (const QStringList& row : table_.rows) {
    widest = std::max(widest, metrics_.horizontalAdvance(row[column]));
  }
  return widest;
}

qreal TableLayout::Longest_Word(qsizetype column) const {
  constexpr qreal kMostLetters = 14;
  qreal longest = 0;
  for (const QStringList& row : table_.rows) {
    for (const QString& word : row[column].split(' ')) {
      longest = std::max(longest, metrics_.horizontalAdvance(word));
    }
  }
  return std::min(longest, kMostLetters * metrics_.averageCharWidth());
}

/// All texts in one line; the headings of numbers stand upright.
void TableLayout::Measure() {
  constexpr qreal kMostLetters = 26;
  gap_ = metrics_.height() / 4;
  heading_height_ = 0;
  widths_.clear();
  for (qsizetype i = 0; i < table_.columns.size(); ++i) {
    const TableReport::Column& column = table_.columns[i];
    const qreal words = Width_Of_Lines(bold_, column.heading);
    const qreal least = std::min(words, kMostLetters * metrics_.averageCharWidth());
    qreal width = Widest(i);
    if (column.words) {
      width = std::max(width, words);
    } else {
      const QRectF upright =
          bold_.boundingRect(QRectF(0, 0, least, kNoEnd), kBroken, column.heading);
      width = std::max(width, upright.height());
      heading_height_ = std::max(heading_height_, upright.width());
    }
    widths_.push_back(width + 2 * gap_);
  }
  heading_height_ = std::max(heading_height_, bold_.height()) + 2 * gap_;
}

/// Takes what is too wide from the columns of words, each in turn of what it can spare.
void TableLayout::Choose_Widths(qreal room) {
  std::vector<qreal> spare(widths_.size());
  for (qsizetype i = 0; i < table_.columns.size(); ++i) {
    if (!table_.columns[i].words) continue;
    const qreal least =
        std::max(Longest_Word(i), Width_Of_Lines(bold_, table_.columns[i].heading)) + 2 * gap_;
    spare[Index(i)] = std::max(0.0, widths_[Index(i)] - least);
  }
  const qreal all = std::accumulate(spare.begin(), spare.end(), 0.0);
  if (all <= 0) return;
  const qreal part = std::min(1.0, (Width() - room) / all);
  for (std::size_t i = 0; i < spare.size(); ++i) widths_[i] -= part * spare[i];
}

void TableLayout::Measure_Rows() {
  heights_.reserve(Index(table_.rows.size()));
  for (const QStringList& row : table_.rows) {
    qreal height = metrics_.height();
    for (qsizetype i = 0; i < row.size(); ++i) {
      if (!table_.columns[i].words) continue;
      const QRectF room(0, 0, widths_[Index(i)] - 2 * gap_, kNoEnd);
      if (metrics_.horizontalAdvance(row[i]) <= room.width()) continue;
      height = std::max(height, metrics_.boundingRect(room, kBroken, row[i]).height());
    }
    heights_.push_back(height + 2 * gap_);
  }
}

QRectF TableLayout::Cell(qsizetype column, qreal top, qreal height) const {
  const auto before = widths_.begin() + column;
  const qreal left = std::accumulate(widths_.begin(), before, 0.0);
  return QRectF(left, top, *before, height).adjusted(gap_, gap_, -gap_, -gap_);
}

void TableLayout::Paint_Headings(QPainter& painter, qreal top) const {
  painter.setFont(Bold());
  for (qsizetype i = 0; i < table_.columns.size(); ++i) {
    const TableReport::Column& column = table_.columns[i];
    const QRectF cell = Cell(i, top, heading_height_);
    if (column.words) {
      painter.drawText(cell, Qt::AlignLeft | Qt::AlignBottom | kBroken, column.heading);
      continue;
    }
    painter.save();
    painter.translate(cell.left(), cell.bottom());
    painter.rotate(-90);
    painter.drawText(QRectF(0, 0, cell.height(), cell.width()),
                     Qt::AlignLeft | Qt::AlignBottom | kBroken, column.heading);
    painter.restore();
  }
  painter.drawLine(QPointF(0, top + heading_height_), QPointF(Width(), top + heading_height_));
}

void TableLayout::Paint_Row(QPainter& painter, qreal top, qsizetype row) const {
  painter.setFont(font_);
  const qreal height = Row_Height(row);
  for (qsizetype i = 0; i < table_.columns.size(); ++i) {
    const bool words = table_.columns[i].words;
    const int flags = words ? Qt::AlignLeft | kBroken : Qt::AlignRight | Qt::TextSingleLine;
    painter.drawText(Cell(i, top, height), flags | Qt::AlignTop, table_.rows[row][i]);
  }
}

void TableLayout::Paint_Sums(QPainter& painter, qreal top) const {
  painter.setFont(Bold());
  for (qsizetype i = 0; i < table_.sums.size(); ++i) {
    if (table_.sums[i].isEmpty()) continue;
    QRectF cell = Cell(i, top, Line_Height());
    qsizetype last = i;
    const bool label = i == 0;
    while (label && last + 1 < table_.sums.size() && table_.sums[last + 1].isEmpty()) ++last;
    cell.setRight(Cell(last, top, Line_Height()).right());
    painter.drawText(cell,
                     static_cast<int>((label ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignTop),
                     table_.sums[i]);
  }
}

}  // namespace norvane
