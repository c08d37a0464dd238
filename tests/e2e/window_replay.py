#!/usr/bin/python3
"""Plays the events of a .replay script in the real window, by mouse and keys, and tells what a screen reader finds there.

Usage: window_replay.py PROGRAM_FOLDER, on a session bus of its own (dbus-run-session); it stands in for `replay`.

It knows the events of the winning game, and answers to `show` what tests/walkthroughs/run.py asks for. An event ends when the screen
shows an effect of it; a message box is waited out in vain, since it shuts the windows.
"""

import json
import sys

from gi.repository import Gio, GLib

from stage import stage, wait_for

# The random numbers of the winning game, and a moment by whose clock the game draws the same destination and digits.
DRAWN = "random 0.4 0.5 0.2 0.8 0.1 0.6 0.3 0.7"
MOMENT = "2025-11-29 08:48:03"

# The names by which a screen reader finds the controls.
SPOKEN = {
    "Form1.Text1": "Vyprávění", "Form1.Text2": "Sestavený příkaz", "Form1.List1": "Neseš", "Form1.List2(0)": "Slovesa",
    "Form1.List2(1)": "První předmět", "Form1.List2(2)": "Druhý předmět", "Form1.Label3": "Stav příkazu",
    "Form2.Text1": "Výpis terminálu", "Form2.Text2": "Příkaz terminálu",
    "Form3.Label1": "Displej číselníku", "Form3.Text1": "Kód dveří", "Form3.Label3": "Odejít od číselníku"}
FOCUSED, SHOWING = 1 << 12, 1 << 25  # states

CHILDREN = ("org.a11y.atspi.Accessible", "GetChildren", None)
STATES = ("org.a11y.atspi.Accessible", "GetState", None)
TEXT = ("org.a11y.atspi.Text", "GetText", GLib.Variant("(ii)", (0, -1)))
EXTENTS = ("org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (0,)))
NAME, DESCRIPTION = (("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", ("org.a11y.atspi.Accessible", name)))
                     for name in ("Name", "Description"))


class Bus:
    """The accessibility bus, asked many things in one go: on a busy machine it is the waiting that takes long."""

    def __init__(self):
        address = Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, 0, -1).unpack()[0]
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)

    def ask(self, question, things):
        return self.ask_all([(question, thing) for thing in things])

    def ask_all(self, asked):
        answers = {}
        for number, ((interface, method, arguments), (owner, path)) in enumerate(asked):
            self.connection.call(owner, path, interface, method, arguments, None, 0, -1, None, answers.__setitem__ and (
                lambda _, answer, number: answers.__setitem__(number, answer)), number)
        while len(answers) < len(asked):
            GLib.MainContext.default().iteration(True)
        return [self.connection.call_finish(answers[number]).unpack()[0] for number in range(len(asked))]


class Window:
    def __init__(self, on):
        self.on = on
        self.bus = Bus()
        self.windows = []
        self.known = {}
        self.game = wait_for("the game", self.find_game)

    def find_game(self):
        programs = self.bus.ask(CHILDREN, [("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")])[0]
        return dict(zip(self.bus.ask(NAME, programs), programs)).get("orvel-tavoren")

    def look_around(self):
        """Meets the controls of windows that were not there before."""
        windows = self.bus.ask(CHILDREN, [self.game])[0]
        if windows != self.windows:
            things = sum(self.bus.ask(CHILDREN, windows), windows)
            self.known = {name.split(":")[0]: thing for name, thing in zip(self.bus.ask(NAME, things), things)}
            self.windows = windows

    def read(self):
        """The texts on the screen, the display and the light of the button; every event changes one of them."""
        self.look_around()
        boxes = [name for name in SPOKEN if "Text" in name and SPOKEN[name] in self.known]
        labels = [(self.known[SPOKEN[name]], question) for name, question in (("Form1.Label3", DESCRIPTION), ("Form3.Label1", NAME))
                  if SPOKEN[name] in self.known]
        asked = [(question, self.known[SPOKEN[name]]) for name in boxes for question in (TEXT, STATES)]
        answers = self.bus.ask_all(asked + [(question, thing) for thing, question in labels])
        return {name: (text, bool(states[0] & SHOWING)) for name, text, states in zip(boxes, answers[::2], answers[1::2])}, answers[len(asked):]

    def entries(self, name):
        things = self.bus.ask(CHILDREN, [self.known[SPOKEN[name]]])[0]
        return things, self.bus.ask(NAME, things)

    def show(self):
        texts, labels = self.read()
        forms = {form: {"controls": {}} for form in ("Form1", "Form2", "Form3")}
        for name in SPOKEN:
            form, control = name.split(".")
            if "Text" in control:
                text, shown = texts.get(name, ("", False))
                forms[form]["controls"][control] = {"text": text.replace("\n", "\r\n"), "visible": shown or form != "Form1"}
        forms["Form1"]["controls"]["List1"] = {"entries": self.entries("Form1.List1")[1]}
        forms["Form3"]["controls"]["Label1"] = {"caption": labels[1].partition(": ")[2] if labels[1:] else "--- SAFE MODE ---"}
        return {"messageBoxes": [], "forms": forms}

    def places(self, *things):
        return self.bus.ask(EXTENTS, things)

    def click(self, name, entry):
        thing = self.known[SPOKEN[name]]
        if entry:
            things, names = self.entries(name)
            thing = things[names.index(entry)]
            self.scroll(self.known[SPOKEN[name]], things, thing)
        left, top, width, height = self.places(thing)[0]
        self.on.xdotool("mousemove", left + width // 2, top + height // 2, "mousedown", 1, "mouseup", 1)

    def scroll(self, box, things, thing):
        """Turns the wheel until the thing is in sight: what is not has no height."""
        while thing not in (seen := self.in_sight(things)):
            left, top, *_ = self.places(box)[0]
            down = things.index(thing) > things.index(seen[-1])
            self.on.xdotool("mousemove", left + 20, top + 20, "click", 5 if down else 4)
            wait_for("the list to move", lambda: self.in_sight(things) != seen)

    def in_sight(self, things):
        return [thing for thing, place in zip(things, self.places(*things)) if place[3]]

    def has_focus(self, name):
        return SPOKEN[name] in self.known and self.bus.ask(STATES, [self.known[SPOKEN[name]]])[0][0] & FOCUSED

    def play(self, event):
        kind, name, what = (event + "  ").split(" ", 2)
        what = what.strip()
        before = self.read()
        if kind == "click":
            self.click(name, what)
        else:
            wait_for(f"the focus in {name}", lambda: self.has_focus(name))
            self.on.xdotool(*(["key", "--delay", 0, "Return"] if what == "Enter" else ["type", "--delay", 1, what]))
        if kind == "type":
            wait_for(f"'{what}' in {name}", lambda: self.read()[0][name][0].endswith(what))
        wait_for(f"an effect of: {event}", lambda: self.on.game.poll() is not None or self.read() != before)


def main():
    with stage(sys.argv[1], {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "TZ": "UTC"}) as on:
        on.start_game("faketime", "--exclude-monotonic", "-f", MOMENT)
        window = Window(on)
        wait_for("the main window", lambda: window.look_around() or window.has_focus("Form1.Text2"))
        for event in map(str.strip, sys.stdin):
            try:
                if event == "show":
                    print(json.dumps(window.show()), flush=True)
                elif event and event != DRAWN:
                    window.play(event)
            except GLib.GError:  # nobody answers any more
                assert on.exit_code() == 0
                return print(json.dumps({"ended": True}))


if __name__ == "__main__":
    main()
