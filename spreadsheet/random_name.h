#pragma once

#include <string>

namespace norvane {

/// A name that nobody can guess: "norvane-" and 32 hexadecimal digits.
std::string Random_Name();

}  // namespace norvane
