#include "spreadsheet/chosen_spreadsheet.h"

#include <utility>

#include "spreadsheet/unreachable.h"

namespace norvane {

template <class Operation>
auto ChosenSpreadsheet::Ask(const Operation& operation) {
  while (true) {
    Spreadsheet& chosen = Chosen();
    try {
      return operation(chosen);
    } catch (const SpreadsheetUnreachable&) {
      chosen.Release();
      chosen_ = Choose();
      if (chosen_ == nullptr) throw;
    }
  }
}

Spreadsheet* ChosenSpreadsheet::Choose() {
  while (next_ < candidates_.size()) {
    const Candidate& candidate = candidates_[next_++];
    if (candidate.is_there()) return candidate.spreadsheet.get();
  }
  return nullptr;
}

Spreadsheet& ChosenSpreadsheet::Chosen() {
  if (chosen_ == nullptr) chosen_ = Choose();
  if (chosen_ == nullptr) throw SpreadsheetFailure();
  return *chosen_;
}

bool ChosenSpreadsheet::GetObject() {
  return Ask([](Spreadsheet& chosen) { return chosen.GetObject(); });
}

void ChosenSpreadsheet::CreateObject() {
  Ask([](Spreadsheet& chosen) { chosen.CreateObject(); });
}

void ChosenSpreadsheet::Open(const std::string& name, int charset) {
  Ask([&](Spreadsheet& chosen) { chosen.Open(name, charset); });
}

void ChosenSpreadsheet::Ask_To_Report() {
  if (chosen_ != nullptr) return chosen_->Ask_To_Report();
  next_ = 0;
  if (Spreadsheet* spreadsheet = Choose()) spreadsheet->Ask_To_Report();
  next_ = 0;
}

void ChosenSpreadsheet::Release() {
  next_ = 0;
  if (Spreadsheet* spreadsheet = std::exchange(chosen_, nullptr)) spreadsheet->Release();
}

}  // namespace norvane
