#include "schedule/recovery.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>
#include <utility>
#include <vector>

#include "data/csv.h"
#include "host/folder.h"
#include "host/held_file.h"
#include "host/plain_file.h"
#include "host/random_digits.h"
#include "host/replace_file.h"
#include "host/user_id.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBeginning = "schedule-";
constexpr const char* kKept = ".recovery";
constexpr const char* kAlive = ".lock";
constexpr int kHexadecimal = 16;

/// What was kept in a folder, the newest first.
std::vector<std::string> Ids_In(const fs::path& folder) {
  std::vector<std::pair<fs::file_time_type, std::string>> found;
  const std::string_view ending = kKept;
  for (const FolderEntry& entry : Entries_Of(folder)) {
    const std::string& name = entry.name;
    if (entry.is_folder || name.size() <= kBeginning.size() + ending.size() ||
        !name.starts_with(kBeginning) || !name.ends_with(ending)) {
      continue;
    }
    std::error_code error;
    found.emplace_back(
        fs::last_write_time(Path_In(folder, name), error),
        name.substr(kBeginning.size(), name.size() - kBeginning.size() - ending.size()));
  }
  std::sort(found.rbegin(), found.rend());
  std::vector<std::string> ids;
  for (auto& [time, id] : found) ids.push_back(std::move(id));
  return ids;
}

}  // namespace

std::string Bytes_To_Keep(const ScheduleFile& file, const std::optional<SchedulePlace>& place) {
  std::string bytes;
  const std::u8string path = place ? place->path.u8string() : std::u8string();
  Append_Field(bytes, {reinterpret_cast<const char*>(path.data()), path.size()}, ',');
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                 place ? place->fingerprint : 0, kHexadecimal)
                       .ptr;
  bytes += ',';
  bytes.append(digits.data(), end);
  bytes += ',';
  Append_Field(bytes, User_Id(), ',');
  bytes += '\n';
  return bytes + Write_Schedule(file);
}

std::optional<RecoveredSchedule> Kept_In(std::string_view bytes) {
  const std::size_t length = Length_Of_Row(bytes, ',');
  if (length == std::string_view::npos) return std::nullopt;
  std::vector<std::string_view> fields;
  Split_Row(bytes.substr(0, length - 1), ',', fields);
  auto schedule = Schedule_Of(bytes.substr(length));
  if (fields.size() != 3 || !std::holds_alternative<ScheduleFile>(schedule)) return std::nullopt;
  RecoveredSchedule recovered{
      std::get<ScheduleFile>(std::move(schedule)), {}, Field_Text(fields[2])};
  if (const std::string path = Field_Text(fields[0]); !path.empty()) {
    SchedulePlace& place = recovered.place.emplace(SchedulePlace{To_Path(path), 0});
    std::from_chars(fields[1].data(), fields[1].data() + fields[1].size(), place.fingerprint,
                    kHexadecimal);
  }
  return recovered;
}

Recovery::Recovery(fs::path folder) : folder_(std::move(folder)) {}

Recovery::~Recovery() = default;

fs::path Recovery::Path_Of(const std::string& id, const char* ending) const {
  return Path_In(folder_, std::string(kBeginning) + id + ending);
}

bool Recovery::Keep(const ScheduleFile& file, const std::optional<SchedulePlace>& place) {
  if (id_.empty()) {
    id_ = Random_Digits();
    held_ = std::make_unique<HeldFile>(Path_Of(id_, kAlive));
  }
  const std::string bytes = Bytes_To_Keep(file, place);
  Replace_File(Path_Of(id_, kKept), [&](const std::string&) { return bytes; });
  return Bytes_Of(Path_Of(id_, kKept)) == bytes;
}

void Recovery::Drop() {
  if (id_.empty()) return;
  std::error_code error;
  fs::remove(Path_Of(id_, kKept), error);
  if (held_ != nullptr) held_->Remove();
  held_.reset();
  id_.clear();
}

std::optional<RecoveredSchedule> Recovery::Take_Over(const std::string& id) {
  const auto kept = [&] {
    const auto bytes = Bytes_Of(Path_Of(id, kKept));
    auto recovered = bytes ? Kept_In(*bytes) : std::nullopt;
    return recovered && recovered->user == User_Id() ? std::move(recovered) : std::nullopt;
  };
  // Of what is another user's nothing is touched.
  if (!kept()) return std::nullopt;
  auto held = std::make_unique<HeldFile>(Path_Of(id, kAlive));
  if (held->Now() == HeldFile::State::kTaken) return std::nullopt;
  auto recovered = kept();
  if (!recovered) return std::nullopt;
  if (held->Now() == HeldFile::State::kHeld) {
    id_ = id;
    held_ = std::move(held);
    return recovered;
  }
  // Its process may be alive, where the system can't tell. Then it goes on under the old name.
  std::string mine = Random_Digits();
  std::error_code error;
  fs::rename(Path_Of(id, kKept), Path_Of(mine, kKept), error);
  if (error) return std::nullopt;
  id_ = std::move(mine);
  return recovered;
}

std::optional<RecoveredSchedule> Recovery::Take_Over() {
  for (const std::string& id : Ids_In(folder_)) {
    if (id == id_) continue;
    if (auto recovered = Take_Over(id)) return recovered;
  }
  return std::nullopt;
}

}  // namespace norvane
