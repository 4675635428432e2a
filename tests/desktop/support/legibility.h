#pragma once

class QImage;
class QWidget;

namespace norvane {

/// Fails the test for every text of a window, or of a part of it, that has less room than it needs.
void Expect_Room_For_Texts(const QWidget& part);

/// Fails the test for every widget that sticks out of the one around it, and for every two texts of
/// which one lies over the other.
void Expect_Texts_Apart(const QWidget& part);

/// Fails the test for every button that has neither a text nor a picture.
void Expect_No_Blank_Buttons(const QWidget& part);

/// Fails the test for every text whose letters stand out too little from their ground. `picture` is
/// the whole window as it is painted.
void Expect_Contrast(const QWidget& part, const QImage& picture);

}  // namespace norvane
