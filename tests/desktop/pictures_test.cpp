#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QXmlStreamReader>
#include <cmath>
#include <map>

#include "desktop/app_icon.h"
#include "desktop/background.h"
#include "desktop/colours.h"
#include "desktop/object_picture.h"
#include "desktop/tool_button.h"
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

const QColor kWhiteCard(255, 255, 255);
const QColor kDarkCard(43, 43, 43);

/// A picture on a ground, at one pixel a unit.
template <class Draw>
QImage Painted(const QSize& size, const QColor& ground, Draw draw) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(ground);
  QPainter painter(&image);
  draw(painter);
  return image;
}

QImage Object(int number, const QColor& ground = Qt::transparent) {
  return Painted({ObjectPicture::kWidth, ObjectPicture::kHeight}, ground,
                 [number](QPainter& painter) { Draw_Object(painter, number); });
}

/// The height of what is drawn solid in a column.
int Solid_Height(const QImage& image, int x) {
  int height = 0;
  for (int y = 0; y < image.height(); ++y) height += image.pixelColor(x, y).alpha() > 240 ? 1 : 0;
  return height;
}

/// Relative luminance and contrast as the Web Content Accessibility Guidelines define them.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

TEST(Objects, Each_Class_Is_Clearly_Thicker_Than_The_One_Before_On_The_Same_Pipe) {
  constexpr int kThroughTheFoam = 100;
  constexpr int kThroughThePipe = 190;
  constexpr int kClear = 8;
  const QRect bare_end(212, 0, ObjectPicture::kWidth - 212, ObjectPicture::kHeight);
  for (int family = 0; family <= 2; ++family) {
    int before = Solid_Height(Object(family + 1), kThroughThePipe);
    // The thinnest one is a skin, but it shows.
    EXPECT_GE(Solid_Height(Object(family + 1), kThroughTheFoam), before + 6);
    for (int thickness = 1; thickness <= 5; ++thickness) {
      const int number = 3 * thickness + family + 1;
      SCOPED_TRACE(number);
      const QImage thinner = Object(number - 3);
      const QImage picture = Object(number);
      EXPECT_GE(Solid_Height(picture, kThroughTheFoam),
                Solid_Height(thinner, kThroughTheFoam) + kClear);
      EXPECT_EQ(picture.copy(bare_end), thinner.copy(bare_end));
    }
  }
}

TEST(Objects, The_Families_Differ_In_Colour) {
  const auto wall = [](int family) {
    return QColor(Object(family + 1)
                      .copy(182, 36, 12, 24)
                      .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .pixel(0, 0));
  };
  const QColor steel = wall(0);
  const QColor copper = wall(1);
  const QColor plastic = wall(2);
  EXPECT_GT(steel.blue(), steel.red() + 15);
  EXPECT_GT(copper.red(), copper.blue() + 60);
  EXPECT_LT(plastic.saturation(), 15);
  EXPECT_GT(Luminance(plastic), 1.5 * Luminance(steel));
}

TEST(Objects, The_Foam_Stands_Out_From_White_And_From_Dark_Grounds) {
  constexpr int kThroughTheFoam = 100;
  for (int number = 1; number <= ObjectPicture::kPictures; ++number) {
    if (number == 19) continue;  // the bare sheet
    SCOPED_TRACE(number);
    for (const QColor& ground : {kWhiteCard, kDarkCard}) {
      const QImage picture = Object(number, ground);
      int y = 0;
      while (y < picture.height() && picture.pixelColor(kThroughTheFoam, y) == ground) ++y;
      ASSERT_LT(y, picture.height());
      EXPECT_GE(Contrast(picture.pixelColor(kThroughTheFoam, y), ground), 3) << ground.red();
    }
  }
}

