#pragma once

#include <string>
#include <vector>

namespace norvane {

/// The arguments behind the program's name: the system's own bytes, or UTF-8 where the system has
/// them in UTF-16.
std::vector<std::string> Arguments(int argc, char** argv);

/// Lets standard input, output and errors carry each byte as it is. For the start of a program.
void Let_Streams_Be_Bytes();

}  // namespace norvane
