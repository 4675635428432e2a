"""Folders that don't take what is written to them: the program goes on as if nothing was."""

import contextlib
import os
import resource
import shutil
import subprocess

from program import PATIENCE, Skipped, expect, set_hours

NOBODY = 65534
SETTINGS = b"[Init]\r\nA1= 17\r\nA4= 9\r\nLanguage=en\r\n[Setting]\r\nHr_Day= 8\r\nDays= 30\r\n"


def expect_kept(program, folder, **options):
    """A new number of hours can't be kept, and nobody makes a fuss about it."""
    names = sorted(os.listdir(folder))
    shown = program.play(folder, "start\n" + set_hours(7) + "get Hr_Day\nget Label4(0)\n",
                         **options)
    # The dialog reads the file again when its OK is through.
    expect("the hours of this run", shown[0], b"Hr_Day = 8")
    expect("a result is shown", len(shown[1]) > len(b"Label4(0) = "), True)
    expect("norvane.ini", (folder / "norvane.ini").read_bytes(), SETTINGS)
    expect("the folder", sorted(os.listdir(folder)), names)
    expect("the hours of the next run", program.value(folder, "Hr_Day"), b"8")
    return "the run goes on, the settings are the old ones, nothing is left beside them"


@contextlib.contextmanager
def small_disk(program):
    place = program.new_place()
    mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=256k", "tmpfs", place],
                             stderr=subprocess.DEVNULL, check=False)
    if mounted.returncode != 0:
        raise Skipped("no disk can be mounted here")
    try:
        yield place
    finally:
        subprocess.run(["umount", place], check=True)


def full_disk(program):
    with small_disk(program) as place:
        folder = program.fill(place, languages=("en",))
        (folder / "norvane.ini").write_bytes(SETTINGS)
        with contextlib.suppress(OSError), open(folder / "filler", "wb", buffering=0) as filler:
            while filler.write(b"x" * 512):
                pass
        return expect_kept(program, folder)


def limited_size(program):
    def limit():
        resource.setrlimit(resource.RLIMIT_FSIZE, (40, 40))

    folder = program.folder()
    (folder / "norvane.ini").write_bytes(SETTINGS)
    # The limit holds for the output too unless that is a pipe.
    return expect_kept(program, folder, preexec_fn=limit)


def as_nobody():
    return {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.getuid() == 0 else {}


def read_only_folder(program):
    folder = program.folder()
    (folder / "norvane.ini").write_bytes(SETTINGS)
    folder.chmod(0o555)
    try:
        return expect_kept(program, folder, **as_nobody())
    finally:
        folder.chmod(0o755)


def read_only_settings(program):
    folder = program.folder()
    file = folder / "norvane.ini"
    file.write_bytes(SETTINGS)
    file.chmod(0o444)
    return expect_kept(program, folder)


def vanishing(program):
    folder = program.folder()
    run = program.start(folder)
    run.stdin.write(b"start\nget Label4(0)\n")
    run.stdin.flush()
    before = run.stdout.readline()
    shutil.rmtree(folder)
    script = (set_hours(7) + "click lblMenu(1)\nclick Lang.Label2(1)\nclick Lang.OK\n"
              "click lblMenu(2)\nclick Address.OK\nclick cmdAdd\nclick picTotal\n"
              "click Total.Toolbar1\nclose Total\nget Hr_Day\nget Label4(0)\nclick lblMenu(3)\n")
    rest, _ = run.communicate(script.encode(), timeout=PATIENCE)
    lines = rest.splitlines()
    expect("the exit status", run.returncode, 0)
    expect("the hours are the default", b"Hr_Day = 24" in lines, True)
    expect("the result", before.strip() in lines, True)
    expect("the folder", folder.exists(), False)
    return "settings, languages, addresses, totals and the end as ever; the folder stays gone"
