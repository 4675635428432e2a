#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// The bytes that the fuzzer gives, taken from the front. Behind their end all is 0 and empty.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : bytes_(reinterpret_cast<const char*>(data), size) {}

  bool At_End() const { return bytes_.empty(); }

  std::uint8_t Byte();
  /// A number from 0 to `count` - 1.
  std::size_t Below(std::size_t count) { return Byte() % count; }
  /// At most `count` bytes.
  std::string Bytes(std::size_t count);
  /// A length of one byte and as many bytes.
  std::string Block() { return Bytes(Byte()); }
  template <class Number>
  Number Raw_Number();

  /// All that is left, cut at each `mark`.
  std::vector<std::string> Parts(char mark);

 private:
  std::string_view bytes_;
};

/// A number by its bytes in memory, 0 where they don't suffice.
template <class Number>
Number Input::Raw_Number() {
  const std::string bytes = Bytes(sizeof(Number));
  Number number{};
  if (bytes.size() == sizeof(Number)) bytes.copy(reinterpret_cast<char*>(&number), sizeof(Number));
  return number;
}

/// Stands between the files that one input of a fuzzer holds: the ASCII record separator.
inline constexpr char kBetweenFiles = '\x1E';

}  // namespace norvane
