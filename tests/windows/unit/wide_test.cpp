#include "host/windows/wide.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace norvane {
namespace {

namespace fs = std::filesystem;

TEST(WideText, GoesThereAndBack) {
  for (const char* text : {"", "norvane.ini", "Größe Ω", "Ж 火 🔥"}) {
    EXPECT_EQ(Utf8(Wide(text)), text);
  }
  EXPECT_EQ(Wide("Ω"), L"\u03A9");
  EXPECT_EQ(Wide("🔥"), L"\xD83D\xDD25");
}

TEST(WideText, HasTheUnknownLetterForWhatIsBroken) {
  EXPECT_EQ(Wide("a\xC4z"), L"a\xFFFDz");
  EXPECT_EQ(Utf8(L"a\xD83Dz"), "a\xEF\xBF\xBDz");
}

TEST(ALongPath, HasNoLimit) {
  EXPECT_EQ(Long_Path(LR"(C:\a\b)"), LR"(\\?\C:\a\b)");
  EXPECT_EQ(Long_Path(LR"(\\server\share\a)"), LR"(\\?\UNC\server\share\a)");
}

TEST(ALongPath, IsTakenAsItIsWhenItHasNoLimitAlready) {
  EXPECT_EQ(Long_Path(LR"(\\?\C:\a)"), LR"(\\?\C:\a)");
}

TEST(ALongPath, HasTheSystemsSlashesAndNoDots) {
  EXPECT_EQ(Long_Path(L"C:/a/./b/../c"), LR"(\\?\C:\a\c)");
}

TEST(ALongPath, BeginsWithTheCurrentFolder) {
  EXPECT_EQ(Long_Path(L"a"), Long_Path(fs::current_path() / L"a"));
}

}  // namespace
}  // namespace norvane
