"""The tests that there are anyway, and all files, under the locales of users."""

import json
import subprocess
from concurrent.futures import ThreadPoolExecutor

from locale_environment import need, of_locale, run, with_library
from locale_files import files
from program import Skipped

LOCALES = [
    "C",
    "de_DE",  # a comma
    "ps_AF",  # a sign that is neither
    "tr_TR",  # a comma, and an i without its dot
    "ar_EG",  # other digits
]
AT_ONCE = 4  # the tests wait more than they calculate
NUMBERS = ["typing", "settings", "totals", "compare"]  # the windows that show the most of them
ALL_WINDOWS = ["typing", "spinning", "states", "toolbar", "settings", "totals", "sessions",
               "start_and_end", "languages", "courtesies", "addresses", "compare"]
OFFICES = ["export", "workbook_file"]


def failures(printed):
    lines = [line for line in printed.decode(errors="replace").splitlines()
             if "FAILED" in line or line[:1] in "+-" or "Failure" in line]
    return "; ".join(lines[:12]) or printed[-200:].decode(errors="replace")


def play_all(commands):
    """Runs commands, each with its locale and environment, side by side; fails with what those
    printed that failed."""
    with ThreadPoolExecutor(AT_ONCE) as threads:
        ends = list(threads.map(lambda each: run(each[2], env=each[1]), commands))
    said = [f"{locale} {' '.join(map(str, command[-2:]))}: {failures(printed)}"
            for (locale, _, command), (status, printed) in zip(commands, ends) if status != 0]
    if said:
        raise AssertionError("\n  ".join(said))


def quick(program):
    """The quick tests, each executable as a whole; of the scripts the short form takes a part."""
    listed = subprocess.run(["ctest", "--test-dir", program.build, "-L", "^quick$",
                             "--show-only=json-v1"], stdout=subprocess.PIPE, check=True)
    tests = json.loads(listed.stdout)["tests"]
    scripts = [test["command"] for test in tests if test["name"].startswith("script/")]
    programs = {test["command"][0] for test in tests
                if any("--gtest_filter" in part for part in test["command"])}
    if not scripts or not programs:
        raise AssertionError("there are no quick tests in this build")
    if program.short:
        scripts = scripts[::15]
    commands = [[each, "--gtest_brief=1"] for each in sorted(programs)] + scripts
    environments = {name: with_library(program, of_locale(program, name)) for name in LOCALES}
    play_all([(name, environment, command) for name, environment in environments.items()
              for command in commands])
    return f"{len(programs)} programs of tests and {len(scripts)} scripts pass under each"


def windows(program):
    locales, subjects = ((["de_DE", "ps_AF"], NUMBERS) if program.short
                         else (LOCALES, ALL_WINDOWS))
    under_display = program.top / "tests/desktop/run_under_display"
    play_all([(name, of_locale(program, name),
               [under_display, need(program, f"tests/desktop/desktop_{subject}_tests")])
              for name in locales for subject in subjects])
    return f"{', '.join(subjects)}: pass under {', '.join(locales)}"


def offices(program):
    if program.short:
        raise Skipped("left out of the short form")
    under_display = program.top / "tests/desktop/run_under_display"
    play_all([(name, with_library(program, of_locale(program, name)),
               [under_display, need(program, f"tests/spreadsheet/office_{subject}_tests")])
              for name in LOCALES for subject in OFFICES])
    return "its tests of the export and of the file pass under each"


WORLDS = [
    ("the files of a tour", lambda program: files(program, LOCALES)),
    ("the quick tests", quick),
    ("the tests of the windows", windows),
    ("the tests with LibreOffice", offices),
]
