#include "desktop/row_table.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/caption_row.h"

namespace norvane {
namespace {

// The narrow one in front, the product, and the kind of object.
constexpr int kMostColumnsThatStay = 3;

/// Cells that are painted over those of another table, to which the mouse, the keyboard and screen
/// readers go.
class StayingCells : public QTableView {
 public:
  explicit StayingCells(QTableView& table) : QTableView(&table) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setFocusProxy(&table);
    setFrameShape(QFrame::NoFrame);
    setAutoScroll(false);
    horizontalHeader()->hide();
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }

 protected:
  // What a table tells a screen reader, the one below tells already.
  // NOLINTBEGIN(bugprone-parent-virtual-call)
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    QAbstractItemView::currentChanged(current, previous);
  }
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override {
    QAbstractItemView::selectionChanged(selected, deselected);
  }
  // NOLINTEND(bugprone-parent-virtual-call)
};

void Mark_By_Rows(QTableView& table) {
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setSelectionMode(QAbstractItemView::ContiguousSelection);
  table.setAlternatingRowColors(true);
  table.setWordWrap(false);
  table.verticalHeader()->hide();
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

}  // namespace

RowTable::RowTable(QWidget* parent)
    : QTableView(parent),
      staying_cells_(new StayingCells(*this)),
      staying_captions_(new CaptionRow(this)) {
  auto* captions = new CaptionRow(this);
  setHorizontalHeader(captions);
  staying_captions_->raise();
  setHorizontalScrollMode(ScrollPerPixel);
  for (QTableView* table : {static_cast<QTableView*>(this), staying_cells_}) Mark_By_Rows(*table);
  for (CaptionRow* row : {captions, staying_captions_}) {
    connect(row, &CaptionRow::Clicked, this, &RowTable::Picked);
  }
  connect(captions, &QHeaderView::sectionResized, this,
          [this](int column, int, int width) { Keep_Width(column, width); });
  connect(staying_captions_, &QHeaderView::sectionResized, this,
          [this](int column, int, int width) {
            if (width > 0) setColumnWidth(column, width);
          });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &RowTable::Keep_Height);
  connect(staying_cells_->verticalScrollBar(), &QScrollBar::rangeChanged, this,
          &RowTable::Keep_Height);
}

void RowTable::setModel(QAbstractItemModel* model) {
  staying_cells_->setModel(model);
  staying_captions_->setModel(model);
  QTableView::setModel(model);
  staying_cells_->setSelectionModel(selectionModel());
}

QRect RowTable::visualRect(const QModelIndex& index) const {
  return index.column() < staying_ ? staying_cells_->visualRect(index)
                                   : QTableView::visualRect(index);
}

QModelIndex RowTable::indexAt(const QPoint& point) const {
  return point.x() < Width_That_Stays() ? staying_cells_->indexAt(point)
                                        : QTableView::indexAt(point);
}

void RowTable::scrollTo(const QModelIndex& index, ScrollHint hint) {
  QScrollBar& bar = *horizontalScrollBar();
  const int before = bar.value();
  QTableView::scrollTo(index, hint);
  if (index.column() < staying_) {
    bar.setValue(before);
  } else {
    const int covered = Width_That_Stays() - columnViewportPosition(index.column());
    if (covered > 0) bar.setValue(bar.value() - covered);
  }
}

void RowTable::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) {
    emit Picked();
  } else if (event->matches(QKeySequence::Copy)) {
    emit Copy_Asked();
  } else {
    QTableView::keyPressEvent(event);
  }
}

bool RowTable::Marks(const QMouseEvent& event) const {
  return event.button() == Qt::LeftButton && indexAt(event.position().toPoint()).isValid();
}

// Any other press, and one on the empty ground, leaves the marked rows as they are.
void RowTable::mousePressEvent(QMouseEvent* event) {
  marking_ = Marks(*event);
  if (marking_) QTableView::mousePressEvent(event);
}

void RowTable::mouseDoubleClickEvent(QMouseEvent* event) {
  marking_ = Marks(*event);
  if (marking_) QTableView::mouseDoubleClickEvent(event);
}

void RowTable::mouseMoveEvent(QMouseEvent* event) {
  if (marking_) QTableView::mouseMoveEvent(event);
}

void RowTable::mouseReleaseEvent(QMouseEvent* event) {
  if (std::exchange(marking_, false)) QTableView::mouseReleaseEvent(event);
  emit Picked();
}

int RowTable::Columns_That_Stay() const {
  if (model() == nullptr) return 0;
  // The others keep at least half of the room.
  int width = columnWidth(0);
  int columns = 1;
  while (columns < kMostColumnsThatStay &&
         width + columnWidth(columns) <= viewport()->width() / 2) {
    width += columnWidth(columns++);
  }
  return std::min(columns, model()->columnCount());
}

int RowTable::Width_That_Stays() const {
  int width = 0;
  for (int column = 0; column < staying_; ++column) width += columnWidth(column);
  return width;
}

void RowTable::Keep_Width(int column, int width) {
  staying_cells_->setColumnWidth(column, width);
  staying_captions_->resizeSection(column, width);
  updateGeometries();
}

void RowTable::Keep_Height() {
  staying_cells_->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

void RowTable::updateGeometries() {
  QTableView::updateGeometries();
  staying_ = Columns_That_Stay();
  if (model() == nullptr) return;
  for (int column = 0; column < model()->columnCount(); ++column) {
    staying_cells_->setColumnHidden(column, column >= staying_);
    // One more, out of sight: the last one of a row has no line behind it.
    staying_captions_->setSectionHidden(column, column > staying_);
  }
  staying_cells_->verticalHeader()->setDefaultSectionSize(verticalHeader()->defaultSectionSize());
  const QRect cells = viewport()->geometry();
  const QRect captions = horizontalHeader()->geometry();
  const int width = Width_That_Stays();
  staying_cells_->setGeometry(cells.x(), cells.y(), width, cells.height());
  staying_captions_->setGeometry(captions.x(), captions.y(), width, captions.height());
}

}  // namespace norvane
