"""A user's hands on a display: keys, mouse and window manager, through the X server alone."""

import select
import time

from Xlib import X, XK, Xatom, Xutil, display, error
from Xlib.ext import xtest
from Xlib.protocol import event, request

PATIENCE = 20  # seconds
KEYS = {
    " ": "space", ".": "period", ",": "comma", "-": "minus", "+": "plus", "~": "asciitilde",
    "%": "percent", "\b": "BackSpace",
}


class NoAnswer(Exception):
    """Somebody who ought to doesn't answer."""


class Screen:
    def __init__(self):
        self.display = display.Display()
        self.root = self.display.screen().root
        # Programs send their answers to where the window manager listens.
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask
                                    | X.StructureNotifyMask | X.PropertyChangeMask)
        # The window manager says what frame it would give to this window, which never shows.
        self.own = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.own.change_attributes(event_mask=X.PropertyChangeMask)
        self.number = 0
        self.asked = None  # the window that a program is asked by
        self.panels = []
        self.area = self.work_area()

    def atom(self, name):
        return self.display.get_atom(name)  # asked for once

    def reaches(self, x, y):
        left, top, width, height = self.area
        return left < x < left + width and top <= y < top + height

    # Panels

    def work_area(self):
        """Left, top, width and height of what panels leave free."""
        listed = self.root.get_full_property(self.atom("_NET_WORKAREA"), Xatom.CARDINAL)
        return tuple(listed.value[:4])

    def put_up_panels(self, left, top, right, bottom):
        """Panels at the sides of the screen, in the place of those before, as thick as that."""
        for panel in self.panels:
            panel.destroy()
        # A new one may get the number of one that has gone, and would be taken for that.
        self.hear_manager()
        whole = self.display.screen()
        width, height = whole.width_in_pixels, whole.height_in_pixels
        bars = [(0, 0, left, height), (0, 0, width, top), (width - right, 0, right, height),
                (0, height - bottom, width, bottom)]
        # In the order of the window manager.
        sides = [left, right, top, bottom]
        self.panels = [self.panel(bar, [side if number == place else 0
                                        for place, side in enumerate(sides)])
                       for bar, number in zip(bars, (0, 2, 1, 3)) if min(bar[2:]) > 0]
        wanted = left, top, width - left - right, height - top - bottom
        end = time.monotonic() + PATIENCE
        while self.work_area() != wanted:
            if time.monotonic() > end:
                raise NoAnswer(f"the window manager leaves {self.work_area()}, not {wanted}")
            self.hear_manager()
        self.area = wanted

    def panel(self, bar, struts):
        window = self.root.create_window(*bar, 0, X.CopyFromParent)
        for name, kind, value in [
                ("_NET_WM_WINDOW_TYPE", Xatom.ATOM, [self.atom("_NET_WM_WINDOW_TYPE_DOCK")]),
                ("_NET_WM_STRUT", Xatom.CARDINAL, struts)]:
            window.change_property(self.atom(name), kind, 32, value)
        window.set_wm_normal_hints(flags=Xutil.USPosition)  # else the window manager finds one
        window.map()
        return window

    # Hands

    def move_mouse(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=int(x), y=int(y))

    def press(self, button=1):
        xtest.fake_input(self.display, X.ButtonPress, button)

    def release(self, button=1):
        xtest.fake_input(self.display, X.ButtonRelease, button)

    def click(self, button=1):
        self.press(button)
        self.release(button)
        # A press goes to the window manager first; keys that are struck sooner would overtake it.
        self.hear_manager()

    def key(self, name, *held):
        """A key by the name of its sign, while others are held."""
        keysym = XK.string_to_keysym(KEYS.get(name, name))
        code = self.display.keysym_to_keycode(keysym)
        if self.display.keycode_to_keysym(code, 0) != keysym:
            held += ("Shift_L",)
        codes = [self.display.keysym_to_keycode(XK.string_to_keysym(key)) for key in held]
        for held_code in codes:
            xtest.fake_input(self.display, X.KeyPress, held_code)
        xtest.fake_input(self.display, X.KeyPress, code)
        xtest.fake_input(self.display, X.KeyRelease, code)
        for held_code in reversed(codes):
            xtest.fake_input(self.display, X.KeyRelease, held_code)

    def ask_manager(self, window, kind, *data):
        """What a pager or task bar asks of the window manager."""
        pager = 2
        message = event.ClientMessage(
            window=window, client_type=self.atom(kind),
            data=(32, [number & 0xFFFFFFFF for number in data or (0, pager)]
                  + [0] * (5 - max(len(data), 2))))
        self.root.send_event(
            message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)

    # Windows

    def windows_of(self, pid):
        """The windows of a program that the window manager knows, the oldest first."""
        listed = self.root.get_full_property(self.atom("_NET_CLIENT_LIST"), Xatom.WINDOW)
        windows = []
        for number in listed.value if listed else []:
            window = self.display.create_resource_object("window", number)
            try:
                owner = window.get_full_property(self.atom("_NET_WM_PID"), Xatom.CARDINAL)
            except Exception:  # it has gone meanwhile
                continue
            if owner and owner.value[0] == pid:
                windows.append(window)
        return windows

    def await_window(self, pid, title, patience):
        """Whether a program gets a window of this title meanwhile."""
        listed = self.atom("_NET_CLIENT_LIST")
        while title not in map(self.title_of, self.windows_of(pid)):
            if not self.wait_for(lambda e: e.type & 0x7F == X.PropertyNotify
                                 and e.window.id == self.root.id and e.atom == listed, patience):
                return False
        return True

    def title_of(self, window):
        title = window.get_full_property(self.atom("_NET_WM_NAME"), self.atom("UTF8_STRING"))
        return title.value.decode() if title else ""

    def with_frame(self, window):
        """The window that the window manager has put around another one."""
        while True:
            parent = window.query_tree().parent
            if not parent or parent.id == self.root.id:
                return window
            window = parent

    def frame_of(self, window):
        """Left, top, width and height of a window with its frame."""
        place = self.with_frame(window).get_geometry()
        return place.x, place.y, place.width, place.height

    def size_of(self, window):
        """Width and height without its frame."""
        place = window.get_geometry()
        return place.width, place.height

    def is_topmost_at(self, window, x, y):
        """Whether a click there is one on this window."""
        topmost = self.root.translate_coords(self.root, x, y).child
        return bool(topmost) and topmost.id == self.with_frame(window).id

    def is_maximised(self, window):
        states = window.get_full_property(self.atom("_NET_WM_STATE"), Xatom.ATOM)
        return bool(states) and self.atom("_NET_WM_STATE_MAXIMIZED_VERT") in states.value

    def active_window(self):
        active = self.root.get_full_property(self.atom("_NET_ACTIVE_WINDOW"), Xatom.WINDOW)
        return active.value[0] if active else 0

    def colours_at(self, points):
        """Red, green and blue of what shows there."""
        asked = [request.GetImage(
            display=self.display.display, defer=True, format=X.ZPixmap, drawable=self.root.id,
            x=x, y=y, width=1, height=1, plane_mask=0xFFFFFFFF) for x, y in points]
        for image in asked:
            image.reply()
        return [tuple(image.data[2::-1]) for image in asked]

    # Rest

    def wait_for(self, wanted, patience=PATIENCE):
        end = time.monotonic() + patience
        while True:
            while self.display.pending_events():
                if wanted(self.display.next_event()):
                    return True
            left = end - time.monotonic()
            if left <= 0:
                return False
            select.select([self.display], [], [], left)

    def hear_manager(self):
        """Comes back when the window manager has dealt with all that came before."""
        self.ask_manager(self.own, "_NET_REQUEST_FRAME_EXTENTS")
        self.display.flush()
        # It tells the frame in other ways too; of this one there is one answer a question.
        frame = self.atom("_NET_FRAME_EXTENTS")
        if not self.wait_for(lambda e: e.type & 0x7F == X.PropertyNotify
                             and e.window.id == self.own.id and e.atom == frame):
            raise NoAnswer("the window manager doesn't answer")

    def hear_program(self, pid):
        """The same for a program; it may have no window to ask."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if self.asked is None:
                # Of the windows the oldest is the one that stays.
                windows = self.windows_of(pid)
                if not windows:
                    return
                self.asked = windows[0]
            if self.ping(self.asked):
                return
            self.asked = None  # it has gone
        raise NoAnswer("the program doesn't answer")

    def ping(self, window):
        self.number += 1
        number = self.number
        kind = self.atom("_NET_WM_PING")
        message = event.ClientMessage(
            window=window, client_type=self.atom("WM_PROTOCOLS"),
            data=(32, [kind, 0, window.id, number, 0]))
        # One that has gone meanwhile is no mistake.
        window.send_event(message, event_mask=X.NoEventMask, onerror=error.CatchError())
        self.display.flush()
        return self.wait_for(lambda e: e.type & 0x7F == X.ClientMessage and e.data[0] == 32
                             and e.data[1][0] == kind and e.data[1][3] == number, 1)

    def rest(self, pid):
        """Comes back when all that was sent has been received by all who pass it on."""
        self.hear_manager()
        self.hear_program(pid)
