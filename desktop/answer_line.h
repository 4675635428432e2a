#pragma once

#include <QLabel>

namespace norvane {

class Desktop;
class Warmt;

/// The main result of the mode in large letters, and what follows from it. The labels only ever
/// grow, so that nothing is laid out anew while the user types.
class AnswerLine : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kHeight = 32;  // pixels

  explicit AnswerLine(QWidget* parent = nullptr);

  /// Shows the answer of the main screen as it stands, in letters larger than those of `font`.
  void Follow(Desktop& desktop, Warmt& warmt, const QFont& font);

 private:
  QLabel* answer_;
  QLabel* remark_;
};

}  // namespace norvane
