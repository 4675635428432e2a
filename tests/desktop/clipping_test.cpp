// Every text of every screen in every language: it is there as a whole, apart from the others, and
// stands out from its ground. With NORVANE_PICTURES set to a folder the screens are saved there,
// FOLDER/LANGUAGE/SCREEN.png.
#include <QDir>
#include <map>
#include <set>

#include "legibility.h"
#include "screen_walk.h"

namespace norvane {
namespace {

/// The main window is to fit on small screens; pixels as the desktop counts them.
constexpr QSize kLargestMainWindow(1024, 700);

class Clipping : public ScreenWalk {
 protected:
  void Look_At(const std::string& screen, QWidget& part, const QImage& window,
               const QImage& picture) override;
  void Save(const std::string& screen, const QImage& picture) const;

  std::string language_;
  std::map<std::string, QSize> sizes_of_states_;
};

void Clipping::Look_At(const std::string& screen, QWidget& part, const QImage& window,
                       const QImage& picture) {
  SCOPED_TRACE("language " + language_ + ", screen " + screen);
  Expect_Room_For_Texts(part);
  Expect_Texts_Apart(part);
  Expect_No_Blank_Buttons(part);
  Expect_Contrast(part, window);
  if (part.window() == &Main_View()) {
    EXPECT_LE(Main_View().width(), kLargestMainWindow.width());
    EXPECT_LE(Main_View().height(), kLargestMainWindow.height());
    sizes_of_states_[screen] = Main_View().size();
  }
  Save(screen, picture);
}

void Clipping::Save(const std::string& screen, const QImage& picture) const {
  const QString pictures = qEnvironmentVariable("NORVANE_PICTURES");
  if (pictures.isEmpty()) return;
  const QDir place(pictures + "/" + QString::fromStdString(language_));
  const QString file = place.filePath(QString::fromStdString(screen + ".png"));
  EXPECT_TRUE(place.mkpath(".") && picture.save(file)) << file.toStdString() << " can't be written";
}

class EachLanguage : public Clipping, public testing::WithParamInterface<const char*> {};

TEST_P(EachLanguage, Shows_All_Texts_Whole) {
  language_ = GetParam();
  Walk_In(language_);
  for (const auto& [screen, size] : sizes_of_states_) {
    EXPECT_EQ(size, sizes_of_states_.begin()->second)
        << "language " << language_ << ", screens " << screen << " and "
        << sizes_of_states_.begin()->first;
  }
}

INSTANTIATE_TEST_SUITE_P(All, EachLanguage,
                         testing::Values("cs", "da", "de", "el", "en", "es", "fr", "it", "nl", "pl",
                                         "pt", "ru", "sv", "tr"),
                         [](const auto& test) { return test.param; });

/// English with headings 60 % longer, from the same words, as translations can come out.
std::string With_Long_Headings(const std::string& english) {
  static const std::set<int> kHeadings = {18, 19, 20, 21, 24, 25, 26, 27, 28, 29, 33, 35,
                                          36, 48, 49, 50, 51, 52, 53, 54, 55, 66, 67, 68};
  std::string longer;
  std::istringstream lines(english);
  for (std::string line; std::getline(lines, line); longer += line + '\n') {
    const std::size_t text = line.find(',') + 1;
    if (text == 1 || !std::isdigit(static_cast<unsigned char>(line[0]))) continue;
    if (!kHeadings.contains(std::stoi(line))) continue;
    const std::string words = line.substr(text, line.find_last_not_of('\r') + 1 - text);
    const std::size_t length = (words.size() * 16 + 9) / 10;
    std::string heading = words;
    while (heading.size() < length) heading += " " + words;
    line.replace(text, words.size(), heading.substr(0, length));
  }
  return longer;
}

TEST_F(Clipping, Headings_That_Are_60_Percent_Longer_Have_Room) {
  const std::string english = folder.Bytes_Of("language.len");
  for (const std::string& name : folder.Names()) {
    if (name.starts_with("language.") && name != "language.len") {
      std::filesystem::remove(folder / name);
    }
  }
  folder.Write("language.lxx", With_Long_Headings(english));
  language_ = "xx";
  Walk_In(language_);
  EXPECT_GT(Label(Screen().Label3(4)).text().size(),
            QString("Heat loss with insulation").size() * 3 / 2);
}

}  // namespace
}  // namespace norvane
