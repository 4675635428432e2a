#include "spreadsheet/office_plug_in.h"

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>
#include <system_error>

#include "spreadsheet/plug_in.h"
#include "spreadsheet/started_program.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr const char* kUsualFolders[] = {"/usr/lib/libreoffice/program",
                                         "/usr/lib64/libreoffice/program"};
constexpr const char* kLibraries[] = {"libuno_sal.so.3", "libuno_cppu.so.3",
                                      "libuno_cppuhelpergcc3.so.3"};

bool Load_All(const fs::path& folder) {
  return std::all_of(std::begin(kLibraries), std::end(kLibraries), [&](const char* name) {
    return dlopen((folder / name).c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE) != nullptr;
  });
}

/// The plug-in names the office's libraries, but no place: they are those of the office that is
/// there, which knows where its own lie.
void Load_Libraries_Of_Office() {
  const auto program = Find_Office();
  std::error_code error;
  if (program && Load_All(fs::canonical(*program, error).parent_path())) return;
  std::any_of(std::begin(kUsualFolders), std::end(kUsualFolders), Load_All);
}

}  // namespace

OfficePlugIn::OfficePlugIn(const fs::path& folder) : path_(folder / "norvane_office.so") {}

bool OfficePlugIn::Load() {
  if (make_office_ != nullptr) return true;
  Load_Libraries_Of_Office();
  make_office_ = reinterpret_cast<MakeOffice*>(Function_Of_Plug_In(path_, kMakeOffice));
  return make_office_ != nullptr;
}

std::unique_ptr<Office> OfficePlugIn::Make_Office() {
  if (!Load()) throw SpreadsheetFailure();
  return std::unique_ptr<Office>(make_office_());
}

std::optional<fs::path> Find_Office() {
  for (const char* name : {"soffice", "libreoffice"}) {
    if (auto found = Find_Program(name)) return found;
  }
  for (const fs::path folder : kUsualFolders) {
    if (access((folder / "soffice").c_str(), X_OK) == 0) return folder / "soffice";
  }
  return std::nullopt;
}

}  // namespace norvane
