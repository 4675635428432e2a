// A schedule of any bytes, opened as the window opens it, and edited at random: the results are
// those of the rows as they stand, what is saved is what is opened again, and undoing all leaves
// what there was.
//
// Input: the file; behind a mark edits, each with its row, count, column and text.

#include "schedule/schedule_document.h"

#include "data/utf8.h"
#include "input.h"
#include "require.h"
#include "schedule/schedule_on_disk.h"

namespace norvane {
namespace {

bool Same(const ScheduleFile& one, const ScheduleFile& other) {
  return one.header == other.header && one.rows == other.rows &&
         one.dialect.separator == other.dialect.separator &&
         one.dialect.decimal == other.dialect.decimal;
}

/// Whether two rows have the same numbers, or the same words.
bool Same(const ScheduleRow& one, const ScheduleRow& other) {
  if (one.index() != other.index()) return false;
  if (const auto* reason = std::get_if<Reason>(&one)) {
    return Words(*reason) == Words(std::get<Reason>(other));
  }
  const auto& shown = std::get<ShownHeatLoss>(one);
  const auto& of_other = std::get<ShownHeatLoss>(other);
  return shown.saves == of_other.saves && shown.values == of_other.values;
}

/// Counts the rows by what it is told.
class Counter : public RowObserver {
 public:
  explicit Counter(std::size_t rows) : rows_(rows) {}

  void Before_Change(const RowChange& change) override {
    Require(change.first + change.removed <= rows_, "the rows that go are there");
  }
  void After_Change(const RowChange& change) override {
    rows_ = rows_ - change.removed + change.inserted;
  }
  std::size_t Rows() const { return rows_; }

 private:
  std::size_t rows_;
};

void Edit(ScheduleDocument& document, Input& input) {
  const std::size_t kind = input.Below(8);
  const std::size_t row = input.Below(6);
  const std::size_t count = input.Below(4);
  const std::size_t column = input.Below(16);
  switch (kind) {
    case 0:
      return document.Set_Text(row, column, Mended_Utf8(input.Bytes(input.Below(8))));
    case 1:
      return document.Insert(row, {document.Table().Empty_Line()});
    case 2:
      return document.Duplicate(row, count);
    case 3:
      return document.Delete(row, count);
    case 4:
      return document.Move_Up(row, count);
    case 5:
      return document.Move_Down(row, count);
    case 6:
      document.Undo();
      return;
    default:
      document.Redo();
  }
}

void Check_Results(const ScheduleTable& table) {
  const ScheduleTable fresh(table.File());
  Require(fresh.Rows() == table.Rows(), "all rows are kept");
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    Require(Same(fresh.Result(row), table.Result(row)), "a result is that of its row");
  }
  Require(fresh.Sums().gas == table.Sums().gas, "and the sums are those of the rows");
  Require(fresh.Sums().without_result == table.Sums().without_result, "and what has none");
}

void Check_Saving(const ScheduleFile& file) {
  const auto opened = Schedule_Of(Write_Schedule(file));
  const auto* again = std::get_if<ScheduleFile>(&opened);
  Require(again != nullptr, "what is saved can be opened");
  Require(Same(*again, file), "as it was saved");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  const std::vector<std::string> parts = Input(data, size).Parts(kBetweenFiles);
  auto opened = Schedule_Of(parts.front());
  if (!std::holds_alternative<ScheduleFile>(opened)) return 0;
  ScheduleDocument document(std::get<ScheduleFile>(std::move(opened)));
  const ScheduleFile at_first = document.Table().File();
  Counter counter(document.Table().Rows());
  document.Set_Observer(&counter);
  const std::string edits = parts.size() > 1 ? parts[1] : std::string();
  Input input(reinterpret_cast<const std::uint8_t*>(edits.data()), edits.size());
  constexpr int kMostEdits = 40;
  for (int i = 0; i < kMostEdits && !input.At_End(); ++i) {
    Edit(document, input);
    Require(counter.Rows() == document.Table().Rows(), "each change of rows is told");
  }
  Check_Results(document.Table());
  Check_Saving(document.Table().File());
  while (document.Can_Undo()) document.Undo();
  Require(Same(document.Table().File(), at_first), "undoing all leaves what there was");
  Check_Results(document.Table());
  return 0;
}
