#include "printed.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>

namespace norvane {
namespace {

QByteArray Output_Of(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is missing";
  return process.readAllStandardOutput();
}

}  // namespace

QStringList Texts_Of_Pages(const QString& pdf) {
  // Behind each page, the last one too, stands a form feed.
  QStringList pages = QString::fromUtf8(Output_Of("pdftotext", {"-layout", pdf, "-"})).split('\f');
  pages.removeLast();
  return pages;
}

QString Bare(const QString& text) { return QString(text).remove(QRegularExpression("\\s")); }

QString Printed_Text(const QString& pdf) { return Bare(Texts_Of_Pages(pdf).join(' ')); }

QImage Printed_Page(const QString& pdf) {
  return QImage::fromData(Output_Of("pdftoppm", {"-r", "50", "-singlefile", "-png", pdf}));
}

void Expect_Embedded_Fonts(const QString& pdf) {
  const QStringList fonts =
      QString::fromUtf8(Output_Of("pdffonts", {pdf})).trimmed().split('\n').mid(2);
  EXPECT_FALSE(fonts.isEmpty());
  for (const QString& font : fonts) {
    // The columns emb, sub and uni are followed by an object of two numbers.
    const QStringList columns = font.simplified().split(' ');
    EXPECT_EQ(columns[columns.size() - 5], "yes") << font.toStdString();
  }
}

}  // namespace norvane
