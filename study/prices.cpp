#include "study/prices.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <set>

#include "calc/limits.h"
#include "data/csv.h"
#include "data/private_profile.h"
#include "data/text.h"
#include "data/utf8.h"

namespace norvane {
namespace {

constexpr const char* kProject = "Project";
constexpr const char* kName = "Name";
constexpr const char* kEnergy = "Energy";
constexpr const char* kFuel = "Fuel";
constexpr const char* kFuelKeys[] = {"Gas", "Oil", "Electricity"};
constexpr const char* kInsulation = "Insulation";
constexpr const char* kYears = "Years";
constexpr const char* kPipe = "Pipe";
constexpr const char* kSheetSection = "Sheet";

constexpr double kMostAmount = 1e12;

constexpr std::string_view kFreshFile =
    "; Prices of Norvane. Decimals have a point or a comma; a price that is left out counts as "
    "unknown.\r\n"
    "; Energy: Gas of a cubic metre, Oil of a litre, Electricity of a kilowatt-hour; Fuel names "
    "the one that counts.\r\n"
    "; Pipe and Sheet: what a metre or a square metre costs to insulate, by thickness in "
    "millimetres: 13=4.20\r\n";

std::string Value(std::string_view file, const char* section, std::string_view key) {
  return Get_Private_Profile_String(file, section, key).value_or("");
}

/// A single line of UTF-8.
std::string As_Name(std::string_view text) {
  std::string name = Mended_Utf8(text);
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return c < ' '; }, ' ');
  return std::string(Trim(name));
}

Fuel Read_Fuel(std::string_view file) {
  const std::string word = Lower(Value(file, kEnergy, kFuel));
  for (const Fuel fuel : {Fuel::kOil, Fuel::kElectricity}) {
    if (word == Lower(kFuelKeys[static_cast<std::size_t>(fuel)])) return fuel;
  }
  return Fuel::kGas;
}

double Read_Years(std::string_view file) {
  const double years = Read_Amount(Value(file, kInsulation, kYears)).value_or(0);
  return years > 0 && years <= kMostYears ? years : kUsualYears;
}

/// The first line of a thickness counts, however the thickness is written.
std::map<double, double> Read_Costs(std::string_view file, const char* section) {
  std::map<double, double> costs;
  std::set<double> seen;
  for (const std::string& key : Private_Profile_Keys(file, section)) {
    const auto thickness = Read_Amount(key);
    if (!thickness || *thickness > kMostThickness || !seen.insert(*thickness).second) continue;
    if (const auto cost = Read_Amount(Value(file, section, key))) costs[*thickness] = *cost;
  }
  return costs;
}

/// Sets the key where it doesn't say the same already.
void Set(std::string& file, const char* section, const std::string& key,
         const std::optional<double>& amount) {
  if (Read_Amount(Value(file, section, key)) == amount) return;
  file = Write_Private_Profile_String(file, section, key, amount ? Amount_Text(*amount, '.') : "");
}

void Write_Costs(std::string& file, const char* section, const std::map<double, double>& costs) {
  std::set<double> seen;
  for (const std::string& key : Private_Profile_Keys(file, section)) {
    const auto thickness = Read_Amount(key);
    if (!thickness || *thickness > kMostThickness || !seen.insert(*thickness).second) continue;
    const auto cost = costs.find(*thickness);
    Set(file, section, key, cost == costs.end() ? std::nullopt : std::optional(cost->second));
  }
  for (const auto& [thickness, cost] : costs) {
    if (!seen.contains(thickness)) Set(file, section, Amount_Text(thickness, '.'), cost);
  }
}

}  // namespace

std::map<double, double>& Prices::Costs_Of(std::int16_t kind) {
  return kind == kSheet ? of_sheet : of_pipe;
}

const std::map<double, double>& Prices::Costs_Of(std::int16_t kind) const {
  return kind == kSheet ? of_sheet : of_pipe;
}

std::optional<EnergyPrice> Prices::Energy() const {
  const auto& price = energy[static_cast<std::size_t>(fuel)];
  if (!price) return std::nullopt;
  return EnergyPrice{fuel, *price};
}

std::vector<Insulation> Choices_With_Costs(const std::map<double, double>& costs) {
  std::map<double, std::optional<double>> by_thickness(costs.begin(), costs.end());
  for (const Insulation& usual : Usual_Choices()) by_thickness.try_emplace(usual.thickness_mm);
  std::vector<Insulation> choices;
  for (const auto& [thickness, cost] : by_thickness) choices.push_back({thickness, cost});
  return choices;
}

std::optional<double> Read_Amount(std::string_view text) {
  double amount = 0;
  if (!Read_Number(text, '.', amount) && !Read_Number(text, ',', amount)) return std::nullopt;
  if (!(amount >= 0 && amount <= kMostAmount)) return std::nullopt;
  return amount + 0.0;  // without the sign of a negative nought
}

std::string Amount_Text(double amount, char decimal_separator) {
  std::array<char, std::numeric_limits<double>::max_exponent10 + 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed);
  std::replace(text.data(), end.ptr, '.', decimal_separator);
  return {text.data(), end.ptr};
}

Prices Read_Prices(std::string_view file) {
  file = Without_Byte_Order_Mark(file);
  Prices prices;
  prices.project = As_Name(Value(file, kProject, kName));
  prices.fuel = Read_Fuel(file);
  for (std::size_t i = 0; i < prices.energy.size(); ++i) {
    prices.energy[i] = Read_Amount(Value(file, kEnergy, kFuelKeys[i]));
  }
  prices.years = Read_Years(file);
  prices.of_pipe = Read_Costs(file, kPipe);
  prices.of_sheet = Read_Costs(file, kSheetSection);
  return prices;
}

std::string Write_Prices(std::string_view file, const Prices& prices) {
  file = Without_Byte_Order_Mark(file);
  std::string bytes(file.empty() ? kFreshFile : file);
  if (As_Name(Value(bytes, kProject, kName)) != prices.project) {
    bytes = Write_Private_Profile_String(bytes, kProject, kName, prices.project);
  }
  if (Read_Fuel(bytes) != prices.fuel) {
    bytes = Write_Private_Profile_String(bytes, kEnergy, kFuel,
                                         kFuelKeys[static_cast<std::size_t>(prices.fuel)]);
  }
  for (std::size_t i = 0; i < prices.energy.size(); ++i) {
    Set(bytes, kEnergy, kFuelKeys[i], prices.energy[i]);
  }
  if (Read_Years(bytes) != prices.years) Set(bytes, kInsulation, kYears, prices.years);
  Write_Costs(bytes, kPipe, prices.of_pipe);
  Write_Costs(bytes, kSheetSection, prices.of_sheet);
  return bytes;
}

}  // namespace norvane
