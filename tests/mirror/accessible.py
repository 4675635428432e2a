"""Reads a program's windows through the accessibility bus, many questions at a time."""

from dataclasses import dataclass, field

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
PROPERTIES = "org.freedesktop.DBus.Properties"
PATIENCE = 20000  # milliseconds
SCREEN = GLib.Variant("(u)", (0,))  # places count from the corner of the screen
WHOLE = GLib.Variant("(ii)", (0, -1))

# States, by their bits.
ACTIVE, CHECKED, EDITABLE, FOCUSED, SELECTED, SHOWING = 1, 4, 7, 12, 23, 25
READ_ONLY = 43


@dataclass
class Node:
    """What the bus tells of one thing: where it is in the tree never changes."""

    path: str
    role: int
    children: list = field(default_factory=list)
    name: str = ""
    description: str = ""
    states: int = 0
    text: str = ""
    place: tuple = (0, 0, 0, 0)

    def has(self, state):
        return bool(self.states >> state & 1)

    def below(self):
        for child in self.children:
            yield child
            yield from child.below()


def property_of(path, interface, name):
    return path, PROPERTIES, "Get", GLib.Variant("(ss)", (interface, name))


class Bus:
    """The accessibility bus of the session."""

    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = session.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
            None, None, Gio.DBusCallFlags.NONE, -1).unpack()[0]
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address,
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
            None, None)

    def ask(self, owner, questions):
        """The answers to all (path, interface, member, arguments), None where there is none."""
        answers = [None] * len(questions)
        left = len(questions)

        def take(connection, result, i):
            nonlocal left
            left -= 1
            try:
                answers[i] = connection.call_finish(result).unpack()[0]
            except (GLib.Error, IndexError):
                pass

        for i, (path, interface, member, arguments) in enumerate(questions):
            self.connection.call(owner, path, interface, member, arguments, None,
                                 Gio.DBusCallFlags.NONE, PATIENCE, None, take, i)
        context = GLib.MainContext.default()
        while left:
            context.iteration(True)
        return answers

    def program(self, pid):
        """The name on the bus of the program with this process, or None."""
        listed = self.ask("org.a11y.atspi.Registry", [(ROOT, ACCESSIBLE, "GetChildren", None)])[0]
        for owner, _ in listed or []:
            asked = [("/org/freedesktop/DBus", "org.freedesktop.DBus",
                      "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,)))]
            if self.ask("org.freedesktop.DBus", asked)[0] == pid:
                return owner
        return None


class Program:
    """The windows of one program."""

    def __init__(self, bus, owner):
        self.bus, self.owner = bus, owner
        self.trees = {}  # by path; windows are made whole

    def ask(self, questions):
        return self.bus.ask(self.owner, questions)

    def grow(self, path):
        """The tree from a node on."""
        role = self.ask([(path, ACCESSIBLE, "GetRole", None)])[0]
        top = Node(path, role if role is not None else -1)
        level = [top]
        while level:
            listed = self.ask([(node.path, ACCESSIBLE, "GetChildren", None) for node in level])
            parents = [(node, child[1]) for node, children in zip(level, listed)
                       for child in children or []]
            roles = self.ask([(path, ACCESSIBLE, "GetRole", None) for _, path in parents])
            level = []
            for (parent, path), role in zip(parents, roles):
                level.append(Node(path, role if role is not None else -1))
                parent.children.append(level[-1])
        return top

    def windows(self, places=False):
        """All windows that show, as they are now."""
        paths = [child[1] for child in self.ask([(ROOT, ACCESSIBLE, "GetChildren", None)])[0] or []]
        self.trees = {path: self.trees.get(path) or self.grow(path) for path in paths}
        tops = list(self.trees.values())
        self.read(tops)
        showing = [top for top in tops if top.has(SHOWING)]
        self.renew_lists(showing)
        self.read([node for top in showing for node in top.below()])
        return showing

    def renew_lists(self, tops):
        """Lists and tables have other items by and by."""
        lists = [node for top in tops for node in top.below() if node.role in LISTS]
        listed = self.ask([(node.path, ACCESSIBLE, "GetChildren", None) for node in lists])
        for node, children in zip(lists, listed):
            if [child[1] for child in children or []] != [child.path for child in node.children]:
                node.children = self.grow(node.path).children

    def read(self, nodes):
        texts = [node for node in nodes if node.role in TEXTS]
        answers = self.ask(
            [property_of(node.path, ACCESSIBLE, "Name") for node in nodes]
            + [(node.path, ACCESSIBLE, "GetState", None) for node in nodes]
            + [(node.path, "org.a11y.atspi.Text", "GetText", WHOLE) for node in texts])
        for i, node in enumerate(nodes):
            node.name = answers[i] or ""
            low, high = answers[len(nodes) + i] or (0, 0)
            node.states = low | high << 32
        for node, text in zip(texts, answers[2 * len(nodes):]):
            node.text = text or ""

    def place(self, node):
        """Left, top, width and height on the screen now, in pixels."""
        node.place = self.ask([(node.path, "org.a11y.atspi.Component", "GetExtents", SCREEN)])[0]
        return node.place


LISTS = {31, 55}  # list, table
TEXTS = {52, 61}  # spin button, text
BUTTONS = {7, 43, 44, 62}  # check box, push button, radio button, toggle button
COMBO_BOX, LABEL, PAGE_TAB, PAGE_TAB_LIST, TABLE, LIST = 11, 29, 37, 38, 55, 31
TABLE_CELL = 56
COLUMN_HEADER = {10, 57}
