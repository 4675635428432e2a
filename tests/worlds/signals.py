"""The real programs with the signals as every program gets them.

Python ignores SIGPIPE and SIGXFSZ, and gives them back to what it starts (`restore_signals`).
"""

import os
import signal
import subprocess
import time

from program import PATIENCE, expect, set_hours
from screens import Screen, desktop_folder, wait_until


def unread_pipe():
    """The writing end of a pipe that nobody reads."""
    reading, writing = os.pipe()
    os.close(reading)
    return writing


def output_that_nobody_reads(program):
    folder = program.folder()
    output = unread_pipe()
    script = "start\nget Label4(0)\n" + set_hours(7)
    run = subprocess.run([program.driver, folder], input=script.encode(), stdout=output,
                         stderr=output, timeout=PATIENCE, check=False)
    os.close(output)
    expect("the exit status", run.returncode, 0)
    expect("the hours", program.value(folder, "Hr_Day"), b"7")
    return "the script is played to its end"


def warnings_that_nobody_reads(program):
    """Qt says a lot on the standard error, of which the reader goes away."""
    folder = desktop_folder(program)
    reading, writing = os.pipe()
    with Screen(program) as screen:
        run = screen.start(folder, stderr=writing, QT_DEBUG_PLUGINS="1",
                           QT_LOGGING_RULES="*.debug=true")
        os.close(writing)
        os.read(reading, 1)
        os.close(reading)
        screen.wait_for_window()
        expect("the program still runs", run.poll(), None)
        screen.xdotool("key", "Tab", "2", "5")
        expect("it still runs", run.poll(), None)
    expect("the settings", (folder / "norvane.ini").exists(), True)
    return "the windows come and take keys"


def session_end(program):
    """Of the real program, told by the system's own signals."""
    moments = [("the main window", True), ("the splash", False)]
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        for moment, is_started in moments if number == signal.SIGTERM else moments[:1]:
            folder = desktop_folder(program)
            with Screen(program) as screen:
                run = screen.start(folder)
                if is_started:
                    screen.wait_for_window()
                    screen.xdotool("key", "Tab", "2", "5")
                else:
                    wait_until((folder / "norvane.ini").exists, "the settings file")
                run.send_signal(number)
                expect(f"the exit status after {number.name} at {moment}",
                       screen.wait_for_end(run), 0)
            expect("left-overs", list(folder.glob("*.new")), [])
    return "the windows are closed as the user would, exit status 0"


def session_end_that_is_ignored(program):
    """As of a program that nohup has started."""
    folder = desktop_folder(program)
    with Screen(program) as screen:
        run = screen.start(folder, preexec_fn=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN))
        screen.wait_for_window()
        run.send_signal(signal.SIGHUP)
        time.sleep(0.3)
        expect("the program still runs", run.poll(), None)
    return "stays ignored"


WORLDS = [
    ("an output that nobody reads", output_that_nobody_reads),
    ("warnings that nobody reads", warnings_that_nobody_reads),
    ("the end of the session", session_end),
    ("a hangup that is ignored from outside", session_end_that_is_ignored),
]
