#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <thread>

#include "host/failed_writes.h"
#include "user_office.h"

namespace {

/// Beyond what all tests of a program need, and within what the one who runs them grants.
constexpr std::chrono::seconds kPatience{WATCHDOG_SECONDS};

}  // namespace

/// A test that hangs takes its office along. The start is that of the programs.
int main(int argc, char** argv) {
  norvane::Let_Writes_Fail();
  testing::InitGoogleTest(&argc, argv);
  std::thread([] {
    std::this_thread::sleep_for(kPatience);
    std::fputs("the tests don't come to their end\n", stderr);
    norvane::UserOffice office;
    // An onlooker that lost its office may have started another one.
    std::this_thread::sleep_for(std::chrono::seconds(1));
    office.Kill();
    _exit(1);
  }).detach();
  return RUN_ALL_TESTS();
}
