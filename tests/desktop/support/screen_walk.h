#pragma once

#include <QImage>
#include <string>

#include "window_test.h"

namespace norvane {

/// The whole program, of which a test sees every screen in turn, as a user reaches it.
class ScreenWalk : public DesktopTest {
 protected:
  /// Goes from the splash screen through all windows. The language is that of a file
  /// `language.lXX` in the program's folder.
  void Walk_In(const std::string& code);

  /// A screen has come. `part` is its window, or the part of the window that is new on it;
  /// `picture` shows the window, or as much of it as tells about the part.
  virtual void Look_At(const std::string& screen, QWidget& part, const QImage& window,
                       const QImage& picture) = 0;

 private:
  Lang& Languages() { return *State().forms.lang; }
  Settings& Settings_Form() { return *State().forms.settings; }
  Total& Totals() { return *State().forms.total; }

  void Show(const std::string& screen, QWidget& window);
  void Show(const std::string& screen, const Form& form);
  void Show_Question(const std::string& screen);
  void Click_No(QWidget& box);

  void Start();
  void Choose_Language(const std::string& code);
  void Walk_Through_Addresses();
  void Walk_Through_States();
  void Walk_Through_Pickers();
  void Show_Picker(const std::string& screen, const TextField& field);
  void Walk_Through_Settings();
  void Save_Lines();
  void Walk_Through_Totals();
  void Walk_Through_Own_Windows();
  void Walk_Through_Tooltips();
  void Show_Tooltip(const std::string& name, const Button& button);
  void Walk_Through_Large_Values();
  void Walk_Through_Schedule();
  void Walk_Through_Question_Of_Language(const std::string& code);
  void Set_Inputs(const QStringList& medium_ambient_diameter_thickness);
  void Open_Totals();
  int Slot_Of(const std::string& code);
};

}  // namespace norvane
