"""What a random user does with windows as such, by the window manager."""


class OutOfSight(Exception):
    """It lies beside the screen or under another window, where no mouse comes."""


class WindowUser:
    def __init__(self, session, choose):
        self.session, self.screen = session, session.screen
        self.random = choose
        self.form = None  # whose window he uses; mostly the one in front
        self.queued = False  # an answer waits for the next question

    def choose_form(self):
        """The one in front, or now and then another one that he sees beside it."""
        front, forms = self.session.wanted.front(), self.session.wanted.forms
        others = [form for form in forms if form not in (front, "About")]
        if front != "Settings" and others and self.random.random() < 0.25:
            return self.random.choice(others)
        return front

    def require_in_sight(self, *points):
        window = self.window(self.form)
        if window is None or not all(self.screen.reaches(x, y)
                                     and self.screen.is_topmost_at(window, x, y)
                                     for x, y in points):
            raise OutOfSight()

    def do(self, lines, hands):
        told = self.session.play(*lines)
        if any("| yes/no ->" in line for line in told):
            self.queued = False
        hands()
        self.screen.display.sync()
        self.session.hear(told)

    def window(self, form):
        return self.session.windows().get(form)

    def close_window(self):
        form = self.form
        window = self.window(form)
        if window is not None:
            self.do([f"close {form}"],
                    lambda: self.screen.ask_manager(window, "_NET_CLOSE_WINDOW"))

    def bring_forward(self):
        form = self.random.choice(self.session.wanted.forms)
        window = self.window(form)
        if window is not None:
            pager = 2
            self.do([f"activate {form}"], lambda: self.screen.ask_manager(
                window, "_NET_ACTIVE_WINDOW", pager, 0))

    def place_window(self, flags, *place):
        """Whether there is one that can be placed."""
        window = self.window(self.form)
        if window is None or self.screen.is_maximised(window):
            return False
        upper_left = 1
        self.do([], lambda: self.screen.ask_manager(
            window, "_NET_MOVERESIZE_WINDOW", upper_left | flags << 8 | 2 << 12, *place))
        return True

    def resize(self):
        size = self.random.randrange(300, 1200), self.random.randrange(300, 1000)
        if self.place_window(0b1100, 0, 0, *size):
            # The window manager moves what would leave the screen.
            self.session.places.ask(self.form, None)

    def move(self):
        left, top, width, height = self.screen.area
        place = (left + self.random.randrange(-200, width - 100),
                 top + self.random.randrange(0, height - 100))
        if self.place_window(0b0011, *place, 0, 0):
            self.session.places.ask(self.form, place)

    def maximise(self):
        """And back."""
        window = self.window(self.form)
        if window is None:
            return
        toggle, pager = 2, 2
        self.do([], lambda: self.screen.ask_manager(
            window, "_NET_WM_STATE", toggle, self.screen.atom("_NET_WM_STATE_MAXIMIZED_VERT"),
            self.screen.atom("_NET_WM_STATE_MAXIMIZED_HORZ"), pager))
        self.session.places.ask(self.form, None)

    def drag_by_title(self):
        self.drag(8)
        # The window manager holds it back at the borders of the screen.
        self.session.places.ask(self.form, None)

    def drag_by_ground(self):
        self.session.places.ask(self.form, self.drag(4))

    def drag(self, down):
        """Drags a window by what lies so far below its upper edge, and says where to."""
        frame = self.session.places.frames.get(self.form)
        if frame is None:
            raise OutOfSight()
        left, top, width, _ = frame
        x, y = left + width // 2, top + down
        self.require_in_sight((x, y))
        across, along = self.random.randrange(-150, 150), self.random.randrange(-100, 100)

        def hands():
            self.screen.move_mouse(x, y)
            self.screen.press()
            for part in (0.3, 0.7, 1):
                self.screen.move_mouse(x + across * part, y + along * part)
                self.screen.hear_manager()
            self.screen.release()

        self.do([f"activate {self.form}"], hands)
        return left + across, top + along
