#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "study/schedule_file.h"

namespace norvane {

/// The most fields that are opened; larger schedules are for `norvane-batch`.
inline constexpr std::size_t kMostFields = 2'000'000;
/// The longest row, in bytes; a longer one has a quote that isn't closed, most likely.
inline constexpr std::size_t kLongestRow = 65'536;

/// A schedule of any bytes, without the results of an earlier run, or why they aren't one and in
/// which line.
std::variant<ScheduleFile, ScheduleFileProblem> Schedule_Of(std::string_view bytes);

/// By which a file is known again: others differ in it, but for one case in some trillions.
std::uint64_t Fingerprint(std::string_view bytes);

/// Where a schedule is kept, and what the file held when it was last read or written.
struct SchedulePlace {
  std::filesystem::path path;
  std::uint64_t fingerprint = 0;
};

struct OpenedSchedule {
  ScheduleFile file;
  SchedulePlace place;
};

/// Reads a file, or tells why not; a file that can't be read is a problem in line 0, without words.
std::variant<OpenedSchedule, ScheduleFileProblem> Open_Schedule(const std::filesystem::path& path);

enum class Saving {
  kDone,
  kChangedMeanwhile,  ///< by somebody else: the file is left as it is
  kFailed,            ///< the old file is still there
};

/// Replaces the file by these bytes, whole, and brings the place up to date.
Saving Save_Schedule(SchedulePlace& place, const std::string& bytes);

/// The same for a file of which it doesn't matter what it held.
Saving Save_Schedule_Over(SchedulePlace& place, const std::string& bytes);

}  // namespace norvane
