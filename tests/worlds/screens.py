"""The real windows, on a display of their own."""

import os
import shutil
import subprocess
import time

from program import PATIENCE, Skipped

MAIN_WINDOW = "^Norvane [0-9]"  # its title has the version


def desktop_folder(program):
    """A folder with the desktop program, and all that an export needs."""
    if not (program.installed / "norvane").exists():
        raise Skipped("there is no desktop program")
    folder = program.folder()
    for name in ("norvane", "norvane_office.so", "norvane_workbook.so", "total.xls"):
        if (program.installed / name).exists():
            shutil.copy(program.installed / name, folder)
    return folder


def wait_until(condition, what):
    begin = time.monotonic()
    while not condition():
        if time.monotonic() - begin > PATIENCE / 10:
            raise AssertionError(f"{what} doesn't come")
        time.sleep(0.02)


class Screen:
    """An X display with a window manager, and the programs that were started on it."""

    def __init__(self, program):
        for needed in ("Xvfb", "openbox", "xdotool"):
            if shutil.which(needed) is None:
                raise Skipped(f"there is no {needed}")
        self._home = program.new_place()
        self._home.chmod(0o711)
        self._processes = []

    def __enter__(self):
        reading, writing = os.pipe()
        self._start(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24",
                     "-nolisten", "tcp", "-noreset"], {"PATH": os.environ["PATH"]},
                    pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as number:
            display = f":{number.readline().strip()}"
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": str(self._home), "DISPLAY": display,
            "XDG_RUNTIME_DIR": str(self._home), "XDG_CONFIG_HOME": str(self._home),
            "QT_QPA_PLATFORM": "xcb", "QT_ACCESSIBILITY": "0", "LC_ALL": "C.UTF-8"}
        started = self._home / "started"
        self._start(["openbox", "--sm-disable", "--startup", f"touch {started}"], self.environment)
        wait_until(started.exists, "the window manager")
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            process.kill()
            process.wait()

    def _start(self, command, environment, **options):
        self._processes.append(subprocess.Popen(
            command, env=environment,
            **{"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, **options}))
        return self._processes[-1]

    def start(self, folder, stderr=subprocess.DEVNULL, preexec_fn=None, **environment):
        """The desktop program of a folder."""
        return self._start([folder / "norvane"], {**self.environment, **environment},
                           stderr=stderr, cwd=folder, preexec_fn=preexec_fn)

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.environment, timeout=PATIENCE,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              check=False).stdout.split()

    def windows(self, title=MAIN_WINDOW):
        return self.xdotool("search", "--onlyvisible", "--name", title)

    def wait_for_window(self, title=MAIN_WINDOW):
        wait_until(lambda: self.windows(title), f"a window {title}")
        window = self.windows(title)[0]
        self.xdotool("windowactivate", "--sync", window)
        return window

    def wait_for_end(self, process):
        """The exit status of a program that ends by itself; by a signal it is negative."""
        try:
            return process.wait(PATIENCE / 10)
        except subprocess.TimeoutExpired as error:
            raise AssertionError("the program doesn't end") from error
