#include "legibility.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "shown_texts.h"

namespace norvane {
namespace {

/// What the accessibility guidelines for the web ask of text in ordinary sizes (WCAG 2.1, 1.4.3).
constexpr double kLeastContrast = 4.5;

std::string Said(const ShownText& shown) {
  return Name_Of(*shown.widget) + " \"" + shown.text.toStdString() + "\": ";
}

/// Whether a widget may be larger than the one around it since it is moved behind it.
bool Scrolls(const QWidget& widget) {
  const auto* area = qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()->parent());
  return area != nullptr && area->viewport() == widget.parentWidget();
}

QRect In_Window(const QWidget& widget, const QRect& part) {
  return {widget.mapTo(widget.window(), part.topLeft()), part.size()};
}

/// As the same guidelines measure light.
double Luminance(QRgb colour) {
  const auto linear = [](int component) {
    const double share = component / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
         0.0722 * linear(qBlue(colour));
}

double Contrast(QRgb one, QRgb other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

struct Colours {
  QRgb ground;
  QRgb ink;
};

/// The colour that most of a part has, and the one that stands out from it most; the picture has 32
/// bits for each pixel.
Colours Colours_Of(const QImage& picture, const QRect& part) {
  std::unordered_map<QRgb, int> counts;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    const QRgb* const end = row + part.right() + 1;
    for (const QRgb* from = row + part.left(); from != end;) {
      // Most neighbours are alike, and looked up once.
      const QRgb* const to = std::find_if(from, end, [from](QRgb each) { return each != *from; });
      counts[*from] += static_cast<int>(to - from);
      from = to;
    }
  }
  const QRgb ground = std::max_element(counts.begin(), counts.end(), [](auto& a, auto& b) {
                        return a.second < b.second;
                      })->first;
  const QRgb ink = std::max_element(counts.begin(), counts.end(), [&](auto& a, auto& b) {
                     return Contrast(ground, a.first) < Contrast(ground, b.first);
                   })->first;
  return {ground, ink};
}

std::string Hex(QRgb colour) { return QColor(colour).name().toStdString(); }

}  // namespace

void Expect_Room_For_Texts(const QWidget& part) {
  for (const ShownText& shown : Shown_Texts(part)) {
    // Texts are laid out in parts of a pixel, and widgets round that to whole ones.
    EXPECT_LT(shown.needed.width(), shown.room.width() + 1) << Said(shown) << "too narrow";
    EXPECT_LT(shown.needed.height(), shown.room.height() + 1) << Said(shown) << "too low";
  }
}

void Expect_Texts_Apart(const QWidget& part) {
  QList<const QWidget*> widgets = part.findChildren<const QWidget*>();
  if (!part.isWindow()) widgets.prepend(&part);
  for (const QWidget* widget : widgets) {
    if (widget->window() != part.window() || !widget->isVisible() || Scrolls(*widget)) continue;
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()) ||
                widget->size().isEmpty())
        << Name_Of(*widget) << " sticks out of " << Name_Of(*widget->parentWidget());
  }
  const auto texts = Shown_Texts(part);
  for (auto one = texts.begin(); one != texts.end(); ++one) {
    for (auto other = std::next(one); other != texts.end(); ++other) {
      if (one->widget == other->widget) continue;
      EXPECT_FALSE(In_Window(*one->widget, one->widget->rect())
                       .intersects(In_Window(*other->widget, other->widget->rect())))
          << Said(*one) << "lies over " << Said(*other);
    }
  }
}

void Expect_No_Blank_Buttons(const QWidget& part) {
  for (const QPushButton* button : part.findChildren<const QPushButton*>()) {
    if (!button->isVisible() || button->window() != part.window()) continue;
    EXPECT_FALSE(button->text().isEmpty() && button->icon().isNull())
        << Name_Of(*button) << ": nothing stands on this button";
  }
}

void Expect_Contrast(const QWidget& part, const QImage& picture) {
  const qreal scale = picture.devicePixelRatio();
  for (const ShownText& shown : Shown_Texts(part)) {
    // Of a cell that is scrolled half away the half with the letters may be the other one.
    if (!shown.widget->rect().contains(shown.room)) continue;
    const QRect place = In_Window(*shown.widget, shown.room);
    const QRect pixels =
        QRectF(place.topLeft() * scale, QSizeF(place.size()) * scale).toRect() & picture.rect();
    if (pixels.isEmpty()) continue;
    const Colours colours = Colours_Of(picture, pixels);
    // What is selected has the two colours that the desktop's theme gives it.
    const auto* edit = qobject_cast<const QLineEdit*>(shown.widget);
    if (edit != nullptr && edit->hasSelectedText()) continue;
    if (colours.ground == QGuiApplication::palette().color(QPalette::Highlight).rgb()) continue;
    EXPECT_GE(Contrast(colours.ground, colours.ink), kLeastContrast)
        << Said(shown) << Hex(colours.ink) << " on " << Hex(colours.ground);
  }
}

}  // namespace norvane
