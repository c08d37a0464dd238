#!/usr/bin/env python3
"""Proves that the road of the story has no hole: plays the winning game and holds it to story/road.txt, which explains its own format.

    road.py REPLAY PROGRAM_FOLDER SCRIPT TEXTS ROAD

What leads to a step must have stood on the screen before it, at two times at least. When the step is due, the player must be able to see
some of it again: the game is saved then, and a second player loads it and looks. Faults are told in Czech, for the author of the story.
"""
import pathlib
import re
import shutil
import sys
import tempfile

import run

COMMAND = re.compile(r"^(\[\w+\] )?>[ ]?(.*)$")  # in a transcript; a panel's is headed by the name of the panel
CARRIES_OUT = ("key Form1.Text2 Enter", "click Form1.Label1", "key Form2.Text2 Enter", "click Form2.Label2", "key Form3.Text1 Enter")
SAVE = ("click Form1.List2(0) Ulož pozici", "key Form1.Text2 Enter", "type Form4.Text1 krok", "key Form4.Text1 Enter")
LOAD = ("key Form1.Text2 Enter", "key Form1.Text2 Enter", "click Form1.List2(0) Nahraj pozici", *SAVE[1:])
ROOMS = [str(number) for number in range(1, 18)]  # the texts that describe them
INPUT = {"Form2": "Form2.Text2", "Form3": "Form3.Text1"}


class Step:
    def __init__(self, place, line, texts):
        self.place = place
        command, _, clues = line.partition(": ")
        self.command, _, self.brings = (part.strip("`") for part in command.partition(" → "))
        self.clues = {clue: texts.get(clue, clue.strip("„“")) for clue in re.findall(r"\d+|„[^“]+“", clues)}
        self.again = None

    def fault(self, what):
        return f"{self.place}: Krok „{self.command}“: {what}."


def read_texts(path):
    return dict(re.findall(r"^(\d+): (.+)$", path.read_text(encoding="utf-8"), re.MULTILINE))


def read_road(path, texts):
    steps = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith(" "):
            steps[-1].again = [command.strip(" `") for command in line.split(";")]
        elif line and not line.startswith("#"):
            steps.append(Step(f"{path.name}:{number}", line, texts))
    return steps


def read_transcript(path):
    """The commands of the winning game: whether a panel took it, its words, and what was told after it."""
    commands = []
    for line in path.read_text(encoding="utf-8").splitlines():
        if match := COMMAND.match(line):
            commands.append((bool(match[1]), match[2], []))
        else:
            commands[-1][2].append(line)
    return commands


def on_screen(player):
    return "\r\n".join(player.shown(*box)["text"] for box in run.BOXES if player.shown(*box)["visible"])


class Map:
    """Which commands lead from room to room, as the winning game shows it."""

    def __init__(self, commands, texts):
        self.descriptions = {room: texts[room] for room in ROOMS}
        self.ways = {}
        doors, here, exits = {}, None, ""
        for panel, command, told in commands:
            views = [] if panel else [(room, line) for line in told for room in ROOMS if line.startswith(texts[room][:40])]
            if not views:
                continue
            room, directions = views[-1][0], next(line for line in reversed(told) if "ůžeš jít" in line)
            if room == here and command.startswith("Otevři"):
                doors |= {(room, f"Jdi na {way}"): command for way in re.findall(r"\w+", directions) if way not in exits}
            elif room != here:
                self.ways.setdefault(here, {})[room] = [command]
            here, exits = room, directions
        for room, following in self.ways.items():
            for commands_there in following.values():
                if door := doors.get((room, commands_there[0])):
                    # A door that was saved open leads nowhere in the loaded game until it is closed.
                    commands_there[:0] = [door.replace("Otevři", "Zavři", 1), door]

    def room(self, player):
        told = player.shown("Form1", "Text1")["text"]
        return max(ROOMS, key=lambda room: told.rfind(self.descriptions[room]))

    def way(self, start, goal):
        reached = {start: []}
        for room in (queue := [start]):
            for following, commands in self.ways.get(room, {}).items():
                if following not in reached:
                    reached[following] = reached[room] + commands
                    queue.append(following)
        return reached.get(goal, [])


