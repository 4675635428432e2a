"""The real window, played from its start to its exit, while calls of the system fail and the machine
runs short of something."""

import contextlib
import os
import re
import resource
import shutil
import subprocess
from functools import partial

from failures import BEFORE, each_failure, expect_old_or_new, numbers_of
from folders import small_disk
from hostile import USER, as_user
from locale_environment import need
from program import PATIENCE, expect
from screens import Screen

# Memory and threads are those that the program itself asks for: Qt waits for ever for a thread that it
# couldn't have.
CALLS = ["open", "read", "write", "fsync", "rename", "flock", "mkdir", "fork", "thread", "new"]
STEPS = {"open": 30, "read": 600, "write": 150, "new": 401}  # of the short form
ALL = {"read": 3, "write": 3, "new": 7}  # and of all
AFTER = BEFORE.replace(b"Language=en", b"Language=de").replace(b"Hr_Day= 8", b"Hr_Day= 7")
AT_ONCE = 6  # most of a run is the splash
FREE = [0, 4096, 8192]  # bytes of a disk, of which a workbook takes more
RUNTIME_ERROR = 3
OPENER = '#!/bin/sh\necho "$1" >>"$OPENED"\n'


class Stage(Screen):
    """The display, and what a folder has to have beside the languages."""

    def __init__(self, program):
        super().__init__(program)
        self.files = program.new_place()
        shutil.copy(need(program, "tests/worlds/played_window"), self.files / "norvane")
        for name in ("total.xls", "norvane_workbook.so"):
            shutil.copy(program.installed / name, self.files)


class Played:
    """A run of the window, and what has come of it."""

    def __init__(self, program, screen, **environment):
        self.folder = program.folder()
        self._screen = screen
        # It looks for its files beside itself.
        for file in screen.files.iterdir():
            os.link(file, self.folder / file.name)
        (self.folder / "norvane.ini").write_bytes(BEFORE)
        self.temporary = program.new_place()
        self._tools = program.new_place()
        (self._tools / "xdg-open").write_text(OPENER)
        (self._tools / "xdg-open").chmod(0o755)
        self._environment = environment

    def play(self, **options):
        names = sorted(os.listdir(self.folder))
        run = subprocess.run(
            [self.folder / "norvane"], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
            timeout=PATIENCE, cwd=self.folder, check=False,
            env={**self._screen.environment, "TMPDIR": str(self.temporary),
                 "PATH": f"{self._tools}:{os.environ['PATH']}",
                 "OPENED": str(self._tools / "opened"), **self._environment}, **options)
        self.status, self.said = run.returncode, run.stdout.decode()
        self.complained = run.stderr.decode(errors="replace")
        expect("the folder", sorted(os.listdir(self.folder)), names)
        return self

    def give_to(self, user):
        for place in (self.folder, self.temporary, self._tools):
            for path in (place, *place.iterdir()):
                os.chown(path, user, user, follow_symlinks=False)

    def books(self):
        """The workbook files, each of which is whole, with the sums."""
        files = list(self.temporary.glob("norvane-*/*"))
        for file in files:
            expect("the numbers of the file", len(numbers_of(file)), 3)
        expect("folders", len(list(self.temporary.glob("norvane-*"))), len(files))
        return files

    def expect_in_order(self, what):
        """It ended by itself, and no line was lost without an offer to copy it."""
        told = f"{what}: ends by itself, and not by {self.status} ({self.said[-300:]!r} {self.complained[-300:]!r})"
        expect(told, self.status in (0, RUNTIME_ERROR), True)
        before, _, after = self.said.partition("message Run-time error")
        words = after != "" or (before == "" and "error: " in self.complained)
        expect(f"{what}: words of an error", words, self.status == RUNTIME_ERROR)
        copied = re.search(r"copied (\d+) lines", self.said)
        if self.status == RUNTIME_ERROR:
            saved = before.count("done a line") + before.count("done another line")
            expect(f"{what}: lines that could be copied",
                   int(copied.group(1)) >= saved if copied else saved == 0, True)
        for rows in re.findall(r"^rows.* (\d+)$", self.said, re.MULTILINE):
            expect(f"{what}: the lines are there", int(rows) >= 2, True)


def run_with_failure(program, screen, call, number):
    run = Played(program, screen, FAILING_CALL=f"{call}:{number}", FAILING_LATER="1",
                 LD_PRELOAD=str(need(program, "tests/worlds/failing_calls.so")))
    mark = run.folder.parent / f"{run.folder.name}.failed"
    run._environment["FAILING_MARK"] = str(mark)
    run.play()
    failed = mark.exists()
    what = f"{call} {number}"
    run.expect_in_order(what)
    settings = (run.folder / "norvane.ini").read_bytes()
    expect_old_or_new(settings, what)
    books = run.books()
    if not failed:
        expect(f"{what}: an undisturbed run", (run.status, len(books), settings), (0, 1, AFTER))
    return failed


def every_call(program):
    steps = STEPS if program.short else ALL
    with Stage(program) as screen:
        counts = {call: each_failure(call, steps.get(call, 1),
                                     partial(run_with_failure, program, screen), AT_ONCE)
                  for call in CALLS}
    return ", ".join(f"{call} {count}" for call, count in counts.items() if count)


def no_more_processes(program):
    """Which root would have all the same."""
    with Stage(program) as screen:
        run = Played(program, screen, PLAYED_LIMIT="processes")
        run.give_to(USER)
        run.play(**as_user(USER))
    run.expect_in_order("without processes")
    expect("the exit status", run.status, 0)
    expect("rows", re.findall(r"^rows.* \d+$", run.said, re.MULTILINE),
           ["rows 2", "rows afterwards 2"])
    return f"goes on, {len(run.books())} workbook files"


def no_more_memory(program):
    with Stage(program) as screen:
        run = Played(program, screen, PLAYED_LIMIT="memory").play()
    run.expect_in_order("without memory")
    return f"exit status {run.status}, {len(run.books())} workbook files"


def limited_size(program):
    def limit():
        resource.setrlimit(resource.RLIMIT_FSIZE, (40, 40))

    with Stage(program) as screen:
        run = Played(program, screen).play(preexec_fn=limit)
    run.expect_in_order("files of 40 bytes")
    expect("the exit status", run.status, 0)
    expect("the settings", (run.folder / "norvane.ini").read_bytes(), BEFORE)
    expect("workbook files", run.books(), [])
    return "goes on with the old settings, and without a workbook file"


def full_disk(program):
    """Full at once, or while the workbook is written."""
    with Stage(program) as screen:
        for left in (FREE[1:2] if program.short else FREE):
            with small_disk(program) as disk:
                run = Played(program, screen)
                run.temporary = disk
                fill(disk / "filler", left)
                run.play()
                (disk / "filler").unlink()
                run.expect_in_order(f"{left} bytes left")
                expect("the exit status", run.status, 0)
                expect("workbook files", run.books(), [])
    return "goes on, and nothing of the workbook file is left"


def fill(file, left):
    with open(file, "wb", buffering=0) as filler:
        with contextlib.suppress(OSError):
            while filler.write(b"x" * 4096):
                pass
        filler.truncate(filler.tell() - left)


WORLDS = [
    ("each call fails", every_call),
    ("no more processes at an export", no_more_processes),
    ("no more memory at an export", no_more_memory),
    ("a limit on the size of files", limited_size),
    ("a disk that is full at an export", full_disk),
]
