#!/usr/bin/env python3
"""Plays a walkthrough in the page, and holds every control of every window to what the headless player shows after the same event.

    whole_game.py PAGE_REPLAY SITE SCRIPT NATIVE_REPLAY PROGRAM_FOLDER

What is told is held to the transcript too, as run.py does.
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "walkthroughs"))
import run  # noqa: E402


def differences(seen, meant):
    """The page leaves out what it does not show: the caret of a box that is only read and whose text is all in sight."""
    for part in ("modal", "focus", "messageBoxes"):
        if seen[part] != meant[part]:
            yield f"{part}: {seen[part]} instead of {meant[part]}"
    for name, form in meant["forms"].items():
        if seen["forms"][name]["visible"] != form["visible"]:
            yield f"{name} is {'hidden' if form['visible'] else 'visible'}"
        for control, facts in form["controls"].items():
            shown = seen["forms"][name]["controls"][control]
            yield from (f"{name}.{control} has the {key} {shown[key]!r} instead of {facts[key]!r}"
                        for key in shown if shown[key] != facts[key])


class PagePlayer(run.Player):
    def __init__(self, page, site):
        self.headless = run.Player(*sys.argv[4:6])
        super().__init__(page, site)

    def look_after(self, event):
        seen = super().look_after(event)
        meant = self.headless.look_after(event)
        if self.ended != self.headless.ended:
            sys.exit(f"{event}: only one of the players has ended")
        if not self.ended and (found := list(differences(seen, meant))):
            sys.exit("\n".join([f"after {event}:", *found]))
        return seen


if __name__ == "__main__":
    run.main(PagePlayer)
