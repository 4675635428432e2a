#include "spreadsheet/office_plug_in.h"

#include <unistd.h>

#include "spreadsheet/plug_in.h"
#include "spreadsheet/started_program.h"

namespace norvane {

namespace fs = std::filesystem;

OfficePlugIn::OfficePlugIn(const fs::path& folder) : path_(folder / "norvane_office.so") {}

bool OfficePlugIn::Load() {
  if (make_office_ != nullptr) return true;
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
  for (const char* usual :
       {"/usr/lib/libreoffice/program/soffice", "/usr/lib64/libreoffice/program/soffice"}) {
    if (access(usual, X_OK) == 0) return usual;
  }
  return std::nullopt;
}

}  // namespace norvane
