#pragma once

namespace norvane {

/// From here on a write to a pipe that nobody reads, or beyond the limit on the size of files,
/// fails like any other; by default the system ends the process. For the start of a program.
void Let_Writes_Fail();

/// Gives back what the system does by default, to a process that is about to become another
/// program. May be called between fork and exec.
void Let_Writes_End_The_Process();

}  // namespace norvane
