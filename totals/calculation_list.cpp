#include "totals/calculation_list.h"

#include <algorithm>

#include "calc/conversions.h"
#include "catalogue/products.h"
#include "data/runtime_error.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

struct HeaderColumn {
  TextId text;
  const char* suffix = "";
};

constexpr HeaderColumn kHeader[] = {
    {TextId::kProductColumn},       {TextId::kObjectColumn},        {TextId::kLambdaColumn},
    {TextId::kAlphaColumn},         {TextId::kMediumTemperature},   {TextId::kAmbientTemperature},
    {TextId::kInsulationThickness}, {TextId::kPipeDiameter},        {TextId::kRelativeHumidity},
    {TextId::kConductivity},        {TextId::kTransferCoefficient}, {TextId::kSurfaceTemperature},
    {TextId::kBareHeatFlow},        {TextId::kInsulatedHeatFlow},   {TextId::kSaving, " %"},
    {TextId::kSaving, " Wm"},       {TextId::kGasSaving},           {TextId::kOilSaving},
    {TextId::kElectricitySaving},
};

}  // namespace

void setHeaders(Module1& module1) {
  module1.Calc_List.assign(2, "");
  for (const HeaderColumn& column : kHeader) {
    const std::string& text = module1.Text(column.text);
    // English stands in for what a language lacks, here alone.
    module1.Calc_List[0] +=
        "~" + (text.empty() ? module1.languages.Text(0, column.text) : text) + column.suffix;
  }
}

void Fill_Calculation_list(Module1& module1, const std::string& strProductKey) {
  auto& Calc_List = module1.Calc_List;
  if (Calc_List.empty()) setHeaders(module1);
  // The index of the list is a 16-bit number.
  To_Int16(static_cast<double>(Calc_List.size()));
  std::string& line = Calc_List.back();
  Warmt& warmt = *module1.forms.warmt;
  const auto append = [&line](const std::string& text) { line += "\t" + text; };
  append(warmt.Combo1.Text());
  append(warmt.Label0.Caption());
  append(warmt.Label4(0).Caption());
  append(warmt.Label4(1).Caption());
  // The rows that are visible; a sheet's line has one field fewer for its missing diameter.
  for (int row = 0; row < warmt.Label1.UBound(); ++row) {
    if (warmt.Label1(row).Visible()) append(warmt.txtT(row).Text());
  }
  append(Product_Of(module1, strProductKey).Lambda());
  for (CaptionField& value : warmt.Label4) append(value.Caption());
  Calc_List.emplace_back();
}

std::size_t Count_Saved_Lines(const Module1& module1) {
  constexpr std::size_t kHeaderAndSpare = 2;
  return std::max(module1.Calc_List.size(), kHeaderAndSpare) - kHeaderAndSpare;
}

bool Has_Saved_Lines(const Module1& module1) { return Count_Saved_Lines(module1) > 0; }

std::string Saved_Lines_As_Text(const Module1& module1) {
  if (!Has_Saved_Lines(module1)) return {};
  std::string text = module1.Calc_List[0];
  std::replace(text.begin(), text.end(), '~', '\t');
  for (std::size_t i = 1; i + 1 < module1.Calc_List.size(); ++i) {
    text += '\n' + module1.Calc_List[i];
  }
  return text + '\n';
}

}  // namespace norvane
