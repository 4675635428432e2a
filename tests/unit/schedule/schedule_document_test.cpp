#include "schedule/schedule_document.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace norvane {
namespace {

ScheduleFile Some_Rows() {
  return std::get<ScheduleFile>(
      Read_Schedule("name,kind,medium_C,ambient_C,thickness_mm,diameter_mm,mark\n"
                    "a,steel,80,15,13,21,1\n"
                    "b,copper,60,15,9,22,2\n"
                    "c,sheet,80,15,50,,3\n"
                    "d,steel,80,15,13\n",
                    Question::kHeatLoss));
}

std::string Names(const ScheduleDocument& document) {
  std::string names;
  for (std::size_t row = 0; row < document.Table().Rows(); ++row) {
    names += document.Table().Text(row, 0);
  }
  return names;
}

std::string Bytes(const ScheduleDocument& document) {
  return Write_Schedule(document.Table().File());
}

/// How many edits can be undone.
std::size_t Steps(ScheduleDocument& document) {
  std::size_t steps = 0;
  while (document.Undo()) ++steps;
  for (std::size_t i = 0; i < steps; ++i) document.Redo();
  return steps;
}

TEST(ScheduleDocument, MovesDuplicatesAndDeletesRows) {
  ScheduleDocument document(Some_Rows());
  document.Move_Down(0, 2);
  EXPECT_EQ(Names(document), "cabd");
  document.Move_Up(1, 2);
  EXPECT_EQ(Names(document), "abcd");
  document.Duplicate(1, 2);
  EXPECT_EQ(Names(document), "abcbcd");
  document.Delete(0, 3);
  EXPECT_EQ(Names(document), "bcd");
}

TEST(ScheduleDocument, RowsThatAreNotThereAreNoEdit) {
  ScheduleDocument document(Some_Rows());
  document.Move_Up(0, 1);
  document.Move_Down(3, 1);
  document.Move_Down(0, 4);
  document.Delete(3, 2);
  document.Duplicate(9, 1);
  document.Delete(0, 0);
  document.Set_Text(9, 0, "x");
  document.Set_Text(0, 99, "x");
  document.Set_Text(0, 0, "a");
  document.Insert(0, {});
  EXPECT_FALSE(document.Can_Undo());
  EXPECT_FALSE(document.Changed());
  EXPECT_EQ(Names(document), "abcd");
}

TEST(ScheduleDocument, IsChangedUnlessTheRowsAreTheKeptOnes) {
  ScheduleDocument document(Some_Rows());
  document.Set_Text(0, 0, "x");
  EXPECT_TRUE(document.Changed());
  document.Undo();
  EXPECT_FALSE(document.Changed());
  document.Redo();
  document.Mark_Kept();
  EXPECT_FALSE(document.Changed());
  document.Undo();
  EXPECT_TRUE(document.Changed());
  // The kept rows can't come again from here.
  document.Set_Text(0, 0, "y");
  EXPECT_TRUE(document.Changed());
  document.Undo();
  EXPECT_TRUE(document.Changed());
}

TEST(ScheduleDocument, NeverKeptIsChangedWhateverIsUndone) {
  ScheduleDocument document(Some_Rows());
  document.Mark_Never_Kept();
  EXPECT_TRUE(document.Changed());
  document.Delete(0, 1);
  document.Undo();
  EXPECT_TRUE(document.Changed());
}

TEST(ScheduleDocument, AnEditBehindAnUndoTakesWhatCouldBeDoneAgain) {
  ScheduleDocument document(Some_Rows());
  document.Delete(0, 1);
  document.Undo();
  document.Delete(1, 1);
  EXPECT_FALSE(document.Can_Redo());
  EXPECT_EQ(document.Redo(), std::nullopt);
  document.Undo();
  EXPECT_EQ(Names(document), "abcd");
  EXPECT_EQ(document.Undo(), std::nullopt);
}

/// Follows the changes that it is told of, and compares the number of rows.
class CountingObserver : public RowObserver {
 public:
  explicit CountingObserver(ScheduleDocument& document)
      : document_(document), rows_(document.Table().Rows()) {
    document.Set_Observer(this);
  }
  ~CountingObserver() override { document_.Set_Observer(nullptr); }

