#pragma once

#include <random>

#include "calc/sizes.h"
#include "study/object.h"

namespace norvane {

/// A medium of 80 degrees in surroundings of 15, 13 mm on a steel pipe of 21 mm.
inline Object Steel_Pipe() {
  Object object;
  object.medium_C = 80;
  object.ambient_C = 15;
  object.thickness_mm = 13;
  object.diameter_mm = 21;
  return object;
}

/// The same before a sheet of 50 mm.
inline Object Sheet() {
  Object object = Steel_Pipe();
  object.kind = kSheet;
  object.thickness_mm = 50;
  object.diameter_mm = kNotGiven;
  return object;
}

/// 1 mm on a tube of 6 mm, whose larger surface loses more than the insulation holds back.
inline Object Thin_Tube() {
  Object object = Steel_Pipe();
  object.kind = kCopperTube;
  object.thickness_mm = 1;
  object.diameter_mm = 6;
  return object;
}

/// Objects drawn over all that the fields take. The same seed gives the same objects everywhere.
class RandomObjects {
 public:
  explicit RandomObjects(std::uint32_t seed) : random_(seed) {}

  Object Draw() {
    Object object;
    object.kind = static_cast<std::int16_t>(From(0, 3));
    object.medium_C = From(-50, 115);
    object.ambient_C = From(-60, 110);
    object.thickness_mm = From(0, 1000) / 10.0;
    if (object.kind != kSheet) {
      object.diameter_mm = From(60, Pipe_Sizes(object.kind).back().mm * 10) / 10.0;
    }
    object.lambda_W_mK = From(15, 60) / 1000.0;
    object.alpha_W_m2K = From(0, 400) / 10.0;
    object.length_m = From(0, 10000);
    object.area_m2 = From(0, 10000);
    object.hours_per_day = From(0, 24);
    object.days = From(0, 366);
    return object;
  }

  int From(int least, int most) {
    return least + static_cast<int>(random_() % static_cast<unsigned>(most - least + 1));
  }

 private:
  std::mt19937 random_;
};

}  // namespace norvane
