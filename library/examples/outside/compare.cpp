// The economic thickness of a steel pipe of 60 mm at 80 degrees, heated by gas.
#include "study/compare.h"

#include <cstdio>
#include <variant>

int main() {
  norvane::CompareRequest request;
  request.object.medium_C = 80;
  request.object.ambient_C = 15;
  request.object.diameter_mm = 60;
  request.object.length_m = 25;
  request.object.days = 365;
  request.choices = {{13, 12.00}, {20, 16.00}, {30, 24.00}, {50, 90.00}};
  request.energy = norvane::EnergyPrice{norvane::Fuel::kGas, 1.20};
  request.years = 10;
  for (const norvane::Compared& row : norvane::Compare(request)) {
    if (const auto* reason = std::get_if<norvane::Reason>(&row.result)) {
      std::printf("%g mm: %s\n", row.thickness_mm, norvane::Words(*reason).c_str());
      continue;
    }
    std::printf("%g mm saves %.0f a year, costs %.0f a year%s\n", row.thickness_mm,
                row.money_per_year.value_or(0), row.yearly_cost.value_or(0),
                row.economic ? " <- economic" : "");
  }
}
