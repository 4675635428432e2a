#include "gate.h"

extern "C" {
/// Whoever loads the plug-in may set it.
__attribute__((visibility("default"))) void (*norvane_office_gate)() = nullptr;
}

namespace norvane {

void Pass_Gate() {
  if (norvane_office_gate != nullptr) norvane_office_gate();
}

}  // namespace norvane
