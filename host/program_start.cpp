#include "host/program_start.h"

namespace norvane {

std::vector<std::string> Arguments(int argc, char** argv) {
  return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

// They do.
void Let_Streams_Be_Bytes() {}

}  // namespace norvane
