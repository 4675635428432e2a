#include "host/user_id.h"

#include <unistd.h>

namespace norvane {

std::string User_Id() { return std::to_string(geteuid()); }

}  // namespace norvane
