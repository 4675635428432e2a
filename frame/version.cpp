#include "frame/version.h"

namespace norvane {

std::string Title_And_Version(const Version& version) {
  std::string text = std::string(kTitle) + " " + std::to_string(version.major) + "." +
                     std::to_string(version.minor);
  if (version.revision != 0) text += "." + std::to_string(version.revision);
  return text;
}

}  // namespace norvane
