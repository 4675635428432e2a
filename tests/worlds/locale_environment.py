"""The environment of a user of some country."""

import os
import subprocess

from program import PATIENCE, Skipped


def of_locale(program, name):
    """The environment under the locale `name`, which the build has made unless it is C."""
    locale = f"{name}.UTF-8"
    if name != "C" and not (program.build / "locales" / locale).exists():
        raise Skipped("the package locales was missing when this was built")
    kept = {key: value for key, value in os.environ.items()
            if not key.startswith("LC_") and key not in ("LANG", "LANGUAGE")}
    return {**kept, "LOCPATH": str(program.build / "locales") if name != "C" else "",
            "LC_ALL": locale, "NORVANE_LOCALE": locale}


def with_library(program, environment):
    """The same in a process in which some library has set the user's locale."""
    return {**environment, "LD_PRELOAD": str(need(program, "tests/worlds/users_locale.so"))}


def need(program, path):
    """A file of the build, which may lack it."""
    file = program.build / path
    if not file.exists():
        raise Skipped(f"{path} isn't built")
    return file


def run(command, **options):
    """Runs a program to its end; its status and all that it printed."""
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, timeout=PATIENCE, check=False, **options)
    return done.returncode, done.stdout
