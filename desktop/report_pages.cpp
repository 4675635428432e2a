#include "desktop/report_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>
#include <QUrl>

#include "desktop/desktop.h"
#include "desktop/object_picture.h"
#include "desktop/own_texts.h"
#include "report/calculation_report.h"

namespace norvane {
namespace {

const QUrl kPicture("picture:object");

QString Cell(const QString& text, const char* attributes = "") {
  return QString("<td %1>%2</td>").arg(attributes, text.toHtmlEscaped());
}

QString Cell(const std::string& text, const char* attributes = "") {
  return Cell(QString::fromStdString(text), attributes);
}

QString Heading(const QString& text) { return "<h3>" + text.toHtmlEscaped() + "</h3>"; }

/// A cell of numbers keeps their signs and digits together.
constexpr const char* kNumber = "align=right style=\"white-space:nowrap\"";

QString Table_Of(const std::vector<CalculationReport::Line>& lines) {
  QString html = "<table cellpadding=2 width=\"100%\">";
  for (const CalculationReport::Line& line : lines) {
    html += "<tr>" + Cell(line.heading) + Cell(line.symbol) + Cell(line.value, kNumber) +
            Cell(line.unit) + "</tr>";
  }
  return html + "</table>";
}

QString Table_Of(const std::vector<CalculationReport::Step>& steps) {
  QString html = "<table cellpadding=3 width=\"100%\">";
  for (const CalculationReport::Step& step : steps) {
    html += "<tr>" + Cell(step.formula) + Cell("= " + step.numbers) +
            Cell("= " + step.result, "style=\"white-space:nowrap\"") + "</tr>";
  }
  return html + "</table>";
}

QString Top(const QString& title, const ReportFrame& frame, const Desktop& desktop) {
  QString html = "<h2>" + title.toHtmlEscaped() + "</h2>";
  if (frame.project.isEmpty()) return html;
  const QString heading = Own_Text(desktop, TextId::kProject);
  return html + "<p>" + (heading + ": " + frame.project).toHtmlEscaped() + "</p>";
}

QImage Picture(int number) {
  constexpr int kSharpness = 4;
  QImage image(ObjectPicture::kWidth * kSharpness, ObjectPicture::kHeight * kSharpness,
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(kSharpness, kSharpness);
  Draw_Object(painter, number);
  return image;
}

/// The foot of a page: the project, the date, the number of the page and how many there are.
void Paint_Foot(QPainter& painter, const QRectF& foot, const ReportFrame& frame, int page,
                int pages) {
  painter.drawLine(foot.topLeft(), foot.topRight());
  painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, frame.project);
  painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom, frame.date);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, QString("%1 / %2").arg(page).arg(pages));
}

}  // namespace

ReportPages::ReportPages(const Desktop& desktop, const CalculationReport& report, ReportFrame frame)
    : frame_(std::move(frame)), picture_(report.picture) {
  const QString title = QString::fromStdString(report.mode + ": " + report.object);
  html_ = Top(title, frame_, desktop);
  html_ += QString("<p><img src=\"%1\" width=%2 height=%3></p>")
               .arg(kPicture.toString())
               .arg(ObjectPicture::kWidth)
               .arg(ObjectPicture::kHeight);
  html_ += "<table width=\"100%\"><tr><td width=\"50%\">" + Table_Of(report.inputs) +
           "</td><td width=\"50%\">" + Table_Of(report.results) + "</td></tr></table>";
  if (report.steps.empty()) return;
  html_ += Heading(Own_Text(desktop, TextId::kFormulas)) + Table_Of(report.steps);
}

ReportPages::ReportPages(const Desktop& desktop, const TableReport& table, ReportFrame frame)
    : frame_(std::move(frame)) {
  html_ = Top(table.title, frame_, desktop);
  html_ +=
      "<table border=1 cellspacing=0 cellpadding=3 width=\"100%\" "
      "style=\"border-collapse:collapse\"><thead><tr>";
  for (const QString& heading : table.headings) {
    html_ += "<th>" + heading.toHtmlEscaped() + "</th>";
  }
  html_ += "</tr></thead>";
  for (const QStringList& row : table.rows) {
    html_ += "<tr>";
    for (const QString& cell : row) html_ += Cell(cell);
    html_ += "</tr>";
  }
  if (!table.sums.isEmpty()) {
    html_ += "<tr>";
    for (const QString& cell : table.sums) html_ += "<td><b>" + cell.toHtmlEscaped() + "</b></td>";
    html_ += "</tr>";
  }
  html_ += "</table>";
}

std::unique_ptr<QTextDocument> ReportPages::Laid_Out_For(QPagedPaintDevice& device) const {
  constexpr double kPoints = 9;
  auto document = std::make_unique<QTextDocument>();
  document->documentLayout()->setPaintDevice(&device);
  document->setDocumentMargin(0);
  QFont font("Arial");
  font.setPointSizeF(kPoints);
  document->setDefaultFont(font);
  if (picture_ > 0)
    document->addResource(QTextDocument::ImageResource, kPicture, Picture(picture_));
  document->setHtml(html_);
  return document;
}

void ReportPages::Paint(QPagedPaintDevice& device) const {
  QPainter painter(&device);
  if (!painter.isActive()) return;
  const std::unique_ptr<QTextDocument> document = Laid_Out_For(device);
  painter.setFont(document->defaultFont());
  const double line = painter.fontMetrics().height();
  const QSizeF body(device.width(), device.height() - 2.5 * line);
  document->setPageSize(body);
  const QRectF foot(0, device.height() - 1.5 * line, device.width(), 1.5 * line);
  const int pages = document->pageCount();
  for (int page = 0; page < pages; ++page) {
    if (page > 0) device.newPage();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = QRectF(QPointF(0, page * body.height()), body);
    painter.save();
    painter.translate(-context.clip.topLeft());
    painter.setClipRect(context.clip);
    document->documentLayout()->draw(&painter, context);
    painter.restore();
    Paint_Foot(painter, foot, frame_, page + 1, pages);
  }
}

}  // namespace norvane
