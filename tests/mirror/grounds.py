"""The grounds of fields, which the bus doesn't tell: seen on the display."""

import accessible
from windows import FORMS

SIGNALS = {(224, 224, 224): "grey", (255, 0, 0): "red", (17, 176, 105): "green"}
CORNER = 4  # of a text field: behind its frame, in front of its text
FRAME = 40  # at most, of a window by the window manager
OPAQUE = "1"


def has_ground(kind, field):
    return kind == "t" or field.startswith("Text2(") or field in ("Label4(0)", "Label4(1)")


def wanted_ground(raw, kind, key):
    """The name of a signal, or None for whatever the theme gives."""
    colour = raw[key + ".BackColor"]
    if colour == "system" or kind == "l" and raw[key + ".BackStyle"] != OPAQUE:
        return None
    return SIGNALS.get(tuple(map(int, colour.split(","))), colour)


def covers(place, x, y, margin):
    left, top, width, height = place
    return (left - margin <= x < left + width + margin
            and top - margin <= y < top + height + margin)


def different_grounds(wanted, seen, screen):
    """Lines of the fields in front whose ground isn't what the model says."""
    form = wanted.front()
    if form not in seen.fields:
        return []
    shown = [(kind, field, seen.fields[form][field]) for kind, field in FORMS[form]
             if has_ground(kind, field) and seen.fields[form][field].has(accessible.SHOWING)]
    others = [top for name, top in seen.tops.items() if name != form]
    tip = seen.fields[form].get("picToolTip")
    if tip is not None and tip.has(accessible.SHOWING):
        others.append(tip)
    places = seen.program.places([node for _, _, node in shown] + others)
    above = places[len(shown):]
    fields, points = [], []
    for (kind, field, _), (left, top, _, _) in zip(shown, places):
        inside = CORNER if kind == "t" else 1
        x, y = left + inside, top + inside
        if screen.reaches(x, y) and not any(covers(place, x, y, FRAME) for place in above):
            fields.append((kind, f"{form}.{field}"))
            points.append((x, y))
    lines = []
    for (kind, key), colour in zip(fields, screen.colours_at(points)):
        said, told = wanted_ground(wanted.raw, kind, key), SIGNALS.get(colour)
        if said != told:
            lines.append(f"{key} ground: the model says {said!r}, the window shows {told!r} {colour}")
    return lines
