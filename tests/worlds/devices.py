"""Pipes, devices, tables of the system and files beyond any sense in the place of texts."""

import os
import time

from hostile import USER, as_user, change, expect_kept, owned
from program import expect


def odd_language_files(program):
    """Beside a good one."""
    folder = owned(program.folder(languages=("en",)), USER)
    os.mkfifo(folder / "language.laa")
    with open(folder / "language.lbb", "wb") as huge:
        huge.truncate(10_000_000_000)
    for code, place in (("cc", "/dev/zero"), ("dd", "/proc/kmsg"), ("ee", "/proc/self/pagemap"),
                        ("ff", "/proc/self/mem"), ("gg", "/dev/tty"), ("hh", "/proc/kcore")):
        (folder / f"language.l{code}").symlink_to(place)
    begin = time.monotonic()
    lines = program.play(folder, "start\nget Label1(0)\n", **as_user())
    expect("a start without waits", time.monotonic() - begin < 5, True)
    said = [line for line in lines if line.startswith(b"message")]
    expect("what is said", said,
           8 * [b"message Norvane | Unable to find Language file | none | ok -> ok"])
    expect("the good one is there", lines[-1][:12], b"Label1(0) = ")
    return "each is reported as one that can't be opened, and the others are read as ever"


def odd_addresses_and_settings(program):
    for place in ("/dev/zero", "/proc/kmsg", "/proc/self/pagemap"):
        folder = owned(program.folder(addresses=False), USER)
        (folder / "Address001.txt").symlink_to(place)
        (folder / "norvane.ini").symlink_to(place)
        change(program, folder)
    folder = owned(program.folder(addresses=False), USER)
    os.mkfifo(folder / "Address001.txt")
    change(program, folder)
    expect_kept(folder)
    folder = owned(program.folder(addresses=False), USER)
    for name in ("Address001.txt", "norvane.ini"):
        with open(folder / name, "wb") as huge:
            huge.truncate(10_000_000_000)
        owned(folder / name, USER)
    change(program, folder)
    expect("the size of the settings", (folder / "norvane.ini").stat().st_size, 10_000_000_000)
    return "no address, default settings, and nothing is written to them"


WORLDS = [
    ("pipes, devices, tables as language files", odd_language_files),
    ("the same as addresses and settings", odd_addresses_and_settings),
]
