#pragma once

#include <QRect>
#include <QString>
#include <vector>

class QWidget;

namespace norvane {

/// A text on a window, and the room that its widget has for it.
struct ShownText {
  const QWidget* widget = nullptr;
  QString text;
  QSizeF needed;  ///< by the font that the widget paints it with
  QRect room;     ///< in the widget's coordinates
};

/// What all visible widgets of a window, or of a part of it, show. Of a list that drops down it is
/// the widest item.
std::vector<ShownText> Shown_Texts(const QWidget& part);

/// How a failure names a widget.
std::string Name_Of(const QWidget& widget);

}  // namespace norvane
