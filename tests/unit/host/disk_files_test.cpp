#include "host/disk_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "../support/test_folder.h"
#include "host/plain_file.h"

namespace norvane {
namespace {

using Names = std::vector<std::string>;

class DiskFilesTest : public testing::Test {
 protected:
  void Make(const Names& names) const {
    for (const std::string& name : names) folder_.Write(name, "");
  }

  TestFolder folder_;
  DiskFiles files_{folder_.Path()};
};

using FileNames = DiskFilesTest;
using Listing = DiskFilesTest;
using Reading = DiskFilesTest;
using Rewriting = DiskFilesTest;
using FilesInAFolderBelow = DiskFilesTest;

TEST_F(FileNames, MatchWithoutRegardToCase) {
  folder_.Write("NORVANE.ini", "settings");
  EXPECT_EQ(files_.Read("norvane.ini"), "settings");
  EXPECT_EQ(files_.Read("Norvane.INI"), "settings");
  EXPECT_EQ(files_.List("norvane.INI"), Names{"NORVANE.ini"});
}

TEST_F(FileNames, ThatAreNotThereAreNotRead) {
  Make({"norvane.in", "norvane.inii"});
  EXPECT_EQ(files_.Read("norvane.ini"), std::nullopt);
}

TEST_F(Listing, ComesInTheOrderOfTheLowerCaseNames) {
  // In the order of the bytes the capitals would stand in front of the underscore.
  Make({"b.txt", "A.txt", "C.TXT", "_.txt", "b10.txt", "B9.txt"});
  EXPECT_EQ(files_.List("*.txt"), (Names{"_.txt", "A.txt", "b.txt", "b10.txt", "B9.txt", "C.TXT"}));
}

TEST_F(Listing, TakesAQuestionMarkForExactlyOneLetter) {
  Make({"language.l", "language.le", "language.len", "LANGUAGE.LDE", "language.lenx"});
  EXPECT_EQ(files_.List("language.l??"), (Names{"LANGUAGE.LDE", "language.len"}));
}

TEST_F(Listing, TakesAStarForAnyLettersOrNone) {
  Make({"Address.txt", "Address001.txt", "ADDRESS12.TXT", "Address1.txt.bak", "MyAddress1.txt",
        "Address1txt"});
  EXPECT_EQ(files_.List("Address*.txt"), (Names{"Address.txt", "Address001.txt", "ADDRESS12.TXT"}));
}

TEST_F(Listing, FindsWhatAStarHasToTryTwice) {
  Make({"a.txt.txt", "aXbYbZ", "ab"});
  EXPECT_EQ(files_.List("a*.txt"), Names{"a.txt.txt"});
  EXPECT_EQ(files_.List("a*b?"), Names{"aXbYbZ"});
  EXPECT_EQ(files_.List("*b*"), (Names{"ab", "aXbYbZ"}));
}

TEST_F(Listing, GivesNoOtherLetterAMeaning) {
  Make({"a.txt", "[a].txt", "b+.txt", "bb.txt"});
  EXPECT_EQ(files_.List("[a].txt"), Names{"[a].txt"});
  EXPECT_EQ(files_.List("b+.txt"), Names{"b+.txt"});
  EXPECT_EQ(files_.List("a?txt"), Names{"a.txt"});
}

TEST_F(Listing, LeavesFoldersOut) {
  std::filesystem::create_directory(folder_ / "language.lde");
  Make({"language.len"});
  EXPECT_EQ(files_.List("language.l??"), Names{"language.len"});
}

TEST_F(Listing, OfAMissingFolderIsEmpty) {
  const DiskFiles missing(folder_ / "missing");
  EXPECT_EQ(missing.List("*"), Names{});
  EXPECT_EQ(missing.Read("norvane.ini"), std::nullopt);
}

TEST_F(Reading, GivesEveryByteAsItIs) {
  std::string bytes = "\xEF\xBB\xBF";
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  bytes += "\r\n\x1A\n\r";
  folder_.Write("file", bytes);
  EXPECT_EQ(files_.Read("file"), bytes);
}

TEST_F(Reading, OfAFolderIsRefused) {
  std::filesystem::create_directory(folder_ / "language.len");
  EXPECT_EQ(files_.Read("language.len"), std::nullopt);
  EXPECT_EQ(files_.Read(""), std::nullopt);
}

TEST_F(Reading, OfAnEmptyFileGivesNoBytes) {
  folder_.Write("language.len", "");
  EXPECT_EQ(files_.Read("language.len"), "");
}

TEST_F(Reading, GoesUpToASizeThatNoTextComesNear) {
  folder_.Write("language.len", "");
  std::filesystem::resize_file(folder_ / "language.len", kLargestFile);
  EXPECT_EQ(files_.Read("language.len").value_or("").size(), kLargestFile);
  std::filesystem::resize_file(folder_ / "language.len", kLargestFile + 1);
  EXPECT_EQ(files_.Read("language.len"), std::nullopt);
}

TEST_F(Rewriting, KeepsTheSpellingOfTheName) {
  folder_.Write("NORVANE.INI", "old");
  files_.Rewrite("norvane.ini", [](const std::string& bytes) { return bytes + " and new"; });
  EXPECT_EQ(folder_.Names(), Names{"NORVANE.INI"});
  EXPECT_EQ(folder_.Bytes_Of("NORVANE.INI"), "old and new");
}

TEST_F(Rewriting, MakesAFileThatIsNotThereUnderTheNameGiven) {
  files_.Rewrite("Norvane.ini", [](const std::string& bytes) { return bytes + "new"; });
  EXPECT_EQ(folder_.Names(), Names{"Norvane.ini"});
  EXPECT_EQ(folder_.Bytes_Of("Norvane.ini"), "new");
}

TEST_F(Rewriting, InAMissingFolderDoesNothing) {
  DiskFiles missing(folder_ / "missing");
  missing.Rewrite("norvane.ini", [](const std::string&) { return "new"; });
  EXPECT_EQ(folder_.Names(), Names{});
}

TEST_F(FilesInAFolderBelow, AreReachedByABackslash) {
  std::filesystem::create_directory(folder_ / "xls");
  folder_.Write("xls/Empty.xls", "book");
  EXPECT_EQ(files_.Read("xls\\empty.XLS"), "book");
  EXPECT_EQ(files_.Read("\\xls\\Empty.xls"), "book");
  EXPECT_EQ(files_.List("xls\\e*.xls"), Names{"Empty.xls"});
  EXPECT_EQ(files_.List("xls\\a*.xls"), Names{});
}

TEST_F(FilesInAFolderBelow, AreFoundWhateverTheCaseOfTheFolder) {
  std::filesystem::create_directory(folder_ / "XLS");
  folder_.Write("XLS/EMPTY.XLS", "book");
  EXPECT_EQ(files_.Read("xls\\Empty.xls"), "book");
  EXPECT_EQ(files_.List("xls\\Empty.xls"), Names{"EMPTY.XLS"});
}

}  // namespace
}  // namespace norvane
