#include "desktop/session_end.h"

namespace norvane {

// The toolkit closes the windows when a session ends.
class SessionEnd::Listener {};

SessionEnd::SessionEnd(const std::function<void()>&) {}

SessionEnd::~SessionEnd() = default;

}  // namespace norvane
