#!/usr/bin/python3
"""Looks at the program through the accessibility bus, as a screen reader does.

    accessibility.py NORVANE    the program, in a folder that it may write to

Runs on a display and a session bus of its own. Prints a line for each thing that is wrong; the
exit status tells whether there was one.
"""

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20  # seconds
INTERACTIVE = {
    Atspi.Role.TEXT,
    Atspi.Role.SPIN_BUTTON,
    Atspi.Role.RADIO_BUTTON,
    Atspi.Role.PUSH_BUTTON,
    Atspi.Role.TOGGLE_BUTTON,
    Atspi.Role.CHECK_BOX,
    Atspi.Role.COMBO_BOX,
    Atspi.Role.PAGE_TAB,
}
# What a listener hears of the pipe that the program starts with, when 13 mm are typed.
RESULTS_OF_13_MM = {
    "Surface temperature: 22.8 °C",
    "Heat loss with insulation: 11.0 W/m",
    "Saving: 14.54 W/m",
    "Saving: 57%",
    "Natural gas saving: 1.08 m³",
    "Heating oil saving: 0.86 litres",
    "Electricity saving: 10.47 kWh",
}

failures = []


def check(holds, what):
    if not holds:
        failures.append(what)
        print("FAILED:", what)


def run_events(seconds):
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while context.iteration(False):
            pass
        time.sleep(0.01)


def wait_for(look, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        run_events(0.05)
    sys.exit(f"FAILED: {what} doesn't come")


def window(title):
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        for j in range(application.get_child_count() if application else 0):
            frame = application.get_child_at_index(j)
            if frame and frame.get_name() == title and showing(frame):
                return frame
    return None


def showing(accessible):
    return accessible.get_state_set().contains(Atspi.StateType.SHOWING)


def all_below(accessible):
    for i in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(i)
        if child is None or not showing(child):
            continue
        yield child
        yield from all_below(child)


def press(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)
    run_events(0.3)


def text_of(accessible):
    return Atspi.Text.get_text(accessible, 0, -1)


def check_names(frame):
    for accessible in all_below(frame):
        if accessible.get_role() in INTERACTIVE:
            check(accessible.get_name(), f"a {accessible.get_role_name()} has no name")


def check_fields(frame):
    fields = {
        accessible.get_name(): accessible
        for accessible in all_below(frame)
        if accessible.get_role() == Atspi.Role.SPIN_BUTTON
    }
    for name, text, unit in [
        ("Medium temperature", "80", "°C"),
        ("Ambient temperature", "15", "°C"),
        ("Pipe diameter", "10", "mm"),
        ("Insulation thickness", "0", "mm"),
        ("Metres or m²", "1", ""),
    ]:
        check(name in fields, f"no field {name}")
        if name in fields:
            check(text_of(fields[name]) == text, f"{name} isn't {text}")
            check(fields[name].get_description() == unit, f"the unit of {name} isn't {unit!r}")


def check_changes(heard):
    press("alt+i")
    heard.clear()
    press("ctrl+a", "1", "3")
    end = time.monotonic() + PATIENCE
    while RESULTS_OF_13_MM - set(heard) and time.monotonic() < end:
        run_events(0.05)
    for told in sorted(RESULTS_OF_13_MM - set(heard)):
        check(False, f"not heard: {told}")


def check_focus_follows_tab(frame):
    focused = []
    press("alt+m")
    for _ in range(5):
        for accessible in all_below(frame):
            if accessible.get_state_set().contains(Atspi.StateType.FOCUSED):
                focused.append(accessible.get_name())
        press("Tab")
    rows = ["Medium temperature", "Ambient temperature", "Pipe diameter", "Insulation thickness"]
    check(focused == rows + ["Metres or m²"], f"Tab goes through {focused}")


def check_dialog(main):
    """The settings, opened and left by keyboard."""
    for accessible in all_below(main):
        if accessible.get_name() == "Savings settings":
            Atspi.Component.grab_focus(accessible)
            break
    press("space")
    dialog = wait_for(lambda: window("Settings"), "the settings dialog")
    check_names(dialog)
    press("Escape")


def main():
    # The main screen writes its settings beside the program.
    program = subprocess.Popen([sys.argv[1]])
    try:
        frame = wait_for(lambda: window("Norvane 3.1"), "the main screen")
        heard = []
        listener = Atspi.EventListener.new(lambda event: heard.append(event.source.get_name()))
        listener.register("object:property-change:accessible-name")
        check_names(frame)
        check_fields(frame)
        check_changes(heard)
        check_focus_follows_tab(frame)
        check_dialog(frame)
        check(program.poll() is None, "the program has ended")
    finally:
        program.kill()
        program.wait()
    sys.stdout.flush()
    os._exit(1 if failures else 0)


if __name__ == "__main__":
    main()
