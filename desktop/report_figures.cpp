#include "desktop/report_figures.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QTextDocument>
#include <QTextFormat>

#include "desktop/object_picture.h"

namespace norvane {
namespace {

constexpr qreal kDotsOfASize = 96;  // in an inch

/// As dots: its shades are many, and half of them translucent.
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

ChartColours Colours_Of_Paper() {
  QPalette paper;
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  return Chart_Colours(paper);
}

void Paint_On_Paper(QPainter& painter, const QRectF& room, const Chart& chart) {
  constexpr int kLetters = 11;
  painter.save();
  painter.translate(room.topLeft());
  const qreal scale = room.width() / kChartOnPaper.width();
  painter.scale(scale, scale);
  QFont font = painter.font();
  font.setPixelSize(kLetters);
  font.setHintingPreference(QFont::PreferNoHinting);
  painter.setFont(font);
  Paint_Chart(painter, QRectF(QPointF(), kChartOnPaper), chart, Colours_Of_Paper());
  painter.restore();
}

}  // namespace

ReportFigures::ReportFigures(int picture, const Chart& chart, QTextDocument& parent)
    : QObject(&parent), picture_(picture), chart_(chart) {
  parent.documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

QSizeF ReportFigures::intrinsicSize(QTextDocument* text, int, const QTextFormat& format) {
  const QTextImageFormat image = format.toImageFormat();
  const qreal dots = text->documentLayout()->paintDevice()->logicalDpiX() / kDotsOfASize;
  return QSizeF(image.width(), image.height()) * dots;
}

void ReportFigures::drawObject(QPainter* painter, const QRectF& room, QTextDocument*, int,
                               const QTextFormat& format) {
  if (format.toImageFormat().name() == kChartFigure) {
    Paint_On_Paper(*painter, room, chart_);
  } else {
    painter->drawImage(room, Picture(picture_));
  }
}

}  // namespace norvane
