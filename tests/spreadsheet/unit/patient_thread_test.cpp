#include "spreadsheet/patient_thread.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <thread>

#include "platform/spreadsheet.h"
#include "test_waiting.h"

namespace norvane {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

TEST(APatientThread, ReturnsWhatTheWorkDoesOnAnotherThread) {
  TestWaiting waiting;
  PatientThread thread(waiting, milliseconds(10'000));
  EXPECT_NE(thread.Run([] { return std::this_thread::get_id(); }), std::this_thread::get_id());
  EXPECT_EQ(thread.Run([] { return 7; }), 7);
  EXPECT_THROW(thread.Run([]() -> int { throw std::out_of_range("work"); }), std::out_of_range);
  EXPECT_FALSE(thread.Lost());
}

TEST(APatientThread, PaintsWhileTheWorkTakesItsTime) {
  TestWaiting waiting;
  PatientThread thread(waiting, milliseconds(10'000));
  thread.Run([] { std::this_thread::sleep_for(milliseconds(500)); });
  EXPECT_GE(waiting.moments, 10);
  waiting.moments = 0;
  const auto start = steady_clock::now();
  thread.Pause(milliseconds(300));
  EXPECT_GE(steady_clock::now() - start, milliseconds(300));
  EXPECT_GE(waiting.moments, 6);
}

TEST(APatientThread, GivesUpWorkThatDoesNotEnd) {
  TestWaiting waiting;
  const auto goes_on = std::make_shared<std::atomic<bool>>(true);
  const auto ended = std::make_shared<std::atomic<bool>>(false);
  {
    PatientThread thread(waiting, milliseconds(200));
    EXPECT_THROW(thread.Run([goes_on, ended] {
      while (*goes_on) std::this_thread::sleep_for(milliseconds(1));
      *ended = true;
    }),
                 SpreadsheetFailure);
    EXPECT_TRUE(thread.Lost());
    const auto start = steady_clock::now();
    EXPECT_THROW(thread.Run([] {}), SpreadsheetFailure);
    EXPECT_LT(steady_clock::now() - start, milliseconds(100));
  }
  // The thread is on its own and finds all that it needs.
  *goes_on = false;
  for (int i = 0; i < 1000 && !*ended; ++i) std::this_thread::sleep_for(milliseconds(5));
  EXPECT_TRUE(*ended);
}

}  // namespace
}  // namespace norvane
