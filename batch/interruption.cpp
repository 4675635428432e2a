#include "batch/interruption.h"

#ifndef _WIN32

#include <csignal>
#include <initializer_list>
#include <system_error>
#include <thread>

namespace norvane {
namespace {

sigset_t Interruptions() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, number);
  return signals;
}

}  // namespace

void Hold_Interruptions() {
  // All threads that begin later block them too, so that the one that waits for them is told alone.
  const sigset_t signals = Interruptions();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void Clear_Up_At_Interruption(const std::filesystem::path& unfinished) {
  std::thread([signals = Interruptions(), unfinished] {
    int number = 0;
    if (sigwait(&signals, &number) != 0) return;
    std::error_code error;
    if (!unfinished.empty()) std::filesystem::remove(unfinished, error);
    // Whoever started the program is to learn that it was the signal.
    std::signal(number, SIG_DFL);
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    std::raise(number);
  }).detach();
}

}  // namespace norvane

#else

namespace norvane {

void Hold_Interruptions() {}
void Clear_Up_At_Interruption(const std::filesystem::path&) {}

}  // namespace norvane

#endif
