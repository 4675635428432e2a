#include "host/held_file.h"

#include <windows.h>

#include "host/windows/handle.h"
#include "host/windows/wide.h"

namespace norvane {

/// The system removes the file with the process that has it open.
class HeldFile::Hold {
 public:
  explicit Hold(const std::filesystem::path& path)
      : file_(CreateFileW(Long_Path(path).c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                          FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr)),
        error_(GetLastError()) {}

  State Take() const {
    if (file_.Is_Open()) return State::kHeld;
    return error_ == ERROR_SHARING_VIOLATION ? State::kTaken : State::kUnknown;
  }

 private:
  Handle file_;
  DWORD error_;
};

HeldFile::HeldFile(const std::filesystem::path& path)
    : hold_(std::make_unique<Hold>(path)), state_(hold_->Take()) {}

HeldFile::~HeldFile() = default;

void HeldFile::Remove() { hold_.reset(); }

}  // namespace norvane