  void Before_Change(const RowChange& change) override {
    EXPECT_EQ(document_.Table().Rows(), rows_);
    EXPECT_LE(change.first + change.removed, rows_);
    rows_ += change.inserted;
    rows_ -= change.removed;
  }
  void After_Change(const RowChange&) override { EXPECT_EQ(document_.Table().Rows(), rows_); }

 private:
  ScheduleDocument& document_;
  std::size_t rows_;
};

/// Edits as they come, over all that a window can ask for.
class RandomEdits {
 public:
  explicit RandomEdits(std::uint32_t seed) : random_(seed) {}

  void Edit(ScheduleDocument& document) {
    const std::size_t rows = document.Table().Rows();
    const std::size_t first = Below(rows + 1);
    const std::size_t count = Below(4);
    switch (Below(8)) {
      case 0:
        return document.Duplicate(first, count);
      case 1:
        return document.Delete(first, count);
      case 2:
        return document.Move_Up(first, count);
      case 3:
        return document.Move_Down(first, count);
      case 4:
        return document.Insert(first, {document.Table().Empty_Line()});
      default:
        return document.Set_Text(first, Below(document.Table().Columns()), kTexts[Below(6)]);
    }
  }

  std::size_t Below(std::size_t end) { return random_() % end; }

 private:
  static constexpr const char* kTexts[] = {"", "12", "steel", "sheet", "x\"y,\n", "80"};
  std::mt19937 random_;
};

TEST(ScheduleDocument, UndoOfAnySequenceRestoresEachStepAndRedoBringsItBack) {
  for (std::uint32_t seed = 1; seed <= 100; ++seed) {
    ScheduleDocument document(Some_Rows());
    const CountingObserver observer(document);
    RandomEdits edits(seed);
    // What there was before each edit that can be undone.
    std::vector<std::string> states;
    for (int i = 0; i < 40; ++i) {
      const std::string before = Bytes(document);
      edits.Edit(document);
      if (Bytes(document) != before) {
        states.push_back(before);
      } else if (document.Can_Undo()) {
        // Nothing happened, or rows that are alike have changed places: the step says which.
        const std::size_t steps = Steps(document);
        if (steps > states.size()) states.push_back(before);
      }
      if (edits.Below(5) == 0 && document.Can_Undo()) {
        document.Undo();
        ASSERT_EQ(Bytes(document), states.back()) << "seed " << seed;
        states.pop_back();
      }
    }
    states.push_back(Bytes(document));
    while (document.Can_Redo()) document.Redo();
    while (document.Can_Undo()) document.Undo();
    EXPECT_FALSE(document.Changed());
    for (const std::string& state : states) {
      ASSERT_EQ(Bytes(document), state) << "seed " << seed;
      document.Redo();
    }
  }
}

TEST(ScheduleDocument, ResultsAndSumsAreThoseOfTheRowsReadAnew) {
  for (std::uint32_t seed = 1; seed <= 50; ++seed) {
    ScheduleDocument document(Some_Rows());
    RandomEdits edits(seed);
    for (int i = 0; i < 30; ++i) {
      edits.Edit(document);
      if (edits.Below(4) == 0) document.Undo();
    }
    const ScheduleTable& table = document.Table();
    const auto objects = Objects_Of(table.File(), Question::kHeatLoss);
    ASSERT_EQ(objects.size(), table.Rows());
    ScheduleSums sums;
    for (std::size_t row = 0; row < objects.size(); ++row) {
      const auto* object = std::get_if<Object>(&objects[row]);
      const ScheduleRow result =
          object != nullptr ? Schedule_Row(*object) : ScheduleRow(std::get<Reason>(objects[row]));
      ASSERT_EQ(result.index(), table.Result(row).index()) << "seed " << seed << " row " << row;
      if (const auto* shown = std::get_if<ShownHeatLoss>(&result)) {
        ASSERT_EQ(shown->values, std::get<ShownHeatLoss>(table.Result(row)).values);
        sums.Add(*shown);
      } else {
        sums.Add_Without_Result();
      }
    }
    EXPECT_EQ(sums.gas, table.Sums().gas);
    EXPECT_EQ(sums.electricity, table.Sums().electricity);
    EXPECT_EQ(sums.without_result, table.Sums().without_result);
  }
}

}  // namespace
}  // namespace norvane
