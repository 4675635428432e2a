#pragma once

namespace norvane {

/// From here on screen readers are told by the classes of this folder what the program's own
/// widgets are, and act on them through these.
void Use_Spoken_Widgets();

}  // namespace norvane
