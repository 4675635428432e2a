// The main screen, the table of a schedule's window and the program without a window answer the
// same, to the last shown digit, for 10,000 objects drawn at random over all that the screen's
// fields take.

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <string>
#include <vector>

#include "../study/objects.h"
#include "../support/test_program.h"
#include "batch_rows.h"
#include "calc/conversions.h"
#include "calc/shown_number.h"
#include "catalogue/settings_form.h"
#include "frame/shared_state.h"
#include "schedule/schedule_on_disk.h"
#include "schedule/schedule_table.h"

namespace norvane {
namespace {

constexpr int kGroups = 200;
constexpr int kObjectsOfAGroup = 50;

/// A user at the main screen, in mode "T".
class UserOfTheScreen {
 public:
  explicit UserOfTheScreen(char decimal_separator) : program_(decimal_separator) {
    program_.Start();
  }

  /// The kind, and by the settings dialog what belongs to a whole group.
  void Choose(const Object& group) {
    program_.platform.play_modal = [&](Form&) {
      Settings& settings = *program_.State().forms.settings;
      settings.Text1.Set_Text(Text(group.lambda_W_mK));
      settings.Text2(0).Set_Text(Text(group.hours_per_day));
      settings.Text2(1).Set_Text(Text(group.days));
      settings.Text3.Set_Text(Text(group.alpha_W_m2K));
      Click(settings.Command1);
    };
    Click(warmt_.cmdToolBar1(group.kind));
    Click(warmt_.cmdToolBar3(0));
  }

  void Enter(const Object& object) {
    const bool sheet = object.kind == kSheet;
    Set(warmt_.txtT(0), object.medium_C);
    Set(warmt_.txtT(1), object.ambient_C);
    Set(warmt_.txtT(2), object.thickness_mm);
    if (!sheet) Set(warmt_.txtT(3), object.diameter_mm);
    Set(warmt_.txtmtrs, sheet ? object.area_m2 : object.length_m);
  }

  /// The results as the screen shows them, but for the sign behind the percentage.
  std::vector<std::string> Shown() {
    std::vector<std::string> texts;
    for (CaptionField& value : warmt_.Label4) texts.push_back(value.Caption());
    if (!texts[5].empty()) texts[5].pop_back();
    return texts;
  }

 private:
  static std::string Text(double number) { return Format(number, Locale{}); }
  void Set(TextField& field, double number) {
    EXPECT_EQ(program_.Set(field, Text(number)), std::nullopt);
  }
  void Click(Field& field) { EXPECT_EQ(program_.Click(field), std::nullopt); }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

/// The fields of an object in the order of `kHeaderOfAll`, with the decimal sign of the locale.
std::string Row(const Object& object, char decimal) {
  const double numbers[] = {static_cast<double>(object.kind),
                            object.medium_C,
                            object.ambient_C,
                            object.thickness_mm,
                            object.diameter_mm,
                            object.lambda_W_mK,
                            object.alpha_W_m2K,
                            object.length_m,
                            object.area_m2,
                            object.hours_per_day,
                            object.days};
  std::string row;
  for (const double number : numbers) {
    row += row.empty() ? "" : ";";
    if (number == number) row += Format(number, Locale{decimal});
  }
  return row;
}

constexpr const char* kHeaderOfAll =
    "kind;medium_C;ambient_C;thickness_mm;diameter_mm;lambda_W_mK;alpha_W_m2K;length_m;area_m2;"
    "hours_per_day;days";
constexpr std::size_t kInputFields = 11;

/// The result fields of a row, and its remark behind them.
std::vector<std::string> Answered(const Object& object, char decimal) {
  Options options;
  options.decimal = decimal;
  std::istringstream row(Calculated(options, kHeaderOfAll, Row(object, decimal)));
  std::vector<std::string> fields;
  for (std::string field; std::getline(row, field, ';');) fields.push_back(field);
  fields.erase(fields.begin(), fields.begin() + kInputFields);
  return fields;
}

/// The results of the same row in a schedule that is edited; those of a saving only where there is
/// one.
std::vector<std::string> In_A_Schedule(const Object& object, char decimal) {
  const auto file = Schedule_Of(std::string(kHeaderOfAll) + '\n' + Row(object, decimal) + '\n');
  ScheduleFile schedule = std::get<ScheduleFile>(file);
  schedule.dialect.decimal = decimal;
  const ScheduleTable table(schedule);
  const auto& shown = std::get<ShownHeatLoss>(table.Result(0));
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < (shown.saves ? shown.values.size() : kFirstSaving); ++i) {
    std::array<char, kLongestShown> text{};
    char* const end =
        Write_Shown(text.data(), shown.values[i], kHeatLossColumns[i].decimals, decimal);
    texts.emplace_back(text.data(), end);
  }
  return texts;
}

void Expect_Agreement(char decimal, bool whole_numbers) {
  RandomObjects objects(decimal == '.' ? 23 : 29);
  UserOfTheScreen user(decimal);
  int without_saving = 0;
  for (int i = 0; i < kGroups; ++i) {
    const Object group = objects.Draw();
    user.Choose(group);
    for (int j = 0; j < kObjectsOfAGroup; ++j) {
      Object object = objects.Draw_In(group);
      if (whole_numbers) object = Whole(object);
      user.Enter(object);
      std::vector<std::string> shown = user.Shown();
      std::vector<std::string> answered = Answered(object, decimal);
      if (answered.back() == "no saving\n") {
        ++without_saving;
        for (std::size_t k = 6; k < shown.size(); ++k) ASSERT_EQ(shown[k], "0");
        shown.resize(kFirstSaving);
      } else {
        ASSERT_EQ(answered.back(), "\n");
      }
      answered.resize(shown.size());
      ASSERT_EQ(answered, shown) << Row(object, '.');
      ASSERT_EQ(In_A_Schedule(object, decimal), shown) << Row(object, '.');
    }
  }
  EXPECT_GT(without_saving, 0);
}

TEST(Batch, AgreesWithTheMainScreenOnAPointLocale) { Expect_Agreement('.', false); }

// The screen's fields lose their decimals on a comma locale.
TEST(Batch, AgreesWithTheMainScreenOnACommaLocale) { Expect_Agreement(',', true); }

}  // namespace
}  // namespace norvane