class Visitor(run.Player):
    """A second player, who loads the saved game and carries commands out there. The game that saved it goes on unchanged."""

    def __init__(self, replay, folder, known):
        super().__init__(replay, folder)
        self.known = known
        self.do(*LOAD)
        self.read = on_screen(self)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.communicate()

    def do(self, *events):
        self.screen = self.look_after("\n".join(events))

    def perform(self, command):
        panel = self.screen["modal"]
        if command in ROOMS:
            for step in self.known.way(self.known.room(self), command):
                self.perform(step)
        elif panel:
            self.do(f"type {INPUT[panel]} {command}", f"key {INPUT[panel]} Enter")
        else:
            verb, _, words = command.partition(" ")
            thing, _, target = words.partition(" na ") if verb == "Použij" else (words, "", "")
            carried = self.shown("Form1", "List1")["entries"]
            choices = [(verb, "List2(0)"), (thing, "List2(1)"), (target, "List2(2)")]
            self.do(*(f"click Form1.{'List1' if words in carried else name} {words}" for words, name in choices if words),
                    "key Form1.Text2 Enter")
        self.read += on_screen(self)


class WinningGame:
    def __init__(self, replay, folder, script, texts, steps):
        self.replay, self.folder, self.texts = replay, folder, texts
        self.events = [line for line in script.read_text(encoding="utf-8").splitlines() if line and not line.startswith("#")]
        self.transcript = script.with_suffix(".txt")
        self.commands = read_transcript(self.transcript)
        self.faults = []
        self.due = dict(self.places(steps))
        self.map = Map(self.commands, texts)
        self.met = {}  # text or fixed sentence: the numbers of the commands that brought it on the screen
        self.fixed = {words for step in steps for words in step.clues.values()}

    def places(self, steps):
        """Finds each step among the commands, in order."""
        place = -1
        for step in steps:
            found = next((number for number in range(place + 1, len(self.commands)) if self.is_step(step, number)), None)
            if found is None:
                self.faults.append(step.fault("ve vítězné hře po předchozím kroku není"))
            else:
                place = found
                yield place, step

    def is_step(self, step, number):
        _, words, told = self.commands[number]
        return words == step.command and (not step.brings or self.texts[step.brings] in told)

    def main_command(self, number):
        """The last command of the main window, where the game can be saved, before a panel took this one."""
        return next(each for each in range(number, -1, -1) if not self.commands[each][0])

    def play(self):
        player = run.Player(self.replay, self.folder)
        saves = {self.main_command(number) for number in self.due}
        before, number, between = "", 0, True
        for event in self.events:
            if between and number in saves:
                for save in SAVE:
                    player.look_after(save)
            between = event in CARRIES_OUT
            if between and number in self.due:
                self.examine(self.due[number], number)
            player.play(event)
            now = on_screen(player)
            for words in self.fixed:
                if words in now and words not in before:
                    self.met.setdefault(words, []).append(number)
            before, number = now, number + between
        if "\n".join(player.transcript).lstrip("\n") + "\n" != self.transcript.read_text(encoding="utf-8"):
            self.faults.append(f"Vítězná hra se nehraje tak, jak stojí v {self.transcript.name}.")

    def examine(self, step, number):
        unmet = [clue for clue, words in step.clues.items() if words not in self.met]
        self.faults += [step.fault(f"{'text ' + clue if clue.isdigit() else clue} před ním nestál na obrazovce") for clue in unmet]
        times = {self.met[words][0] for words in step.clues.values() if words in self.met}
        if len(times) < 2:
            self.faults.append(step.fault("vede k němu jen to, co se ukázalo jednou a naráz; je potřeba ještě něco odjinud nebo odjindy"))
        if not any(self.can_be_seen(step, commands) for commands in self.ways_back(step)):
            self.faults.append(step.fault(f"v té chvíli se nedá znovu ukázat nic z {', '.join(step.clues)}; odsazený řádek to nedokáže"))

    def ways_back(self, step):
        if step.again:
            return [step.again]
        brought = (self.commands[self.met[words][-1]] for words in step.clues.values() if words in self.met)
        return [[], *([command] for panel, command, _ in brought if command and not panel)]

    def can_be_seen(self, step, commands):
        with Visitor(self.replay, self.folder, self.map) as visitor:
            try:
                for command in commands:
                    visitor.perform(command)
            except SystemExit:  # refused: what he should do cannot be done there
                return False
            return any(words in visitor.read for words in step.clues.values())


def main():
    replay, program_folder, script, texts_file, road = sys.argv[1], *map(pathlib.Path, sys.argv[2:6])
    texts = read_texts(texts_file)
    with tempfile.TemporaryDirectory(prefix="orvel-road-") as folder:
        data = pathlib.Path(folder) / "data"
        (data / "saves").mkdir(parents=True)
        shutil.copy(program_folder / "data/texs.dat", data)
        game = WinningGame(replay, folder, script, texts, read_road(road, texts))
        game.play()
    sys.exit("\n".join(game.faults) or 0)


if __name__ == "__main__":
    main()
