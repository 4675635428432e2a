"""Files that nobody would write by hand."""

from program import expect, set_hours, values_of

HUGE = 60_000_000  # bytes; larger ones aren't read
HUGE_IN_SHORT = 2_000_000
HEADER = b"English,Arial,0\r\n0,name=English-3.1\r\n"


def size(program):
    return HUGE_IN_SHORT if program.short else HUGE


def huge(program, line):
    return line * (size(program) // len(line) + 1)


def with_language(program, content):
    folder = program.folder(languages=(), addresses=False)
    (folder / "language.len").write_bytes(content)
    return folder


def caption(program, content):
    return program.value(with_language(program, content), "Label1(0)")


def language_empty(program):
    # The character set is an empty text then, which no font takes.
    lines = program.play(with_language(program, b""), "start\n", status=3)
    expect("the end", lines, [b"runtime error 13: Type mismatch", b"ended"])
    return "the runtime's own words, and the end, as for any empty character set"


def language_huge(program):
    content = HEADER + b"18,First\r\n" + huge(program, b"18,Again and again\r\n") + b"18,Last\r\n"
    expect("the caption", caption(program, content), b"Last")
    return f"{size(program) // 1_000_000} MB: the last text of a number counts"


def language_long_line(program):
    folder = with_language(program, HEADER + b"18,First\r\n63," + huge(program, b"0123456789"))
    expect("the caption", program.value(folder, "Label1(0)"), b"First")
    expect("the long text", len(program.value(folder, "Lang_Text(0,63)")), size(program) + 10)
    return f"{size(program) // 1_000_000} MB: the text is as long as its line"


def language_nul(program):
    expect("the caption", caption(program, HEADER + b"18,A\0B\r\n20,C\r\n\0\0\0"), b"A\0B")
    return "an ordinary letter, no end of anything"


def language_no_line_end(program):
    expect("the caption", caption(program, HEADER + b"18,Last"), b"Last")
    return "the last line counts"


def first_address(program, content):
    folder = program.folder(addresses=False)
    (folder / "Address001.txt").write_bytes(content)
    lines = program.play(folder, "start\nclick lblMenu(2)\nget Address.List1.ListCount\n"
                                 "get Address.List1.Item(0)\nget Address_Table(1,1)\n")
    return lines[0].partition(b" = ")[2], lines[-1].partition(b" = ")[2]


def address_empty(program):
    none = program.value(program.folder(addresses=False), "Address.List1.ListCount")
    expect("lines and name", first_address(program, b""), (none, b""))
    return "no address"


def address_huge(program):
    content = b"0,Short\r\n1,First\r\n" + huge(program, b"1,Again and again\r\n") + b"1,Last\r\n"
    expect("the name", first_address(program, content)[1], b"Last")
    return f"{size(program) // 1_000_000} MB: the last text of a field counts"


def address_nul(program):
    expect("the name", first_address(program, b"0,Short\r\n1,A\0B\r\n")[1], b"A\0B")
    return "an ordinary letter, no end of anything"


def address_no_line_end(program):
    expect("the name", first_address(program, b"0,Short\r\n1,Last")[1], b"Last")
    return "the last line counts"


def hours_before_and_after(program, content):
    """The hours of the file, and the file after an OK of 7 hours and 30 days."""
    folder = program.folder()
    file = folder / "norvane.ini"
    file.write_bytes(content)
    hours = program.value(folder, "Hr_Day")
    program.play(folder, "start\n" + set_hours(7))
    expect("the hours written", program.value(folder, "Hr_Day"), b"7")
    return hours, file.read_bytes()


def settings_empty(program):
    hours, after = hours_before_and_after(program, b"")
    expect("the hours", hours, b"24")
    expect("the file", values_of(after.decode()),
           {"A1": ["17"], "A4": ["9"], "Hr_Day": ["7"], "Days": ["30"]})
    return "defaults, and a good file afterwards"


def settings_huge(program):
    others = huge(program, b"; nothing but a line of somebody else\r\n")
    hours, after = hours_before_and_after(program, others + b"[Setting]\r\nHr_Day= 8\r\n")
    expect("the hours", hours, b"8")
    expect("the other lines", after.startswith(others), True)
    return f"{size(program) // 1_000_000} MB: read and written as ever"


def settings_nul(program):
    others = b"\0\0[Other]\r\nkey=\0\0\r\n"
    hours, after = hours_before_and_after(program, others + b"[Setting]\r\nHr_Day= 8\0\r\n\0")
    expect("the hours", hours, b"8")
    expect("the other lines", after.startswith(others), True)
    return "ordinary letters; the other lines stay"


def settings_no_line_end(program):
    hours, after = hours_before_and_after(program, b"[Setting]\r\nHr_Day= 8")
    expect("the hours", hours, b"8")
    expect("the file", values_of(after.decode()),
           {"A1": ["17"], "A4": ["9"], "Hr_Day": ["7"], "Days": ["30"]})
    return "new lines of their own"
