#include "memory_platform.h"

#include "data/runtime_error.h"
#include "require.h"

namespace norvane {
namespace {

std::ostream& Nowhere() {
  static std::ostream nowhere(nullptr);
  return nowhere;
}

bool Is_Known(int number) {
  switch (number) {
    case RuntimeError::kInvalidProcedureCall:
    case RuntimeError::kOverflow:
    case RuntimeError::kSubscriptOutOfRange:
    case RuntimeError::kDivisionByZero:
    case RuntimeError::kTypeMismatch:
      return true;
    default:
      return false;
  }
}

}  // namespace

MemoryPlatform::MemoryPlatform(char decimal_separator)
    : MemoryPlatform(decimal_separator, Nowhere()) {}

MemoryPlatform::MemoryPlatform(char decimal_separator, std::ostream& nowhere)
    : HeadlessPlatform({}, decimal_separator, nowhere), recorder(folder, nowhere) {}

void MemoryPlatform::Form_Loaded(Form& form) {
  Require(error == 0, "no form is loaded behind a runtime error");
  if (on_form_loaded) on_form_loaded(form);
}

void MemoryPlatform::Let_Events_Run() {
  Require(error == 0, "no event loop behind a runtime error");
  if (on_pending_events) on_pending_events();
}

MessageAnswer MemoryPlatform::Message(const UserMessage& message) {
  Require(error == 0, "no message behind a runtime error");
  if (on_message) on_message();
  return HeadlessPlatform::Message(message);
}

void MemoryPlatform::Runtime_Error(int number, const std::string& words) {
  Require(error == 0, "a program ends once");
  Require(Is_Known(number), "runtime error " + std::to_string(number) + " isn't one of ours");
  error = number;
  HeadlessPlatform::Runtime_Error(number, words);
}

std::string Numbered_Language_File() {
  std::string file = "Norvane,Arial,0\r\n0,name=English-1\r\n";
  for (int number = 1; number <= 150; ++number) {
    file += std::to_string(number) + ",t" + std::to_string(number) + "\r\n";
  }
  return file;
}

}  // namespace norvane
