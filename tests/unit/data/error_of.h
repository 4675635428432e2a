#pragma once

#include "data/runtime_error.h"

namespace norvane {

/// The number of the `RuntimeError` that `call` ends in, 0 when it ends well.
template <typename Call>
int Error_Of(Call&& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace norvane
