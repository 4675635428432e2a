#pragma once

#include <QEventLoop>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "desktop/busy.h"
#include "frame/program.h"
#include "host/disk_files.h"
#include "platform/platform.h"
#include "spreadsheet/make_spreadsheet.h"

namespace norvane {

class FormView;

/// The user's desktop as the platform of a program: a window for every loaded form, message boxes,
/// the fonts and the locale of the system. It draws what the forms say and tells the program what
/// the user does; it decides nothing.
class Desktop : public Platform, public Display {
 public:
  using SpreadsheetMaker = std::function<std::unique_ptr<Spreadsheet>(
      const std::filesystem::path& folder, SpreadsheetWaiting& waiting)>;

  /// `folder` is the program's folder.
  explicit Desktop(const std::filesystem::path& folder,
                   const SpreadsheetMaker& make_spreadsheet = Make_Spreadsheet);
  ~Desktop() override;

  Display& display() override { return *this; }
  Files& files() override { return files_; }
  Spreadsheet& spreadsheet() override { return *spreadsheet_; }
  char Decimal_Separator() const override;
  std::optional<std::vector<std::string>> Font_Names() const override;

  DisplayArea Available_Area() const override;
  void Form_Loaded(Form& form) override;
  void Form_Unloaded(Form& form) override;
  void Run_Modal(Form& form) override;
  void Let_Events_Run() override;
  MessageAnswer Message(const UserMessage& message) override;
  void Runtime_Error(int number, const std::string& words) override;

  /// Starts the program.
  void Start();
  /// Carries out what the user did and shows what came of it.
  void Answer(const UserEvent& event);
  void Tick(TickTimer& timer);
  /// Runs a procedure in the way an event is carried out.
  void Run(const std::function<void()>& procedure);
  /// Ends the program with the message of the exception that is being handled.
  void Fail();
  /// Closes what is in front, as the user would, one after the other, until the program has ended.
  /// What can't be closed, such as the splash, is left behind after some attempts.
  void End_Session();
  /// Brings all windows up to date with their forms.
  void Show_Changes();

  /// What the user does to leave the program is carried out when `may_leave` says so. At the end of
  /// a session nobody is asked.
  void Ask_Before_Leaving(const std::function<bool()>& may_leave) { may_leave_ = may_leave; }

  /// The program's folder.
  const std::filesystem::path& Folder() const { return folder_; }
  Program& program() { return program_; }
  /// The window of the main screen while it is shown, or null.
  FormView* Main_Window() const;
  /// That window with its frame; empty while it isn't shown.
  QRect Main_Window_Frame() const;
  /// What panels leave free of the screen that the main window is on.
  QRect Work_Area() const;
  /// The window of a form, or null while the form isn't loaded.
  FormView* View_Of(const Form& form) const;

  /// A text of the current language.
  QString Text(const std::string& bytes) const;
  QString Text(TextId text) const;
  /// A text of the program as each language that was found has it.
  QStringList In_All_Languages(TextId text) const;

 private:
  /// Calls the program and shows what came of it. Calls are nested where the program lets events
  /// run meanwhile.
  void Call(const std::function<void()>& program_call);
  void After_Program_Call();
  /// A window that was just shown can paint only when the display server has exposed it.
  void Wait_For_Exposure();
  QWidget* Front_Window() const;
  void Close_Front_Window();
  void Tell_Where_Main_Window_Is();
  void Close_One_More_Window();
  void Decode_Anew_At_Need();

  std::filesystem::path folder_;
  DiskFiles files_;
  Busy busy_;
  std::unique_ptr<Spreadsheet> spreadsheet_;
  std::unordered_map<const Form*, FormView*> views_;
  std::vector<FormView*> unloaded_;  ///< hidden, and without their forms
  int calls_ = 0;
  int shown_charset_ = 0;
  int yields_ = 0;  ///< calls of Let_Events_Run under way
  QTimer session_end_;
  int windows_left_ = 0;  ///< to be closed at the end of the session
  std::function<bool()> may_leave_;
  Program program_;
};

}  // namespace norvane
