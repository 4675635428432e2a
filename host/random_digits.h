#pragma once

#include <string>

namespace norvane {

/// 32 hexadecimal digits that nobody can guess.
std::string Random_Digits();

}  // namespace norvane
