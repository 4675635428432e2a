#include "catalogue/addresses.h"

#include <cstddef>
#include <iterator>

#include "calc/conversions.h"
#include "data/list_input.h"
#include "data/runtime_error.h"
#include "frame/shared_state.h"

namespace norvane {
namespace {

/// Cells lie address by address, field behind field: an address beyond the last of one field is
/// the first of the next. The cell may lie outside the table.
std::ptrdiff_t Cell_Of(int address, int field) {
  return address + std::ptrdiff_t{Module1::kAddresses} * field;
}

void Store(Module1& module1, int address, int field, const std::string& text) {
  auto& table = module1.Address_Table;
  const std::ptrdiff_t cell = Cell_Of(address, field);
  if (cell < 0 || cell >= std::ssize(table)) return;
  table[static_cast<std::size_t>(cell)] = text;
}

void Read_Pairs(Module1& module1, int address, std::string_view file) {
  ListInput input(file);
  while (const auto number = input.Next_Field()) {
    const auto text = input.Next_Field();
    if (!text) return;
    try {
      Store(module1, address, To_Int16(To_Number(*number, module1.Locale())), *text);
    } catch (const RuntimeError&) {
      // A pair without a number is passed over with its text.
    }
  }
}

/// The number in a file's name; 0 where it has none, or one beyond 16 bits.
std::int16_t Number_Of(const std::string& name) {
  try {
    return To_Int16(Val(name.substr(7, 3)));
  } catch (const RuntimeError&) {
    return 0;
  }
}

}  // namespace

void Load_Addresses(Module1& module1) {
  module1.Address_Table.fill("");
  for (const std::string& name : module1.platform.files().List("Address*.txt")) {
    const std::int16_t number = Number_Of(name);
    if (number > 0) {
      const auto file = module1.platform.files().Read(name);
      if (!file) return;
      Read_Pairs(module1, number, *file);
    }
    if (number == kLastAddress) return;
  }
}

const std::string& Address_Field(const Module1& module1, int address, int field) {
  if (address < 0 || address >= Module1::kAddresses || field < 0 ||
      field >= Module1::kAddressFields) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return module1.Address_Table[static_cast<std::size_t>(Cell_Of(address, field))];
}

}  // namespace norvane
