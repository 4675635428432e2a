"""Each call of the system fails once: the first, the second, the third ... until a run passes.

A run starts the program, changes the hours, chooses another language and saves a line, or exports.
"""

import os
import re
import shutil
import subprocess
import xml.etree.ElementTree
import zipfile
from concurrent.futures import ThreadPoolExecutor
from functools import partial

from locale_environment import need
from program import PATIENCE, expect, set_hours, values_of

CALLS = ["open", "read", "write", "fsync", "rename", "flock", "mkdir", "fork", "pthread_create",
         "malloc"]
STEPS = {"open": 3, "read": 3, "write": 5, "malloc": 97}  # of the short form
MANY = 100_000  # more than any run has
AT_ONCE = 2
OTHERS = "; a line of somebody else\r\n" * 3
BEFORE = ("[Init]\r\nA1= 17\r\nA4= 9\r\nLanguage=en\r\n[Setting]\r\nHr_Day= 8\r\nDays= 30\r\n"
          + OTHERS).encode()
USE = "start\n" + set_hours(7) + "click lblMenu(1)\nclick Lang.Label2(1)\nclick cmdAdd\nget Hr_Day\n"
# Behind words of an error: of the driver before the program runs, and of the program.
OWN_ENDS = (1, 3)


def expect_old_or_new(settings, what):
    """Each key has its old value or its new one, once, and all else stands as it stood."""
    text = settings.decode()
    values = values_of(text)
    expect(f"{what}: the keys", sorted(values), ["A1", "A4", "Days", "Hr_Day", "Language"])
    for key, known in [("A1", ["17"]), ("A4", ["9"]), ("Days", ["30"]), ("Hr_Day", ["8", "7"]),
                       ("Language", ["en", "de"])]:
        expect(f"{what}: one {key} that is known",
               len(values[key]) == 1 and values[key][0] in known, True)
    expect(f"{what}: the number of lines", text.count("\r\n"), BEFORE.count(b"\r\n"))
    expect(f"{what}: the lines of others", text.endswith(OTHERS), True)


def play_with_failure(program, folder, call, number, player, temporary, script=b""):
    """Plays a run whose call fails; its status, what it printed, and whether there was such a call."""
    mark = folder.parent / f"{folder.name}.failed"
    environment = {**os.environ, "FAILING_CALL": f"{call}:{number}", "FAILING_MARK": str(mark),
                   "LD_PRELOAD": str(need(program, "tests/worlds/failing_calls.so")),
                   "TMPDIR": str(temporary)}
    run = subprocess.run([*player, folder], input=script, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT, timeout=PATIENCE, env=environment, check=False)
    failed = mark.exists()
    mark.unlink(missing_ok=True)
    return run.returncode, run.stdout, failed


def each_failure(call, step, play, at_once=AT_ONCE):
    """Lets the first call fail, or every `step`-th, until a run has so many no more; how many failed."""
    count = 0
    with ThreadPoolExecutor(at_once) as threads:
        pending = []
        for number in range(1, MANY, step):
            pending.append(threads.submit(play, call, number))
            if len(pending) == at_once:
                if not pending.pop(0).result():
                    return count
                count += 1
    raise AssertionError(f"{call} is called {MANY} times")


def use(program, call, number):
    folder = program.folder()
    (folder / "norvane.ini").write_bytes(BEFORE)
    names = sorted(os.listdir(folder))
    status, printed, failed = play_with_failure(program, folder, call, number, [program.driver],
                                                folder, USE.encode())
    what = f"{call} {number}"
    expect(f"{what}: ends by itself (it says {printed[-300:]!r})", status in (0, *OWN_ENDS), True)
    if status in OWN_ENDS:
        expect(f"{what}: says why", b"error" in printed, True)
    expect_old_or_new((folder / "norvane.ini").read_bytes(), what)
    expect(f"{what}: the folder", sorted(os.listdir(folder)), names)
    if not failed:
        expect(f"{what}: an undisturbed run", b"Hr_Day = 7" in printed, True)
    return failed


def step_of(program, call):
    return STEPS.get(call, 1) if program.short else 1


def every_use(program):
    counts = {call: each_failure(call, step_of(program, call), partial(use, program))
              for call in CALLS}
    return ", ".join(f"{call} {count}" for call, count in counts.items() if count)


def export(program, call, number):
    folder = program.folder()
    shutil.copy(program.installed / "total.xls", folder)
    (folder / "norvane_workbook.so").symlink_to(program.installed / "norvane_workbook.so")
    temporary = program.new_place()
    status, printed, failed = play_with_failure(
        program, folder, call, number, [need(program, "tests/worlds/exporter")], temporary)
    what = f"{call} {number}"
    expect(f"{what}: ends by itself (it says {printed[-300:]!r})", status in (0, *OWN_ENDS), True)
    books = re.findall(rb"opened (.*)", printed)
    expect(f"{what}: the lines are there", status != 0 or b"lines 2" in printed, True)
    expect(f"{what}: a file for each that is opened",
           len(list(temporary.glob("*/total.xlsx"))), len(books))
    for book in books:
        expect(f"{what}: the numbers of the file", len(numbers_of(book.decode())), 3)
    expect(f"{what}: folders", len(os.listdir(temporary)), len(books))
    if not failed:
        expect(f"{what}: an undisturbed run exports", len(books), 1)
    return failed


def numbers_of(book):
    """The numbers of a whole workbook; zipfile finds out any other."""
    with zipfile.ZipFile(book) as archive:
        expect("a broken part of the workbook", archive.testzip(), None)
        sheet = xml.etree.ElementTree.fromstring(archive.read("xl/worksheets/sheet1.xml"))
    return [float(cell.find("{*}v").text) for cell in sheet.findall(".//{*}c")
            if cell.get("t") is None and cell.find("{*}v") is not None]


def every_export(program):
    need(program, "tests/worlds/exporter")
    # The library that writes the file takes the smallest pieces of memory for granted.
    counts = {call: each_failure(call, step_of(program, call), partial(export, program))
              for call in CALLS if call != "malloc"}
    return ", ".join(f"{call} {count}" for call, count in counts.items() if count)


WORLDS = [("a start, new hours, a new language, a saved line", every_use),
          ("a start and an export to a workbook file", every_export)]
