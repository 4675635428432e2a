"""A machine that has no more memory to give."""

import resource

from program import expect

LARGE = 60_000_000


def with_memory(size):
    def limit():
        resource.setrlimit(resource.RLIMIT_AS, (size, size))
    return limit


def large_text(folder, name, begin=b""):
    with open(folder / name, "wb") as file:
        file.write(begin + b"; " + b"x" * LARGE + b"\r\n")


def memory_for_settings(program):
    folder = program.folder()
    large_text(folder, "norvane.ini", b"[Setting]\r\nHr_Day= 8\r\n")
    before = (folder / "norvane.ini").stat()
    lines = program.play(folder, "start\n", status=3, preexec_fn=with_memory(110_000_000))
    expect("the end", lines, [b"runtime error 7: Out of memory", b"ended"])
    after = (folder / "norvane.ini").stat()
    expect("the settings", (after.st_ino, after.st_size), (before.st_ino, before.st_size))
    expect("left-overs", list(folder.glob("*.new")), [])
    return "runtime error 7, and the settings stay"


def memory_for_a_language(program):
    folder = program.folder(languages=("en",))
    large_text(folder, "language.lzz", b"Large,Arial,0\r\n18,")
    lines = program.play(folder, "start\n", status=3, preexec_fn=with_memory(110_000_000))
    expect("the end", lines, [b"runtime error 7: Out of memory", b"ended"])
    return "runtime error 7"


WORLDS = [
    ("no memory for the settings", memory_for_settings),
    ("no memory for a language file", memory_for_a_language),
]
