#include "host/failed_writes.h"

namespace norvane {

// No write ends a process here.

void Let_Writes_Fail() {}

void Let_Writes_End_The_Process() {}

}  // namespace norvane
