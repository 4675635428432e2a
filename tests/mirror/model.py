"""The program without a display, asked line by line."""

import subprocess

END = "call Val 4711"
END_TOLD = "= 4711"
ESCAPES = {"t": "\t", "r": "\r", "n": "\n", "\\": "\\"}
REFUSED = "refused: the program has ended"


def plain(text):
    """What was escaped."""
    result, signs = [], iter(text)
    for sign in signs:
        result.append(ESCAPES[next(signs)] if sign == "\\" else sign)
    return "".join(result)


class Model:
    def __init__(self, driver, folder, locale):
        self.process = subprocess.Popen(
            [driver, folder, "--locale", locale], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            encoding="utf-8", errors="surrogateescape")

    def play(self, *lines):
        """What the program prints for these lines."""
        told = []
        self.process.stdin.write("".join(line + "\n" for line in (*lines, END)))
        self.process.stdin.flush()
        for line in self.process.stdout:
            line = line.rstrip("\n")
            if line in (END_TOLD, REFUSED):
                break
            told.append(line)
        return told

    def get(self, names):
        """The values of all names."""
        values = {}
        for line in self.play(*("get " + name for name in names)):
            name, _, value = line.partition(" = ")
            values[name] = plain(value)
        return values

    def close(self):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()
