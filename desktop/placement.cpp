#include "desktop/placement.h"

#include <algorithm>

namespace norvane {
namespace {

int Common_Ground(const QRect& one, const QRect& other) {
  const QRect common = one.intersected(other);
  return common.isEmpty() ? 0 : common.width() * common.height();
}

/// The place nearest to the wished one where a length lies between two borders; one that is too
/// long for them begins at the first.
int Moved_Between(int wished, int length, int first, int room) {
  return std::max(first, std::min(wished, first + room - length));
}

}  // namespace

QRect Available_Area_For(const QRect& window, const std::vector<ScreenArea>& screens) {
  return std::max_element(screens.begin(), screens.end(),
                          [&](const ScreenArea& one, const ScreenArea& other) {
                            return Common_Ground(window, one.whole) <
                                   Common_Ground(window, other.whole);
                          })
      ->available;
}

Placement Place_Inside(const QRect& area, const WindowWish& wish, int scroll_bar) {
  const QSize room = area.marginsRemoved(wish.frame).size();
  QSize wanted = wish.size;
  const bool scrolls_down = wish.least.height() > room.height();
  const bool scrolls_across = wish.least.width() + (scroll_bar * scrolls_down) > room.width();
  if (scrolls_down) wanted.rwidth() += scroll_bar;
  if (scrolls_across) wanted.rheight() += scroll_bar;
  Placement placed;
  placed.scrolls = scrolls_down || scrolls_across;
  placed.size = wanted.boundedTo(room);
  const QSize outside = placed.size.grownBy(wish.frame);
  placed.place = {Moved_Between(wish.place.x(), outside.width(), area.left(), area.width()),
                  Moved_Between(wish.place.y(), outside.height(), area.top(), area.height())};
  return placed;
}

}  // namespace norvane
