#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

namespace norvane {

// Reads a PDF from outside, by Poppler's programs.

/// The texts of the pages, from the first to the last.
QStringList Texts_Of_Pages(const QString& pdf);

/// A text without blanks, of which a reader of printed letters can only guess where they were.
QString Bare(const QString& text);

/// All texts, bare.
QString Printed_Text(const QString& pdf);

/// The first page as it is printed, 50 dots an inch.
QImage Printed_Page(const QString& pdf);

/// Fails the test for every font that isn't in the file.
void Expect_Embedded_Fonts(const QString& pdf);

}  // namespace norvane
