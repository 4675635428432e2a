#include <gtest/gtest.h>

#include <string>

#include "../support/child_process.h"
#include "../support/test_program.h"
#include "frame/settings_file.h"

namespace norvane {
namespace {

constexpr const char* kFile = "norvane.ini";

TEST(ASettingOfTwoProgramsInOneFolder, IsNotLostToTheOther) {
  constexpr int kKeys = 25;
  TestProgram program;
  const auto write_keys = [&](const std::string& section) {
    for (int i = 0; i < kKeys; ++i) {
      const std::string number = std::to_string(i);
      Ini_Write(program.State(), kFile, section, "key" + number, number);
    }
  };
  ChildProcess other([&] { write_keys("Other"); });
  write_keys("Setting");
  ASSERT_TRUE(other.Wait());
  for (int i = 0; i < kKeys; ++i) {
    const std::string number = std::to_string(i);
    EXPECT_EQ(Ini_Read(program.State(), kFile, "Setting", "key" + number, "lost"), number);
    EXPECT_EQ(Ini_Read(program.State(), kFile, "Other", "key" + number, "lost"), number);
  }
}

}  // namespace
}  // namespace norvane
