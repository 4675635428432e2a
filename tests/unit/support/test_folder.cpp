#include "test_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

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
  std::string name = (Parent() / "norvane-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw fs::filesystem_error("mkdtemp", name, {});
  path_ = name;
}

TestFolder::~TestFolder() {
  std::error_code error;
  fs::permissions(path_, fs::perms::owner_all, error);
  fs::remove_all(path_, error);
}

void TestFolder::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::string TestFolder::Bytes_Of(const std::string& name) const {
  std::ifstream file(path_ / name, std::ios::binary);
  EXPECT_TRUE(file) << name << " can't be opened";
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> TestFolder::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(path_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace norvane
