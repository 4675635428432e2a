#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "schedule/schedule_table.h"

namespace norvane {

/// Rows of a schedule that change: in the place of `removed` rows from `first` on come `inserted`
/// ones.
struct RowChange {
  std::size_t first = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
};

/// Is told of each change of a schedule's rows, before and behind it.
class RowObserver {
 public:
  virtual ~RowObserver() = default;
  virtual void Before_Change(const RowChange& change) = 0;
  virtual void After_Change(const RowChange& change) = 0;
};

/// A schedule that is edited: each edit can be undone, all of them in turn, and done again.
class ScheduleDocument {
 public:
  /// @param file with a header that has all required columns
  explicit ScheduleDocument(ScheduleFile file) : table_(std::move(file)) {}

  const ScheduleTable& Table() const { return table_; }
  /// @param observer null for none; outlives the document or is taken away before
  void Set_Observer(RowObserver* observer) { observer_ = observer; }

  /// Whether the rows are others than when the schedule was opened or last kept.
  bool Changed() const { return kept_at_ != done_; }
  /// The rows as they are now are kept somewhere.
  void Mark_Kept() { kept_at_ = done_; }
  /// They are kept nowhere, whatever is undone.
  void Mark_Never_Kept() { kept_at_.reset(); }

  // Edits. One that changes nothing can't be undone, and neither can one of rows that aren't there,
  // which does nothing.
  void Set_Text(std::size_t row, std::size_t column, const std::string& text);
  /// Puts rows in front of row `at`, or behind the last one.
  void Insert(std::size_t at, std::vector<ScheduleLine> lines);
  void Duplicate(std::size_t first, std::size_t count);
  void Delete(std::size_t first, std::size_t count);
  /// Moves rows up by one.
  void Move_Up(std::size_t first, std::size_t count);
  void Move_Down(std::size_t first, std::size_t count);

  bool Can_Undo() const { return done_ > 0; }
  bool Can_Redo() const { return done_ < edits_.size(); }
  /// Which rows there are now in the place of others; nothing where there is nothing to undo.
  std::optional<RowChange> Undo();
  std::optional<RowChange> Redo();

 private:
  /// What an edit, or its undoing, puts into the place of rows.
  struct Edit {
    std::size_t first = 0;
    std::size_t count = 0;
    std::vector<ScheduleLine> lines;
  };

  std::vector<ScheduleLine> Lines(std::size_t first, std::size_t count) const;
  bool Has(std::size_t first, std::size_t count) const;
  void Do(Edit edit);
  /// Carries out an edit and makes it the one that takes it back.
  RowChange Exchange(Edit& edit);

  ScheduleTable table_;
  RowObserver* observer_ = nullptr;
  std::vector<Edit> edits_;  // those done are what undoes them, the others what does them again
  std::size_t done_ = 0;
  std::optional<std::size_t> kept_at_ = 0;
};

}  // namespace norvane
