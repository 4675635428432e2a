"""Where the windows lie: where the model says, as far as the screen has room, and nowhere else unless
their user has put them there."""

import math

TWIPS = 15  # a pixel
FRAME = 7  # pixels by which that of a maximised window is lower


def pixels(twips):
    return math.floor(float(twips) / TWIPS + 0.5)


def moved_between(wished, length, first, room):
    """The place nearest to the wished one where a length lies between two borders."""
    return max(first, min(wished, first + room - length))


class Places:
    def __init__(self, session):
        self.session = session
        self.told = {}  # by form, what the model says of its place and where its window is then
        self.asked = {}  # by form, where its user has put its window, None for somewhere

    def ask(self, form, place):
        self.asked[form] = place

    def said(self, form):
        raw = self.session.wanted.raw
        return raw[f"{form}.Left"], raw[f"{form}.Top"]

    def wished(self, form, inside, outside):
        """The upper left that a window of this size, without and with its frame, is to have."""
        raw = self.session.wanted.raw
        if form == "Settings":
            left, top, width, height = self.frames["Warmt"]
            return left + (width - outside[0]) // 2, top + (height - outside[1]) // 2
        # One that needs more than the form's size keeps the middle that the form gives it.
        return tuple(pixels(raw[f"{form}.{edge}"]) - (side - pixels(raw[f"{form}.{length}"])) // 2
                     for edge, length, side in zip(("Left", "Top"), ("Width", "Height"), inside))

    def placed(self, form):
        """Where the program is to put its window."""
        left, top, width, height = self.session.screen.area
        _, _, *outside = self.frames[form]
        x, y = self.wished(form, self.insides[form], outside)
        return moved_between(x, outside[0], left, width), moved_between(y, outside[1], top, height)

    def leeway(self, form):
        """The middle of the main window depends on a frame that the program has to guess."""
        return FRAME // 2 if form == "Settings" and form not in self.told else 0

    def differences(self, windows):
        """Lines of the windows that lie elsewhere; the model is told of the others."""
        screen = self.session.screen
        self.frames = {form: screen.frame_of(window) for form, window in windows.items()}
        self.insides = {form: screen.size_of(window) for form, window in windows.items()}
        for form in set(self.told) - set(self.session.wanted.forms):
            del self.told[form]
            self.asked.pop(form, None)
        return [line for form in windows for line in self.different(form)]

    def different(self, form):
        seen = self.frames[form][:2]
        if form in self.told and self.told[form][0] == self.said(form):
            wanted = self.asked.get(form, self.told[form][1]) or seen
            who = "it was put to"
        else:
            wanted, who = self.placed(form), "the model says"
        if any(abs(one - other) > self.leeway(form) for one, other in zip(wanted, seen)):
            return [f"{form} place: {who} {wanted}, the window lies at {seen}"]
        self.asked.pop(form, None)
        self.tell(form, seen)
        return []

    def tell(self, form, seen):
        """Where a window has come to lie is the user's and his window manager's."""
        if seen != tuple(map(pixels, self.said(form))):
            left, top = (TWIPS * edge for edge in seen)
            self.session.play(f"move {form} {left} {top}")
            self.session.wanted.raw.update(
                {f"{form}.Left": str(left), f"{form}.Top": str(top)})
        self.told[form] = self.said(form), seen
