#pragma once

#include <QMargins>
#include <QRect>
#include <vector>

namespace norvane {

/// A screen of the user's desktop: all of it, and what panels leave free for windows.
struct ScreenArea {
  QRect whole;
  QRect available;
};

/// What panels leave free of the screen that most of a window lies on. A window on none of them, or
/// none at all (an empty rectangle), counts to the first. There is one screen at least.
QRect Available_Area_For(const QRect& window, const std::vector<ScreenArea>& screens);

/// Where a window would lie and how large it would be, if there were room for it.
struct WindowWish {
  QPoint place;    ///< the upper left of its frame
  QSize size;      ///< of its inside
  QSize least;     ///< below this size of its inside it has to scroll
  QMargins frame;  ///< what the window manager puts around its inside
};

/// Where a window comes to lie.
struct Placement {
  QPoint place;  ///< the upper left of its frame
  QSize size;    ///< of its inside
  bool scrolls = false;

  bool operator==(const Placement&) const = default;
};

/// Keeps a window with its frame inside an area: it is moved as far as it must be, made smaller
/// where the area is smaller than the window, and scrolls where it then lacks room. A bar that
/// scrolls one way is as thick as `scroll_bar` and takes that from the other way.
Placement Place_Inside(const QRect& area, const WindowWish& wish, int scroll_bar);

}  // namespace norvane
