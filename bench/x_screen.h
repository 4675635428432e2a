#pragma once

#include <X11/Xlib.h>
#include <X11/extensions/XShm.h>
#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace norvane {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// An X display as somebody in front of it sees it: when windows of one program are painted, and
/// what a key changes in them. Any program can be looked at, whatever it is built with.
class XScreen {
 public:
  XScreen();
  ~XScreen();
  XScreen(const XScreen&) = delete;
  XScreen& operator=(const XScreen&) = delete;

  /// From here on the windows of this process are looked at.
  void Watch(pid_t pid);

  /// When the window that is the first, second ... of the program showed more than one colour.
  std::optional<Clock::time_point> Wait_For_Painted_Window(std::size_t count,
                                                           Milliseconds patience);
  /// Returns when nothing was painted for that long.
  void Wait_Until_Quiet(Milliseconds quiet, Milliseconds patience);
  /// Whether something was painted.
  bool Wait_For_Painting(Milliseconds patience);
  [[nodiscard]] Clock::time_point Last_Painting() const { return last_painting_; }
  /// Paintings since the last call.
  std::size_t Take_Paintings();

  /// A key by its X name, with "shift+" or "control+" before it.
  void Press(const std::string& key) { Send(key, true); }
  void Release(const std::string& key) { Send(key, false); }

  /// Differs when what the screen shows differs.
  std::uint64_t Picture();
  /// Takes the focus away from the program, so that no caret blinks.
  void Take_Focus();

 private:
  struct WatchedWindow {
    bool painted = false;
  };

  void Send(const std::string& key, bool down);
  /// Handles what the server says until then; false when it said nothing.
  bool Handle_Events(Clock::time_point until);
  void Handle(const XEvent& event);
  void Window_Created(Window window);
  bool Belongs_To_Program(Window window);
  bool Shows_A_Picture(Window window);
  bool Grab(Window window, int width, int height);

  Display* display_;
  Window focus_holder_;
  int damage_event_ = 0;
  XShmSegmentInfo segment_{};
  XImage* image_ = nullptr;
  pid_t pid_ = 0;
  std::map<Window, WatchedWindow> windows_;
  std::size_t painted_windows_ = 0;
  std::size_t paintings_ = 0;
  Clock::time_point last_painting_;
};

}  // namespace norvane
