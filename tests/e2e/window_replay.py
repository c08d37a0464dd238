#!/usr/bin/python3
"""Plays the events of a .replay script in the real window, by mouse and keys, and tells what a screen reader finds there.

Usage: window_replay.py PROGRAM_FOLDER, on a session bus of its own (dbus-run-session); it stands in for `replay`.

It knows the events of the winning game, and answers `show` as tests/walkthroughs/beside.py explains. An event ends when the screen shows
an effect of it. An event that brings a message box fails, because the box keeps the windows from showing any effect.
"""

import json
import sys

from gi.repository import Gio, GLib

from stage import stage, wait_for

# The random numbers of the winning game, and a moment by whose clock the game draws the same destination and digits: the latest whole
# second of 2025 that does, found by seeding the game's generator with one after the other.
DRAWN = "random 0.4 0.5 0.2 0.8 0.1 0.6 0.3 0.7"
MOMENT = "2025-11-29 08:48:03"

# The names by which a screen reader finds the controls.
SPOKEN = {
    "Form1.Text1": "Vyprávění", "Form1.Text2": "Sestavený příkaz", "Form1.List1": "Neseš", "Form1.List2(0)": "Slovesa",
    "Form1.List2(1)": "První předmět", "Form1.List2(2)": "Druhý předmět", "Form1.Label3": "Stav příkazu",
    "Form2.Text1": "Výpis terminálu", "Form2.Text2": "Příkaz terminálu", "Form2.Label1": "Stav terminálu",
    "Form3.Label1": "Displej číselníku", "Form3.Text1": "Kód dveří", "Form3.Label2": "Stav číselníku",
    "Form3.Label3": "Odejít od číselníku"}
LIGHTS = {"svítí": [192, 255, 255], "zhaslo": [0, 128, 128]}  # what a screen reader says of a colour
FOCUSED, SELECTED, SHOWING = 1 << 12, 1 << 23, 1 << 25  # states

CHILDREN = ("org.a11y.atspi.Accessible", "GetChildren", None)
STATES = ("org.a11y.atspi.Accessible", "GetState", None)
TEXT = ("org.a11y.atspi.Text", "GetText", GLib.Variant("(ii)", (0, -1)))
PLACE = ("org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (0,)))
NAME, DESCRIPTION = (("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", ("org.a11y.atspi.Accessible", name)))
                     for name in ("Name", "Description"))


class Bus:
    """The accessibility bus, asked many things at once, because on a busy machine each wait takes long."""

    def __init__(self):
        address = Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, 0, -1).unpack()[0]
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)

    def ask(self, things, *questions):
        """For each thing of one program the answers to all questions, one after another."""
        answers = []
        asked = [(thing, question) for thing in things for question in questions]
        for (owner, path), (interface, method, arguments) in asked:  # a program answers in this order
            self.connection.call(owner, path, interface, method, arguments, None, 0, -1, None, lambda _, answer: answers.append(answer))
        while len(answers) < len(asked):
            GLib.MainContext.default().iteration(True)
        return [self.connection.call_finish(answer).unpack()[0] for answer in answers]


