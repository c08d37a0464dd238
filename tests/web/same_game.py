#!/usr/bin/env python3
"""Plays random games both in the native headless player and in the one compiled for the browser, and compares every answer.

    same_game.py NATIVE_REPLAY WEB_REPLAY PROGRAM_FOLDER [EVENTS [SEED]]

Each game begins in the middle of a walkthrough. The players change their folders from game to game, so each loads what the other has saved.
A difference ends the run and prints the events that lead to it.
"""
import json
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

EVENTS_OF_A_GAME = 250
WALKTHROUGHS = sorted(pathlib.Path(__file__).parent.parent.glob("walkthroughs/*.replay"))
# How often each verb is chosen: the later ones save, load and end the game.
VERB_WEIGHTS = [22, 14, 26, 11, 4, 11, 2, 11, 1, 7, 7, 0.2, 0.1]
TYPED = {
    "Form2": ["exit", "mj-perolax", "mj-perolax", "read message", "archive #5", "test dna processing", "send alert 102-X89-3156", "žluť"],
    "Form3": ["0123458", "4170526", "12"],
    "Form4": ["a", "b", "Hra 1", "Hra 2", "žluť", "ŽLUŤ", "x.y", "b/c", "☃", "exit", "exit", "dlouhé" * 60],
}
NUMBERS = ["0.999999999", ".5e-3", "5e-1", "1e-310", "1e-400", "0x1p-3", "+0", "-0", "0.5a", "1", "nan", "."]
ENTER = {"Form2": "Form2.Text2", "Form3": "Form3.Text1", "Form4": "Form4.Text1"}


class Player:
    def __init__(self, program, folder):
        self.process = subprocess.Popen(
            [program, folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def ask(self, event):
        self.process.stdin.write(f"{event}\nshow\nstate\n".encode())
        self.process.stdin.flush()

    def answers(self):
        """The refusal, if there was one, what is shown and the state; less at the end of the game."""
        answers = []
        while not answers or not answers[-1].startswith((b'{"PlayerX"', b'{"ended"')):
            answers.append(self.process.stdout.readline())
            if not answers[-1]:
                break
        return answers

    def end(self):
        return *self.process.communicate(), self.process.returncode


def senseless(dice, forms):
    form = dice.choice(list(forms))
    control = dice.choice([control for control in forms[form]["controls"] if (form, control) != ("Form4", "List1")] or [""])
    return dice.choice([f"focus {form}", f"focus {form}.{control}", f"click {form}.{control}", f"click {form}.{control} {dice.randint(-1, 9)}",
                        f"key {form}.{control} {dice.choice(['Backspace', 'Enter', 'ž', '☃', '7'])}", f"close {form if form != 'Form1' else 'Form2'}"])


def next_event(dice, screen):
    forms = screen["forms"]
    if dice.random() < 0.05:
        return senseless(dice, forms)
    panel = screen["modal"]
    if panel:
        box = forms[panel]["controls"][ENTER[panel].split(".")[1]]
        saved = forms["Form4"]["controls"]["List1"]["entries"]
        if box["text"]:
            return f"key {ENTER[panel]} {'Enter' if dice.random() < 0.6 else 'Backspace'}"
        if panel == "Form4" and saved and dice.random() < 0.5:
            # By its name: node lists a folder in its own order.
            return f"type Form4.Text1 {dice.choice(saved)}"
        return f"type {ENTER[panel]} {dice.choice(TYPED[panel])}"
    main = forms["Form1"]["controls"]
    if dice.random() < 0.3:
        return "key Form1.Text2 Enter"
    if not main["Text2"]["text"]:
        return f"click Form1.List2(0) {dice.choices(range(len(VERB_WEIGHTS)), VERB_WEIGHTS)[0]}"
    name = dice.choice([name for name in ("List1", "List2(1)", "List2(2)") if main[name]["entries"]])
    return f"click Form1.{name} {dice.randrange(len(main[name]['entries']))}"


def in_order(answer):
    """The same answer with the saved games sorted."""
    report = json.loads(answer or "null")
    if report and "forms" in report:
        report["forms"]["Form4"]["controls"]["List1"]["entries"].sort()
    return report


def same(native, web):
    return native == web or list(map(in_order, native)) == list(map(in_order, web))


def play_a_game(dice, programs, folders):
    """Returns how many events were played after the opening."""
    opening = [line for line in dice.choice(WALKTHROUGHS).read_text(encoding="utf-8").splitlines() if line and not line.startswith("#")]
    opening = [f"random {number}" for number in NUMBERS] + opening[:dice.randrange(len(opening))]
    played = ["random " + " ".join(str(dice.random()) for _ in range(2 * EVENTS_OF_A_GAME + len(opening)))]
    players = [Player(program, folder) for program, folder in zip(programs, folders)]
    event, told = played[0], 1 + len(opening)
    while True:
        for player in players:
            player.ask(event)
        native, web = (player.answers() for player in players)
        if not same(native, web) or not native[-1].startswith(b'{"PlayerX"') or len(played) == told + EVENTS_OF_A_GAME:
            break
        event = opening.pop(0) if opening else next_event(dice, json.loads(native[-2]))
        played.append(event)
    endings = [player.end() for player in players]
    if same(native, web) and endings[0] == endings[1] and saved_in(folders[0]) == saved_in(folders[1]):
        return len(played) - told
    sys.exit("\n".join([*played, f"native: {native} {endings[0]}", f"web: {web} {endings[1]}", "the players differ after these events"]))


def saved_in(folder):
    return {file.name: file.read_bytes() for file in (folder / "data" / "saves").iterdir()}


def main():
    programs, program_folder = sys.argv[1:3], pathlib.Path(sys.argv[3])
    events, seed = (int(given) for given in (sys.argv[4:] + ["500", "1"][len(sys.argv) - 4:]))
    if not pathlib.Path(programs[0]).exists():
        sys.exit(f"{programs[0]} is missing: build the preset \"release\" first")
    dice = random.Random(seed)
    with tempfile.TemporaryDirectory() as temporary:
        folders = [pathlib.Path(temporary, name) for name in ("one", "other")]
        for folder in folders:
            (folder / "data" / "saves").mkdir(parents=True)
            shutil.copy(program_folder / "data" / "texs.dat", folder / "data")
        while events > 0:
            events -= play_a_game(dice, programs, folders)
            folders.reverse()


if __name__ == "__main__":
    main()
