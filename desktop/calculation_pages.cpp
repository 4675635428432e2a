#include "desktop/calculation_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>

#include "desktop/object_picture.h"
#include "desktop/own_texts.h"
#include "desktop/report_figures.h"
#include "report/calculation_report.h"

namespace norvane {
namespace {

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

QString Figure(const char* name, const QSize& size) {
  return QString("<p><img src=\"%1\" width=%2 height=%3></p>")
      .arg(name)
      .arg(size.width())
      .arg(size.height());
}

QString Html_Of(const Desktop& desktop, const CalculationReport& report, bool has_chart,
                const ReportFrame& frame) {
  const QString title = QString::fromStdString(report.mode + ": " + report.object);
  QString html = "<h2>" + title.toHtmlEscaped() + "</h2>";
  const QString project = Project_Line(desktop, frame);
  if (!project.isEmpty()) html += "<p>" + project.toHtmlEscaped() + "</p>";
  html += Figure(kObjectFigure, {ObjectPicture::kWidth, ObjectPicture::kHeight});
  html += "<table width=\"100%\"><tr><td width=\"50%\">" + Table_Of(report.inputs) +
          "</td><td width=\"50%\">" + Table_Of(report.results) + "</td></tr></table>";
  if (has_chart) html += Figure(kChartFigure, kChartOnPaper);
  if (report.steps.empty()) return html;
  return html + Heading(Own_Text(desktop, TextId::kFormulas)) + Table_Of(report.steps);
}

}  // namespace

CalculationPages::CalculationPages(const Desktop& desktop, const CalculationReport& report,
                                   Chart chart, ReportFrame frame)
    : frame_(std::move(frame)), picture_(report.picture), chart_(std::move(chart)) {
  html_ = Html_Of(desktop, report, !chart_.lines.empty(), frame_);
}

std::unique_ptr<QTextDocument> CalculationPages::Laid_Out_For(QPagedPaintDevice& device) const {
  constexpr double kPoints = 9;
  auto document = std::make_unique<QTextDocument>();
  document->documentLayout()->setPaintDevice(&device);
  document->setDocumentMargin(0);
  QFont font("Arial");
  font.setPointSizeF(kPoints);
  document->setDefaultFont(font);
  new ReportFigures(picture_, chart_, *document);
  document->setHtml(html_);
  return document;
}

void CalculationPages::Paint(QPagedPaintDevice& device) const {
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
