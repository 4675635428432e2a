// The economic thickness of a steel pipe of 60 mm at 80 degrees, heated by gas.
#include "study/compare.h"

#include <iomanip>
#include <iostream>
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
  std::cout << std::fixed << std::setprecision(0);
  for (const norvane::Compared& row : norvane::Compare(request)) {
    std::cout << row.thickness_mm << " mm";
    if (const auto* reason = std::get_if<norvane::Reason>(&row.result)) {
      std::cout << ": " << norvane::Words(*reason) << '\n';
      continue;
    }
    std::cout << " saves " << row.money_per_year.value_or(0) << " a year, costs "
              << row.yearly_cost.value_or(0) << " a year" << (row.economic ? " <- economic" : "")
              << '\n';
  }
}
