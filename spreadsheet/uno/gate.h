#pragma once

namespace norvane {

/// Stands between any two calls of the office, where tests let something happen to it. There is
/// none in what ships.
#ifdef NORVANE_OFFICE_GATE
void Pass_Gate();
#else
inline void Pass_Gate() {}
#endif

}  // namespace norvane
