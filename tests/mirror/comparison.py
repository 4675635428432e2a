"""What the model says that a person sees, and what the bus and the display tell, side by side."""

import accessible
from windows import FORMS, OWN, TOOLS, fields_of

GREEK = {"l": "\u03bb", "a": "\u03b1"}
FIRST_INDEX_OF_UNITS = 5  # Label4: the percentage stands between the values


def truth(text):
    return text == "true"


def is_part(field):
    """Fields that are parts of others, or none of the model's."""
    return field in ("rule", *OWN) or field.endswith((".up", ".down"))


def attributes(kind, field):
    names = ["Visible"]
    if kind in "ltbc" and not field.startswith(("imgExit", "picTotal", "Picture2")):
        names.append("Caption")
    if kind == "t":
        names += ["Locked", "BackColor"]
    if kind == "l":
        names += ["BackStyle", "BackColor"]
    if field.startswith("cmdToolBar"):
        names.append("Picture")
    return names


def questions(form):
    """The names of all that the model is asked about a form."""
    prefix = form + "."
    names = []
    for kind, field in FORMS[form]:
        if is_part(field):
            continue
        if kind == "p":
            names += [f"{field}.Tab"] + [f"{field}.TabCaption({i})" for i in range(3)]
        elif kind == "g":
            names += [f"{field}.{size}" for size in ("Rows", "Cols", "Row", "RowSel")]
        else:
            names += [f"{field}.{attribute}" for attribute in attributes(kind, field)]
        if kind in "ci":
            names += [f"{field}.ListCount", f"{field}.ListIndex"]
    if form == "Warmt":
        names += [f"SpinButton1({i}).Visible" for i in range(6)]
        names += ["picToolbar.Visible", "picToolTip.Visible", "LblTooltip.Visible",
                  "LblTooltip.Caption", "Picture2.Picture"]
    if form == "Settings":
        names += [f"UpDown1({i}).Visible" for i in range(2)]
    names += ["Caption", "Left", "Top", "Width", "Height", "Active"]
    return [prefix + name for name in names]


