#include "host/random_digits.h"

#include <random>

namespace norvane {

std::string Random_Digits() {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::random_device device;  // the system's, unlike the generators that are seeded from it
  std::uniform_int_distribution<std::size_t> digit(0, 15);
  std::string digits;
  for (int i = 0; i < 32; ++i) digits.push_back(kDigits[digit(device)]);
  return digits;
}

}  // namespace norvane
