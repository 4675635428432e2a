#pragma once

#include <QChar>
#include <QString>
#include <QStringList>
#include <vector>

namespace norvane {

/// Chooses a letter for each text by which Alt reaches its widget, no letter twice: the first of a
/// word where one is free, or else any other; a null letter where all are taken.
std::vector<QChar> Choose_Letters(const QStringList& texts);

/// The text for a widget that underlines the letter behind "&" and shows "&&" as "&".
QString With_Letter(const QString& text, QChar letter);

}  // namespace norvane