class Wanted:
    """What the model says."""

    def __init__(self, model):
        self.model = model
        loaded = model.get([f"Loaded.{form}" for form in FORMS])
        loaded = [form for form in FORMS if loaded.get(f"Loaded.{form}") == "true"]
        shown = model.get([f"{form}.Visible" for form in loaded])
        self.forms = [form for form in loaded if truth(shown[f"{form}.Visible"])]
        self.raw = model.get([name for form in self.forms for name in questions(form)]
                             + ["Focus", "Lang_Index", "Calc_List.UBound"])
        self.raw.update(model.get(list(self.more_questions())))

    def more_questions(self):
        """Those whose names depend on the first answers."""
        slot = self.raw["Lang_Index"]
        yield from (f"Lang_Text({slot},{text})" for text in TOOLS.values())
        for form, field in (("Warmt", "Combo1"), ("Address", "List1")):
            if form in self.forms:
                count = int(self.raw[f"{form}.{field}.ListCount"])
                yield from (f"{form}.{field}.Item({i})" for i in range(count))
        if "Total" in self.forms:
            rows, columns = (int(self.raw[f"Total.grdResult.{size}"]) for size in ("Rows", "Cols"))
            yield from (f"Total.grdResult.Cell({row},{column})"
                        for row in range(rows) for column in range(columns))

    def front(self):
        return next((form for form in self.forms if truth(self.raw[f"{form}.Active"])), None)

    def focus(self):
        """The field that has the focus, None where the model leaves it to the window."""
        form, _, field = self.raw["Focus"].rpartition(".")
        form = form or "Warmt"
        if not field or form != self.front():
            return None
        if (form, field) != ("Total", "grdResult") and not self.visible(form, field):
            return None
        return f"{form}.{field}"

    def text(self, form, field):
        return self.raw.get(f"{form}.{field}.Caption", "")

    def visible(self, form, field):
        raw = lambda name: truth(self.raw[f"{form}.{name}.Visible"])  # noqa: E731
        pair = field.removesuffix(".up").removesuffix(".down")
        if field == "rule":
            return raw("Label6")
        if form == "Settings":
            return raw(pair) and self.on_front_tab(pair) if pair != "SSTab1" else True
        if field.startswith("cmdToolBar"):
            return raw(field) and raw("picToolbar")
        return raw(pair)

    def on_front_tab(self, field):
        tabs = {"Text1": 1, "Label1(0)": 2, "Label2": 2, "Text3": 2, "Command1": None,
                "Command2": None}
        tab = tabs.get(field, 0)
        return tab is None or tab == int(self.raw["Settings.SSTab1.Tab"])

    def name(self, form, field):
        """What the bus is to tell as the name of a field."""
        text = lambda name: self.text(form, name)  # noqa: E731
        row = int(field[field.index("(") + 1:-1]) if field.endswith(")") else 0
        if field in TOOLS:
            return self.raw[f"Lang_Text({self.raw['Lang_Index']},{TOOLS[field]})"]
        if form == "Warmt" and field.startswith("Text2"):
            return f"{text(f'Label1({row})')}: {text(field)} {text(f'Label8({row})')}"
        if form == "Warmt" and field.startswith("Label4"):
            if row == FIRST_INDEX_OF_UNITS:
                return f"{text('Label3(5)')}: {text(field)}"
            heading = row if row < FIRST_INDEX_OF_UNITS else row - 1
            return f"{text(f'Label3({heading})')}: {text(field)} {text(f'Label9({heading})')}"
        if form == "Warmt" and field.startswith("Label2"):
            return GREEK[text(field)]
        if field == "picTotal":
            lines = int(self.raw["Calc_List.UBound"]) - 1
            shown = self.raw[f"Lang_Text({self.raw['Lang_Index']},{TOOLS['cmdToolBar0(0)']})"]
            return f"{shown}: {lines}"
        return text(field)

    def of_field(self, told, form, kind, field):
        if field in OWN:
            return
        key = f"{form}.{field}"
        visible = self.visible(form, field)
        if kind == "l":
            opaque = self.raw[f"{key}.BackStyle"] == "1"
            visible = visible and (opaque or self.text(form, field) != "")
        told[key + " shows"] = visible
        if not visible or is_part(field):
            return
        if kind == "t":
            told[key + " text"] = self.text(form, field)
            told[key + " locked"] = truth(self.raw[key + ".Locked"])
        elif kind in "lb" and field not in ("imgExit", "Toolbar1"):
            told[key + " name"] = self.name(form, field)
        if field in TOOLS:
            told[key + " chosen"] = self.raw[key + ".Picture"] == "chosen"
        if kind in "ci":
            count = int(self.raw[key + ".ListCount"])
            told[key + " items"] = [self.raw[f"{key}.Item({i})"] for i in range(count)]
        if kind == "c":
            told[key + " chosen item"] = self.text(form, field)
        if field == "Picture2":
            told[key + " picture"] = int(self.raw[key + ".Picture"])

    def told(self):
        told = {"windows": sorted(self.forms), "front": self.front()}
        for form in self.forms:
            told[form + " title"] = self.raw[form + ".Caption"] if form != "About" else ""
            for kind, field in FORMS[form]:
                if kind in "pg":
                    self.of_part(told, form, kind, f"{form}.{field}")
                else:
                    self.of_field(told, form, kind, field)
        focus = self.focus()
        if focus is not None:
            told["focus"] = focus
        if "Warmt" in self.forms:
            tip = truth(self.raw["Warmt.picToolTip.Visible"])
            told["tip"] = self.raw["Warmt.LblTooltip.Caption"] if tip else None
        return told

    def of_part(self, told, form, kind, key):
        if kind == "p":
            # Which one is in front isn't told; the fields that show tell it.
            told[key + " captions"] = [self.raw[f"{key}.TabCaption({i})"] for i in range(3)]
            return
        rows, columns = int(self.raw[key + ".Rows"]), int(self.raw[key + ".Cols"])
        told[key + " rows"] = [[self.raw[f"{key}.Cell({row},{column})"]
                                for column in range(columns)] for row in range(rows)]
        low, high = sorted(int(self.raw[f"{key}.{end}"]) for end in ("Row", "RowSel"))
        told[key + " marked"] = list(range(low, high + 1)) if low else []


