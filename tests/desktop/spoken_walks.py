#!/usr/bin/python3
"""Walks through the guide as who sees nothing does: by what the accessibility bus tells and takes.

    spoken_walks.py NORVANE    the program, in a folder that it may write to

No key and no mouse. Each action has to be answered at once, also one that opens a dialog. Runs on
a display and a session bus of its own. Prints a line for each thing that is wrong; the exit status
tells whether there was one.
"""

import os
import subprocess
import sys
import time

from accessibility import PATIENCE, all_below, check, failures, run_events, showing, wait_for, window
from gi.repository import Atspi

ANSWER = 5  # seconds; a blocked action would wait for whoever closes the dialog
FRAME, DIALOG = Atspi.Role.FRAME, Atspi.Role.DIALOG
RADIO, BUTTON, TAB = Atspi.Role.RADIO_BUTTON, Atspi.Role.PUSH_BUTTON, Atspi.Role.PAGE_TAB
SPIN, TEXT, LIST = Atspi.Role.SPIN_BUTTON, Atspi.Role.TEXT, Atspi.Role.COMBO_BOX
CHECKED, SELECTED = Atspi.StateType.CHECKED, Atspi.StateType.SELECTED


class Reader:
    """Hands and ears of the user, in one window after the other."""

    def __init__(self, window):
        self.window = window
        self.heard = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:showing")

    def hear(self, event):
        if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
            self.heard.append(event.source.get_name())

    def find(self, role, name):
        def look():
            return next((each for each in all_below(self.window)
                         if each.get_role() == role and each.get_name() == name), None)
        return wait_for(look, f"{role.value_nick} {name!r}")

    def told(self, name):
        """Waits for a label; the other results are there with it."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if any(each.get_name() == name for each in all_below(self.window)):
                return
            run_events(0.05)
        check(False, f"not told: {name}")

    def at_once(self, what, act):
        before = time.monotonic()
        try:
            act()
        except Exception as problem:  # no answer in time is one of them
            check(False, f"{what}: {problem}")
        check(time.monotonic() - before < ANSWER, f"{what} keeps its caller waiting")
        run_events(0.05)

    def act(self, node, name):
        names = [Atspi.Action.get_action_name(node, i) for i in range(node.get_n_actions())]
        if name not in names:
            check(False, f"{node.get_name()!r} has no action {name}, only {names}")
            return
        self.at_once(f"{name} of {node.get_name()!r}",
                     lambda: Atspi.Action.do_action(node, names.index(name)))

    def press(self, role, name):
        self.act(self.find(role, name), "Press")

    def type(self, role, name, text):
        node = self.find(role, name)
        self.at_once(f"text of {name!r}",
                     lambda: Atspi.EditableText.set_text_contents(node, text))
        wait_for(lambda: self.text_of(role, name) == text, f"{text!r} in {name!r}")

    def text_of(self, role, name):
        return Atspi.Text.get_text(self.find(role, name), 0, -1)

    def set(self, name, number, limits, step):
        """By the value, whose limits and step are these."""
        node = self.find(SPIN, name)
        value = node.get_value_iface()
        check((value.get_minimum_value(), value.get_maximum_value()) == limits,
              f"the limits of {name!r} are {value.get_minimum_value()}, {value.get_maximum_value()}")
        check(value.get_minimum_increment() == step,
              f"the step of {name!r} is {value.get_minimum_increment()}")
        self.at_once(f"value of {name!r}", lambda: value.set_current_value(number))
        wait_for(lambda: value.get_current_value() == number, f"{number} in {name!r}")

    def chosen(self, name):
        return self.find(RADIO, name).get_state_set().contains(CHECKED)

    def turn_to(self, window):
        self.window = window

    def only(self, results, what):
        """All that was announced meanwhile, each new one once."""
        run_events(0.3)
        check(self.heard == results, f"{what}: announced were {self.heard}")
        self.heard.clear()


def walk_a_pipe(reader):
    check(reader.chosen("Steel pipe"), "Steel pipe isn't chosen")
    check(reader.chosen("Heat loss"), "Heat loss isn't chosen")
    check(not reader.chosen("Flat surface"), "Flat surface is chosen")
    check(reader.text_of(SPIN, "Medium temperature") == "80", "the medium hasn't 80 °C")
    check(reader.text_of(SPIN, "Ambient temperature") == "15", "it isn't 15 °C around")
    reader.set("Pipe diameter", 21, (6, 915), 1)
    reader.told("Heat loss with insulation: 53.6 W/m")
    reader.type(SPIN, "Insulation thickness", "13")
    for result in ("Heat loss with insulation: 17.0 W/m", "Heat loss without insulation: 53.6 W/m",
                   "Surface temperature: 24.2 °C", "Saving: 36.58 W/m", "Saving: 68%"):
        reader.told(result)
    reader.set("Metres or m²", 25, (0, 10000), 1)
    for result in ("Natural gas saving: 67.96 m³", "Heating oil saving: 54.05 litres",
                   "Electricity saving: 658.48 kWh", "Saving: 36.58 W/m"):
        reader.told(result)
    reader.only(["Heat loss with insulation: 53.6 W/m", "Heat loss with insulation: 17.0 W/m"],
                "a pipe")


def walk_a_flat_surface(reader):
    reader.press(RADIO, "Flat surface")
    wait_for(lambda: reader.chosen("Flat surface"), "the flat surface")
    check(not reader.chosen("Steel pipe"), "Steel pipe is still chosen")
    reader.set("Medium temperature", 80, (-50, 115), 5)
    reader.set("Ambient temperature", 15, (-60, 110), 5)
    reader.heard.clear()
    reader.set("Insulation thickness", 50, (0, 100), 1)
    reader.set("Metres or m²", 1, (0, 10000), 1)
    for result in ("Heat loss with insulation: 47.9 W/m²", "Surface temperature: 18.8 °C",
                   "Heat loss without insulation: 812.5 W/m²", "Saving per m²: 94%"):
        reader.told(result)
    reader.only(["Heat loss with insulation: 47.9 W/m²"], "a flat surface")


def walk_condensation(reader):
    reader.press(RADIO, "Steel pipe")
    reader.press(RADIO, "Condensation control")
    wait_for(lambda: reader.chosen("Condensation control"), "condensation")
    reader.type(SPIN, "Medium temperature", "6")
    reader.set("Relative humidity", 60, (30, 95), 5)
    reader.set("Pipe diameter", 10, (6, 915), 1)
    run_events(0.3)
    reader.heard.clear()
    reader.set("Ambient temperature", 35, (-20, 50), 2)
    reader.told("Surface temperature: 26.0 °C")
    check(reader.text_of(TEXT, "Insulation thickness") == "4.6", "it isn't 4.6 mm thick")
    check(reader.heard[-1:] == ["Insulation thickness: 4.6 mm"], f"announced were {reader.heard}")
    check(len(set(reader.heard)) == len(reader.heard), f"announced twice: {reader.heard}")
    reader.heard.clear()


def walk_own_lambda_and_alpha(reader, main):
    reader.press(RADIO, "Heat loss")
    reader.press(RADIO, "Steel pipe")
    reader.told("Heat transfer coefficient: 12.5 W/m²K")
    reader.press(BUTTON, "New alpha")
    dialog = wait_for(lambda: window("Settings"), "the settings")
    check(dialog.get_role() == DIALOG, f"the settings are a {dialog.get_role_name()}")
    # The main screen waits, but not who acts on it.
    reader.press(RADIO, "Flat surface")
    reader.turn_to(dialog)
    reader.press(TAB, "New lambda")
    reader.type(TEXT, "New lambda", "0.045")
    reader.press(TAB, "New alpha")
    reader.type(TEXT, "Enter the new alpha value:", "9")
    reader.press(BUTTON, "OK")
    wait_for(lambda: window("Settings") is None, "the end of the settings")
    reader.turn_to(main)
    reader.told("Heat transfer coefficient: 9.0 W/m²K")
    reader.told("Thermal conductivity: 0.046 W/mK")
    check(reader.chosen("Steel pipe"), "the main screen took an action behind the dialog")


def walk_totals(reader, main):
    products = reader.find(LIST, "Product")
    items = [products.get_child_at_index(i) for i in range(products.get_child_count())]
    reader.act(next(item for item in items if item.get_name() == "Norvane Tube K3"), "Press")
    wait_for(lambda: [item.get_name() for item in items if
                      item.get_state_set().contains(SELECTED)] == ["Norvane Tube K3"], "K3")
    reader.press(BUTTON, "Add to Total")
    reader.press(BUTTON, "Show totals: 1")
    totals = wait_for(lambda: window("Total Calculation"), "the totals")
    reader.turn_to(totals)
    cell = reader.find(Atspi.Role.TABLE_CELL, "Norvane Tube K3")
    reader.press(BUTTON, "Delete marked lines")
    run_events(0.5)
    check(window("Norvane") is None, "nothing is marked, and something is asked")
    reader.act(cell, "Toggle")
    reader.press(BUTTON, "Delete marked lines")
    question = wait_for(lambda: window("Norvane"), "the question")
    reader.turn_to(question)
    reader.told("Delete 1 Records")
    reader.press(BUTTON, "Yes")
    wait_for(lambda: window("Total Calculation") is None, "the end of the totals")
    reader.turn_to(main)


def main():
    Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)
    program = subprocess.Popen([sys.argv[1]])
    try:
        screen = wait_for(lambda: window("Norvane 3.1"), "the main screen")
        check(screen.get_role() == FRAME, f"the main screen is a {screen.get_role_name()}")
        check(showing(screen), "the main screen doesn't show")
        reader = Reader(screen)
        walk_a_pipe(reader)
        walk_a_flat_surface(reader)
        walk_condensation(reader)
        walk_own_lambda_and_alpha(reader, screen)
        walk_totals(reader, screen)
        reader.press(BUTTON, "Exit")
        program.wait(PATIENCE)
        check(program.returncode == 0, f"the program ended with {program.returncode}")
    finally:
        program.kill()
        program.wait()
    sys.stdout.flush()
    os._exit(1 if failures else 0)


if __name__ == "__main__":
    main()
