"""The program without a display, in folders of its own."""

import pathlib
import shutil
import subprocess

PATIENCE = 300  # seconds; whoever takes longer hangs


class Skipped(Exception):
    """A fault that can't be made on this machine."""


def expect(what, got, wanted):
    if got != wanted:
        raise AssertionError(f"{what} is {got!r:.120}, not {wanted!r:.120}")


class Program:
    def __init__(self, top, build, work, short):
        self.top = top
        self.build = build
        self.short = short
        self._work = work
        self._folders = 0
        # Beside the folders, where every user can reach it.
        self.driver = work / "norvane-driver"
        shutil.copy(build / "driver/norvane-driver", self.driver)
        cache = (build / "CMakeCache.txt").read_text()
        self.installed = next(pathlib.Path(line.split("=", 1)[1])
                              for line in cache.splitlines() if line.startswith("NORVANE_FOLDER:"))

    def new_place(self):
        self._folders += 1
        place = self._work / f"folder{self._folders}"
        place.mkdir()
        return place

    def fill(self, place, languages=("en", "de", "fr"), addresses=True):
        for code in languages:
            shutil.copy(self.installed / f"language.l{code}", place)
        if addresses:
            shutil.copy(self.installed / "Address001.txt", place)
        return place

    def folder(self, **choice):
        return self.fill(self.new_place(), **choice)

    def start(self, folder, **options):
        return subprocess.Popen([self.driver, folder], stdin=subprocess.PIPE,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)

    def play(self, folder, script, status=0, **options):
        """The lines that the driver prints, as bytes."""
        run = subprocess.run([self.driver, folder], input=script.encode(), timeout=PATIENCE,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
        expect("the exit status", run.returncode, status)
        return run.stdout.splitlines()

    def value(self, folder, name, before="start\n"):
        """What the driver tells of a name."""
        line = self.play(folder, f"{before}get {name}\n")[-1]
        return line.partition(b" = ")[2]


def set_hours(hours, days=30):
    """The script by which a user sets hours and days."""
    return (f"click cmdToolBar5(0)\nset Settings.Text2(0) {hours}\n"
            f"set Settings.Text2(1) {days}\nclick Settings.Command1\n")


def values_of(text):
    """The keys of a settings file, with their values in order of appearance."""
    values = {}
    for line in text.splitlines():
        key, sign, value = line.partition("=")
        if sign:
            values.setdefault(key, []).append(value.strip())
    return values
