#include "spreadsheet/plug_in.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace norvane {

void* Function_Of_Plug_In(const std::filesystem::path& library, const char* function) {
#ifdef _WIN32
  const HMODULE loaded = LoadLibraryW(library.c_str());
  return loaded == nullptr ? nullptr : reinterpret_cast<void*>(GetProcAddress(loaded, function));
#else
  void* loaded = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  return loaded == nullptr ? nullptr : dlsym(loaded, function);
#endif
}

}  // namespace norvane