class Window:
    def __init__(self, on):
        self.on = on
        self.bus = Bus()
        self.windows = []
        self.controls = {}
        self.game = wait_for("the game", self.find_game)
        wait_for("the main window", lambda: self.look_around() and self.has_focus("Form1.Text2"))
        self.read()

    def find_game(self):
        programs = self.bus.ask([("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")], CHILDREN)[0]
        return next((program for program in programs if self.bus.ask([program], NAME) == ["orvel-tavoren"]), None)

    def look_around(self):
        """Finds the controls of windows that have appeared since the last look."""
        windows = self.bus.ask([self.game], CHILDREN)[0]
        if windows != self.windows:
            things = sum(self.bus.ask(windows, CHILDREN), [])
            named = {name.split(":")[0]: thing for name, thing in zip(self.bus.ask(things, NAME), things)}
            self.controls = {name: named[spoken] for name, spoken in SPOKEN.items() if spoken in named}
            self.windows = windows
        return self.controls

    def read(self):
        """Reads the texts, whether each is on the screen, and the labels with their lights. Every event changes at least one of these."""
        self.look_around()
        boxes = [name for name in self.controls if "Text" in name]
        answers = self.bus.ask([self.controls[name] for name in boxes], TEXT, STATES)
        self.texts = {name: (text, bool(states[0] & SHOWING)) for name, text, states in zip(boxes, answers[::2], answers[1::2])}
        labels = [name for name in self.controls if "Label" in name]
        self.labels = dict(zip(labels, zip(*[iter(self.bus.ask([self.controls[name] for name in labels], NAME, DESCRIPTION))] * 2)))
        return self.texts, self.labels

    def show(self):
        self.read()  # once more: the event may have come between two answers
        forms = {form: {"visible": any(showing for name, (_, showing) in self.texts.items() if name.startswith(form)), "controls": {}}
                 for form in ("Form1", "Form2", "Form3")}
        # What run.py asks of panels that have not been on the screen yet.
        forms["Form2"]["controls"] = {name: {"text": "", "visible": True} for name in ("Text1", "Text2")}
        forms["Form3"]["controls"] = {"Text1": {"text": ""}, "Label1": {"caption": "--- SAFE MODE ---"}}
        for name, facts in [*self.show_texts(forms), *self.show_labels(), *self.show_lists()]:
            form, control = name.split(".")
            forms[form]["controls"][control] = facts
        states = self.bus.ask(self.controls.values(), STATES)
        focus = next((name for name, (state, _) in zip(self.controls, states) if state & FOCUSED), None)
        modal = next((form for form in ("Form2", "Form3") if forms[form]["visible"]), None)
        return {"modal": modal, "focus": focus, "messageBoxes": [], "forms": forms}

    def show_texts(self, forms):
        for name, (text, showing) in self.texts.items():
            # Whether a box of a hidden window is visible nobody can see; the headless player says that it is.
            yield name, {"text": text.replace("\n", "\r\n"), "visible": showing or not forms[name.split(".")[0]]["visible"]}

    def show_labels(self):
        for name, (spoken, light) in self.labels.items():
            yield name, {"caption": spoken.partition(": ")[2]} | ({"colour": LIGHTS[light]} if light else {})

    def show_lists(self):
        lists = [name for name in self.controls if "List" in name]
        entries = self.bus.ask([self.controls[name] for name in lists], CHILDREN)
        answers = iter(self.bus.ask(sum(entries, []), NAME, STATES))
        for name, own in zip(lists, entries):
            shown = [(next(answers), bool(next(answers)[0] & SELECTED)) for _ in own]
            selected = (index for index, (_, is_selected) in enumerate(shown) if is_selected)
            yield name, {"entries": [entry for entry, _ in shown], "selected": next(selected, -1)}

    def click(self, name, entry):
        place = self.bus.ask([self.controls[name]], PLACE)[0]
        if entry:
            place = self.place_of_entry(name, entry, place)
        left, top, width, height = place
        self.on.hand(f"mousemove {left + width // 2} {top + height // 2} mousedown 1 mouseup 1")

    def place_of_entry(self, name, entry, box):
        """Turns the wheel until the entry is in sight; an entry out of sight has no height."""
        entries = self.bus.ask([self.controls[name]], CHILDREN)[0]
        answers = self.bus.ask(entries, NAME, PLACE)
        index, places = answers[::2].index(entry), answers[1::2]
        while not places[index][3]:
            wheel = 5 if any(place[3] for place in places[:index]) else 4
            self.on.hand(f"mousemove {box[0] + 20} {box[1] + 20} mousedown {wheel} mouseup {wheel}")
            before = places
            wait_for("the list to move", lambda: self.bus.ask(entries, PLACE) != before)
            places = self.bus.ask(entries, PLACE)
        return places[index]

    def has_focus(self, name):
        return name in self.controls and self.bus.ask([self.controls[name]], STATES)[0][0] & FOCUSED

    def play(self, event):
        kind, name, what = (event + " ").split(" ", 2)
        what = what.rstrip()
        before = self.texts, self.labels
        if kind == "click":
            self.click(name, what)
        else:
            wait_for(f"the focus in {name}", lambda: self.has_focus(name))
            self.on.hand("key --delay 0 Return" if kind == "key" else f"type --delay 1 '{what}'")
        if kind == "type":
            wait_for(f"'{what}' in {name}", lambda: self.read()[0][name][0].endswith(what))
        wait_for("an effect", lambda: self.read() != before)


def main():
    with stage(sys.argv[1], {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "TZ": "UTC"}) as on:
        on.start_game("faketime", "--exclude-monotonic", "-f", MOMENT)
        on.pass_font_warning()
        window = Window(on)
        for event in map(str.strip, sys.stdin):
            try:
                if event == "show":
                    print(json.dumps(window.show()), flush=True)
                elif event.startswith("random"):
                    assert event == DRAWN, "by this clock the game draws other numbers"
                elif event:
                    window.play(event)
            except (AssertionError, ValueError) as fault:
                return print(json.dumps({"refused": str(fault)}))
            except GLib.GError:  # nobody answers any more
                assert on.exit_code() == 0
                return print(json.dumps({"ended": True}))


if __name__ == "__main__":
    main()
