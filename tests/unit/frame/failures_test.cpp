#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <system_error>

#include "../support/test_program.h"

namespace norvane {
namespace {

/// What no procedure of the program handles.
class AFailure : public testing::Test {
 protected:
  AFailure() {
    program_.Start();
    program_.Printed();
  }

  template <class Exception>
  std::string Told_Of(const Exception& exception) {
    program_.program.Run([&] { throw exception; });
    return program_.Printed();
  }

  TestProgram program_;
};

TEST_F(AFailure, OfMemoryIsToldAndEndsTheProgram) {
  EXPECT_EQ(Told_Of(std::bad_alloc()), "runtime error 7: Out of memory\n");
  EXPECT_TRUE(program_.program.Ended());
  EXPECT_TRUE(program_.program.Failed());
}

TEST_F(AFailure, OfTheSystemIsToldAndEndsTheProgram) {
  EXPECT_EQ(Told_Of(std::system_error(std::make_error_code(std::errc::too_many_files_open))),
            "runtime error 51: Internal error\n");
  EXPECT_TRUE(program_.program.Failed());
}

TEST_F(AFailure, OfTheLibraryIsToldAndEndsTheProgram) {
  EXPECT_EQ(Told_Of(std::length_error("too long")), "runtime error 51: Internal error\n");
  EXPECT_TRUE(program_.program.Failed());
}

}  // namespace
}  // namespace norvane
