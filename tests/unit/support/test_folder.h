#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace norvane {

/// An empty folder that is thrown away with all that is in it.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  /// Names are UTF-8 where the system doesn't name files by bytes.
  std::filesystem::path operator/(const std::string& name) const;

  void Write(const std::string& name, const std::string& bytes) const;
  /// The bytes of a file; fails the test when it can't be opened.
  std::string Bytes_Of(const std::string& name) const;
  /// The names of all that lies in the folder, in the order of their bytes.
  std::vector<std::string> Names() const;

 private:
  std::filesystem::path path_;
};

}  // namespace norvane
