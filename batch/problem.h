#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace norvane {

/// What ends the run with status 2, in words for the user.
class BatchProblem : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  BatchProblem(std::size_t line, const std::string& words)
      : std::runtime_error("line " + std::to_string(line) + ": " + words) {}
};

}  // namespace norvane
