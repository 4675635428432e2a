#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "screen/choices.h"

namespace norvane {

/// An input field of the main screen has got another text.
struct InputChange {
  InputRow row;
  std::string before;
  std::string after;
};

/// The last changes of the input fields that the user saw, whoever made them.
class InputHistory {
 public:
  /// Looks at the fields after an event; the last of the changes that it finds.
  std::optional<InputChange> Follow(Warmt& warmt);
  /// The last change was a letter typed into its field. With the letters before, typed in the same
  /// stay there, it is one change.
  void Join_Typed();
  /// The user has left the field; what is typed there later is another change.
  void End_Typing() { typed_up_to_ = 0; }

  /// The last change, if the user could enter again what the field held before.
  /// @param kind the `Kind` of object that is chosen
  std::optional<InputChange> To_Take_Back(Warmt& warmt, std::int16_t kind) const;
  /// That change has been taken back: what the fields hold now is no change.
  void Take_Back(Warmt& warmt);

 private:
  using Texts = std::array<std::string, std::size(kInputRows)>;

  std::optional<Texts> held_;  ///< none before the first look
  std::vector<InputChange> changes_;
  bool fresh_ = false;           ///< the last look has found a change
  std::size_t typed_up_to_ = 0;  ///< the last change typed in the present stay, counted from 1
};

}  // namespace norvane
