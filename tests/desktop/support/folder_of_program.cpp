#include "folder_of_program.h"

namespace norvane {

FolderOfProgram::FolderOfProgram() {
  namespace fs = std::filesystem;
  for (const auto& entry : fs::directory_iterator(NORVANE_FOLDER)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("language.") || name.starts_with("Address") || name == "total.xls") {
      fs::copy_file(entry.path(), Path() / name);
    }
  }
}

}  // namespace norvane
