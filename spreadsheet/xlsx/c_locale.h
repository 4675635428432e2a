#pragma once

#include <locale.h>

#include <string>

namespace norvane {

/// While it lives, the C functions of this thread go by the "C" locale, whatever the user's is:
/// numbers that they print have a decimal point.
class CLocale {
 public:
#ifdef _WIN32
  CLocale()
      : threads_(_configthreadlocale(_ENABLE_PER_THREAD_LOCALE)),
        before_(setlocale(LC_ALL, nullptr)) {
    setlocale(LC_ALL, "C");
  }
  ~CLocale() {
    setlocale(LC_ALL, before_.c_str());
    _configthreadlocale(threads_);
  }
#else
  CLocale() : plain_(newlocale(LC_ALL_MASK, "C", nullptr)), before_(uselocale(plain_)) {}
  ~CLocale() {
    uselocale(before_);
    freelocale(plain_);
  }
#endif
  CLocale(const CLocale&) = delete;
  CLocale& operator=(const CLocale&) = delete;

 private:
#ifdef _WIN32
  int threads_;
  std::string before_;
#else
  locale_t plain_;
  locale_t before_;
#endif
};

}  // namespace norvane
