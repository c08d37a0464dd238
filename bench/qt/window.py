#!/usr/bin/env python3
"""Measures the game's window beside a bare one, in one run on a virtual screen.

    window.py BUILD_FOLDER [NAME=PROGRAM ...]

Of every program: exec to the finished picture, and at idle PSS and wake-ups. Of the game and the bare window also: click on a verb to
the echoed sentence and Enter to the reply, with few lines in the output box and with many. The programs take turns; the figures are
medians, and ratios are to the bare window. Needs what screen.py needs, and xdotool.
"""
import pathlib
import re
import statistics
import subprocess
import sys
import time

from screen import HEIGHT, WIDTH, Screen

STARTS, LIVES, CLICKS, LINES = 31, 3, 20, 1990
IDLE = 8.0  # seconds
PAINTED = "exec to painted, ms"
VERB_LIST, COMMAND_LINE, OUTPUT = "List2(0)", "Text2", "Text1"
BORDER, ROW = 2, 16  # pixels around a control that are not watched, and of a list row
VERBS = 2, 3  # "Použij" and "Vezmi": without an object each is answered with a short refusal, and not with the same one


class Program:
    def __init__(self, screen, name, path):
        self.screen, self.name, self.path = screen, name, path
        self.figures, self.process = {}, None

    def note(self, row, value):
        self.figures.setdefault(row, []).append(value)

    def start(self):
        whole = (0, 0, WIDTH, HEIGHT, 7)
        self.screen.watch(whole)
        began = time.perf_counter()
        self.process = subprocess.Popen([self.path], stderr=subprocess.DEVNULL)
        return self.screen.settle(began, whole)

    def stop(self):
        self.process.terminate()
        self.process.wait()
        time.sleep(0.3)

    def pss(self):
        text = pathlib.Path(f"/proc/{self.process.pid}/smaps_rollup").read_text()
        return next(int(line.split()[1]) for line in text.splitlines() if line.startswith("Pss:")) / 1024

    def wakeups(self):
        total = 0
        for status in pathlib.Path(f"/proc/{self.process.pid}/task").glob("*/status"):
            total += next(int(line.split()[1]) for line in status.read_text().splitlines() if line.startswith("voluntary"))
        return total

    def live(self):
        time.sleep(1)
        before = self.wakeups()
        time.sleep(IDLE)
        self.note("PSS at the title, MiB", self.pss())
        self.note("wake-ups a second at idle", (self.wakeups() - before) / IDLE)


class Window(Program):
    """A program with the layout of the main window, whose controls can be found on the screen."""

    AREAS = {}  # pixels in the client area, read from the layouts

    def place(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)], capture_output=True, text=True)
        for window in found.stdout.split():
            shape = dict(line.split("=") for line in subprocess.run(
                ["xdotool", "getwindowgeometry", "--shell", window], capture_output=True, text=True).stdout.split())
            if int(shape["WIDTH"]) == self.AREAS["Form1"][2]:
                self.left, self.top = self.screen.corner(int(window))
                return
        sys.exit(f"{self.name}: no window of the right size")

    def area(self, control):
        left, top, width, height = self.AREAS[control]
        return self.left + left + BORDER, self.top + top + BORDER, width - 2 * BORDER, height - 2 * BORDER

    def choose(self, verb, pause=0.0):
        left, top, *_ = self.area(VERB_LIST)
        return self.screen.click(left + 20, top + ROW * verb + ROW // 2, pause)

    def reply(self, verb):
        """A whole command: a verb, then Enter; seconds to the echo and to the reply."""
        self.screen.watch(self.area(COMMAND_LINE))
        echo = self.screen.settle(self.choose(verb, 0.03), self.area(COMMAND_LINE), 0.05)
        self.screen.watch(self.area(OUTPUT))
        return echo, self.screen.settle(self.screen.key("Return"), self.area(OUTPUT), 0.05)

    def replies(self, box):
        for turn in range(CLICKS):
            echo, reply = self.reply(VERBS[turn % 2])
            self.note("click to echo, ms", 1000 * echo)
            self.note(f"Enter to reply, {box}, ms", 1000 * reply)

    def fill(self, lines):
        """Two lines a reply, and room for those that are measured."""
        for turn in range(lines // 2 - 2 * CLICKS):
            self.choose(VERBS[turn % 2])
            self.screen.key("Return")
            time.sleep(0.006)
        time.sleep(2)

    def live(self):
        super().live()
        self.place()
        for _ in range(2):  # past the title and the introduction
            self.screen.key("Return")
            time.sleep(0.5)
        self.replies("few lines")
        self.fill(LINES)
        self.replies("many lines")
        self.note("PSS after play, MiB", self.pss())


def read_layout(path):
    """The rectangles of Form1 in pixels, from the one place where they stand."""
    source = path.read_text()
    rows = re.findall(r'\.Name = "([^"]+)"[^{]*?\.Bounds = \{(\d+), (\d+), (\d+), (\d+)\}', source.split("Form2Controls")[0])
    areas = {name: tuple(int(number) // 15 for number in bounds) for name, *bounds in rows}
    size = re.search(r'\.Name = "Form1".*?\.Width = (\d+).*?\.Height = (\d+)', source, re.S)
    areas["Form1"] = (0, 0, int(size[1]) // 15, int(size[2]) // 15)
    return areas


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    build = pathlib.Path(sys.argv[1]).resolve()
    Window.AREAS = read_layout(pathlib.Path(__file__).parents[2] / "ui" / "layouts.cpp")
    screen = Screen()
    try:
        game, bare = Window(screen, "game", build / "game/orvel-tavoren"), Window(screen, "bare", build / "bench/qt/bare_window")
        others = [Program(screen, *each.split("=", 1)) for each in sys.argv[2:]]
        measure([game, bare, *others])
    finally:
        screen.close()


def measure(programs):
    for attempt in range(STARTS + 1):
        for program in programs:
            taken = program.start()
            if attempt > 0:  # the first one fills the disk cache
                program.note(PAINTED, 1000 * taken)
            program.stop()
    for _ in range(LIVES):
        for program in programs:
            program.start()
            program.live()
            program.stop()
    print(f"{'':34}" + "".join(f"{program.name:>10}" for program in programs) + f"{'ratio':>10}")
    for row in programs[0].figures:
        values = [statistics.median(program.figures[row]) if row in program.figures else None for program in programs]
        print(f"{row:34}" + "".join(f"{'-' if value is None else format(value, '.2f'):>10}" for value in values)
              + f"{values[0] / values[1]:>10.2f}")


if __name__ == "__main__":
    main()