class Seen:
    """What the bus tells."""

    def __init__(self, program):
        self.program = program
        self.tops, self.fields = {}, {}
        self.boxes = []
        for top in program.windows():
            form, fields = fields_of(top)
            if form == "message":
                self.boxes.append(top)
            else:
                self.tops[form], self.fields[form] = top, fields

    def front(self):
        return next((form for form, top in self.tops.items() if top.has(accessible.ACTIVE)), None)

    def focus(self):
        """The field of the window in front that has the focus."""
        form = self.front()
        return next((f"{form}.{field}" for field, node in self.fields.get(form, {}).items()
                     if any(part.has(accessible.FOCUSED) for part in parts_of(node))), None)

    def of_field(self, told, key, kind, node):
        told[key + " shows"] = node.has(accessible.SHOWING)
        told[key + " name"] = node.name
        told[key + " text"] = node.text
        told[key + " locked"] = node.has(accessible.READ_ONLY)
        told[key + " chosen"] = node.has(accessible.CHECKED)
        if kind == "c":
            told[key + " chosen item"] = next(
                (item.name for item in node.children if item.has(accessible.SELECTED)), "")
        if kind in "ci":
            told[key + " items"] = [item.name for item in node.below() if not item.children
                                    and item.role not in accessible.LISTS]
        if kind == "p":
            tabs = [child for child in node.children if child.role == accessible.PAGE_TAB]
            told[key + " captions"] = [tab.name for tab in tabs]
        if kind == "g":
            told[key + " rows"] = rows_of(node)
            told[key + " marked"] = marked_rows(node)
        if kind == "f":
            number = node.name.rpartition(" ")[2]
            told[key + " picture"] = int(number) if number.isdigit() else None

    def told(self):
        told = {"windows": sorted(list(self.tops) + ["message"] * len(self.boxes)),
                "front": self.front(), "focus": self.focus()}
        for form, top in self.tops.items():
            told[form + " title"] = top.name
            for kind, field in FORMS[form]:
                self.of_field(told, f"{form}.{field}", kind, self.fields[form][field])
        if "Warmt" in self.fields:
            tip = self.fields["Warmt"].get("picToolTip")
            shown = tip is not None and tip.has(accessible.SHOWING)
            told["tip"] = self.fields["Warmt"]["LblTooltip"].name if shown else None
        return told


def parts_of(node):
    """What may have the focus for a field. The chosen item of a closed list and the tab in front
    say that they have it while another field does."""
    yield node
    if node.role in accessible.LISTS:
        yield from node.below()


def cells_of(table):
    """The captions of a table, and its cells, a list a row."""
    captions = [cell for cell in table.children if cell.role in accessible.COLUMN_HEADER]
    cells = [cell for cell in table.children if cell.role == accessible.TABLE_CELL]
    columns = len(captions) or 1
    return captions, [cells[i:i + columns] for i in range(0, len(cells), columns)]


def rows_of(table):
    """What the cells say, a list a row; the captions first."""
    captions, rows = cells_of(table)
    return [[cell.name for cell in row] for row in [captions, *rows] if row]


def marked_rows(table):
    """The numbers of the rows that are marked, from 1."""
    return [number for number, row in enumerate(cells_of(table)[1], 1)
            if any(cell.has(accessible.SELECTED) for cell in row)]


def differences(wanted, seen):
    """Lines of what isn't the same."""
    return [f"{key}: the model says {value!r}, the window shows {seen.get(key)!r}"
            for key, value in wanted.items() if seen.get(key) != value]
