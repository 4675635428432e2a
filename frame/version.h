#pragma once

#include <string>

namespace norvane {

/// The program's title, as it stands over its windows and message boxes.
inline constexpr const char* kTitle = "Norvane";

struct Version {
  int major;
  int minor;
  int revision;
};

inline constexpr Version kRelease{3, 1, 0};

/// Title and version as the screens show them; a revision of 0 is left out.
/// @param version of three numbers
std::string Title_And_Version(const Version& version);

}  // namespace norvane
