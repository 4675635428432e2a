#include "host/user_id.h"

// clang-format off
#include <windows.h>
#include <lmcons.h>
// clang-format on

#include <array>

#include "host/windows/wide.h"

namespace norvane {

std::string User_Id() {
  std::array<wchar_t, UNLEN + 1> name{};
  DWORD length = static_cast<DWORD>(name.size());
  if (GetUserNameW(name.data(), &length) == 0) return {};
  return Utf8(name.data());
}

}  // namespace norvane
