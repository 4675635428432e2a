#include "spreadsheet/open_on_desktop.h"

#ifdef _WIN32
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on
#else
#include "spreadsheet/started_program.h"
#endif

namespace norvane {

#ifdef _WIN32

void Open_On_Desktop(const std::filesystem::path& file) {
  ShellExecuteW(nullptr, L"open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

#else

void Open_On_Desktop(const std::filesystem::path& file) {
  for (const char* opener : {"xdg-open", "open"}) {
    if (const auto program = Find_Program(opener)) {
      Start_Program(*program, {file.string()});
      return;
    }
  }
}

#endif

}  // namespace norvane
