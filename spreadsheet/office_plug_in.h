#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "spreadsheet/office.h"

namespace norvane {

/// The adapter to LibreOffice, which lies beside the program and is loaded at its first use.
class OfficePlugIn {
 public:
  explicit OfficePlugIn(const std::filesystem::path& folder);

  /// Whether it can be loaded: it is there, and so are the office's libraries.
  bool Load();
  /// Throws `SpreadsheetFailure` when it can't be loaded.
  std::unique_ptr<Office> Make_Office();

 private:
  std::filesystem::path path_;
  MakeOffice* make_office_ = nullptr;
};

/// Where the program that starts LibreOffice lies; nothing when it isn't installed.
std::optional<std::filesystem::path> Find_Office();

}  // namespace norvane
