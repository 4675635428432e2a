#include "screen/input_history.h"

#include <algorithm>
#include <utility>

#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr std::size_t kMostChanges = 200;

bool Is_In_Mode(const Warmt& warmt, const InputRow& row) {
  return row.index == InputRow::kLength || row.heat_loss == (warmt.Calc_Mode == "T");
}

auto Texts_Of(Warmt& warmt) {
  std::array<std::string, std::size(kInputRows)> texts;
  std::ranges::transform(kInputRows, texts.begin(),
                         [&](const InputRow& row) { return Field_Of(warmt, row).Text(); });
  return texts;
}

/// Whether a field takes a text as it is: as a paste, or by the clicks that lead to it.
bool Can_Be_Entered(Warmt& warmt, const InputRow& row, std::int16_t kind, const std::string& text) {
  const Field& field = Field_Of(warmt, row);
  if (!field.Visible()) return false;
  if (row.index == InputRow::kLength) return true;
  const Choices choices = Choices_Of(warmt, row, kind);
  // A field's own numbers have a point or none; others wouldn't be read back as what they say.
  return Text_To_Enter(text, choices, Locale{}) == text;
}

}  // namespace

std::optional<InputChange> InputHistory::Follow(Warmt& warmt) {
  const Texts texts = Texts_Of(warmt);
  const Texts before = std::exchange(held_, texts).value_or(texts);
  std::optional<InputChange> last;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (texts[i] == before[i] || !Is_In_Mode(warmt, kInputRows[i])) continue;
    last = InputChange{kInputRows[i], before[i], texts[i]};
    changes_.push_back(*last);
  }
  if (changes_.size() > kMostChanges) {
    changes_.erase(changes_.begin());
    End_Typing();
  }
  fresh_ = last.has_value();
  return last;
}

void InputHistory::Join_Typed() {
  if (!std::exchange(fresh_, false)) return;  // the letter came to nothing
  const std::size_t before = changes_.size() - 1;
  if (before > 0 && typed_up_to_ == before && changes_[before - 1].row == changes_.back().row) {
    changes_[before - 1].after = changes_.back().after;
    changes_.pop_back();
  }
  typed_up_to_ = changes_.size();
}

std::optional<InputChange> InputHistory::To_Take_Back(Warmt& warmt, std::int16_t kind) const {
  if (changes_.empty() || !Is_In_Mode(warmt, changes_.back().row)) return std::nullopt;
  const InputChange& last = changes_.back();
  if (!Can_Be_Entered(warmt, last.row, kind, last.before)) return std::nullopt;
  return last;
}

void InputHistory::Take_Back(Warmt& warmt) {
  held_ = Texts_Of(warmt);
  changes_.pop_back();
  End_Typing();
}

}  // namespace norvane
