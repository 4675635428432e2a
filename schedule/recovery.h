#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "schedule/schedule_on_disk.h"

namespace norvane {

class HeldFile;

/// A schedule with changes that were never saved, as a program that broke off has left it.
struct RecoveredSchedule {
  ScheduleFile file;
  std::optional<SchedulePlace> place;  ///< nothing for one that was never saved
  std::string user;                    ///< who made them, a `User_Id`
};

/// The bytes of a file that keeps a schedule: a line with its place and the user, and behind it the
/// schedule as in its own file.
std::string Bytes_To_Keep(const ScheduleFile& file, const std::optional<SchedulePlace>& place);

/// What such a file keeps; nothing for bytes that are none.
std::optional<RecoveredSchedule> Kept_In(std::string_view bytes);

/// Keeps the unsaved changes of this process in a file of their own, so that they outlive it. Each
/// process has its own; one that is left behind is recovered by one other.
class Recovery {
 public:
  /// @param folder where the files lie
  explicit Recovery(std::filesystem::path folder);
  /// Leaves the file where it is, for somebody to recover.
  ~Recovery();
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  /// Writes the schedule into the file. False when the folder can't be written to.
  bool Keep(const ScheduleFile& file, const std::optional<SchedulePlace>& place);
  /// The changes were saved, or aren't wanted.
  void Drop();

  /// Takes over what a process of the same user that isn't there any more has left behind, the
  /// newest of several.
  /// It is this process's own from then on.
  std::optional<RecoveredSchedule> Take_Over();

 private:
  std::filesystem::path Path_Of(const std::string& id, const char* ending) const;
  std::optional<RecoveredSchedule> Take_Over(const std::string& id);

  std::filesystem::path folder_;
  std::string id_;  // empty while nothing is kept
  std::unique_ptr<HeldFile> held_;
};

}  // namespace norvane
