#pragma once

#include <QProgressDialog>
#include <memory>

#include "spreadsheet/waiting.h"

namespace norvane {

/// What the user sees while the spreadsheet program takes its time: windows that stay painted, the
/// busy pointer, and how far a long list has come.
class Busy : public SpreadsheetWaiting {
 public:
  ~Busy() override { End(); }

  void Wait_A_Moment() override;
  void Progress(int done, int total) override;

  bool Is_Painting() const { return painting_; }

  /// The waiting is over.
  void End();

 private:
  void Lay_Over(const QWidget* window);

  bool pointer_shown_ = false;
  bool painting_ = false;  ///< events are let in
  std::unique_ptr<QProgressDialog> progress_;
};

}  // namespace norvane
