#include "schedule/schedule_session.h"

#include <utility>

namespace norvane {

ScheduleSession::ScheduleSession(const std::filesystem::path& folder, char decimal)
    : recovery_(folder), decimal_(decimal) {
  Begin_New();
}

ScheduleSession::~ScheduleSession() {
  try {
    Keep();
  } catch (...) {
    // Memory that lacks now: what was kept before is still there.
  }
}

void ScheduleSession::Show(ScheduleFile file, std::optional<SchedulePlace> place) {
  document_ = std::make_unique<ScheduleDocument>(std::move(file));
  place_ = std::move(place);
  recovered_ = false;
}

bool ScheduleSession::Recover() {
  auto left = recovery_.Take_Over();
  if (!left) return false;
  Show(std::move(left->file), std::move(left->place));
  document_->Mark_Never_Kept();
  recovered_ = true;
  return true;
}

void ScheduleSession::Begin_New() {
  recovery_.Drop();
  Show(New_Schedule(Question::kHeatLoss, decimal_), std::nullopt);
}

std::optional<ScheduleFileProblem> ScheduleSession::Open(const std::filesystem::path& path) {
  auto opened = Open_Schedule(path);
  if (auto* problem = std::get_if<ScheduleFileProblem>(&opened)) return std::move(*problem);
  recovery_.Drop();
  auto& schedule = std::get<OpenedSchedule>(opened);
  Show(std::move(schedule.file), std::move(schedule.place));
  return std::nullopt;
}

Saving ScheduleSession::Kept(Saving saving) {
  if (saving != Saving::kDone) return saving;
  document_->Mark_Kept();
  recovered_ = false;
  recovery_.Drop();
  return saving;
}

Saving ScheduleSession::Save() {
  return Kept(Save_Schedule(*place_, Write_Schedule(document_->Table().File())));
}

Saving ScheduleSession::Save_As(const std::filesystem::path& path) {
  SchedulePlace place{path, 0};
  const Saving saving = Save_Schedule_Over(place, Write_Schedule(document_->Table().File()));
  if (saving == Saving::kDone) place_ = std::move(place);
  return Kept(saving);
}

bool ScheduleSession::Keep() {
  if (document_->Changed()) return recovery_.Keep(document_->Table().File(), place_);
  recovery_.Drop();
  return true;
}

}  // namespace norvane
