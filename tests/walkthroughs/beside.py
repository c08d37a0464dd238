#!/usr/bin/env python3
"""Plays a walkthrough in a real window or page, and holds each window there to what the headless player shows after the same event.

    beside.py PLAYER PLACE SCRIPT REPLAY PROGRAM_FOLDER

PLAYER is tests/e2e/window_replay.py or tests/web/page_replay.mjs, which both speak the language of `replay`, and PLACE what it plays in.
Its answer to `show` has the form of replay's; what it cannot see it leaves out. What is told is held to the transcript too, as run.py does.
"""
import sys
import time

import run

PATIENCE = 5  # seconds; a real window shows the last effects of an event a moment after the first


def differences(seen, meant):
    for part in ("modal", "focus", "messageBoxes"):
        if part in seen and seen[part] != meant[part]:
            yield f"{part}: {seen[part]} instead of {meant[part]}"
    for name, form in seen["forms"].items():
        if form["visible"] != meant["forms"][name]["visible"]:
            yield f"{name} is {'visible' if form['visible'] else 'hidden'}"
        elif form["visible"]:
            yield from control_differences(name, form["controls"], meant["forms"][name]["controls"])


def control_differences(form, seen, meant):
    for control, facts in seen.items():
        yield from (f"{form}.{control} has the {key} {value!r} instead of {meant[control][key]!r}"
                    for key, value in facts.items() if value != meant[control][key])


class Player(run.Player):
    def __init__(self, player, place):
        self.headless = run.Player(*sys.argv[4:6])
        super().__init__(player, place)

    def look_after(self, event):
        seen = super().look_after(event)
        meant = self.headless.look_after(event)
        end = time.monotonic() + PATIENCE
        while self.ended == self.headless.ended:
            found = [] if self.ended else list(differences(seen, meant))
            if not found:
                return seen
            if time.monotonic() > end:
                sys.exit("\n".join([f"after {event}:", *found]))
            seen = super().look_after("")
        sys.exit(f"{event}: only one of the players has ended")


if __name__ == "__main__":
    run.main(Player)
