#include "host/disk_files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <thread>
#include <vector>

#include "../../unit/support/test_folder.h"
#include "host/windows/wide.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// The program's folder, made inside an empty one.
class FolderOfProgram : public testing::Test {
 protected:
  /// All that the program does with its folder.
  void Expect_Works(const fs::path& folder) {
    DiskFiles files(folder);
    for (int i = 0; i < 2; ++i) {
      files.Rewrite("norvane.ini", [](const std::string& bytes) { return bytes + "x"; });
    }
    EXPECT_EQ(files.Read("NORVANE.ini"), "xx");
    EXPECT_EQ(files.List("*.ini"), Names{"norvane.ini"});
    ASSERT_NE(CreateDirectoryW(Long_Path(folder / "xls").c_str(), nullptr), 0);
    DiskFiles(folder / "xls").Rewrite("Empty.xls", [](const std::string&) { return "book"; });
    EXPECT_EQ(files.Read("xls\\Empty.xls"), "book");
    Clear(folder);
  }

  TestFolder folder_;

 private:
  /// Folders of such a length are beyond what the library can remove.
  static void Clear(const fs::path& folder) {
    DeleteFileW(Long_Path(folder / "xls" / "Empty.xls").c_str());
    RemoveDirectoryW(Long_Path(folder / "xls").c_str());
    DeleteFileW(Long_Path(folder / "norvane.ini").c_str());
  }
};

TEST_F(FolderOfProgram, MayHaveAnyLettersInItsName) {
  for (const char* name : {"Größe Ω", "Ж 火 🔥", "a & b's (1)", "%TEMP%"}) {
    const fs::path folder = folder_ / name;
    fs::create_directory(folder);
    Expect_Works(folder);
  }
}

TEST_F(FolderOfProgram, MayLieDeeperThan260Letters) {
  Names levels(3, std::string(100, 'd'));
  std::vector<fs::path> made{folder_.Path()};
  for (const std::string& level : levels) {
    made.push_back(made.back() / level);
    ASSERT_NE(CreateDirectoryW(Long_Path(made.back()).c_str(), nullptr), 0);
  }
  ASSERT_GT(made.back().native().size(), 260U);
  Expect_Works(made.back());
  for (auto at = made.rbegin(); at != made.rend(); ++at) {
    RemoveDirectoryW(Long_Path(*at).c_str());
  }
}

TEST_F(FolderOfProgram, MayLieOnTheNetwork) {
  std::wstring local = fs::absolute(folder_.Path()).native();
  // Each drive has a share of its own for those who may administer the machine.
  local[1] = L'$';
  const fs::path share = LR"(\\localhost\)" + local;
  if (!fs::exists(share)) GTEST_SKIP() << "this machine has no such share";
  Expect_Works(share);
}

TEST_F(FolderOfProgram, HasItsNamesByTheirAsciiCaseAlone) {
  folder_.Write("Ä.txt", "capital");
  const DiskFiles files(folder_.Path());
  EXPECT_EQ(files.Read("Ä.TXT"), "capital");
  EXPECT_EQ(files.Read("ä.txt"), std::nullopt);
  EXPECT_EQ(files.List("ä.txt"), Names{});
  EXPECT_EQ(files.List("?.txt"), Names{});
  EXPECT_EQ(files.List("*.txt"), Names{"Ä.txt"});
}

TEST_F(FolderOfProgram, HasNoDevices) {
  const DiskFiles files(folder_.Path());
  for (const char* name : {"NUL", "con", "COM1", "aux.txt"}) {
    EXPECT_EQ(files.Read(name), std::nullopt) << name;
  }
}

TEST_F(FolderOfProgram, HasNoFilesByNamesThatWindowsWouldShorten) {
  folder_.Write("norvane.ini", "");
  folder_.Write("language.len", "");
  const DiskFiles files(folder_.Path());
  for (const char* name : {"norvane.ini.", "norvane.ini ", "norvane.in?", "LANGUA~1.LEN"}) {
    EXPECT_EQ(files.Read(name), std::nullopt) << name;
  }
}

TEST_F(FolderOfProgram, HasFilesThatOthersAreWriting) {
  folder_.Write("norvane.ini", "settings");
  const HANDLE writer =
      CreateFileW((folder_ / "norvane.ini").c_str(), GENERIC_WRITE,
                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(DiskFiles(folder_.Path()).Read("norvane.ini"), "settings");
  CloseHandle(writer);
}

TEST_F(FolderOfProgram, HasFilesThatOthersHaveForThemselvesForAMoment) {
  folder_.Write("norvane.ini", "settings");
  const HANDLE owner = CreateFileW((folder_ / "norvane.ini").c_str(), GENERIC_READ, 0, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
  std::thread release([owner] {
    Sleep(50);
    CloseHandle(owner);
  });
  EXPECT_EQ(DiskFiles(folder_.Path()).Read("norvane.ini"), "settings");
  release.join();
}

}  // namespace
}  // namespace norvane
