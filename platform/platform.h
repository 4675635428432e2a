#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/display.h"
#include "platform/files.h"
#include "platform/spreadsheet.h"

namespace norvane {

/// All that the program needs of the outside. Whoever makes a `Program` gives it one of these and
/// keeps it alive as long as the program.
class Platform {
 public:
  virtual ~Platform() = default;

  virtual Display& display() = 0;
  virtual Files& files() = 0;
  virtual Spreadsheet& spreadsheet() = 0;

  /// The decimal sign of the user's locale, '.' or ','.
  virtual char Decimal_Separator() const = 0;

  /// The names of the installed fonts; nothing when every name counts as installed.
  virtual std::optional<std::vector<std::string>> Font_Names() const = 0;
};

}  // namespace norvane
