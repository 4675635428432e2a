#include "desktop/own_texts.h"

#include "desktop/desktop.h"

namespace norvane {
namespace {

const char* In_English(TextId text) {
  switch (text) {
    case TextId::kChooseValue:
      return "Choose a value";
    case TextId::kDewPoint:
      return "Dew point";
    case TextId::kNextSize:
      return "Next size";
    case TextId::kChart:
      return "Chart";
    case TextId::kAboveDewPoint:
      return "Above the dew point";
    case TextId::kNoSaving:
      return "No saving";
    case TextId::kCompare:
      return "Compare";
    case TextId::kEconomic:
      return "economic";
    case TextId::kPresentThickness:
      return "current";
    case TextId::kInsulationCost:
      return "Insulation cost";
    case TextId::kSavedPerYear:
      return "Saved per year";
    case TextId::kPaybackYears:
      return "Payback (years)";
    case TextId::kYearlyCost:
      return "Yearly cost";
    case TextId::kEnergyPrice:
      return "Energy price";
    case TextId::kYearsOfUse:
      return "Years of use";
    case TextId::kUseThickness:
      return "Use this thickness";
    case TextId::kCopy:
      return "Copy";
    default:
      return "";
  }
}

}  // namespace

QString Own_Text(const Desktop& desktop, TextId text) {
  const QString translated = desktop.Text(text);
  return translated.isEmpty() ? QString(In_English(text)) : translated;
}

}  // namespace norvane
