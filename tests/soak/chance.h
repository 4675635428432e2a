#pragma once

#include <cstddef>
#include <random>

namespace norvane {

/// What decides in a run; the same seed decides alike.
class Chance {
 public:
  explicit Chance(unsigned seed) : numbers_(seed) {}

  /// A number from 0 up to `end`, which itself never comes.
  int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(numbers_); }
  int Between(int low, int high) { return low + Below(high - low + 1); }
  bool One_In(int times) { return Below(times) == 0; }

  template <class List>
  decltype(auto) One_Of(List& list) {
    return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
  }

 private:
  std::mt19937 numbers_;
};

}  // namespace norvane
