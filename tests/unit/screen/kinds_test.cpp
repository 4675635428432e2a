#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "../support/test_program.h"

namespace norvane {
namespace {

/// A choice of a kind of object, on a screen on which no field of the rows shows.
class AKind : public testing::TestWithParam<int> {
 protected:
  AKind() {
    program_.Start();
    for (Field* field : Common_Rows()) field->Set_Visible(false);
    for (Field* field : Diameter_Row()) field->Set_Visible(false);
  }

  bool Is_Sheet() const { return GetParam() == 3; }
  void Choose() { warmt_.Select_Kind(static_cast<std::int16_t>(GetParam())); }

  std::vector<Field*> Common_Rows() {
    std::vector<Field*> fields{&warmt_.Label0, &warmt_.Picture2};
    for (int row = 0; row <= 2; ++row) {
      fields.insert(fields.end(), {&warmt_.Label1(row), &warmt_.Label7(row), &warmt_.txtT(row),
                                   &warmt_.Label3(row), &warmt_.Label4(row), &warmt_.Label9(row)});
    }
    for (int row = 0; row <= 1; ++row) {
      fields.insert(fields.end(),
                    {&warmt_.Text2(row), &warmt_.Label8(row), &warmt_.SpinButton1(row)});
    }
    return fields;
  }
  std::vector<Field*> Diameter_Row() {
    return {&warmt_.Label1(3), &warmt_.Label7(3), &warmt_.txtT(3), &warmt_.SpinButton1(3)};
  }

  TestProgram program_;
  Warmt& warmt_ = program_.Main_Screen();
};

TEST_P(AKind, ShowsItsRows) {
  Choose();
  for (const Field* field : Common_Rows()) {
    EXPECT_TRUE(field->Visible()) << field->Name() << field->Index();
  }
  for (const Field* field : Diameter_Row()) {
    EXPECT_EQ(field->Visible(), !Is_Sheet()) << field->Name() << field->Index();
  }
  for (const TextField& field : warmt_.txtC) EXPECT_FALSE(field.Visible());
}

TEST_P(AKind, ShowsTheRowsOfCondensationInItsMode) {
  warmt_.Calc_Mode = "C";
  Choose();
  for (const TextField& field : warmt_.txtC) {
    EXPECT_EQ(field.Visible(), field.Index() != 3 || !Is_Sheet()) << field.Index();
  }
  for (const TextField& field : warmt_.txtT) EXPECT_FALSE(field.Visible());
}

INSTANTIATE_TEST_SUITE_P(OfObject, AKind, testing::Values(0, 1, 2, 3));

}  // namespace
}  // namespace norvane
