#include "test_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// Memory where the system offers it as a folder: every rewriting of a file is flushed.
fs::path Parent() {
  const fs::path memory = "/dev/shm";
  std::error_code error;
  return fs::is_directory(memory, error) ? memory : fs::temp_directory_path();
}

}  // namespace

TestFolder::TestFolder() {
  std::random_device device;
  do {
    path_ = Parent() / ("norvane-test-" + std::to_string(device()));
  } while (!fs::create_directory(path_));
}

TestFolder::~TestFolder() {
  std::error_code error;
  fs::permissions(path_, fs::perms::owner_all, error);
  fs::remove_all(path_, error);
}

fs::path TestFolder::operator/(const std::string& name) const {
  return path_ / std::u8string(name.begin(), name.end());
}

void TestFolder::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(*this / name, std::ios::binary) << bytes;
}

std::string TestFolder::Bytes_Of(const std::string& name) const {
  std::ifstream file(*this / name, std::ios::binary);
  EXPECT_TRUE(file) << name << " can't be opened";
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> TestFolder::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(path_)) {
    const std::u8string name = entry.path().filename().u8string();
    names.emplace_back(name.begin(), name.end());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace norvane
