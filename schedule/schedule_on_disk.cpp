#include "schedule/schedule_on_disk.h"

#include <algorithm>
#include <utility>

#include "data/csv.h"
#include "host/plain_file.h"
#include "host/replace_file.h"

namespace norvane {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A row that is too long, or too many fields: what would take a multiple of the file's size in
/// memory. Line ends and separators inside of quotes are counted as well.
std::optional<ScheduleFileProblem> Size_Problem(std::string_view bytes, char separator) {
  std::size_t line = 1;
  std::size_t fields = 0;
  while (!bytes.empty()) {
    const std::size_t length = std::min(Length_Of_Row(bytes, separator), bytes.size());
    const std::string_view row = bytes.substr(0, length);
    if (length > kLongestRow) {
      return ScheduleFileProblem{
          line, "the row is longer than " + std::to_string(kLongestRow) + " bytes"};
    }
    fields += static_cast<std::size_t>(std::count(row.begin(), row.end(), separator)) + 1;
    if (fields > kMostFields) {
      return ScheduleFileProblem{line, "more than " + std::to_string(kMostFields) + " fields"};
    }
    line += static_cast<std::size_t>(std::count(row.begin(), row.end(), '\n'));
    bytes.remove_prefix(length);
  }
  return std::nullopt;
}

template <class MayReplace>
Saving Save(SchedulePlace& place, const std::string& bytes, const MayReplace& may_replace) {
  if (bytes.size() > kLargestFile) return Saving::kFailed;
  bool changed = false;
  Replace_File(place.path, [&](const std::string& old) {
    changed = !may_replace(old);
    return changed ? old : bytes;
  });
  if (changed) return Saving::kChangedMeanwhile;
  if (Bytes_Of(place.path) != bytes) return Saving::kFailed;
  place.fingerprint = Fingerprint(bytes);
  return Saving::kDone;
}

}  // namespace

std::variant<ScheduleFile, ScheduleFileProblem> Schedule_Of(std::string_view bytes) {
  while (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  const char separator = Dialect_Of_Header(bytes.substr(0, bytes.find('\n'))).separator;
  if (auto problem = Size_Problem(bytes, separator)) return *problem;
  auto read = Read_Schedule(bytes, Question::kHeatLoss);
  if (auto* schedule = std::get_if<ScheduleFile>(&read)) {
    *schedule = Without_Results(std::move(*schedule));
  }
  return read;
}

std::uint64_t Fingerprint(std::string_view bytes) {
  // Fowler, Noll and Vo's, of 64 bits.
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char byte : bytes) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 0x100000001B3;
  }
  return hash;
}

std::variant<OpenedSchedule, ScheduleFileProblem> Open_Schedule(const std::filesystem::path& path) {
  const auto bytes = Bytes_Of(path);
  if (!bytes) return ScheduleFileProblem{};
  auto read = Schedule_Of(*bytes);
  if (auto* problem = std::get_if<ScheduleFileProblem>(&read)) return std::move(*problem);
  return OpenedSchedule{std::get<ScheduleFile>(std::move(read)), {path, Fingerprint(*bytes)}};
}

Saving Save_Schedule(SchedulePlace& place, const std::string& bytes) {
  return Save(place, bytes, [&](const std::string& old) {
    // A file that has gone has nothing to lose.
    return old.empty() || Fingerprint(old) == place.fingerprint;
  });
}

Saving Save_Schedule_Over(SchedulePlace& place, const std::string& bytes) {
  return Save(place, bytes, [](const std::string&) { return true; });
}

}  // namespace norvane
