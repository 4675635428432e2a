#include "desktop/own_texts.h"

#include <algorithm>

#include "desktop/desktop.h"

namespace norvane {
namespace {

struct EnglishText {
  TextId text;
  const char* english;
};

constexpr EnglishText kEnglishTexts[] = {
    {TextId::kChooseValue, "Choose a value"},
    {TextId::kDewPoint, "Dew point"},
    {TextId::kNextSize, "Next size"},
    {TextId::kChart, "Chart"},
    {TextId::kAboveDewPoint, "Above the dew point"},
    {TextId::kNoSaving, "No saving"},
    {TextId::kCompare, "Compare"},
    {TextId::kEconomic, "economic"},
    {TextId::kPresentThickness, "current"},
    {TextId::kInsulationCost, "Insulation cost"},
    {TextId::kSavedPerYear, "Saved per year"},
    {TextId::kPaybackYears, "Payback (years)"},
    {TextId::kYearlyCost, "Yearly cost"},
    {TextId::kEnergyPrice, "Energy price"},
    {TextId::kYearsOfUse, "Years of use"},
    {TextId::kUseThickness, "Use this thickness"},
    {TextId::kCopy, "Copy"},
    {TextId::kSchedule, "Schedule"},
    {TextId::kAddPresent, "Add the present calculation"},
    {TextId::kDuplicate, "Duplicate"},
    {TextId::kDelete, "Delete"},
    {TextId::kMove, "Move"},
    {TextId::kName, "Name"},
    {TextId::kUndo, "Undo"},
    {TextId::kRedo, "Redo"},
    {TextId::kNew, "New"},
    {TextId::kOpen, "Open"},
    {TextId::kSave, "Save"},
    {TextId::kDiscard, "Don't save"},
    {TextId::kKeepChanges, "Keep the changes?"},
    {TextId::kRecovered, "Recovered changes, not saved yet"},
    {TextId::kUnusableFile, "The file can't be used."},
    {TextId::kRemark, "Remark"},
    {TextId::kReport, "Report"},
    {TextId::kProject, "Project"},
    {TextId::kPrint, "Print"},
    {TextId::kSavePdf, "Save as PDF"},
    {TextId::kFormulas, "Formulas"},
    {TextId::kDeleteMarkedLines, "Delete marked lines"},
};

QString In_English(TextId text) {
  const auto* const known = std::ranges::find(kEnglishTexts, text, &EnglishText::text);
  return known == std::end(kEnglishTexts) ? QString() : QString(known->english);
}

}  // namespace

QString Own_Text(const Desktop& desktop, TextId text) {
  const QString translated = desktop.Text(text);
  return translated.isEmpty() ? In_English(text) : translated;
}

}  // namespace norvane
