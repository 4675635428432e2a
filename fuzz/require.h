#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace norvane {

/// Ends the run as a find of the fuzzer when a rule is broken.
inline void Require(bool holds, std::string_view rule) {
  if (holds) return;
  std::fprintf(stderr, "broken rule: %.*s\n", static_cast<int>(rule.size()), rule.data());
  std::abort();
}

}  // namespace norvane
