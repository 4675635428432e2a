#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace norvane {

/// The files of the program's folder. Names are bare, without a path but for "\\" between folders,
/// and match without regard to the case of their ASCII letters.
class Files {
 public:
  virtual ~Files() = default;

  /// The names that fit `pattern` in the order of their lower-case spelling. "*" stands for any
  /// letters, "?" for exactly one. Folders don't count.
  /// @param pattern a name, or with "*" and "?" in it
  virtual std::vector<std::string> List(const std::string& pattern) const = 0;

  /// The bytes of a file, or nothing when it can't be opened.
  /// @param name of a file of the folder
  virtual std::optional<std::string> Read(const std::string& name) const = 0;

  /// Replaces the bytes of a file by what `edit` makes of them (of none when the file is missing).
  /// Other programs see the old bytes or the new ones, never a mixture, and two that edit at once
  /// wait for one another. Silent when the folder can't be written to.
  /// @param name of a file of the folder, there or not
  /// @param edit makes the new bytes of the old ones
  virtual void Rewrite(const std::string& name,
                       const std::function<std::string(const std::string&)>& edit) = 0;
};

}  // namespace norvane
