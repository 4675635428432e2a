#include "desktop/table_pages.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <utility>

#include "desktop/table_layout.h"

namespace norvane {
namespace {

constexpr qreal kTitlePoints = 13;
constexpr qreal kPoints = 8;

QFont Font_Of(qreal points) {
  QFont font("Arial");
  font.setPointSizeF(points);
  return font;
}

/// Breaks a table into pages while it paints them, or only counts them.
class Printing {
 public:
  Printing(const TableReport& table, const ReportFrame& frame, const QString& project,
           QPagedPaintDevice& device)
      : table_(table),
        frame_(frame),
        project_(project),
        device_(device),
        layout_(table, Font_Of(kPoints), device.width(), device),
        line_(QFontMetricsF(Font_Of(kPoints), &device).height()),
        foot_(0, device.height() - 1.5 * line_, device.width(), 1.5 * line_),
        end_(foot_.top() - line_) {}

  int Count_Pages() {
    Go_Through(nullptr);
    return page_;
  }
  void Paint(QPainter& painter, int pages) {
    pages_ = pages;
    Go_Through(&painter);
  }

 private:
  void Go_Through(QPainter* painter) {
    page_ = 0;
    Begin_Page(painter);
    const qsizetype last = table_.rows.size() - 1;
    for (qsizetype row = 0; row <= last; ++row) {
      const qreal height = layout_.Row_Height(row);
      // The sums don't stand alone on a page.
      const bool with_sums = row == last && !table_.sums.isEmpty();
      if (!first_on_page_ && top_ + height + (with_sums ? layout_.Line_Height() : 0) > end_) {
        Begin_Page(painter);
      }
      if (painter != nullptr) layout_.Paint_Row(*painter, top_, row);
      Rule(painter, height);
      first_on_page_ = false;
    }
    if (painter != nullptr) layout_.Paint_Sums(*painter, top_);
  }

  void Begin_Page(QPainter* painter) {
    ++page_;
    top_ = 0;
    first_on_page_ = true;
    if (painter != nullptr) {
      if (page_ > 1) device_.newPage();
      painter->setFont(Font_Of(kPoints));
      painter->setPen(Qt::black);
      Paint_Foot(*painter, foot_, frame_, page_, pages_);
    }
    if (page_ == 1) Head(painter);
    if (painter != nullptr) layout_.Paint_Headings(*painter, top_);
    top_ += layout_.Heading_Height();
  }

  /// The title, and the project under it.
  void Head(QPainter* painter) {
    QFont bold = Font_Of(kTitlePoints);
    bold.setBold(true);
    for (const auto& [font, text] : {std::pair(bold, table_.title), {Font_Of(kPoints), project_}}) {
      if (text.isEmpty()) continue;
      const qreal height = QFontMetricsF(font, &device_).height();
      if (painter != nullptr) {
        painter->setFont(font);
        painter->drawText(QRectF(0, top_, device_.width(), height), Qt::AlignLeft, text);
      }
      top_ += height + line_ / 2;
    }
  }

  void Rule(QPainter* painter, qreal height) {
    top_ += height;
    if (painter == nullptr) return;
    painter->setPen(Qt::lightGray);
    painter->drawLine(QPointF(0, top_), QPointF(layout_.Width(), top_));
    painter->setPen(Qt::black);
  }

  const TableReport& table_;
  const ReportFrame& frame_;
  const QString& project_;
  QPagedPaintDevice& device_;
  TableLayout layout_;
  qreal line_;
  QRectF foot_;
  qreal end_;
  qreal top_ = 0;
  bool first_on_page_ = true;
  int page_ = 0;
  int pages_ = 0;
};

}  // namespace

TablePages::TablePages(const Desktop& desktop, TableReport table, ReportFrame frame)
    : table_(std::move(table)), frame_(std::move(frame)), project_(Project_Line(desktop, frame_)) {}

void TablePages::Paint(QPagedPaintDevice& device) const {
  QPainter painter(&device);
  if (!painter.isActive()) return;
  Printing printing(table_, frame_, project_, device);
  printing.Paint(painter, printing.Count_Pages());
}

QString TablePages::Words() const {
  QStringList words{table_.title, project_, frame_.date};
  for (const TableReport::Column& column : table_.columns) words << column.heading;
  for (const QStringList& row : table_.rows) words << row;
  return (words << table_.sums).join('\n');
}

}  // namespace norvane
