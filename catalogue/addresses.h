#pragma once

#include <cstdint>
#include <string>

namespace norvane {

struct Module1;

/// Addresses are counted from 0; the forms show them from 1.
inline constexpr int kLastAddress = 20;

/// Reads the address files of the program's folder into `Address_Table`. A file that can't be
/// opened ends the reading; a pair that can't be read is passed over.
void Load_Addresses(Module1& module1);

/// A field of an address, 0 to 25 of 0 to 20. Throws `RuntimeError` 9 for a place outside.
const std::string& Address_Field(const Module1& module1, int address, int field);

}  // namespace norvane
