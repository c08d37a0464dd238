#!/usr/bin/env python3
"""Takes the pictures of the documents anew: plays the built game in its real window by mouse and keyboard and writes docs/obrazky/*.png.

Usage: tools/screenshots.py [BUILD_FOLDER], build/release by default. Needs xvfb, x11-xkb-utils, openbox, xdotool, imagemagick, pngquant.

The script ends when the game does not react as it does to the right letters, because some that are typed may get lost. So no picture shows
a slip.
"""

import json
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/e2e"))
from mouse import PROCEED, SYSTEM_PANEL, Player  # noqa: E402
from stage import SCREEN, stage, wait_for  # noqa: E402

PANEL_BUTTON, PANEL_FIRST_ENTRY = (270, 196), (60, 17)
MESSAGE_READ = 2


def saved_state(on, replay):
    """What the game that was saved last holds, as the headless player sees it."""
    events = ["key Form1.Text2 Enter"] * 2 + ["click Form1.List2(0) Nahraj pozici", "key Form1.Text2 Enter", "click Form4.List1 0",
                                              "key Form4.Text1 Enter", "state"]
    # Of these events `state` alone is answered.
    answer = subprocess.run([replay, on.program_folder], input="\n".join(events) + "\n", capture_output=True, text=True, check=True)
    return json.loads(answer.stdout.splitlines()[-1])


class Photographer(Player):
    def picture(self, name, title, *options):
        time.sleep(1)  # until the window manager has drawn the frame
        shot = subprocess.run(["import", "-window", self.on.window(title), *options, "png:-"], env=self.on.environment, capture_output=True,
                              check=True).stdout
        small = subprocess.run(["pngquant", "--speed", "1", "--strip", "-"], input=shot, capture_output=True, check=True).stdout
        (ROOT / "docs/obrazky" / name).write_bytes(small)
        print(f"docs/obrazky/{name}: {len(small)} bytes")

    def write(self, words):
        self.on.xdotool("type", "--delay", "60", words)

    def line(self, words):
        self.write(words)
        self.keys("Return")

    def click_panel(self, place):
        self.click(*((screen - size) // 2 + offset for screen, size, offset in zip(SCREEN, SYSTEM_PANEL, place)))

    def leave(self, title):
        wait_for(f"'{title}' to go", lambda: not self.on.shows(title))

    def save(self, name):
        self.command("Ulož pozici")
        self.on.window("System Panel")
        self.write(name)
        self.click_panel(PANEL_BUTTON)
        wait_for(f"the position '{name}'", (self.on.program_folder / f"data/saves/{name}.TVX").exists)
        self.leave("System Panel")


def take_pictures(on, replay):
    player = Photographer(on)
    player.begin()
    player.save("ráno v kajutě")
    player.command("Vezmi", ("objects", 5, 6))  # the tools
    player.command("Otevři", ("objects", 2))  # the bathroom door
    player.command("Jdi", ("objects", 0))
    player.command("Vezmi", ("objects", 0))  # the cabin key
    player.command("Jdi", ("objects", 0))
    player.save("klíč mám")
    player.command("Použij", ("carried", 1), ("targets", 1))  # on the door
    player.command("Prozkoumej", ("objects", 0))  # the terminal
    player.compose("Použij", ("objects", 0), ("targets", 5, 6))  # the terminal on himself
    player.picture("main.png", "Orvel Tavoren v1.01", "-frame")

    player.click_main(PROCEED)
    on.window("Terminal Active")
    player.line("mj-perolax")
    player.line("read message")
    player.write("exit")
    player.picture("terminal.png", "Terminal Active")
    player.keys("Return")
    player.leave("Terminal Active")

    player.save("jdu do laboratoře")
    assert saved_state(on, replay)["LabMessageState"] == MESSAGE_READ
    player.command("Nahraj pozici")
    on.window("System Panel")
    player.click_panel(PANEL_FIRST_ENTRY)
    player.picture("system-panel.png", "System Panel")
    player.click_panel(PANEL_BUTTON)
    player.leave("System Panel")
    player.keys("Escape")
    assert on.exit_code() == 0


def main():
    build = Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build/release").resolve()
    if not (build / "game/orvel-tavoren").exists():
        sys.exit(f"There is no game in {build}/game; ./play builds it.")
    with stage(build / "game") as on:
        # On this layout each Czech letter has a key of its own. xdotool gives a letter without a key a spare one for a moment, and some of
        # those get lost.
        subprocess.run(["setxkbmap", "cz"], env=on.environment, check=True)
        on.start_game()
        take_pictures(on, build / "replay")


if __name__ == "__main__":
    main()
