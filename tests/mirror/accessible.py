"""Reads a program's windows through the accessibility bus, many questions at a time."""

import os
from dataclasses import dataclass, field

from wire import BUS, BUS_PATH, Connection

ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
TEXT = "org.a11y.atspi.Text"
PROPERTIES = "org.freedesktop.DBus.Properties"
OF_SCREEN = 0  # places count from the corner of the screen

# States, by their bits.
ACTIVE, CHECKED, EDITABLE, FOCUSED, SELECTED, SHOWING = 1, 4, 7, 12, 23, 25
READ_ONLY = 43

# Roles.
APPLICATION, COMBO_BOX, LABEL, LIST, PAGE_TAB, PAGE_TAB_LIST = 75, 11, 29, 31, 37, 38
TABLE, TABLE_CELL = 55, 56
COLUMN_HEADER = {10, 57}
TEXTS = {52, 61}  # spin button, text
BUTTONS = {7, 43, 44, 62}  # check box, push button, radio button, toggle button
LISTS = {LIST, TABLE}
GROWING = {APPLICATION, *LISTS}  # they may be empty at first
WITH_ITEMS = {COMBO_BOX, PAGE_TAB_LIST, *LISTS}


@dataclass
class Node:
    """What the bus tells of one thing: where it is in the tree never changes."""

    path: str
    role: int
    children: list = field(default_factory=list)
    name: str = ""
    states: int = 0
    text: str = ""

    def has(self, state):
        return bool(self.states >> state & 1)

    def below(self):
        for child in self.children:
            yield child
            yield from child.below()


def name_of(node):
    return node.path, PROPERTIES, "Get", "ss", ACCESSIBLE, "Name"


def children_of(path):
    return path, ACCESSIBLE, "GetChildren"


class Bus:
    """The accessibility bus of the session."""

    def __init__(self):
        session = Connection(os.environ["DBUS_SESSION_BUS_ADDRESS"])
        address = session.ask("org.a11y.Bus", [("/org/a11y/bus", "org.a11y.Bus", "GetAddress")])[0]
        self.connection = Connection(address)

    def program(self, pid):
        """The name on the bus of the program with this process, or None."""
        listed = self.connection.ask("org.a11y.atspi.Registry", [children_of(ROOT)])[0]
        owners = [owner for owner, _ in listed or []]
        processes = self.connection.ask(BUS, [
            (BUS_PATH, BUS, "GetConnectionUnixProcessID", "s", owner) for owner in owners])
        return next((owner for owner, process in zip(owners, processes) if process == pid), None)


class Program:
    """The windows of one program."""

    def __init__(self, bus, owner):
        self.bus, self.owner = bus, owner
        self.root = Node(ROOT, APPLICATION)

    def ask(self, questions):
        return self.bus.connection.ask(self.owner, questions)

    def windows(self):
        """All windows that show, as they are now."""
        while self.has_grown():
            pass
        showing = [top for top in self.root.children if top.has(SHOWING)]
        self.read([node for top in showing for node in told_of(top)])
        return showing

    def has_grown(self):
        """Reads the tree and all states; whether there was another tree before."""
        known = [self.root, *self.root.below()]
        parents = [node for node in known if node.children or node.role in GROWING]
        answers = self.ask([children_of(node.path) for node in parents]
                           + [(node.path, ACCESSIBLE, "GetState") for node in known])
        for node, (low, high) in zip(known, (state or (0, 0) for state in answers[len(parents):])):
            node.states = low | high << 32
        grown = []
        for node, listed in zip(parents, answers):
            paths = [path for _, path in listed or []]
            if paths != [child.path for child in node.children]:
                grown.append((node, paths))
        for node, paths in grown:
            before = {child.path: child for child in node.children}
            node.children = [before.get(path) or self.grow(path) for path in paths]
        return bool(grown)

    def grow(self, path):
        """The tree from a node on."""
        top = Node(path, -1)
        level = [top]
        while level:
            answers = self.ask([(node.path, ACCESSIBLE, "GetRole") for node in level]
                               + [children_of(node.path) for node in level])
            for node, role, listed in zip(level, answers, answers[len(level):]):
                node.role = -1 if role is None else role
                node.children = [Node(child, -1) for _, child in listed or []]
            level = [child for node in level for child in node.children]
        return top

    def read(self, nodes):
        """What they say."""
        texts = [node for node in nodes if node.role in TEXTS]
        answers = self.ask([name_of(node) for node in nodes]
                           + [(node.path, TEXT, "GetText", "ii", 0, -1) for node in texts])
        for node, name in zip(nodes, answers):
            node.name = name or ""
        for node, text in zip(texts, answers[len(nodes):]):
            node.text = text or ""

    def places(self, nodes):
        """Left, top, width and height of each on the screen now, in pixels."""
        return [place or (0, 0, 0, 0) for place in self.ask([
            (node.path, "org.a11y.atspi.Component", "GetExtents", "u", OF_SCREEN)
            for node in nodes])]

    def place(self, node):
        return self.places([node])[0]


def told_of(top):
    """A window and what says something in it: items of a list do unseen too."""
    yield top
    for child in top.children:
        if child.role in WITH_ITEMS:
            yield child
            yield from child.below()
        elif child.has(SHOWING):
            yield from told_of(child)
