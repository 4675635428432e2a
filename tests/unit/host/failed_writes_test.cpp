#include "host/failed_writes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "../support/child_process.h"
#include "../support/test_folder.h"

namespace norvane {
namespace {

int Error_Of_Writing(int file) { return write(file, "ab", 2) < 0 ? errno : 0; }

TEST(AWrite, FailsIntoAPipeThatNobodyReads) {
  ChildProcess writer([] {
    Let_Writes_Fail();
    int ends[2] = {};
    if (pipe(ends) != 0) abort();
    close(ends[0]);
    if (Error_Of_Writing(ends[1]) != EPIPE) abort();
  });
  EXPECT_TRUE(writer.Wait());
}

TEST(AWrite, FailsBeyondTheLimitOnTheSizeOfFiles) {
  const TestFolder folder;
  ChildProcess writer([&] {
    Let_Writes_Fail();
    const rlimit none{0, 0};
    setrlimit(RLIMIT_FSIZE, &none);
    const int file = open((folder / "file").c_str(), O_WRONLY | O_CREAT, 0600);
    if (Error_Of_Writing(file) != EFBIG) abort();
  });
  EXPECT_TRUE(writer.Wait());
}

}  // namespace
}  // namespace norvane
