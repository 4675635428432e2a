"""One session: the real window and the model, played side by side."""

import os
import shutil
import subprocess
import tempfile
import time

from Xlib import error

import accessible
from comparison import Seen, Wanted, differences, marked_rows
from grounds import different_grounds
from model import Model
from places import TWIPS, Places
from screen import NoAnswer
from windows import UnknownWindow

PATIENCE = 20  # seconds, for what a busy machine needs
ICONS = {"none": [], "information": ["Information"], "exclamation": ["Warning"],
         "question": ["Question"]}
BUTTONS = {"ok": ["OK"], "yes/no": ["No", "Yes"]}
LOCALES = {"point": "en_GB.UTF-8", "comma": "de_DE.UTF-8"}


class Difference(Exception):
    """What the window shows isn't what the model says."""


class Session:
    def __init__(self, bus, screen, driver, folder, seed, locale, settings):
        self.bus, self.screen, self.seed, self.locale = bus, screen, seed, locale
        self.script = [f"# session {seed}, locale {locale}"]
        self.home = tempfile.mkdtemp()
        self.folders = [os.path.join(self.home, name) for name in ("window", "model")]
        for copy in self.folders:
            shutil.copytree(folder, copy)
            self.prepare(copy, settings)
        self.model = Model(driver, self.folders[1], locale)
        environment = dict(os.environ, LC_ALL=LOCALES[locale])
        self.process = subprocess.Popen([os.path.join(self.folders[0], "norvane")],
                                        env=environment)
        self.screen.asked = None
        self.ended = False
        self.wanted = self.seen = None
        self.asked_about = None  # the rows that the next question is about
        self.places = Places(self)

    def prepare(self, copy, settings):
        # Without the spreadsheet program both are in the same world.
        for plug_in in os.listdir(copy):
            if plug_in.endswith(".so"):
                os.remove(os.path.join(copy, plug_in))
        path = os.path.join(copy, "norvane.ini")
        if os.path.exists(path):
            os.remove(path)
        if settings:
            with open(path, "w", encoding="cp1252", newline="") as file:
                file.write(settings)

    def start(self):
        self.play("screen " + " ".join(str(TWIPS * side) for side in self.screen.area))
        self.play("start")
        # The splash stands for three seconds.
        title = self.model.get(["Warmt.Caption"])["Warmt.Caption"]
        if not self.screen.await_window(self.process.pid, title, PATIENCE):
            raise Difference([f"no window {title!r} comes"])
        owner = self.bus.program(self.process.pid)
        if owner is None:
            raise Difference(["the program isn't on the bus"])
        self.program = accessible.Program(self.bus, owner)
        self.compare()

    def be_patient(self, end, what):
        if self.process.poll() is not None:
            raise Difference([f"the program has ended with {self.process.returncode}"])
        if time.monotonic() > end:
            raise Difference([what])
        time.sleep(0.02)

    def play(self, *lines):
        self.script += lines
        return self.model.play(*lines)

    def rest(self):
        """Comes back when the program has dealt with all that was sent."""
        if self.process.poll() is None:
            self.screen.rest(self.process.pid)
            # The window system's side answers before its events are dealt with, the bus's between
            # two of them.
            for _ in range(2):
                self.program.ask([(accessible.ROOT, accessible.ACCESSIBLE, "GetState")])

    def hear(self, told):
        for line in told:
            if line.startswith("message "):
                self.answer(line)
            elif line.startswith("runtime error "):
                self.read_error(line)
            elif line == "ended":
                self.end()
            elif not line.startswith("refused"):
                raise Difference([f"the model prints {line!r}"])

    def box(self):
        """The message box in front, when it has come."""
        end = time.monotonic() + PATIENCE
        while True:
            self.rest()
            try:
                self.seen = Seen(self.program)
                if self.seen.boxes:
                    return self.seen.boxes[-1]
            except UnknownWindow:
                pass
            self.be_patient(end, "the message doesn't come")

    def answer(self, line):
        title, _, rest = line.removeprefix("message ").partition(" | ")
        text, icon, buttons = rest.rsplit(" | ", 2)
        buttons, answer = buttons.removesuffix(" (unanswered)").split(" -> ")
        wanted = {"title": title, "icon": ICONS[icon], "text": text, "buttons": BUTTONS[buttons]}
        self.press_in_box(wanted, {"ok": "OK", "yes": "Yes", "no": "No"}[answer])

    def read_error(self, line):
        number, text = line.removeprefix("runtime error ").split(": ", 1)
        self.press_in_box({"title": "Norvane", "icon": ["Error"], "text":
                           f"Run-time error '{number}':\\n\\n{text}"}, "OK")

    def press_in_box(self, wanted, button):
        box = self.box()
        labels = [node for node in box.below() if node.role == accessible.LABEL]
        pictures = [node.name for node in box.below()
                    if node.role not in accessible.BUTTONS and node.name in
                    {"Information", "Warning", "Question", "Error"}]
        buttons = {node.name: node for node in box.below() if node.role in accessible.BUTTONS}
        texts = [node.name for node in labels if node.name and node.name not in pictures]
        seen = {"title": box.name, "icon": pictures,
                "text": texts[0].replace("\n", "\\n") if texts else "",
                "buttons": sorted(buttons)}
        wanted["text"] = wanted["text"].replace("\\r\\n", "\\n").replace("\\r", "\\n")
        if self.asked_about and wanted["icon"] == ICONS["question"]:
            wanted["marked"] = self.asked_about
            seen["marked"] = marked_rows(self.seen.fields["Total"]["grdResult"])
        found = differences(wanted, seen)
        if found:
            raise Difference(["message: " + line for line in found])
        self.move_to(*self.point_in(buttons[button]))
        self.screen.click()
        self.screen.display.sync()
        self.rest()

    def end(self):
        try:
            code = self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Difference(["the program doesn't end"]) from None
        self.ended = True
        if code not in (0, 3):
            raise Difference([f"the program has ended with {code}"])

    def point_in(self, node):
        x, y, width, height = self.program.place(node)
        return x + width // 2, y + height // 2

    def move_to(self, x, y):
        # A move into a window counts as an arrival alone; the next one is a move in it.
        self.screen.move_mouse(x - 1, y)
        self.screen.move_mouse(x, y)

    def windows(self):
        """The windows of the forms; not of those that share a title."""
        by_title = {}
        for window in self.screen.windows_of(self.process.pid):
            by_title.setdefault(self.screen.title_of(window), []).append(window)
        titles = [top.name for top in self.seen.tops.values()]
        return {form: by_title[top.name][0] for form, top in self.seen.tops.items()
                if form in self.wanted.forms and form != "About" and titles.count(top.name) == 1
                and len(by_title.get(top.name, [])) == 1}

    def tell_sizes(self):
        """The sizes that the windows have got: those are the user's and his window manager's."""
        raw = self.wanted.raw
        forms = [form for form in self.wanted.forms if form in self.seen.tops and form != "About"]
        places = self.program.places([self.seen.tops[form] for form in forms])
        for form, (_, _, *size) in zip(forms, places):
            width, height = (TWIPS * side for side in size)
            if (str(width), str(height)) != (raw[f"{form}.Width"], raw[f"{form}.Height"]):
                self.play(f"resize {form} {width} {height}")
                return True
        return False

    def compare(self):
        """Both look the same, or will when all that is under way has come to rest."""
        end = time.monotonic() + PATIENCE
        while not self.ended:
            self.wanted = Wanted(self.model)
            try:
                self.rest()
                self.seen = Seen(self.program)
                # First: the place that a window was given goes by the size that its form had then.
                found = self.places.differences(self.windows())
                if not found and self.tell_sizes():
                    continue
                found += differences(self.wanted.told(), self.seen.told())
                found += different_grounds(self.wanted, self.seen, self.screen)
            except (NoAnswer, UnknownWindow, error.XError) as problem:
                found = [f"{type(problem).__name__} {problem}"]
            if not found:
                return
            if time.monotonic() > end:
                raise Difference(found)
            if self.process.poll() is not None:
                raise Difference([f"the program has ended with {self.process.returncode}"])
            time.sleep(0.02)

    def same_settings(self):
        written = []
        for folder in self.folders:
            path = os.path.join(folder, "norvane.ini")
            written.append(open(path, "rb").read() if os.path.exists(path) else None)
        if written[0] != written[1]:
            raise Difference([f"norvane.ini: the model writes {written[1]!r}, "
                              f"the program {written[0]!r}"])

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self.model.close()
        shutil.rmtree(self.home)
