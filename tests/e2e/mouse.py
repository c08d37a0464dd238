#!/usr/bin/env python3
"""Plays the real window with a real mouse and keyboard: panels must keep the main window shut, the ways out of the game must end it, and
keys that are no way out must not.

Usage: mouse.py PROGRAM_FOLDER
"""

import sys
import time

from stage import MAIN, MAIN_SIZE, SCREEN, stage, wait_for

VERBS = ["Jdi", "Prozkoumej", "Použij", "Vezmi", "Polož", "Otevři", "Zavři", "Oslov", "Vymaž", "Nahraj pozici", "Ulož pozici"]
LISTS = {"carried": (16, 416), "verbs": (224, 448), "objects": (368, 448), "targets": (512, 448)}  # top left corners in pixels
PROCEED = (188, 494)
SYSTEM_PANEL = (312, 217)
# Keys by their place, which is called after what it types on an American keyboard. With Ctrl, the one right of P types Escape on a
# Czech keyboard as well, where it is ú.
RIGHT_OF_P, EQUALS, A, V = 34, 21, 38, 55


class Player:
    def __init__(self, on):
        self.on = on

    def click(self, x, y, button=1):
        self.on.xdotool("mousemove", x, y, "click", button)

    def click_main(self, place):
        self.click(MAIN[0] + place[0], MAIN[1] + place[1])

    def click_entry(self, name, index, count=5):
        """Entry `index` of a list of `count`, of which five are in sight: the wheel turns three rows at a time, if there are so many."""
        left, top = LISTS[name]
        turns = index // 4 if count > 5 else 0
        if count > 5:
            self.on.xdotool("mousemove", MAIN[0] + left + 30, MAIN[1] + top + 40, "click", "--repeat", "5", "--delay", "20", "4")
        if turns:
            self.on.xdotool("click", "--repeat", turns, "--delay", "20", "5")
        self.click_main((left + 30, top + 1 + 16 * (index - min(3 * turns, max(0, count - 5))) + 8))

    def compose(self, verb, *choices):
        self.click_entry("verbs", VERBS.index(verb), 13)
        for choice in choices:
            self.click_entry(*choice)

    def command(self, verb, *choices):
        self.compose(verb, *choices)
        self.click_main(PROCEED)

    def keys(self, *names):
        self.on.xdotool("key", "--delay", "20", *names)

    def begin(self):
        self.on.pass_font_warning()
        self.on.window("Orvel Tavoren v1.01")
        time.sleep(0.5)  # the window manager gives it the focus
        self.click_main(PROCEED)
        self.click_main(PROCEED)


def save_and_quit(on):
    player = Player(on)
    on.lay_out_keyboard("us")
    player.begin()
    player.keys(f"ctrl+{RIGHT_OF_P}")
    player.command("Ulož pozici")
    on.window("System Panel")
    on.lay_out_keyboard("cz")
    player.keys(f"ctrl+{RIGHT_OF_P}", f"ISO_Level3_Shift+{V}", EQUALS, A)  # @ and, composed of accent and letter, á
    # The main window must ignore a click while the panel is open.
    player.click_main((MAIN_SIZE[0] - 10, 530))
    left, top = ((screen - size) // 2 for screen, size in zip(SCREEN, SYSTEM_PANEL))
    player.click(left + 270, top + 196)
    wait_for("the save", (on.program_folder / "data/saves/@á.TVX").exists)
    wait_for("the panel to go", lambda: not on.shows("System Panel"))
    player.keys(f"ctrl+{RIGHT_OF_P}")
    time.sleep(0.3)
    assert on.game.poll() is None, "a shortcut has ended the game"
    player.keys("Escape")
    assert on.exit_code() == 0


def leave_from_inside_a_panel(on):
    player = Player(on)
    player.begin()
    player.command("Použij", ("objects", 0), ("targets", 6, 7))  # the terminal, on himself
    on.window("Terminal Active")
    player.keys("Escape", "alt+F4")
    time.sleep(0.3)
    assert on.shows("Terminal Active"), "only 'exit' leaves the terminal"
    on.xdotool("type", "--delay", "20", "exit")
    player.keys("Tab", "space")  # the button
    wait_for("the terminal to go", lambda: not on.shows("Terminal Active"))
    player.command("Použij", ("objects", 0), ("targets", 6, 7))
    on.window("Terminal Active")
    player.click(MAIN[0] + MAIN_SIZE[0] - 10, MAIN[1] - 10)  # the close box of the main window
    assert on.exit_code() == 0


def main():
    for scene in (save_and_quit, leave_from_inside_a_panel):
        with stage(sys.argv[1]) as on:
            on.start_game()
            scene(on)
        print("passed:", scene.__name__)


if __name__ == "__main__":
    main()
