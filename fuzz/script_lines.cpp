// Lines of a script for the driver: each is understood in one way, or refused.
//
// Input: the line.

#include "driver/script_line.h"
#include "input.h"
#include "require.h"

namespace norvane {
namespace {

std::optional<ScriptLine> Understood(const std::string& line, bool& refused) {
  try {
    return Parse_Line(line);
  } catch (const ScriptError&) {
    refused = true;
    return std::nullopt;
  }
}

void Check(const ScriptLine& line) {
  const bool acts =
      line.verb == Verb::kEvent || line.verb == Verb::kType || line.verb == Verb::kErase;
  Require(!acts || line.form != nullptr, "an event happens on a form");
  Require(line.verb != Verb::kGet || !line.name.empty(), "what is asked for has a name");
  Require(line.verb != Verb::kCall || line.call.has_value(), "a call has a procedure");
  Require(line.verb != Verb::kTick || line.first >= 1, "a timer ticks once at least");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  std::string line(reinterpret_cast<const char*>(data), size);
  line.resize(std::min(line.size(), line.find('\n')));
  bool refused = false;
  const auto understood = Understood(line, refused);
  if (understood) Check(*understood);
  const bool comment = line.find_first_not_of(" \t\r") == std::string::npos || line.front() == '#';
  Require(refused || understood.has_value() || comment,
          "a line that says something is not passed over");
  return 0;
}
