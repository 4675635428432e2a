"""Each call of the system fails once: the first, the second, the third ... until a run passes.

A run starts the program, changes the hours, chooses another language and saves a line.
"""

import os
import subprocess
from concurrent.futures import ThreadPoolExecutor

from locale_environment import need
from program import PATIENCE, expect, set_hours, values_of

CALLS = ["open", "read", "write", "fsync", "rename", "flock", "mkdir", "fork", "pthread_create"]
FREQUENT = ("open", "read", "write")
MANY = 20_000  # more than any run has
AT_ONCE = 2
OTHERS = "; a line of somebody else\r\n" * 3
BEFORE = ("[Init]\r\nA1= 17\r\nA4= 9\r\nLanguage=en\r\n[Setting]\r\nHr_Day= 8\r\nDays= 30\r\n"
          + OTHERS).encode()
USE = "start\n" + set_hours(7) + "click lblMenu(1)\nclick Lang.Label2(1)\nclick cmdAdd\nget Hr_Day\n"
# The program's own words for what it can't do, and the end behind them.
OWN_END = 3


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


def numbers_to_fail(program, call):
    """Which calls fail; the short form takes some of the frequent ones."""
    return range(1, MANY, 3 if program.short and call in FREQUENT else 1)


def each_failure(program, call, play):
    """Lets calls fail until a run has so many no more; how many failed."""
    count = 0
    with ThreadPoolExecutor(AT_ONCE) as threads:
        pending = []
        for number in numbers_to_fail(program, call):
            pending.append(threads.submit(play, call, number))
            if len(pending) == AT_ONCE:
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
    expect(f"{what}: ends by itself (it says {printed[-300:]!r})", status in (0, OWN_END), True)
    if status == OWN_END:
        expect(f"{what}: says why", b"error" in printed, True)
    expect_old_or_new((folder / "norvane.ini").read_bytes(), what)
    expect(f"{what}: the folder", sorted(os.listdir(folder)), names)
    if not failed:
        expect(f"{what}: an undisturbed run", b"Hr_Day = 7" in printed, True)
    return failed


def every_use(program):
    counts = {call: each_failure(program, call, lambda *at: use(program, *at)) for call in CALLS}
    return ", ".join(f"{call} {count}" for call, count in counts.items() if count)


WORLDS = [("a start, new hours, a new language, a saved line", every_use)]
