#!/usr/bin/env python3
"""Plays a .replay script and holds what the player reads to the transcript beside it.

    run.py REPLAY PROGRAM_FOLDER SCRIPT [--update]

The transcript has every command that was carried out and what it brought: the new text of the output box and of the
terminal, what is carried now, the display of the keypad, message boxes, and the end. What has been told before is cut
short. A script that is refused an event or does not reach the end of the game fails. --update writes the transcript instead of comparing it.
"""
import difflib
import json
import pathlib
import subprocess
import sys

BOXES = {("Form1", "Text1"): "", ("Form2", "Text1"): "[terminál] "}


class Player:
    """A conversation with replay: plays an event and notes what the player sees of it."""

    def __init__(self, replay, folder):
        self.process = subprocess.Popen([replay, folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")
        self.transcript = []
        self.told = set()
        self.ended = False
        self.screen = self.look_after("")

    def look_after(self, event):
        # Both lines are sent at once, because a game that ends at the first does not wait for a second.
        self.process.stdin.write(f"{event}\nshow\n")
        self.process.stdin.flush()
        line = self.process.stdout.readline()
        if not line:
            sys.exit(self.process.wait() or "the player says nothing")
        report = json.loads(line)
        if "refused" in report:
            sys.exit(f"{event}: {report['refused']}")
        self.ended = "ended" in report
        return self.screen if self.ended else report

    def shown(self, form, control, screen=None):
        return (screen or self.screen)["forms"][form]["controls"][control]

    def note(self, *lines):
        self.transcript += lines

    def note_told(self, line):
        known = line in self.told and not line.startswith("Vidíš")
        self.told.add(line)
        self.note(line[:40] + "..." if known and len(line) > 60 else line)

    def note_command(self, event):
        """An event that carries something out is headed by what it carries out."""
        if event in ("key Form1.Text2 Enter", "click Form1.Label1"):
            self.note("", f"> {self.shown('Form1', 'Text2')['text']}".rstrip())
        elif event in ("key Form2.Text2 Enter", "click Form2.Label2"):
            self.note("", f"[terminál] > {self.shown('Form2', 'Text2')['text']}")
        elif event == "key Form3.Text1 Enter":
            self.note("", f"[číselník] > {self.shown('Form3', 'Text1')['text']}")

    def note_changes(self, before):
        for (form, control), mark in BOXES.items():
            old, new = (self.shown(form, control, screen) for screen in (before, self.screen))
            if not new["visible"] or (old["visible"] and old["text"] == new["text"]):
                continue
            grown = old["visible"] and new["text"].startswith(old["text"])
            added = new["text"][len(old["text"]):] if grown else new["text"]
            for line in filter(None, added.split("\r\n")):
                self.note_told(mark + line)
        carried = self.shown("Form1", "List1")["entries"]
        if carried != self.shown("Form1", "List1", before)["entries"]:
            self.note("[neseš] " + ", ".join(carried))
        display = self.shown("Form3", "Label1")["caption"]
        if display != self.shown("Form3", "Label1", before)["caption"]:
            self.note(f"[číselník] {display}")
        self.note(*(f"[{box['title']}] {box['text']}" for box in self.screen["messageBoxes"]))

    def play(self, event):
        self.note_command(event)
        before = self.screen
        self.screen = self.look_after(event)
        if self.ended:
            return self.note("[konec programu]")
        self.note_changes(before)


def main(player_of=Player):
    replay, folder, script = sys.argv[1:4]
    script = pathlib.Path(script)
    player = player_of(replay, folder)
    for event in script.read_text(encoding="utf-8").splitlines():
        if event and not event.startswith("#"):
            if player.ended:
                sys.exit(f"the game ended before: {event}")
            player.play(event)
    if not player.ended:
        sys.exit("the game did not end")
    if player.process.wait() != 0:
        sys.exit("the player complains")
    told = "\n".join(player.transcript).lstrip("\n") + "\n"
    transcript = script.with_suffix(".txt")
    if "--update" in sys.argv:
        transcript.write_text(told, encoding="utf-8")
    elif told != transcript.read_text(encoding="utf-8"):
        kept = transcript.read_text(encoding="utf-8").splitlines()
        sys.exit("\n".join(difflib.unified_diff(kept, told.splitlines(), "kept", "told", lineterm="")))


if __name__ == "__main__":
    main()
