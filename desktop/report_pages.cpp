#include "desktop/report_pages.h"

#include <QPainter>

#include "desktop/own_texts.h"

namespace norvane {

QString Project_Line(const Desktop& desktop, const ReportFrame& frame) {
  if (frame.project.isEmpty()) return {};
  return Own_Text(desktop, TextId::kProject) + ": " + frame.project;
}

void Paint_Foot(QPainter& painter, const QRectF& foot, const ReportFrame& frame, int page,
                int pages) {
  painter.drawLine(foot.topLeft(), foot.topRight());
  painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, frame.project);
  painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom, frame.date);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, QString("%1 / %2").arg(page).arg(pages));
}

}  // namespace norvane
