// A settings file of any bytes: all keys are read, one is written and reads back, and nothing else
// of the file changes.
//
// Input: which key, which value; the file.

#include "frame/settings_file.h"

#include <algorithm>
#include <utility>

#include "data/private_profile.h"
#include "data/runtime_error.h"
#include "data/text.h"
#include "frame/shared_state.h"
#include "input.h"
#include "memory_platform.h"
#include "require.h"

namespace norvane {
namespace {

using Key = std::pair<std::string, std::string>;  // section, key

const Key kKeys[] = {{"Init", "A1"},        {"Init", "A4"},      {"Init", "Language"},
                     {"Setting", "Hr_Day"}, {"Setting", "Days"}, {"SETTING", "days"},
                     {"Other", "Hr_Day"}};

bool Same(const Key& a, const Key& b) {
  return Lower(a.first) == Lower(b.first) && Lower(a.second) == Lower(b.second);
}

std::string_view Without_Blanks(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

std::string Read(Module1& module1, const Key& key) {
  return Ini_Read(module1, kSettingsFile, key.first, key.second, "the default");
}

/// What reading a written value gives: without the blanks around it, cut, or zeros for nothing.
std::string Read_Back(const std::string& value) {
  const std::string_view bare = Without_Blanks(value);
  return bare.empty() ? std::string(255, '\0') : std::string(bare.substr(0, 254));
}

/// `after` is `before` with one stretch replaced that lies within a line.
void Require_One_Stretch(std::string_view before, std::string_view after) {
  while (!before.empty() && !after.empty() && before.front() == after.front()) {
    before.remove_prefix(1);
    after.remove_prefix(1);
  }
  while (!before.empty() && !after.empty() && before.back() == after.back()) {
    before.remove_suffix(1);
    after.remove_suffix(1);
  }
  Require(before.find_first_of("\r\n") == before.npos, "a written key leaves other lines alone");
}

void Read_All_Settings(Module1& module1) {
  try {
    Read_Settings(module1);
  } catch (const RuntimeError& error) {
    Require(error.number() == RuntimeError::kOverflow, "a setting may be too large");
  }
}

void Write_And_Read_Back(Module1& module1, MemoryFiles& folder, const Key& key,
                         const std::string& value) {
  std::vector<std::string> before;
  for (const Key& other : kKeys) before.push_back(Read(module1, other));
  const std::string bytes = folder.Read(kSettingsFile).value_or("");
  Ini_Write(module1, kSettingsFile, key.first, key.second, value);
  Require(Read(module1, key) == Read_Back(value), "a written key reads back");
  Require_One_Stretch(bytes, folder.Read(kSettingsFile).value_or(""));
  for (std::size_t i = 0; i < std::size(kKeys); ++i) {
    Require(Same(kKeys[i], key) || Read(module1, kKeys[i]) == before[i],
            "a written key leaves the others");
  }
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  static MemoryPlatform platform('.');
  static Module1 module1(platform);
  const std::string values[] = {" 17", "",       "de",      "65536",
                                "a=b", "[Init]", "\t x \t", std::string(300, 'x')};
  Input input(data, size);
  const Key& key = kKeys[input.Below(std::size(kKeys))];
  const std::string& value = values[input.Below(std::size(values))];
  platform.folder.Clear();
  platform.folder.Write("NORVANE.INI", input.Bytes(size));
  Read_All_Settings(module1);
  Write_And_Read_Back(module1, platform.folder, key, value);
  Read_All_Settings(module1);
  return 0;
}
