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
    case TextId::kSchedule:
      return "Schedule";
    case TextId::kAddPresent:
      return "Add the present calculation";
    case TextId::kDuplicate:
      return "Duplicate";
    case TextId::kDelete:
      return "Delete";
    case TextId::kMove:
      return "Move";
    case TextId::kName:
      return "Name";
    case TextId::kUndo:
      return "Undo";
    case TextId::kRedo:
      return "Redo";
    case TextId::kNew:
      return "New";
    case TextId::kOpen:
      return "Open";
    case TextId::kSave:
      return "Save";
    case TextId::kDiscard:
      return "Don't save";
    case TextId::kKeepChanges:
      return "Keep the changes?";
    case TextId::kRecovered:
      return "Recovered changes, not saved yet";
    case TextId::kUnusableFile:
      return "The file can't be used.";
    case TextId::kRemark:
      return "Remark";
    case TextId::kReport:
      return "Report";
    case TextId::kProject:
      return "Project";
    case TextId::kPrint:
      return "Print";
    case TextId::kSavePdf:
      return "Save as PDF";
    case TextId::kFormulas:
      return "Formulas";
    case TextId::kDeleteMarkedLines:
      return "Delete marked lines";
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
