#include "desktop/tour/workbook_rows.h"

#include <minizip/unzip.h>

#include <QXmlStreamReader>
#include <memory>

namespace norvane {
namespace {

using Archive = std::unique_ptr<void, decltype(&unzClose)>;

QByteArray Member(const Archive& archive, const char* name) {
  constexpr int kWithCase = 1;
  if (unzLocateFile(archive.get(), name, kWithCase) != UNZ_OK) return {};
  if (unzOpenCurrentFile(archive.get()) != UNZ_OK) return {};
  QByteArray bytes;
  char piece[4096];
  for (int size; (size = unzReadCurrentFile(archive.get(), piece, sizeof piece)) > 0;) {
    bytes.append(piece, size);
  }
  unzCloseCurrentFile(archive.get());
  return bytes;
}

/// The texts that cells refer to by their number.
QStringList Shared_Texts(const QByteArray& xml) {
  QStringList texts;
  QXmlStreamReader reader(xml);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == QLatin1String("t")) texts << reader.readElementText();
  }
  return texts;
}

/// Column 0 is "A"; no more than the letters "A" to "Z" are needed here.
qsizetype Column_Of(QStringView cell) { return cell.front().unicode() - u'A'; }

}  // namespace

QList<QStringList> Workbook_Rows(const QString& file) {
  const Archive archive(unzOpen64(file.toUtf8().constData()), unzClose);
  if (!archive) return {};
  const QStringList texts = Shared_Texts(Member(archive, "xl/sharedStrings.xml"));
  const QByteArray sheet = Member(archive, "xl/worksheets/sheet1.xml");
  QList<QStringList> rows;
  bool shared = false;
  QXmlStreamReader reader(sheet);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const auto attributes = reader.attributes();
    if (reader.name() == QLatin1String("row")) {
      rows.append(QStringList());
    } else if (reader.name() == QLatin1String("c") && !rows.isEmpty()) {
      shared = attributes.value("t") == QLatin1String("s");
      while (rows.last().size() <= Column_Of(attributes.value("r"))) rows.last() << QString();
    } else if (reader.name() == QLatin1String("v") && !rows.isEmpty() && !rows.last().isEmpty()) {
      const QString value = reader.readElementText();
      rows.last().last() = shared ? texts.value(value.toInt()) : value;
    }
  }
  return rows;
}

}  // namespace norvane
