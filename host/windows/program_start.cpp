#include "host/program_start.h"

// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include <fcntl.h>
#include <io.h>

#include "host/windows/wide.h"

namespace norvane {

std::vector<std::string> Arguments(int, char**) {
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

void Let_Streams_Be_Bytes() {
  for (int stream = 0; stream <= 2; ++stream) _setmode(stream, _O_BINARY);
}

}  // namespace norvane
