#include "desktop/placement.h"

#include <gtest/gtest.h>

#include <ostream>

namespace norvane {

void PrintTo(const Placement& placement, std::ostream* out) {
  *out << placement.size.width() << 'x' << placement.size.height() << '+' << placement.place.x()
       << '+' << placement.place.y() << (placement.scrolls ? " scrolls" : "");
}

namespace {

constexpr int kBar = 14;
const QMargins kFrame(1, 20, 1, 5);

/// A window of 400 x 300 that needs 300 x 200, with its frame at a place.
WindowWish Wish_At(int x, int y) { return {{x, y}, {400, 300}, {300, 200}, kFrame}; }

TEST(APlacement, IsAsWishedWhereThereIsRoom) {
  const QRect area(0, 0, 1280, 1024);
  EXPECT_EQ(Place_Inside(area, Wish_At(440, 362), kBar), (Placement{{440, 362}, {400, 300}}));
  EXPECT_EQ(Place_Inside(area, Wish_At(0, 0), kBar), (Placement{{0, 0}, {400, 300}}));
  EXPECT_EQ(Place_Inside(area, Wish_At(878, 699), kBar), (Placement{{878, 699}, {400, 300}}));
}

TEST(APlacement, MovesTheWholeFrameIntoTheAreaAndNoFarther) {
  const QRect area(64, 30, 1216, 994);
  EXPECT_EQ(Place_Inside(area, Wish_At(0, 0), kBar), (Placement{{64, 30}, {400, 300}}));
  EXPECT_EQ(Place_Inside(area, Wish_At(-900, 500), kBar), (Placement{{64, 500}, {400, 300}}));
  EXPECT_EQ(Place_Inside(area, Wish_At(900, 900), kBar), (Placement{{878, 699}, {400, 300}}));
  EXPECT_EQ(Place_Inside(area, Wish_At(100, 5000), kBar), (Placement{{100, 699}, {400, 300}}));
}

TEST(APlacement, IsOnTheSecondScreenBesideThePanelThatLiesThere) {
  const QRect area(1280, 40, 800, 560);
  EXPECT_EQ(Place_Inside(area, Wish_At(1260, 200), kBar), (Placement{{1280, 200}, {400, 300}}));
  EXPECT_EQ(Place_Inside(area, Wish_At(1900, 600), kBar), (Placement{{1678, 275}, {400, 300}}));
  const QRect left_of_the_first(-1024, -100, 1024, 768);
  EXPECT_EQ(Place_Inside(left_of_the_first, Wish_At(-2000, 0), kBar),
            (Placement{{-1024, 0}, {400, 300}}));
}

TEST(APlacement, MakesSmallerWhatMovingDoesNotBringIn) {
  // All the width, with the frame's two pixels.
  EXPECT_EQ(Place_Inside({10, 0, 352, 1024}, Wish_At(440, 362), kBar),
            (Placement{{10, 362}, {350, 300}}));
  EXPECT_EQ(Place_Inside({0, 50, 1280, 225}, Wish_At(440, 362), kBar),
            (Placement{{440, 50}, {400, 200}}));
}

TEST(APlacement, ScrollsBelowTheLeastSizeAlone) {
  EXPECT_FALSE(Place_Inside({0, 0, 302, 225}, Wish_At(0, 0), kBar).scrolls);
  EXPECT_EQ(Place_Inside({0, 0, 301, 1024}, Wish_At(0, 0), kBar),
            (Placement{{0, 0}, {299, 300 + kBar}, true}));
  EXPECT_EQ(Place_Inside({0, 0, 1280, 224}, Wish_At(0, 0), kBar),
            (Placement{{0, 0}, {400 + kBar, 199}, true}));
  EXPECT_EQ(Place_Inside({0, 0, 200, 100}, Wish_At(300, 300), kBar),
            (Placement{{0, 0}, {198, 75}, true}));
}

TEST(APlacement, CountsTheBarThatScrollsOneWayAsLackingRoomTheOtherWay) {
  // As wide as the window at the least, but for the bar at its side.
  EXPECT_EQ(Place_Inside({0, 0, 302, 150}, Wish_At(0, 0), kBar),
            (Placement{{0, 0}, {300, 125}, true}));
}

TEST(AnAvailableArea, IsThatOfTheScreenWithMostOfTheWindow) {
  const std::vector<ScreenArea> screens{{{0, 0, 1280, 1024}, {64, 0, 1216, 1024}},
                                        {{1280, 0, 1920, 1080}, {1280, 30, 1920, 1050}}};
  EXPECT_EQ(Available_Area_For({100, 100, 800, 600}, screens), screens[0].available);
  EXPECT_EQ(Available_Area_For({800, 100, 800, 600}, screens), screens[0].available);
  EXPECT_EQ(Available_Area_For({900, 100, 800, 600}, screens), screens[1].available);
  EXPECT_EQ(Available_Area_For({2000, 100, 800, 600}, screens), screens[1].available);
}

TEST(AnAvailableArea, IsThatOfTheFirstScreenWithoutAWindowOnAny) {
  const std::vector<ScreenArea> screens{{{0, 0, 1280, 1024}, {64, 0, 1216, 1024}},
                                        {{1280, 0, 1920, 1080}, {1280, 30, 1920, 1050}}};
  EXPECT_EQ(Available_Area_For({}, screens), screens[0].available);
  EXPECT_EQ(Available_Area_For({-900, -900, 800, 600}, screens), screens[0].available);
}

}  // namespace
}  // namespace norvane
