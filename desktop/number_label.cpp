#include "desktop/number_label.h"

namespace norvane {
namespace {

constexpr int kAround = 4;  // pixels

}  // namespace

NumberLabel::NumberLabel(QGridLayout& grid, int row, CardColumn column) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setMargin(kAround);
  setFixedSize(kColumnWidth[column], kRowHeight);
  grid.addWidget(this, row, column, Qt::AlignRight | Qt::AlignVCenter);
}

void NumberLabel::Show_Number(const QString& number) {
  const QFontMetrics font = fontMetrics();
  // One digit more than there are signs, since a percent sign is wider than a digit.
  const auto digits = static_cast<int>(number.size()) + 1;
  const QSize needed(digits * font.horizontalAdvance('0') + 2 * kAround,
                     font.lineSpacing() + 2 * kAround);
  const QSize room = minimumSize().expandedTo(needed);
  if (room != minimumSize()) setFixedSize(room);
  setText(number);
}

}  // namespace norvane
