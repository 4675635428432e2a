#pragma once

namespace norvane {

/// Who is kept waiting by a spreadsheet program. All calls come on the thread that asked for the
/// operation, before it returns.
class SpreadsheetWaiting {
 public:
  virtual ~SpreadsheetWaiting() = default;

  /// Paints what has to be painted. Called at least every 50 ms while an operation takes its time.
  /// What the user does mustn't be reported meanwhile: the program is in the middle of an event.
  virtual void Wait_A_Moment() = 0;

  /// `done` of the `total` rows of a long list have been written. A total of 0 says that the list
  /// has come to its end, well or badly.
  virtual void Progress(int done, int total) = 0;
};

}  // namespace norvane
