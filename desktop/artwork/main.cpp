// Writes all pictures, signs and icons of the program into a folder:
//   norvane-artwork FOLDER [SCALE]

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <functional>

#include "desktop/app_icon.h"
#include "desktop/background.h"
#include "desktop/object_picture.h"
#include "desktop/tool_button.h"

namespace {

using norvane::ObjectPicture;
using norvane::ToolButton;
using norvane::ToolSign;

class Artwork {
 public:
  Artwork(const QString& folder, qreal scale) : folder_(folder), scale_(scale) {}

  void Write();

 private:
  void Save(const QString& name, const QSize& size, qreal scale,
            const std::function<void(QPainter&)>& draw);
  void Write_Icons();
  void Draw_Signs(QPainter& painter, bool dark);

  QDir folder_;
  qreal scale_;
};

void Artwork::Save(const QString& name, const QSize& size, qreal scale,
                   const std::function<void(QPainter&)>& draw) {
  QImage image((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  draw(painter);
  painter.end();
  const QString path = folder_.filePath(name);
  if (!image.save(path)) qFatal("%s can't be written", qPrintable(path));
}

void Artwork::Write_Icons() {
  for (const int size : norvane::kIconSizes) {
    const QString name = QString("icons/%1/norvane.png").arg(size);
    folder_.mkpath(QString("icons/%1").arg(size));
    Save(name, {size, size}, 1, [size](QPainter& p) { norvane::Draw_App_Icon(p, size); });
  }
  QFile svg(folder_.filePath("norvane.svg"));
  const QByteArray text = norvane::App_Icon_Svg();
  if (!svg.open(QIODevice::WriteOnly) || svg.write(text) != text.size()) {
    qFatal("%s can't be written", qPrintable(svg.fileName()));
  }
}

constexpr QSize kSignsSize(560, 170);
constexpr QSize kSplashSize(399, 301);

/// All signs: plain and chosen buttons, and the bare signs at the sizes of toolbars.
void Artwork::Draw_Signs(QPainter& painter, bool dark) {
  const QPalette palette(dark ? QColor(53, 53, 53) : QColor(239, 239, 239));
  painter.fillRect(QRect({}, kSignsSize), palette.color(QPalette::Window));
  constexpr int kStep = 46;
  constexpr int kSizes[] = {26, 22, 16};
  for (int i = 0; i <= static_cast<int>(ToolSign::kSpreadsheet); ++i) {
    ToolButton button(static_cast<ToolSign>(i));
    button.setPalette(palette);
    button.resize(button.sizeHint());
    const int left = 4 + i * kStep;
    for (const bool chosen : {false, true}) {
      button.setChecked(chosen);
      button.render(&painter, QPoint(left, chosen ? 44 : 4), {}, QWidget::DrawChildren);
    }
    int top = 86;
    for (const int size : kSizes) {
      painter.save();
      painter.translate(left + 9, top);
      norvane::Draw_Sign(painter, static_cast<ToolSign>(i), size,
                         palette.color(QPalette::WindowText));
      painter.restore();
      top += size + 5;
    }
  }
}

void Artwork::Write() {
  folder_.mkpath(".");
  for (int number = 1; number <= ObjectPicture::kPictures; ++number) {
    Save(QString("object_%1.png").arg(number, 2, 10, QChar('0')),
         {ObjectPicture::kWidth, ObjectPicture::kHeight}, scale_,
         [number](QPainter& p) { norvane::Draw_Object(p, number); });
  }
  for (const bool dark : {false, true}) {
    Save(dark ? "signs_dark.png" : "signs_light.png", kSignsSize, scale_,
         [this, dark](QPainter& p) { Draw_Signs(p, dark); });
  }
  Save("background.png", kSplashSize, scale_,
       [](QPainter& p) { norvane::Draw_Background(p, kSplashSize, 1); });
  Write_Icons();
}

}  // namespace

int main(int argc, char** argv) {
  // Pictures need no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const qreal scale = argc > 2 ? QString(argv[2]).toDouble() : 1;
  if (argc < 2 || argc > 3 || !(scale >= 0.5 && scale <= 16)) {
    qCritical("norvane-artwork FOLDER [SCALE]");
    return 2;
  }
  Artwork(argv[1], scale).Write();
  return 0;
}
