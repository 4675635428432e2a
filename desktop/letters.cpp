#include "desktop/letters.h"

#include <set>

namespace norvane {
namespace {

bool Begins_Word(const QString& text, qsizetype place) {
  return place == 0 || !text[place - 1].isLetterOrNumber();
}

/// The letters of a text in the order in which they are wanted.
QString By_Preference(const QString& text) {
  QString firsts;
  QString others;
  for (qsizetype place = 0; place < text.size(); ++place) {
    if (!text[place].isLetterOrNumber()) continue;
    (Begins_Word(text, place) ? firsts : others) += text[place].toLower();
  }
  return firsts + others;
}

/// Where a letter stands in a text, at the beginning of a word if it can be; -1 if nowhere.
qsizetype Place_Of(QChar letter, const QString& text) {
  qsizetype found = -1;
  for (qsizetype place = 0; place < text.size(); ++place) {
    if (text[place].toLower() != letter) continue;
    if (Begins_Word(text, place)) return place;
    if (found < 0) found = place;
  }
  return found;
}

}  // namespace

std::vector<QChar> Choose_Letters(const QStringList& texts) {
  std::vector<QChar> chosen;
  std::set<QChar> taken;
  for (const QString& text : texts) {
    chosen.emplace_back();
    for (const QChar letter : By_Preference(text)) {
      if (!taken.insert(letter).second) continue;
      chosen.back() = letter;
      break;
    }
  }
  return chosen;
}

QString With_Letter(const QString& text, QChar letter) {
  const qsizetype marked = letter.isNull() ? -1 : Place_Of(letter, text);
  QString shown;
  for (qsizetype place = 0; place < text.size(); ++place) {
    if (place == marked) shown += '&';
    shown += text[place];
    if (text[place] == '&') shown += '&';
  }
  return shown;
}

}  // namespace norvane
