#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace norvane {

/// A cell as an onlooker sees it.
struct SeenCell {
  std::string name;   ///< such as "B3"
  std::string type;   ///< "TEXT" or "VALUE"
  std::string shown;  ///< the text, or the number

  bool operator==(const SeenCell&) const = default;
  /// The onlooker prints numbers with a point.
  double Number() const;
};

/// LibreOffice as the user of the home folder has it, who has used it before. No process of it runs
/// before or after.
class UserOffice {
 public:
  UserOffice();
  ~UserOffice();
  UserOffice(const UserOffice&) = delete;
  UserOffice& operator=(const UserOffice&) = delete;

  /// Starts it as from a menu, with an empty sheet, and waits until it takes further calls.
  void Start_Ordinarily();
  /// Closes a window with the keys that the window manager has for it.
  void Close_Window(const std::string& title) const;
  /// Its processes; there is never more than one.
  std::vector<pid_t> Processes() const { return Running(); }
  static std::vector<pid_t> Running();
  /// Ends it like a crash, and waits until it is gone.
  void Kill();
  /// Whether it has no process, at the latest after some seconds.
  bool Ends() const;

  /// What the onlooker prints, line by line; see probe.py. The test fails when it can't.
  std::vector<std::string> Probe(const std::string& arguments) const;
  /// Cells of a document that is open, whose URL ends with `name`.
  std::vector<SeenCell> Cells(const std::string& name, const std::string& range) const;
  /// Cells of a file on disk.
  std::vector<SeenCell> Cells_Of_File(const std::string& path, const std::string& range) const;
};

void PrintTo(const SeenCell& cell, std::ostream* out);

}  // namespace norvane
