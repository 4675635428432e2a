// Texts of bytes and texts of UTF-8, turned into each other by any character set.
//
// Input: the character set; the text, which is read as both.

#include <algorithm>

#include "host/code_page.h"
#include "host/code_page_tables.h"
#include "input.h"
#include "require.h"

namespace norvane {
namespace {

constexpr int kCharsets[] = {0, 1, 161, 162, 163, 177, 178, 186, 204, 222, 238, -1, 255};
constexpr char kReplacement[] = "\xEF\xBF\xBD";  // U+FFFD

bool Begins_Letter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

std::size_t Letters(const std::string& utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), Begins_Letter));
}

/// The letters of the page come back as they went; each byte is a letter.
void Check_Bytes(const std::string& bytes, int charset) {
  const std::string utf8 = To_Utf8(bytes, charset);
  Require(Letters(utf8) == bytes.size(), "each byte is a letter");
  const std::string back = From_Utf8(utf8, charset);
  Require(back.size() == bytes.size(), "each letter is a byte");
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool lacking = To_Utf8(bytes.substr(i, 1), charset) == kReplacement;
    const bool same_letter =
        To_Utf8(back.substr(i, 1), charset) == To_Utf8(bytes.substr(i, 1), charset);
    Require(lacking ? back[i] == '?' : same_letter, "a letter of the page comes back");
  }
}

/// Whatever the bytes are, what comes of them is a text of the page, and stays one.
void Check_Utf8(const std::string& text, int charset) {
  const std::string bytes = From_Utf8(text, charset);
  Require(bytes.size() <= text.size(), "no letter becomes two");
  const std::string utf8 = To_Utf8(bytes, charset);
  Require(utf8.find(kReplacement) == std::string::npos, "every byte is a letter of the page");
  Require(From_Utf8(utf8, charset) == bytes, "a text of the page stays as it is");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  Input input(data, size);
  const int charset = kCharsets[input.Below(std::size(kCharsets))];
  const std::string text = input.Bytes(size);
  Check_Bytes(text, charset);
  Check_Utf8(text, charset);
  return 0;
}
