#include "desktop/own_commands.h"

#include <QHBoxLayout>
#include <QShortcut>

#include "desktop/accessible.h"
#include "desktop/colours.h"
#include "desktop/flat_button.h"
#include "desktop/letters.h"
#include "desktop/own_texts.h"

namespace norvane {

OwnCommands::OwnCommands(const Desktop& desktop) : desktop_(desktop) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  row->addStretch();
}

void OwnCommands::Add(TextId text, const QKeySequence& key, const std::function<void()>& action) {
  auto* button = new TextButton;
  QPalette ink = button->palette();
  ink.setColor(QPalette::WindowText, kInkOnAccent);
  button->setPalette(ink);
  layout()->addWidget(button);
  connect(button, &TextButton::clicked, this, action);
  connect(new QShortcut(key, this), &QShortcut::activated, this, action);
  commands_.push_back({text, key, button});
}

void OwnCommands::Follow_Language() {
  for (const Command& command : commands_) {
    const QString word = Own_Text(desktop_, command.text);
    const QString shown = With_Letter(word, {});
    if (command.button->text() == shown) continue;
    command.button->setText(shown);
    const QString key = command.key.toString(QKeySequence::NativeText);
    command.button->setToolTip(word + " (" + key + ')');
    Tell(*command.button, word, key);
  }
}

}  // namespace norvane
