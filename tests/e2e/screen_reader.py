#!/usr/bin/env python3
"""Plays the real window as a blind player does: everything is read and pressed through the accessibility bus.

Usage: screen_reader.py PROGRAM_FOLDER, on a session bus of its own (dbus-run-session)
"""

import os
import sys

from gi.repository import GLib

from stage import stage, wait_for

ROLES = {"Vyprávění": "text", "Sestavený příkaz": "text", "Neseš": "list", "Slovesa": "list", "První předmět": "list",
         "Druhý předmět": "list", "Stav příkazu: Proceed": "label", "Provést příkaz": "push button"}


class Reader:
    def __init__(self, atspi, main_context):
        self.atspi = atspi
        self.main_context = main_context
        self.told = []
        atspi.Registry.registerEventListener(self._listen, "object:text-changed")
        self.game = None

    def meets(self, name):
        self.game = wait_for(f"{name} on the bus", lambda: self._program(name))

    def _program(self, name):
        desktop = self.atspi.Registry.getDesktop(0)
        return next((program for program in desktop if program is not None and program.name == name), None)

    def find(self, *wanted, within=None):
        """The first thing whose name or role is one of the wanted; none while a window goes away under the search."""
        try:
            for thing in within or self.game:
                if thing is None:
                    continue
                found = thing if thing.name in wanted or thing.getRoleName() in wanted else self.find(*wanted, within=thing)
                if found is not None:
                    return found
        except GLib.GError:
            pass
        return None

    def press(self, thing):
        actions = thing.queryAction()
        names = [actions.getName(number).lower() for number in range(actions.nActions)]
        actions.doAction(names.index("press"))

    def choose(self, list_name, entry):
        wait_for(f"the entry '{entry}' of '{list_name}'", lambda: self._press_entry(list_name, entry))

    def _press_entry(self, list_name, entry):
        entries = {child.name: child for child in self.find(list_name)}
        if entry not in entries:
            return False
        self.press(entries[entry])
        return True

    def read(self, name):
        control = self.find(name)
        return control.queryText().getText(0, -1) if control else ""

    def proceed(self):
        self.press(self.find("Provést příkaz"))

    def hears(self, reply):
        wait_for(f"'{reply}' in the output", lambda: reply in self.read("Vyprávění"))
        wait_for(f"the announcement of '{reply}'", lambda: self._announced(reply))

    def _listen(self, event):
        if ":insert" in str(event.type):
            self.told.append(str(event.any_data))

    def _announced(self, reply):
        while self.main_context.iteration(False):
            pass
        return any(reply in text for text in self.told)


def play(reader):
    first = wait_for("the first window", lambda: reader.find("POZOR!", "Orvel Tavoren v1.01"))
    if first.name == "POZOR!":  # no Arial here
        reader.press(wait_for("its button", lambda: reader.find("push button", within=first)))
        wait_for("the warning to go", lambda: reader.find("POZOR!") is None)
    wait_for("the main window", lambda: reader.find("Sestavený příkaz"))
    for name, role in ROLES.items():
        control = reader.find(name)
        assert control is not None, f"no control is called '{name}'"
        assert control.getRoleName() == role, f"'{name}' is a {control.getRoleName()}"
    reader.proceed()
    reader.proceed()
    reader.hears("Nemůžeš jít nikam.")
    reader.choose("Slovesa", "Vezmi")
    reader.choose("První předmět", "nářadí")
    wait_for("the sentence", lambda: reader.read("Sestavený příkaz") == "Vezmi nářadí")
    reader.proceed()
    reader.hears("Vzal jsi nářadí...")
    assert [entry.name for entry in reader.find("Neseš")] == ["nářadí"]
    reader.choose("Slovesa", "Otevři")
    reader.choose("První předmět", "dveře")
    reader.proceed()
    reader.hears("Dveře jsou zamčené!")
    reader.choose("Slovesa", "Exit")
    reader.proceed()


def main():
    with stage(sys.argv[1], {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}) as on:
        os.environ["DISPLAY"] = on.environment["DISPLAY"]
        import pyatspi  # it looks for the bus as soon as it is imported, and finds it through the display

        # Whoever needs a screen reader has it running first; a game that starts beside it may miss that somebody listens.
        reader = Reader(pyatspi, GLib.MainContext.default())
        on.start_game()
        reader.meets("orvel-tavoren")
        play(reader)
        assert on.exit_code() == 0


main()
