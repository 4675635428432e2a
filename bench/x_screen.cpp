#include "bench/x_screen.h"

#include <X11/Xutil.h>
#include <X11/extensions/XRes.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace norvane {
namespace {

constexpr int kBytesOfPixel = 4;

/// Windows come and go; a question about one that has gone is no error.
int Pass_Over(Display*, XErrorEvent*) { return 0; }

Clock::time_point After(Milliseconds time) {
  return Clock::now() + std::chrono::duration_cast<Clock::duration>(time);
}

}  // namespace

XScreen::XScreen() : display_(XOpenDisplay(nullptr)) {
  if (display_ == nullptr) throw std::runtime_error("there is no display");
  XSetErrorHandler(Pass_Over);
  int damage_error = 0;
  int unused = 0;
  if (!XDamageQueryExtension(display_, &damage_event_, &damage_error) ||
      !XTestQueryExtension(display_, &unused, &unused, &unused, &unused) ||
      !XResQueryExtension(display_, &unused, &unused) || !XShmQueryExtension(display_)) {
    throw std::runtime_error("the display lacks DAMAGE, XTEST, X-Resource or MIT-SHM");
  }
  const int width = DisplayWidth(display_, DefaultScreen(display_));
  const int height = DisplayHeight(display_, DefaultScreen(display_));
  const auto bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  segment_.shmid = shmget(IPC_PRIVATE, bytes * kBytesOfPixel, IPC_CREAT | 0600);
  segment_.shmaddr = static_cast<char*>(shmat(segment_.shmid, nullptr, 0));
  segment_.readOnly = False;
  XShmAttach(display_, &segment_);
  XSync(display_, False);
  shmctl(segment_.shmid, IPC_RMID, nullptr);

  const Window root = DefaultRootWindow(display_);
  XSetWindowAttributes attributes{};
  attributes.override_redirect = True;
  focus_holder_ = XCreateWindow(display_, root, width - 1, height - 1, 1, 1, 0, 0, InputOnly,
                                nullptr, CWOverrideRedirect, &attributes);
  XMapWindow(display_, focus_holder_);
  XTestFakeMotionEvent(display_, -1, width - 1, height - 1, 0);  // no tooltips
  XSelectInput(display_, root, SubstructureNotifyMask);
  XSync(display_, True);
}

XScreen::~XScreen() {
  XShmDetach(display_, &segment_);
  XCloseDisplay(display_);
  shmdt(segment_.shmaddr);
}

void XScreen::Watch(pid_t pid) {
  XSync(display_, True);
  pid_ = pid;
  windows_.clear();
  painted_windows_ = 0;
  paintings_ = 0;
}

std::optional<Clock::time_point> XScreen::Wait_For_Painted_Window(std::size_t count,
                                                                  Milliseconds patience) {
  const auto end = After(patience);
  while (painted_windows_ < count && Clock::now() < end) Handle_Events(end);
  if (painted_windows_ < count) return std::nullopt;
  return last_painting_;
}

void XScreen::Wait_Until_Quiet(Milliseconds quiet, Milliseconds patience) {
  const auto end = After(patience);
  auto quiet_until = After(quiet);
  std::size_t seen = paintings_;
  while (Clock::now() < std::min(end, quiet_until)) {
    Handle_Events(std::min(end, quiet_until));
    if (paintings_ != seen) quiet_until = After(quiet);
    seen = paintings_;
  }
}

bool XScreen::Wait_For_Painting(Milliseconds patience) {
  const auto end = After(patience);
  const std::size_t before = paintings_;
  while (paintings_ == before && Clock::now() < end) Handle_Events(end);
  return paintings_ != before;
}

std::size_t XScreen::Take_Paintings() {
  Handle_Events(Clock::now());
  return std::exchange(paintings_, 0);
}

void XScreen::Send(const std::string& key, bool down) {
  std::string name = key;
  std::vector<KeySym> keys;
  for (const auto& [prefix, modifier] :
       {std::pair{"shift+", XK_Shift_L}, std::pair{"control+", XK_Control_L}}) {
    if (!name.starts_with(prefix)) continue;
    keys.push_back(static_cast<KeySym>(modifier));
    name.erase(0, std::string(prefix).size());
  }
  keys.push_back(XStringToKeysym(name.c_str()));
  if (!down) std::reverse(keys.begin(), keys.end());
  for (const KeySym symbol : keys) {
    XTestFakeKeyEvent(display_, XKeysymToKeycode(display_, symbol), down ? True : False, 0);
  }
  XFlush(display_);
}

