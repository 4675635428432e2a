#include "host/replace_file.h"

#include <windows.h>

#include <chrono>
#include <optional>
#include <thread>
#include <utility>

#include "host/plain_file.h"
#include "host/random_digits.h"
#include "host/windows/handle.h"
#include "host/windows/wide.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

using Edit = std::function<std::string(const std::string&)>;

constexpr std::chrono::seconds kPatienceForATurn{3};
/// So many times at once, and the folder is one that can't be written to.
constexpr int kRefusals = 50;
constexpr int kAttempts = 20;

/// Where a link leads to; the path itself where nothing is there.
std::wstring Final_Path(const std::wstring& path) {
  const Handle file(CreateFileW(path.c_str(), 0,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file.Is_Open()) return path;
  std::wstring final_path(MAX_PATH, L'\0');
  while (true) {
    const DWORD size = static_cast<DWORD>(final_path.size());
    const DWORD needed =
        GetFinalPathNameByHandleW(file.Raw(), final_path.data(), size, FILE_NAME_NORMALIZED);
    if (needed == 0) return path;
    final_path.resize(needed);
    if (needed < size) return final_path;
  }
}

/// A file beside the one that is replaced, which one process at a time can have open. The system
/// removes it when that process closes it or dies, on whatever machine of a network it runs.
class Turn {
 public:
  explicit Turn(const std::wstring& path) : name_(path + L".turn") {
    const auto end = std::chrono::steady_clock::now() + kPatienceForATurn;
    int refused = 0;  // one after the other
    while (!(came_ = Take()) && std::chrono::steady_clock::now() < end) {
      const DWORD error = GetLastError();
      // A file that is just being removed is refused, too, but not for long.
      refused = error == ERROR_ACCESS_DENIED ? refused + 1 : 0;
      if (refused == kRefusals || !Is_Busy(error)) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }
  ~Turn() {
    if (came_) CloseHandle(handle_);
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

 private:
  bool Take() {
    handle_ = CreateFileW(name_.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_ALWAYS,
                          FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return handle_ != INVALID_HANDLE_VALUE;
  }

  std::wstring name_;
  HANDLE handle_ = INVALID_HANDLE_VALUE;
  bool came_ = false;
};

/// What stands at a place: no bytes when the place is free.
struct Old {
  bool is_there = false;
  std::string bytes;

  bool operator==(const Old&) const = default;
};

/// Nothing when what stands there can't be replaced.
std::optional<Old> Look_At(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return Old();
  if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) return std::nullopt;
  auto bytes = Bytes_Of(path);
  return bytes ? std::optional(Old{true, std::move(*bytes)}) : std::nullopt;
}

/// The new file beside the old one, under a name that nobody can guess. Until it is finished the
/// system removes it with the process.
class NewFile {
 public:
  explicit NewFile(const std::wstring& path)
      : path_(path + L"." + Wide(Random_Digits())),
        handle_(CreateFileW(path_.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {
    Remove_At_Close(true);
  }
  ~NewFile() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  bool Write_Flushed(const std::string& bytes) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    return WriteFile(handle_, bytes.data(), size, &written, nullptr) != 0 && written == size &&
           FlushFileBuffers(handle_) != 0;
  }

  /// Somebody who reads the old file keeps it from being replaced as long as it is open.
  void Take_Place(const std::wstring& place) {
    Remove_At_Close(false);
    CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
    const auto move = [&] {
      return MoveFileExW(path_.c_str(), place.c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    };
    if (!Try_While_Busy(move, kPatienceForATurn)) DeleteFileW(path_.c_str());
  }

 private:
  void Remove_At_Close(bool remove) {
    FILE_DISPOSITION_INFO disposition{static_cast<BOOLEAN>(remove)};
    SetFileInformationByHandle(handle_, FileDispositionInfo, &disposition, sizeof disposition);
  }

  std::wstring path_;
  HANDLE handle_;
};

/// Whether that was all that could be done; not, when somebody was faster.
bool Replace_Unless_Changed(const std::wstring& path, const Edit& edit) {
  const auto old = Look_At(path);
  if (!old) return true;
  const std::string new_bytes = edit(old->bytes);
  if (old->is_there && new_bytes == old->bytes) return true;
  NewFile new_file(path);
  if (!new_file.Write_Flushed(new_bytes)) return true;
  if (Look_At(path) != old) return false;
  new_file.Take_Place(path);
  return true;
}

}  // namespace

void Replace_File(const fs::path& name, const Edit& edit) {
  const std::wstring path = Final_Path(Long_Path(name));
  const Turn turn(path);
  int attempts = kAttempts;
  while (attempts-- > 0 && !Replace_Unless_Changed(path, edit)) {
  }
}

}  // namespace norvane
