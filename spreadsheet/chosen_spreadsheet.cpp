#include "spreadsheet/chosen_spreadsheet.h"

#include <utility>

namespace norvane {

Spreadsheet* ChosenSpreadsheet::Choose() {
  for (const Candidate& candidate : candidates_) {
    if (candidate.is_there()) return candidate.spreadsheet.get();
  }
  return nullptr;
}

Spreadsheet& ChosenSpreadsheet::Chosen() {
  if (chosen_ == nullptr) chosen_ = Choose();
  if (chosen_ == nullptr) throw SpreadsheetFailure();
  return *chosen_;
}

void ChosenSpreadsheet::Ask_To_Report() {
  if (Spreadsheet* spreadsheet = chosen_ != nullptr ? chosen_ : Choose()) {
    spreadsheet->Ask_To_Report();
  }
}

void ChosenSpreadsheet::Release() {
  if (Spreadsheet* spreadsheet = std::exchange(chosen_, nullptr)) spreadsheet->Release();
}

}  // namespace norvane
