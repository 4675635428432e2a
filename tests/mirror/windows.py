"""Which field of which form each thing on the bus is: told by its place in the tree."""

import re

from accessible import BUTTONS, COMBO_BOX, LABEL, LIST, PAGE_TAB_LIST, TABLE, TEXTS

SHAPES = {COMBO_BOX: "c", LABEL: "l", LIST: "i", PAGE_TAB_LIST: "p", TABLE: "g"}
# What lies in them isn't a field: items, cells, the arrow of a field's picker, the front end's own
# commands in the band at the foot.
WHOLE = {COMBO_BOX, LABEL, LIST, PAGE_TAB_LIST, TABLE, *TEXTS}


def shape(node):
    if node.role in TEXTS:
        return "t"
    if node.role in BUTTONS:
        return "b"
    return SHAPES.get(node.role, "f")


def leaves(node):
    """What shows something, in the order of the tree."""
    for child in node.children:
        if child.children and child.role not in WHOLE:
            yield from leaves(child)
        else:
            yield child


# What the front end adds to the results, of which the model knows nothing: the answer in large
# letters; two rows of the dew point, the wall, what a screen reader is told, the chart.
OWN_ABOVE = [("l", "answer"), ("l", "answer_remark")]
OWN_BELOW = [("l", f"dew_point({i})") for i in range(6)]
OWN_BELOW += [("f", "wall"), ("f", "said"), ("f", "chart")]
OWN = {"delete", *(name for _, name in OWN_ABOVE + OWN_BELOW)}


def arrows(pair):
    return [("b", pair + ".up"), ("b", pair + ".down")]


def main_fields():
    fields = [("b", f"lblMenu({i})") for i in (1, 2, 3)] + [("l", "Label10")]
    fields += [("b", name) for name in TOOLS]
    for row in (0, 1, 3, 2, 4):
        fields += [("l", f"Label1({row})"), ("t", f"txtC({row})")]
        fields += [("t", f"txtT({row})")] if row < 4 else []
        fields += arrows(f"SpinButton1({row})") + [("l", f"Label7({row})")]
        fields += [("l", f"Text2({row})"), ("l", f"Label8({row})")] if row < 4 else []
    fields += [("l", "Label1(5)"), ("t", "txtmtrs")] + arrows("SpinButton1(5)")
    fields += [("l", "Label0"), ("f", "Picture2"), ("c", "Combo1"), ("b", "cmdAdd"),
               ("b", "picTotal"), *OWN_ABOVE, ("l", "Label2(0)"), ("l", "Label2(1)")]
    for row in range(9):
        # From the savings on the values run one ahead of the headings.
        value = row if row < 5 else row + 1
        fields += [("f", "rule"), ("l", "Label6")] if row == 5 else []
        fields += [("l", f"Label3({row})"), ("l", f"Label4({value})"), ("l", f"Label9({row})")]
        fields += [("l", "Label4(5)")] if row == 5 else []
    return fields + OWN_BELOW + [("l", "Label5")]


def language_fields():
    fields = [("l", "Label1"), ("b", "imgExit")]
    for i in range(16):
        fields += [("f", f"imgCheck({i})"), ("b", f"Label2({i})")]
        fields += [("l", f"Label3({i})")] if i < 14 else []
    return fields + [("b", "OK")]


TOOLS = {
    "cmdToolBar0(0)": 96, "cmdToolBar1(0)": 22, "cmdToolBar1(1)": 23, "cmdToolBar1(2)": 35,
    "cmdToolBar1(3)": 33, "cmdToolBarT": 6, "cmdToolBarC": 7, "cmdToolBar3(0)": 44,
    "cmdToolBar4(0)": 47, "cmdToolBar4(1)": 50, "cmdToolBar4(2)": 56, "cmdToolBar5(0)": 57,
}
FORMS = {
    "Warmt": main_fields(),
    "Settings": [("p", "SSTab1"), ("l", "Label7"), ("l", "Label6(0)"), ("t", "Text2(0)"),
                 *arrows("UpDown1(0)"), ("l", "Label6(1)"), ("t", "Text2(1)"),
                 *arrows("UpDown1(1)"), ("t", "Text1"), ("l", "Label2"), ("l", "Label1(0)"),
                 ("t", "Text3"), ("b", "Command1"), ("b", "Command2")],
    "Lang": language_fields(),
    "Address": [("l", "Label1"), ("b", "imgExit"), ("i", "List1"), ("b", "OK")],
    "Total": [("b", "Toolbar1"), ("b", "delete"), ("g", "grdResult"), ("l", "Label1")],
    "About": [("l", "Label1")],
}


class UnknownWindow(Exception):
    pass


def tooltip_of(top):
    """The box over the main screen, and the words in it: the one button alone in a frame."""
    for child in top.children:
        if len(child.children) == 1 and shape(child.children[0]) == "b":
            return child
    return None


def fields_of(top):
    """The form of a window, and its fields by their names."""
    found = list(leaves(top))
    # A box with a message has an icon, a text and one or two buttons.
    if re.fullmatch("f?l{1,3}f?b{1,2}", "".join(map(shape, found))):
        return "message", {str(i): leaf for i, leaf in enumerate(found)}
    tooltip = tooltip_of(top)
    if tooltip is not None:
        found = [leaf for leaf in found if leaf not in tooltip.children]
    shapes = "".join(map(shape, found))
    for form, fields in FORMS.items():
        if shapes == "".join(field[0] for field in fields):
            named = {field[1]: leaf for field, leaf in zip(fields, found)}
            if tooltip is not None:
                named.update({"picToolTip": tooltip, "LblTooltip": tooltip.children[0]})
            return form, named
    raise UnknownWindow(f"window {top.name!r} of {shapes}")
