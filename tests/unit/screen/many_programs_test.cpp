#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "../support/test_program.h"

namespace norvane {
namespace {

TEST(AHundredPrograms, LiveInOneProcessWithoutKnowingOfEachOther) {
  constexpr int kPrograms = 100;
  std::vector<std::unique_ptr<TestProgram>> programs;
  for (int i = 0; i < kPrograms; ++i) {
    programs.push_back(std::make_unique<TestProgram>(i % 2 == 0 ? '.' : ','));
    programs.back()->Start();
  }
  const auto number = [](int i) { return std::to_string(i + 1); };
  for (int i = 0; i < kPrograms; ++i) {
    TestProgram& program = *programs[static_cast<std::size_t>(i)];
    program.Set(program.Main_Screen().txtT(0), number(i));
    program.Set(program.Main_Screen().txtmtrs, number(i));
    for (int line = 0; line < i % 4; ++line) program.Click(program.Main_Screen().cmdAdd);
    if (i % 3 == 0) program.Click(program.Main_Screen().cmdToolBarC);
  }
  // Each has its own end, some by an error and some in order, and none of the others feels it.
  for (int i = 0; i < kPrograms; i += 10) {
    TestProgram& program = *programs[static_cast<std::size_t>(i)];
    if (i % 20 == 0) {
      program.Act(UserAction::kCloseBox, program.Main_Screen());
    } else {
      program.Set(program.Main_Screen().txtmtrs, "-40000");
    }
  }
  for (int i = 0; i < kPrograms; ++i) {
    TestProgram& program = *programs[static_cast<std::size_t>(i)];
    EXPECT_EQ(program.program.Ended(), i % 10 == 0) << i;
    EXPECT_EQ(program.program.Failed(), i % 20 == 10) << i;
    EXPECT_EQ(program.Printed(), i % 20 == 10 ? "runtime error 6: Overflow\n" : "") << i;
    if (program.program.Ended()) continue;
    Warmt& warmt = program.Main_Screen();
    EXPECT_EQ(warmt.txtT(0).Text(), number(i));
    EXPECT_EQ(program.State().Mtrs, i + 1);
    EXPECT_EQ(warmt.Calc_Mode, i % 3 == 0 ? "C" : "T") << i;
    EXPECT_EQ(static_cast<int>(program.State().Calc_List.size()), 2 + i % 4) << i;
    EXPECT_EQ(warmt.Label4(1).Caption(), i % 2 == 0 ? "12.5" : "12,5") << i;
  }
}

}  // namespace
}  // namespace norvane
