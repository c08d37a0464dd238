#!/usr/bin/env python3
"""Plays the real window as a blind player does: everything is read and pressed through the accessibility bus.

Usage: screen_reader.py PROGRAM_FOLDER, on a session bus of its own (dbus-run-session)
"""

import os
import sys

from gi.repository import GLib

from stage import stage, wait_for


class Reader:
    def __init__(self, atspi):
        self.desktop = atspi.Registry.getDesktop(0)
        self.told = []
        atspi.Registry.registerEventListener(lambda event: self.told.append(str(event.any_data)), "object:text-changed:insert")
        atspi.Registry.registerEventListener(lambda event: event.detail1 and self.told.append(event.source.name),
                                             "object:state-changed:focused")

    def find(self, name, within=None):
        """The first thing of that name. None when there is none, or when a window goes away during the search."""
        try:
            for thing in filter(None, within or [program for program in self.desktop if program and program.name == "orvel-tavoren"]):
                found = thing if thing.name == name else self.find(name, thing)
                if found is not None:
                    return found
        except GLib.GError:
            pass
        return None

    def press(self, name, within=None):
        thing = wait_for(f"'{name}'", lambda: self.find(name, within and self.find(within)))
        actions = thing.queryAction()
        actions.doAction([actions.getName(number).lower() for number in range(actions.nActions)].index("press"))

    def command(self, verb, thing, reply):
        self.press(verb, "Slovesa")
        if thing:
            self.press(thing, "První předmět")
        self.press("Provést příkaz")
        wait_for(f"the announcement of '{reply}'", lambda: self.hears(reply))

    def hears(self, reply):
        while GLib.MainContext.default().iteration(False):
            pass
        return any(reply in text for text in self.told)


def main():
    with stage(sys.argv[1], {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}) as on:
        os.environ["DISPLAY"] = on.environment["DISPLAY"]
        import pyatspi  # it looks for the bus as soon as it is imported, and finds it through the display

        # The reader starts before the game, as it does for whoever needs one: a game that starts first may not notice that somebody listens.
        reader = Reader(pyatspi)
        on.start_game()
        wait_for("the first window", lambda: reader.find("POZOR!") or reader.find("Orvel Tavoren v1.01"))
        if reader.find("POZOR!"):  # no Arial here
            reader.press("OK", "POZOR!")
        reader.press("Provést příkaz")
        reader.press("Provést příkaz")
        reader.command("Vezmi", "nářadí", "Vzal jsi nářadí...")
        on.xdotool("windowfocus", "--sync", on.window("Orvel Tavoren v1.01"))
        on.xdotool("key", "--delay", "20", "Tab", "Tab", "Home", "Down")
        wait_for("the entry that the keyboard has come to", lambda: reader.hears("Prozkoumej"))
        assert [entry.name for entry in reader.find("Neseš")] == ["nářadí"]
        reader.command("Otevři", "dveře", "Dveře jsou zamčené!")
        reader.press("Exit", "Slovesa")
        reader.press("Provést příkaz")
        assert on.exit_code() == 0


main()
