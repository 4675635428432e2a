#include "catalogue/addresses.h"

#include <gtest/gtest.h>

#include <string>

#include "../data/error_of.h"
#include "../support/test_program.h"
#include "../support/unreadable_file.h"
#include "catalogue/address_form.h"

namespace norvane {
namespace {

class AddressFiles : public testing::Test {
 protected:
  void Write(int address, const std::string& pairs) {
    program_.folder.Write("Address" + std::to_string(address) + ".txt", pairs);
  }
  void Load() { Load_Addresses(program_.State()); }
  const std::string& Field_Of(int address, int field) {
    return Address_Field(program_.State(), address, field);
  }

  TestProgram program_;
};

using AddressList = AddressFiles;

TEST_F(AddressFiles, LeaveOutAFieldNumberWithoutAText) {
  Write(1, "0,x\r\n1,Firm\r\n2");
  Load();
  EXPECT_EQ(Field_Of(1, 0), "x");
  EXPECT_EQ(Field_Of(1, 1), "Firm");
  EXPECT_EQ(Field_Of(1, 2), "");
}

TEST_F(AddressFiles, HaveTheirNumberInThreeLettersOfTheirNames) {
  program_.folder.Write("Address0015.txt", "1,Firm");
  Load();
  EXPECT_EQ(Field_Of(1, 1), "Firm");
  EXPECT_EQ(Field_Of(15, 1), "");
}

TEST_F(AddressFiles, EndAtTheFirstThatCannotBeOpened) {
  Write(1, "1,first");
  const UnreadableFile second(program_.folder / "Address2.txt");
  Write(3, "1,third");
  Load();
  EXPECT_EQ(Field_Of(1, 1), "first");
  EXPECT_EQ(Field_Of(3, 1), "");
}

TEST_F(AddressFiles, FillATableWithBounds) {
  Write(20, "25,last");
  Load();
  EXPECT_EQ(Field_Of(20, 25), "last");
  EXPECT_EQ(Field_Of(0, 0), "");
  EXPECT_EQ(Error_Of([this] { Field_Of(-1, 0); }), 9);
  EXPECT_EQ(Error_Of([this] { Field_Of(21, 0); }), 9);
  EXPECT_EQ(Error_Of([this] { Field_Of(0, -1); }), 9);
  EXPECT_EQ(Error_Of([this] { Field_Of(0, 26); }), 9);
}

TEST_F(AddressList, ShowsTwentyAddresses) {
  for (int address = 1; address <= 20; ++address) {
    // The file of address 20 ends the reading; three digits keep its name the last.
    std::string number = std::to_string(address);
    number.insert(0, 3 - number.size(), '0');
    program_.folder.Write("Address" + number + ".txt", "0,x\r\n1,Firm " + number + "\r\n");
  }
  const auto& items = program_.State().forms.address->List1.Items();
  // Field 1, the composed line of field 13, fields 6, 7 and 8, and an empty line.
  constexpr std::size_t kLinesOfAnAddress = 6;
  ASSERT_EQ(items.size(), 20 * kLinesOfAnAddress + 1);
  EXPECT_EQ(items[0], "Firm 001");
  EXPECT_EQ(items[19 * kLinesOfAnAddress], "Firm 020");
  EXPECT_EQ(items.back(), "Website: ");
}

}  // namespace
}  // namespace norvane
