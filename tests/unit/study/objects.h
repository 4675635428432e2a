#pragma once

#include <cmath>
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

  /// An object with the kind, the insulation and the hours of another. Thin ones on thin pipes come
  /// often enough to be without a saving now and then.
  Object Draw_In(const Object& group) {
    Object object = Draw();
    object.kind = group.kind;
    object.lambda_W_mK = group.lambda_W_mK;
    object.alpha_W_m2K = group.alpha_W_m2K;
    object.hours_per_day = group.hours_per_day;
    object.days = group.days;
    object.diameter_mm = kNotGiven;
    if (object.kind == kSheet) return object;
    const int most = One_In(4) ? 12 : Pipe_Sizes(object.kind).back().mm;
    object.diameter_mm = From(60, most * 10) / 10.0;
    if (One_In(4)) object.thickness_mm = From(0, 30) / 10.0;
    return object;
  }

  bool One_In(int count) { return From(1, count) == 1; }
  int From(int least, int most) {
    return least + static_cast<int>(random_() % static_cast<unsigned>(most - least + 1));
  }

 private:
  std::mt19937 random_;
};

/// The object with whole millimetres.
inline Object Whole(Object object) {
  object.thickness_mm = std::trunc(object.thickness_mm);
  object.diameter_mm = std::trunc(object.diameter_mm);
  return object;
}

}  // namespace norvane
