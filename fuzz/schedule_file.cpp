// A schedule's file of any bytes: it is read, and what was read is written and read again without a
// change; each object has a result or a reason, and the sums are those of the rows.
//
// Input: which question; the file.

#include "study/schedule_file.h"

#include "data/utf8.h"
#include "input.h"
#include "require.h"
#include "study/schedule.h"

namespace norvane {
namespace {

void Check_Again(const ScheduleFile& schedule, Question question) {
  const std::string bytes = Write_Schedule(schedule);
  Require(Is_Utf8(bytes), "a schedule is UTF-8");
  const auto read = Read_Schedule(bytes, question);
  const auto* again = std::get_if<ScheduleFile>(&read);
  Require(again != nullptr, "a schedule that was written is read");
  Require(again->header == schedule.header, "the header stays as it is");
  Require(again->rows == schedule.rows, "the rows stay as they are");
  Require(again->dialect.separator == schedule.dialect.separator &&
              again->dialect.decimal == schedule.dialect.decimal,
          "the signs stay as they are");
}

void Check_Results(const ScheduleFile& schedule, Question question) {
  std::vector<Object> good;
  for (const auto& object : Objects_Of(schedule, question)) {
    if (const auto* reason = std::get_if<Reason>(&object)) {
      Require(!Words(*reason).empty(), "a reason has words");
    } else {
      good.push_back(std::get<Object>(object));
      Condensation_Of(good.back());
    }
  }
  const ScheduleResult result = Schedule(good);
  ShownSum gas;
  for (const ScheduleRow& row : result.rows) {
    const auto* shown = std::get_if<ShownHeatLoss>(&row);
    if (shown != nullptr && shown->saves) gas.Add(shown->values[7]);
  }
  Require(gas == result.sums.gas, "sums are those of the rows");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  constexpr Question kQuestions[] = {Question::kHeatLoss, Question::kComparison,
                                     Question::kCondensation};
  Input input(data, size);
  const Question question = kQuestions[input.Below(3)];
  const auto read = Read_Schedule(input.Bytes(size), question);
  if (const auto* schedule = std::get_if<ScheduleFile>(&read)) {
    Check_Again(*schedule, question);
    Check_Results(*schedule, question);
  } else {
    Require(std::get<ScheduleFileProblem>(read).line > 0, "a problem has its line");
  }
  return 0;
}
