#pragma once

#include <string>

namespace norvane {

/// By which the user of this process is told from the others of the system. UTF-8.
std::string User_Id();

}  // namespace norvane
