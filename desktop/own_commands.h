#pragma once

#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <vector>

#include "frame/text_id.h"

namespace norvane {

class Desktop;
class TextButton;

/// The row of words at the right end of the main screen's foot that lead to the front end's own
/// windows. Each has a key that does the same.
class OwnCommands : public QWidget {
  Q_OBJECT

 public:
  explicit OwnCommands(const Desktop& desktop);

  /// Adds a word to the right of the others; `key` is taken while the main screen is in front.
  void Add(TextId text, const QKeySequence& key, const std::function<void()>& action);
  /// Shows the words in the current language.
  void Follow_Language();

 private:
  struct Command {
    TextId text;
    QKeySequence key;
    TextButton* button;
  };

  const Desktop& desktop_;
  std::vector<Command> commands_;
};

}  // namespace norvane
