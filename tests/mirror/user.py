"""A random user of the real window, who tells in a script what he does."""

import random

import accessible
from window_user import OutOfSight, WindowUser
from windows import FORMS, TOOLS

ARROW_WIDTH = 22
WORDS = ["80", "13", "0", "1", "10", "21", "5.99", "6", "2.5", "100", "100.5", "-1", "-50", "115",
         "116", "32767", "1e5", "24", "0,038", "0.038", "0.04", "12,5", "12.5", "abc", "12abc",
         "-", ".", "914", "0.5", "1 2", "7654321", "-32769", "365", "366"]
LETTERS = "0123456789.,-+ex%"
BEGINNINGS = set("0123456789-")
CLICKED = {  # fields that do something when they are clicked, by form
    "Settings": ["Command1", "Command2"],
    "Lang": ["OK", "imgExit"],
    "Address": ["OK", "imgExit"],
    "Total": [],
}


class User(WindowUser):
    def __init__(self, session, seed):
        super().__init__(session, random.Random(seed))

    # What he sees

    def node(self, form, field):
        return self.session.seen.fields[form][field]

    def shown(self, form, wanted):
        return [field for kind, field in FORMS[form]
                if wanted(kind, field) and self.node(form, field).has(accessible.SHOWING)]

    def tip_covers(self, x, y):
        tip = self.session.seen.fields.get("Warmt", {}).get("picToolTip")
        if tip is None or not tip.has(accessible.SHOWING):
            return False
        left, top, width, height = self.session.program.place(tip)
        return left <= x < left + width and top <= y < top + height

    # What he does

    def act(self):
        if not self.queued:
            self.session.play("answer " + self.random.choice(["yes", "no"]))
            self.queued = True
        kinds = {
            "Warmt": [self.type] * 6 + [self.step] * 6 + [self.press_tool] * 5
            + [self.step_by_key] * 2 + [self.choose, self.press_tip, self.hover, self.leave,
                                        self.menu, self.add, self.add, self.show_total,
                                        self.show_total, self.drag_by_title, self.maximise,
                                        self.resize, self.move, self.bring_forward],
            "Settings": [self.type] * 4 + [self.step] * 2 + [self.pick_tab] * 3
            + [self.press_button] * 2 + [self.close_window, self.move],
            "Lang": [self.press_language] * 5 + [self.press_button, self.close_window,
                                                 self.bring_forward, self.move,
                                                 self.drag_by_ground],
            "Address": [self.press_button, self.close_window, self.bring_forward, self.move,
                        self.drag_by_ground],
            "Total": [self.drag_rows] * 4 + [self.click_on_grid] * 2 + [self.bring_forward] * 2
            + [self.close_window, self.resize, self.move, self.drag_by_title, self.maximise],
        }
        self.form = self.choose_form()
        try:
            self.random.choice(kinds[self.form])()
        except OutOfSight:
            pass

    def way_to(self, form, field):
        """What the model is told of a move of the mouse over a field, and the point; what lies
        over it is put away."""
        node = self.node(form, field)
        left, top, width, height = self.session.program.place(node)
        # The arrow of a field's picker has its left edge.
        nearest = ARROW_WIDTH if field.startswith("txt") else 2
        x = left + self.random.randrange(nearest, max(nearest + 1, width - 2))
        # The tip lies over the lower edge of its button.
        y = top + self.random.randrange(1, max(2, height - (8 if field in TOOLS else 1)))
        self.require_in_sight((x, y))
        if field != "LblTooltip" and self.tip_covers(x, y):
            self.leave()
        return [f"hover {form}.{field}"] if field in TOOLS else [], (x, y)

    def click_on(self, form, field, *lines):
        ahead, point = self.way_to(form, field)

        def click():
            self.session.move_to(*point)
            self.screen.click()

        self.do([*ahead, *lines], click)

    def press_keys(self, line, *keys):
        def hands():
            for key in keys:
                self.screen.key(*key if isinstance(key, tuple) else (key,))
        self.do([line] if line else [], hands)

    def type(self):
        form = self.form
        fields = self.shown(form, lambda kind, field: kind == "t")
        if not fields:
            return
        name = self.random.choice(fields)
        self.click_on(form, name, f"click {form}.{name}")
        # What begins a number opens the picker of a locked field, which the model doesn't know.
        locked = self.session.wanted.raw[f"{form}.{name}.Locked"] == "true"
        for verb, text, *keys in self.strokes():
            if locked and text[:1] in BEGINNINGS:
                continue
            # A diameter that is too small takes the focus, and with it the keys.
            if self.session.ended or not self.has_focus(form, name):
                return
            self.press_keys(f"{verb} {form}.{name}{text and ' ' + text}", *keys)

    def strokes(self):
        """What he does with the text of a field: verb, text, and the keys."""
        way = self.random.randrange(4)
        if way == 0:
            keys = ["End", "\b"]
            return [("erase", "", *keys) for _ in range(self.random.randrange(1, 4))]
        if way == 1:
            letters = [self.random.choice(LETTERS) for _ in range(self.random.randrange(1, 3))]
            return [("type", letter, "End", letter) for letter in letters]
        word = self.random.choice(WORDS)
        return [("set", word[0], ("a", "Control_L"), word[0]),
                *(("type", letter, letter) for letter in word[1:])]

    def has_focus(self, form, field):
        return self.session.model.get(["Focus"])["Focus"] in (field, f"{form}.{field}")

    def step(self):
        form = self.form
        arrows = self.shown(form, lambda kind, field: field.endswith((".up", ".down")))
        if not arrows:
            return
        arrow = self.random.choice(arrows)
        pair, _, direction = arrow.rpartition(".")
        for _ in range(self.random.randrange(1, 5)):
            if self.session.ended:
                return
            self.click_on(form, arrow, f"{direction} {form}.{pair}")

    def step_by_key(self):
        fields = self.shown("Warmt", lambda kind, field: kind == "t")
        name = self.random.choice(fields)
        self.click_on("Warmt", name, f"click {name}")
        row = 5 if name == "txtmtrs" else int(name[-2])
        direction = self.random.choice(["up", "down"])
        self.press_keys(f"{direction} SpinButton1({row})", direction.capitalize())

    def press_tool(self):
        tool = self.random.choice(self.shown("Warmt", lambda kind, field: field in TOOLS))
        self.click_on("Warmt", tool, f"click {tool}")

    def choose(self):
        count = len(self.session.wanted.raw["Warmt.Combo1.ListCount"])
        items = int(self.session.wanted.raw["Warmt.Combo1.ListCount"])
        if not count or not items:
            return
        item = self.random.randrange(items)
        self.click_on("Warmt", "Combo1")
        self.session.rest()  # the list takes mouse and keys from the display when it has opened
        self.press_keys(None, "Home", *["Down"] * item)
        self.press_keys(f"choose Combo1 {item}", "Return")

    def hover(self):
        tool = self.random.choice(self.shown("Warmt", lambda kind, field: field in TOOLS))
        lines, point = self.way_to("Warmt", tool)
        self.do(lines, lambda: self.session.move_to(*point))

    def press_tip(self):
        self.hover()
        self.session.compare()
        self.click_on("Warmt", "LblTooltip", "click LblTooltip")

    def leave(self):
        """The bare form, beside the cards."""
        top = self.session.seen.tops["Warmt"]
        left, up, width, height = self.session.program.place(top)
        x, y = left + 5, up + self.random.randrange(height // 2, height - 40)
        self.require_in_sight((x, y))
        self.do(["hover Warmt"], lambda: self.session.move_to(x, y))

    def menu(self):
        entry = self.random.choice([1, 1, 1, 1, 1, 2, 2, 2, 2, 3])
        self.click_on("Warmt", f"lblMenu({entry})", f"click lblMenu({entry})")

    def add(self):
        for field in self.shown("Warmt", lambda kind, field: field == "cmdAdd"):
            for _ in range(self.random.choice([1, 1, 2, 3, 6])):
                self.click_on("Warmt", field, "click cmdAdd")

    def show_total(self):
        for field in self.shown("Warmt", lambda kind, field: field == "picTotal"):
            self.click_on("Warmt", field, "click picTotal")

    def pick_tab(self):
        tab = self.random.randrange(3)
        tabs = self.node("Settings", "SSTab1").children
        node = [child for child in tabs if child.role == accessible.PAGE_TAB][tab]
        x, y = self.session.point_in(node)
        self.require_in_sight((x, y))

        def click():
            self.session.move_to(x, y)
            self.screen.click()

        self.do([f"tab Settings.SSTab1 {tab}"], click)

    def press_button(self):
        form = self.form
        field = self.random.choice(CLICKED[form])
        self.click_on(form, field, f"click {form}.{field}")

    def press_language(self):
        named = self.shown("Lang", lambda kind, field: field.startswith("Label2"))
        named = [field for field in named if self.session.wanted.text("Lang", field)]
        field = self.random.choice(named)
        self.click_on("Lang", field, f"click Lang.{field}")

    def drag_rows(self):
        rows = int(self.session.wanted.raw["Total.grdResult.Rows"]) - 1
        table = self.node("Total", "grdResult")
        cells = [cell for cell in table.children if cell.role == accessible.TABLE_CELL]
        columns = len(cells) // rows if rows > 0 else 0
        if not columns:
            return
        first, last = (self.random.randrange(rows) for _ in range(2))
        places = [self.session.point_in(cells[row * columns + 1]) for row in (first, last)]
        left, top, width, height = self.session.program.place(table)
        if any(not (left < x < left + width and top < y < top + height - 20) for x, y in places):
            return
        self.require_in_sight(*places)

        def drag():
            self.session.move_to(*places[0])
            self.screen.press()
            self.session.move_to(*places[1])
            self.screen.release()

        low, high = sorted([first, last])
        self.session.asked_about = list(range(low + 1, high + 2))
        self.do([f"rows Total.grdResult {first + 1} {last + 1}"], drag)
        self.session.asked_about = None

    def click_on_grid(self):
        """A click that marks no row."""
        rows = int(self.session.wanted.raw["Total.grdResult.Rows"]) - 1
        table = self.node("Total", "grdResult")
        cells = [cell for cell in table.children if cell.role == accessible.TABLE_CELL]
        captions = [cell for cell in table.children if cell.role in accessible.COLUMN_HEADER]
        if rows < 1 or not cells or not captions:
            return
        left, top, width, height = self.session.program.place(table)
        button = self.random.choice([1, 2, 3])
        way = self.random.randrange(3)
        if way == 0:
            x, y = self.session.point_in(captions[1])
        elif way == 1:
            x, y = left + width // 2, top + height - 25
            if y <= self.session.point_in(cells[-1])[1] + 20:
                return
        else:
            row = self.random.randrange(rows)
            x, y = self.session.point_in(cells[row * len(cells) // rows + 1])
            if y >= top + height - 20:
                return
            button = self.random.choice([2, 3])
        self.require_in_sight((x, y))
        self.do([], lambda: self.session.move_to(x, y))
        self.do(["click Total.grdResult"], lambda: self.screen.click(button))
