#include "host/code_page.h"

#include <algorithm>
#include <cstdint>

#include "host/code_page_tables.h"

namespace norvane {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

void Append_Utf8(std::string& text, std::uint32_t letter) {
  const auto put = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (letter < 0x80) {
    put(letter);
  } else if (letter < 0x800) {
    put(0xC0 | letter >> 6);
    put(0x80 | (letter & 0x3F));
  } else {
    put(0xE0 | letter >> 12);
    put(0x80 | (letter >> 6 & 0x3F));
    put(0x80 | (letter & 0x3F));
  }
}

/// The letter at `at`, which moves behind it; a byte that begins none stands for U+FFFD.
std::uint32_t Next_Letter(std::string_view text, std::size_t& at) {
  const auto first = static_cast<unsigned char>(text[at++]);
  if (first < 0x80) return first;
  const int followers = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
  if (followers == 0) return kReplacement;
  std::uint32_t letter = first & (0x3F >> followers);
  for (int i = 0; i < followers; ++i) {
    if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) {
      return kReplacement;
    }
    letter = letter << 6 | (static_cast<unsigned char>(text[at++]) & 0x3FU);
  }
  return letter;
}

}  // namespace

std::string To_Utf8(std::string_view bytes, int charset) {
  const UpperHalf& page = Code_Page_Of(charset);
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    Append_Utf8(text, byte < 0x80 ? byte : page[byte - 0x80U]);
  }
  return text;
}

std::string From_Utf8(std::string_view text, int charset) {
  const UpperHalf& page = Code_Page_Of(charset);
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    const std::uint32_t letter = Next_Letter(text, at);
    if (letter < 0x80) {
      bytes.push_back(static_cast<char>(letter));
      continue;
    }
    const auto found = std::find(page.begin(), page.end(), letter);
    const bool lacking = letter == kReplacement || found == page.end();
    bytes.push_back(lacking ? '?' : static_cast<char>(0x80 + (found - page.begin())));
  }
  return bytes;
}

}  // namespace norvane
