#include "batch/interruption.h"

#ifndef _WIN32

#include <csignal>
#include <initializer_list>
#include <system_error>
#include <thread>

namespace norvane {

void Clear_Up_At_Interruption(const std::filesystem::path& unfinished) {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, number);
  // All threads that begin later block them too, so that this one alone is told.
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  std::thread([signals, unfinished] {
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

void Clear_Up_At_Interruption(const std::filesystem::path&) {}

}  // namespace norvane

#endif
