"""The settings after a power cut: every state that a disk may be in when the writes that were not
flushed reached it in any order, in part or not at all.

The program writes while all that it asks of the disk is recorded. A flushed file has its bytes on the
disk, a flushed folder its names. Whatever else was asked before the cut may have come there or not:
a file's bytes up to any point, and each change of a name for itself.
"""

import itertools

from locale_environment import need
from program import expect, set_hours

BEFORE = b"[Init]\r\nA1= 17\r\nA4= 9\r\nLanguage=en\r\n[Setting]\r\nHr_Day= 8\r\nDays= 30\r\n"
SETTINGS = "norvane.ini"


def recorded(program, folder, script):
    record = program.new_place() / "record"
    program.play(folder, script, env={
        "LD_PRELOAD": str(need(program, "tests/worlds/recorded_writes.so")),
        "RECORDED_WRITES": str(record)})
    return [line.split(" ") for line in record.read_text().splitlines()]


class Disk:
    """What is certainly on the disk, and what may be there."""

    def __init__(self, name, content):
        self.contents = {name: content}  # by the name under which a file was made
        self.flushed = {name: len(content)}
        self.names = {name: name}  # names that are certain, and the files that they belong to
        self.changes = []  # of names, which may have come to the disk
        self.open = {}

    def ask(self, what, *given):
        if what == "create":
            file, name = given
            self.open[file] = name
            self.contents[name] = b""
            self.flushed[name] = 0
            self.changes.append((name, name, None))
        elif what == "write":
            file, digits = given
            self.contents[self.open[file]] += bytes.fromhex(digits)
        elif what == "sync":
            name = self.open[given[0]]
            self.flushed[name] = len(self.contents[name])
        elif what == "rename":
            old, new = given
            self.changes.append((new, self.file_of(old), old))
        elif what == "remove":
            self.changes.append((None, None, given[0]))
        elif what == "sync-folder":
            self.names = self.names_after(self.changes)
            self.changes = []
        else:
            raise AssertionError(f"{what} is nothing that a careful writer asks")

    def names_after(self, changes):
        names = dict(self.names)
        for new, file, old in changes:
            if old is not None:
                names.pop(old, None)
            if new is not None:
                names[new] = file
        return names

    def file_of(self, name):
        return self.names_after(self.changes)[name]

    def states(self, name):
        """Every content that the file of a name may have; None where there is no such file."""
        for count in range(len(self.changes) + 1):
            for chosen in itertools.combinations(self.changes, count):
                file = self.names_after(chosen).get(name)
                if file is None:
                    yield None
                    continue
                for end in range(self.flushed[file], len(self.contents[file]) + 1):
                    yield self.contents[file][:end]


def cut_everywhere(record, before):
    """All states of the settings, cut before and behind each thing that was asked."""
    disk = Disk(SETTINGS, before)
    seen = set(disk.states(SETTINGS))
    for asked in record:
        disk.ask(*asked)
        seen.update(disk.states(SETTINGS))
    return seen


def old_or_new(program):
    folder = program.folder()
    (folder / SETTINGS).write_bytes(BEFORE)
    record = recorded(program, folder, "start\n" + set_hours(7))
    after = (folder / SETTINGS).read_bytes()
    expect("something is written", after != BEFORE, True)
    expect("what is asked of the disk", {"create", "write", "sync", "rename"} - {each[0] for each
                                                                                in record}, set())
    seen = cut_everywhere(record, BEFORE)
    expect("the states behind a cut", seen - {BEFORE, after}, set())
    expect("the old and the new file", len(seen), 2)
    return f"{len(record)} steps, {len(seen)} states: the old file or the new one, whole"


def can_fail(program):
    """The replay itself: without its flush the same writing is found out."""
    folder = program.folder()
    (folder / SETTINGS).write_bytes(BEFORE)
    record = recorded(program, folder, "start\n" + set_hours(7))
    careless = [asked for asked in record if asked[0] != "sync"]
    seen = cut_everywhere(careless, BEFORE)
    expect("an empty file is among the states", b"" in seen, True)
    return f"a writing without its flush would leave {len(seen)} states"


WORLDS = [
    ("a power cut while settings are written", old_or_new),
    ("the same, had nothing been flushed", can_fail),
]
