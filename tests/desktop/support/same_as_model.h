#pragma once

#include <QString>

namespace norvane {

class FormView;

/// Fails the test for every widget of a window that shows anything else than its field holds, and
/// for every field with something to show that has no widget.
void Expect_Same_As_Model(const FormView& view);

/// The text of a widget as the user reads it: "&" marks the letter that Alt reaches it by.
QString As_Read(const QString& text);

/// Fails the test for every visible widget of a field that lies outside the window, over another
/// one, or has less room than its text needs.
void Expect_Room_For_All(const FormView& view);

}  // namespace norvane
