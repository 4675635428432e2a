#include "cell_text.h"

#include <algorithm>
#include <string_view>

namespace norvane {
namespace {

constexpr std::size_t kLargest = 32767;
constexpr std::string_view kUnderscore = "_x005F_";
constexpr std::string_view kCut = "\xE2\x80\xA6";

bool Is_Digit(char letter) {
  return std::string_view("0123456789abcdefABCDEF").find(letter) != std::string_view::npos;
}

/// Whether a letter stands in the file as an underscore, or with one in front: the writer spells
/// control letters.
bool Begins_With_Underscore(char letter) {
  return letter == '_' || static_cast<unsigned char>(letter) < ' ';
}

/// Whether a text begins like the spelling of an odd letter.
bool Is_Spelling(std::string_view text) {
  constexpr std::size_t kDigits = 4;
  return text.size() >= kDigits + 3 && text.starts_with("_x") &&
         Begins_With_Underscore(text[kDigits + 2]) &&
         std::all_of(text.begin() + 2, text.begin() + 2 + kDigits, Is_Digit);
}

/// The bytes of the first letter.
std::size_t Letter_Size(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) ++size;
  return size;
}

}  // namespace

std::string Cell_Text(const std::string& text) {
  std::string cell;
  std::string cut;  // what would be left, were it too long
  std::size_t letters = 0;
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t size = Letter_Size(rest);
    const bool spelt = Is_Spelling(rest);
    const std::size_t more = spelt ? kUnderscore.size() : 1;
    if (letters + more > kLargest) return cut;
    if (letters < kLargest && cut.empty() && letters + more > kLargest - 1) {
      cut = cell + std::string(kCut);
    }
    cell += spelt ? kUnderscore : rest.substr(0, size);
    letters += more;
    rest.remove_prefix(size);
  }
  return cell;
}

}  // namespace norvane
