#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "schedule/recovery.h"
#include "schedule/schedule_document.h"
#include "schedule/schedule_on_disk.h"

namespace norvane {

/// The schedule that a user has open: the rows, the file that they belong to, and what outlives a
/// crash. There is always one, an empty one to begin with.
class ScheduleSession {
 public:
  /// @param folder where unsaved changes are kept
  /// @param decimal the decimal sign of new schedules
  ScheduleSession(const std::filesystem::path& folder, char decimal);
  /// Unsaved changes are left for the next session.
  ~ScheduleSession();
  ScheduleSession(const ScheduleSession&) = delete;
  ScheduleSession& operator=(const ScheduleSession&) = delete;

  /// Another one after `Recover`, `Begin_New` and `Open`.
  ScheduleDocument& Document() { return *document_; }
  /// The file; nothing for a schedule that was never saved.
  const std::optional<SchedulePlace>& Place() const { return place_; }
  /// Whether the rows are those of a session that broke off, and not saved since.
  bool Recovered() const { return recovered_; }

  /// Takes over the rows of a session that broke off; false where there are none.
  bool Recover();
  /// Begins an empty schedule. Changes of the one before are lost.
  void Begin_New();
  /// Opens a file, or tells why not; then everything stays as it is.
  std::optional<ScheduleFileProblem> Open(const std::filesystem::path& path);
  /// Saves into the file that the schedule has.
  Saving Save();
  /// Saves into another file, whatever it holds; it is the schedule's own from then on.
  Saving Save_As(const std::filesystem::path& path);
  /// Sees to it that the rows as they are outlive a crash. False when they wouldn't, since the
  /// folder can't be written to.
  bool Keep();

 private:
  void Show(ScheduleFile file, std::optional<SchedulePlace> place);
  Saving Kept(Saving saving);

  Recovery recovery_;
  char decimal_;
  std::unique_ptr<ScheduleDocument> document_;
  std::optional<SchedulePlace> place_;
  bool recovered_ = false;
};

}  // namespace norvane
