// Preloaded into a program, it does at the start what Qt and many a library do: the C functions of
// the process go by the user's locale from then on.

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

[[gnu::constructor]] void Use_Users_Locale() {
  if (std::setlocale(LC_ALL, "") != nullptr) return;
  std::fputs("users_locale: there is no such locale\n", stderr);
  std::abort();
}

}  // namespace
