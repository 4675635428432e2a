#pragma once

namespace norvane {

/// The size that the small dialogs have in common, and that of their controls, in twips.
inline constexpr double kDialogWidth = 5985;
inline constexpr double kDialogHeight = 4515;
inline constexpr double kDialogButtonWidth = 855;
inline constexpr double kDialogButtonHeight = 345;
inline constexpr double kDialogExitSize = 225;

}  // namespace norvane
