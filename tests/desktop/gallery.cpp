// Puts pictures side by side for whoever looks at all screens, and copies those of the documents.
//   desktop_gallery FOLDER IMAGES
// FOLDER holds RUN/LANGUAGE/SCREEN.png and gets RUN/contact-SCREEN.png; IMAGES gets the documents'.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QTextStream>

namespace {

/// A picture of the documents: its name there, and what it shows, from the run at scale 1.
struct Illustration {
  const char* name;
  const char* language;
  const char* screen;
};

constexpr Illustration kIllustrations[] = {
    {"main", "en", "heat-loss-steel"},
    {"sheet", "en", "heat-loss-sheet"},
    {"condensation", "en", "condensation-steel"},
    {"settings", "en", "settings-savings"},
    {"languages", "en", "languages"},
    {"totals", "en", "totals"},
    {"german", "de", "heat-loss-steel"},
    {"greek", "el", "heat-loss-steel"},
};
constexpr const char* kRunOfIllustrations = "1x";
constexpr qint64 kLargestIllustration = 150 * 1024;  // bytes

constexpr int kColumns = 4;
constexpr int kGap = 12;
constexpr int kLabelHeight = 24;

struct LabelledPicture {
  QString label;
  QImage image;
};

QImage Side_By_Side(const QList<LabelledPicture>& pictures) {
  QSize cell;
  for (const auto& [label, image] : pictures) cell = cell.expandedTo(image.size());
  cell += QSize(kGap, kGap + kLabelHeight);
  const int columns = std::min(kColumns, static_cast<int>(pictures.size()));
  const int rows = (static_cast<int>(pictures.size()) + columns - 1) / columns;
  QImage sheet(columns * cell.width() + kGap, rows * cell.height() + kGap, QImage::Format_RGB32);
  sheet.fill(QColor(200, 204, 208));
  QPainter painter(&sheet);
  QFont font("Arial");
  font.setPixelSize(16);
  font.setBold(true);
  painter.setFont(font);
  for (int i = 0; i < pictures.size(); ++i) {
    const QPoint at(kGap + i % columns * cell.width(), kGap + i / columns * cell.height());
    painter.drawText(QRect(at, QSize(cell.width(), kLabelHeight)), Qt::AlignVCenter,
                     pictures[i].label);
    painter.drawImage(at + QPoint(0, kLabelHeight), pictures[i].image);
  }
  return sheet;
}

/// A contact sheet for each screen of a run; false if one can't be written.
bool Make_Contact_Sheets(const QDir& run) {
  const QStringList languages = run.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  QSet<QString> screens;
  for (const QString& language : languages) {
    for (const QString& file : QDir(run.filePath(language)).entryList({"*.png"}, QDir::Files)) {
      screens.insert(file);
    }
  }
  bool all_written = true;
  for (const QString& screen : screens) {
    QList<LabelledPicture> pictures;
    for (const QString& language : languages) {
      QImage image(run.filePath(language + "/" + screen));
      image.setDevicePixelRatio(1);
      if (!image.isNull()) pictures.append({language, image});
    }
    const QString sheet = run.filePath("contact-" + screen);
    if (Side_By_Side(pictures).save(sheet)) continue;
    QTextStream(stderr) << sheet << " can't be written\n";
    all_written = false;
  }
  return all_written;
}

bool Copy_Illustrations(const QDir& run, const QDir& images) {
  bool all_copied = true;
  for (const auto& [name, language, screen] : kIllustrations) {
    const QString from = run.filePath(QString("%1/%2.png").arg(language, screen));
    const QString to = images.filePath(QString("%1.png").arg(name));
    if (QFileInfo(from).size() > kLargestIllustration) {
      QTextStream(stderr) << from << " is too large for the documents\n";
      all_copied = false;
      continue;
    }
    QFile::remove(to);
    if (QFile::copy(from, to)) continue;
    QTextStream(stderr) << from << " can't be copied to " << to << '\n';
    all_copied = false;
  }
  return all_copied;
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 3 || !QDir(arguments[1]).exists() || !QDir().mkpath(arguments[2])) {
    QTextStream(stderr) << "usage: desktop_gallery FOLDER IMAGES\n";
    return 2;
  }
  const QDir pictures(arguments[1]);
  bool good = true;
  for (const QString& run : pictures.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    good = Make_Contact_Sheets(QDir(pictures.filePath(run))) && good;
  }
  good =
      Copy_Illustrations(QDir(pictures.filePath(kRunOfIllustrations)), QDir(arguments[2])) && good;
  return good ? 0 : 1;
}
