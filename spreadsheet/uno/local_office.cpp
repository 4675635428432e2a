#include "local_office.h"

#include <dlfcn.h>
#include <rtl/digest.h>

#include <array>
#include <cppuhelper/bootstrap.hxx>
#include <filesystem>
#include <fstream>
#include <osl/file.hxx>
#include <rtl/bootstrap.hxx>

namespace norvane {
namespace {

namespace fs = std::filesystem;
using rtl::OUString;

/// The folder of the office that the plug-in's libraries belong to.
fs::path Program_Folder() {
  Dl_info found;
  if (dladdr(reinterpret_cast<void*>(&rtl_digest_createMD5), &found) == 0) return {};
  std::error_code error;
  return fs::canonical(found.dli_fname, error).parent_path();
}

/// The profile's place as the office spells it.
OUString Profile() {
  const rtl::Bootstrap settings(To_Url((Program_Folder() / "bootstraprc").string()));
  OUString profile;
  settings.getFrom("UserInstallation", profile);
  return profile;
}

/// The end of the name of the pipe by which a second call of the office finds the first one.
std::string Pipe_Of_Second_Calls(const OUString& profile) {
  std::array<sal_uInt8, RTL_DIGEST_LENGTH_MD5> digest{};
  rtl_digest_MD5(profile.getStr(),
                 static_cast<sal_uInt32>(profile.getLength()) * sizeof(sal_Unicode), digest.data(),
                 digest.size());
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string name = "_SingleOfficeIPC_";
  for (const sal_uInt8 byte : digest) {
    // The office leaves out a leading zero.
    if (byte >= 16) name.push_back(kDigits[byte >> 4]);
    name.push_back(kDigits[byte & 15]);
  }
  return name;
}

}  // namespace

OUString From_Utf8(const std::string& text) {
  return OUString(text.data(), static_cast<sal_Int32>(text.size()), RTL_TEXTENCODING_UTF8);
}

OUString To_Url(const std::string& path) {
  OUString url;
  osl::FileBase::getFileURLFromSystemPath(From_Utf8(path), url);
  return url;
}

css::uno::Reference<css::uno::XComponentContext> Local_Context() {
  // Without these types the first call to the office would crash.
  rtl::Bootstrap::set("URE_MORE_TYPES",
                      To_Url((Program_Folder() / "types" / "offapi.rdb").string()));
  return cppu::defaultBootstrap_InitialComponentContext();
}

bool Local_Office_Runs() {
  const std::string pipe = Pipe_Of_Second_Calls(Profile());
  // A file of that name may be left over from an office that crashed; the system's own list holds
  // the pipes that somebody listens at.
  std::ifstream pipes("/proc/net/unix");
  for (std::string line; std::getline(pipes, line);) {
    if (line.ends_with(pipe)) return true;
  }
  return false;
}

}  // namespace norvane