TEST(Signs, Show_On_Light_And_Dark_Grounds_Plain_And_Chosen_And_Are_All_Different) {
  for (const QColor& window : {QColor(239, 239, 239), QColor(53, 53, 53)}) {
    SCOPED_TRACE(window.red());
    std::vector<QImage> shown;
    for (int sign = 0; sign <= static_cast<int>(ToolSign::kSpreadsheet); ++sign) {
      SCOPED_TRACE(sign);
      ToolButton button(static_cast<ToolSign>(sign));
      button.setPalette(QPalette(window));
      button.resize(button.sizeHint());
      for (const bool chosen : {false, true}) {
        SCOPED_TRACE(chosen);
        button.setChecked(chosen);
        const QImage image = Painted(button.size(), window, [&button](QPainter& painter) {
          button.render(&painter, {}, {}, QWidget::DrawChildren);
        });
        const QColor ground = image.pixelColor(4, image.height() / 2);
        EXPECT_EQ(ground != window, chosen);
        int clear = 0;
        for (int y = 3; y < image.height() - 3; ++y) {
          for (int x = 3; x < image.width() - 3; ++x) {
            clear += Contrast(image.pixelColor(x, y), ground) >= 3 ? 1 : 0;
          }
        }
        EXPECT_GE(clear, 60);
        for (const QImage& other : shown) EXPECT_NE(image, other);
        shown.push_back(image);
      }
    }
    EXPECT_EQ(shown.size(), 26U);
  }
}

TEST(Icon, Has_Foam_Copper_And_Green_At_All_Sizes) {
  const QIcon icon = App_Icon();
  for (const int size : kIconSizes) {
    SCOPED_TRACE(size);
    ASSERT_TRUE(icon.availableSizes().contains(QSize(size, size)));
    const QImage image = icon.pixmap(size).toImage();
    ASSERT_EQ(image.size(), QSize(size, size));
    int green = 0;
    int copper = 0;
    int foam = 0;
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        const QColor colour = image.pixelColor(x, y);
        if (colour.alpha() < 200) continue;
        green += colour.green() > colour.red() + 30 && colour.green() > colour.blue() + 60 ? 1 : 0;
        copper += colour.red() > colour.green() + 30 && colour.red() > colour.blue() + 60 ? 1 : 0;
        foam += colour.lightness() < 110 && colour.hslSaturation() < 60 ? 1 : 0;
      }
    }
    const int area = size * size;
    EXPECT_GT(green, area / 5);
    EXPECT_GT(copper, area / 20);
    EXPECT_GT(foam, area / 5);
    EXPECT_LT(image.pixelColor(0, 0).alpha(), 128);
  }
}

TEST(Icon, Is_The_Same_As_A_File) {
  QXmlStreamReader reader(App_Icon_Svg());
  int shapes = 0;
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement) {
      shapes += reader.name() == QString("rect") ? 1 : 0;
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_GT(shapes, 8);
  if (!QImageReader::supportedImageFormats().contains("svg")) {
    GTEST_SKIP() << "the reader of SVG files isn't installed";
  }
  const QSize size(256, 256);
  const QImage read = QImage::fromData(App_Icon_Svg(), "svg")
                          .scaled(size)
                          .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  const QImage drawn =
      Painted(size, Qt::transparent, [](QPainter& painter) { Draw_App_Icon(painter, 256); });
  ASSERT_EQ(read.size(), size);
  int different = 0;
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      const QColor a = read.pixelColor(x, y);
      const QColor b = drawn.pixelColor(x, y);
      const int distance = std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                           std::abs(a.blue() - b.blue()) + std::abs(a.alpha() - b.alpha());
      different += distance > 40 ? 1 : 0;
    }
  }
  EXPECT_LT(different, 256 * 256 / 100);
}

TEST(Grounds, Are_Light_Enough_For_The_Texts_On_Them) {
  const QSize size(399, 301);
  const QColor text = QPalette(kGround).color(QPalette::WindowText);
  const auto least_contrast = [&](qreal strength, const QRect& place) {
    const QImage image = Painted(size, Qt::transparent, [&](QPainter& painter) {
      Draw_Background(painter, size, strength);
    });
    double least = 21;
    for (int y = place.top(); y <= place.bottom(); ++y) {
      for (int x = place.left(); x <= place.right(); ++x) {
        least = std::min(least, Contrast(image.pixelColor(x, y), text));
      }
    }
    return least;
  };
  // The title on the splash screen, and the names of the languages all over.
  EXPECT_GE(least_contrast(1, {20, 240, 360, 48}), 4.5);
  EXPECT_GE(least_contrast(0.12, {1, 1, 397, 288}), 4.5);
}

}  // namespace
}  // namespace norvane
