#include "data/utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace norvane {
namespace {

/// The leading bytes from `first` to `last` begin letters of `length` bytes whose second byte lies
/// between `least` and `most`; further bytes lie between 0x80 and 0xBF.
struct Form {
  std::uint8_t first, last;
  std::uint8_t length;
  std::uint8_t least, most;
};

constexpr Form kForms[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// The length of the letter at the front of `bytes`, 0 when there is none.
std::size_t Letter(std::string_view bytes) {
  const auto at = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
  for (const Form& form : kForms) {
    if (at(0) < form.first || at(0) > form.last) continue;
    if (bytes.size() < form.length) return 0;
    if (form.length > 1 && (at(1) < form.least || at(1) > form.most)) return 0;
    for (std::size_t i = 2; i < form.length; ++i) {
      if ((at(i) & 0xC0) != 0x80) return 0;
    }
    return form.length;
  }
  return 0;
}

}  // namespace

std::string_view Without_Byte_Order_Mark(std::string_view bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  while (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  return bytes;
}

bool Is_Utf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = Letter(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string Mended_Utf8(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const std::size_t length = Letter(bytes);
    text += length == 0 ? std::string_view("\xEF\xBF\xBD") : bytes.substr(0, length);
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return text;
}

}  // namespace norvane