bool XScreen::Handle_Events(Clock::time_point until) {
  bool handled = false;
  while (true) {
    while (XPending(display_) > 0) {
      XEvent event;
      XNextEvent(display_, &event);
      Handle(event);
      handled = true;
    }
    if (handled) return true;
    const auto left = until - Clock::now();
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(left).count();
    if (nanoseconds <= 0) return false;
    constexpr long kSecond = 1000000000;
    const timespec wait{nanoseconds / kSecond, nanoseconds % kSecond};
    pollfd connection{ConnectionNumber(display_), POLLIN, 0};
    ppoll(&connection, 1, &wait, nullptr);
  }
}

void XScreen::Handle(const XEvent& event) {
  if (event.type == CreateNotify) {
    Window_Created(event.xcreatewindow.window);
  } else if (event.type == damage_event_ + XDamageNotify) {
    const auto arrived = Clock::now();
    const Window window = reinterpret_cast<const XDamageNotifyEvent&>(event).drawable;
    const auto entry = windows_.find(window);
    if (entry == windows_.end()) return;
    ++paintings_;
    last_painting_ = arrived;
    if (entry->second.painted || !Shows_A_Picture(window)) return;
    entry->second.painted = true;
    ++painted_windows_;
    last_painting_ = arrived;
  }
}

void XScreen::Window_Created(Window window) {
  if (pid_ == 0 || !Belongs_To_Program(window)) return;
  if (XDamageCreate(display_, window, XDamageReportRawRectangles) == None) return;
  windows_[window];
}

bool XScreen::Belongs_To_Program(Window window) {
  XResClientIdSpec question{window, XRES_CLIENT_ID_PID_MASK};
  long count = 0;
  XResClientIdValue* answers = nullptr;
  if (XResQueryClientIds(display_, 1, &question, &count, &answers) != Success) return false;
  pid_t pid = 0;
  for (long i = 0; i < count; ++i) {
    if (XResGetClientIdType(&answers[i]) == XRES_CLIENT_ID_PID) {
      pid = XResGetClientPid(&answers[i]);
    }
  }
  XResClientIdsDestroy(count, answers);
  return pid == pid_;
}

bool XScreen::Grab(Window window, int width, int height) {
  if (image_ != nullptr && (image_->width != width || image_->height != height)) {
    image_->data = nullptr;  // the segment stays
    XDestroyImage(image_);
    image_ = nullptr;
  }
  if (image_ == nullptr) {
    const int screen = DefaultScreen(display_);
    image_ = XShmCreateImage(display_, DefaultVisual(display_, screen),
                             static_cast<unsigned>(DefaultDepth(display_, screen)), ZPixmap,
                             segment_.shmaddr, &segment_, static_cast<unsigned>(width),
                             static_cast<unsigned>(height));
    if (image_ == nullptr) return false;
  }
  return XShmGetImage(display_, window, image_, 0, 0, AllPlanes) == True;
}

bool XScreen::Shows_A_Picture(Window window) {
  XWindowAttributes place;
  if (XGetWindowAttributes(display_, window, &place) == 0 || place.map_state != IsViewable) {
    return false;
  }
  constexpr int kLeast = 20;  // pixels; helper windows are smaller
  if (place.width < kLeast || place.height < kLeast) return false;
  if (!Grab(window, place.width, place.height)) return false;
  const auto* pixels = reinterpret_cast<const std::uint32_t*>(segment_.shmaddr);
  const auto count = static_cast<std::size_t>(place.width) * static_cast<std::size_t>(place.height);
  return std::any_of(pixels, pixels + count, [&](std::uint32_t pixel) { return pixel != *pixels; });
}

std::uint64_t XScreen::Picture() {
  const int screen = DefaultScreen(display_);
  const int width = DisplayWidth(display_, screen);
  const int height = DisplayHeight(display_, screen);
  if (!Grab(DefaultRootWindow(display_), width, height)) return 0;
  constexpr std::uint64_t kOffset = 14695981039346656037U;  // FNV-1a
  constexpr std::uint64_t kPrime = 1099511628211U;
  std::uint64_t sum = kOffset;
  const auto* words = reinterpret_cast<const std::uint64_t*>(segment_.shmaddr);
  const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) / 2;
  for (std::size_t i = 0; i < count; ++i) sum = (sum ^ words[i]) * kPrime;
  return sum;
}

void XScreen::Take_Focus() {
  XSetInputFocus(display_, focus_holder_, RevertToPointerRoot, CurrentTime);
  XSync(display_, False);
}

}  // namespace norvane
