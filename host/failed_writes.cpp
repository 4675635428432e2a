#include "host/failed_writes.h"

#include <csignal>

namespace norvane {
namespace {

constexpr int kSignals[] = {SIGPIPE, SIGXFSZ};

}  // namespace

void Let_Writes_Fail() {
  for (const int number : kSignals) std::signal(number, SIG_IGN);
}

void Let_Writes_End_The_Process() {
  for (const int number : kSignals) std::signal(number, SIG_DFL);
}

}  // namespace norvane
