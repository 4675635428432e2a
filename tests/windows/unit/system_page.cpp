#include "../../unit/support/system_page.h"

#include <windows.h>

#include "host/windows/wide.h"

namespace norvane {
namespace {

/// What Windows gives for a byte that the page lacks: a control sign, or a place for private use.
bool Stands_For_Nothing(wchar_t letter) {
  return (letter >= 0x80 && letter < 0xA0) || (letter >= 0xE000 && letter <= 0xF8FF);
}

}  // namespace

bool SystemPage::Known() const { return IsValidCodePage(static_cast<UINT>(number_)) != 0; }

std::optional<std::string> SystemPage::Letter(const std::string& byte) const {
  wchar_t letter = 0;
  const int count = MultiByteToWideChar(static_cast<UINT>(number_), MB_ERR_INVALID_CHARS,
                                        byte.data(), 1, &letter, 1);
  if (count != 1 || Stands_For_Nothing(letter)) return std::nullopt;
  // A later addition of Windows', which the published table of the page hasn't got.
  if (number_ == 1255 && letter == 0x5BA) return std::nullopt;
  return Utf8({&letter, 1});
}

}  // namespace norvane
