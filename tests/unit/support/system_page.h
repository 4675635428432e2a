#pragma once

#include <optional>
#include <string>

namespace norvane {

/// A code page of the system's own converter, for a second opinion.
class SystemPage {
 public:
  explicit SystemPage(int number) : number_(number) {}

  bool Known() const;
  /// A byte as UTF-8, or nothing where the page lacks it.
  std::optional<std::string> Letter(const std::string& byte) const;

 private:
  int number_;
};

}  // namespace norvane
