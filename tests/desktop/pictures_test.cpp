#include <QImage>
#include <map>

#include "window_test.h"

namespace norvane {
namespace {

/// Pictures of the object as the screen shows them.
class Pictures : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Settle();
  }

  /// Types a thickness and takes the picture that comes of it.
  QImage Picture_At(const QString& thickness) {
    Mark(Screen().txtT(2));
    Type(thickness);
    return Widget(Screen().Picture2).grab().toImage();
  }

  /// How many of a hundred points differ from the ground in the corner.
  static int Percent_Drawn(const QImage& image) {
    const QRgb ground = image.pixel(0, 0);
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) drawn += image.pixel(x, y) != ground ? 1 : 0;
    }
    return 100 * drawn / (image.width() * image.height());
  }
};

TEST_F(Pictures, Each_Of_The_Twenty_Can_Be_Shown_And_Is_Like_No_Other) {
  // A thickness for each of the six classes.
  constexpr const char* kThicknesses[] = {"6", "9", "13", "15", "20", "21"};
  std::map<int, QImage> pictures;
  for (int kind = 0; kind <= 2; ++kind) {
    Click(Screen().cmdToolBar1(kind));
    for (int thickness = 0; thickness < 6; ++thickness) {
      const QImage image = Picture_At(kThicknesses[thickness]);
      EXPECT_EQ(Screen().Picture2.Picture(), 3 * thickness + kind + 1);
      pictures[Screen().Picture2.Picture()] = image;
    }
  }
  Click(Screen().cmdToolBar1(3));
  pictures[19] = Picture_At("0");
  EXPECT_EQ(Screen().Picture2.Picture(), 19);
  pictures[20] = Picture_At("1");
  EXPECT_EQ(Screen().Picture2.Picture(), 20);

  ASSERT_EQ(pictures.size(), 20U);
  for (const auto& [number, picture] : pictures) {
    SCOPED_TRACE(number);
    EXPECT_EQ(picture.size(), QSize(258, 98));
    EXPECT_GE(Percent_Drawn(picture), 5);
    for (const auto& [other, other_picture] : pictures) {
      EXPECT_TRUE(other == number || other_picture != picture) << "the same as " << other;
    }
  }
}

TEST_F(Pictures, The_Classes_End_At_Their_Thickness) {
  std::map<int, QImage> pictures;
  const auto show = [&](const QString& thickness, int number) {
    SCOPED_TRACE(thickness.toStdString());
    const QImage image = Picture_At(thickness);
    EXPECT_EQ(Screen().Picture2.Picture(), number);
    // The same picture again when the same number comes again.
    const auto [entry, is_new] = pictures.emplace(number, image);
    EXPECT_TRUE(is_new || image == entry->second);
  };
  show("0", 1);
  show("6", 1);
  show("7", 4);
  show("9", 4);
  show("10", 7);
  show("13", 7);
  show("14", 10);
  show("15", 10);
  show("16", 13);
  show("20", 13);
  show("21", 16);
  show("100", 16);
}

TEST_F(Pictures, The_Calculated_Thickness_Of_Condensation_Is_Drawn) {
  Click(Screen().cmdToolBarC);
  EXPECT_EQ(Screen().Picture2.Picture(), 1);
  const QImage thin = Widget(Screen().Picture2).grab().toImage();
  // Cold enough for more than 9 mm.
  Paste(Screen().txtC(0), "-20");
  Paste(Screen().txtC(3), "60");
  EXPECT_EQ(Shown(Screen().txtC(2)), "9.9");
  EXPECT_EQ(Screen().Picture2.Picture(), 7);
  EXPECT_NE(Widget(Screen().Picture2).grab().toImage(), thin);
}

}  // namespace
}  // namespace norvane
