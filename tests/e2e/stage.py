"""A screen of its own with a window manager, and a copy of the game's program folder to start the game from."""

import contextlib
import os
import shutil
import subprocess
import tempfile
import time
from pathlib import Path

SCREEN = (1280, 900)
MAIN_SIZE = (665, 562)
MAIN = tuple((screen - size) // 2 for screen, size in zip(SCREEN, MAIN_SIZE))  # the game centres its main window
PATIENCE = 20  # seconds until something that should happen counts as failed


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.005)
    raise AssertionError(f"waited in vain for {what}")


def start(command, running, **options):
    process = subprocess.Popen(command, **options)
    running.callback(end, process)
    return process


def end(process):
    if process.poll() is None:
        process.terminate()
    process.wait(PATIENCE)


class Stage:
    def __init__(self, program_folder, settings, running):
        self.running = running
        self.staying = None
        folder = running.enter_context(tempfile.TemporaryDirectory(prefix="orvel-e2e-"))
        self.program_folder = Path(folder) / "game"
        shutil.copytree(program_folder, self.program_folder)
        reader, writer = os.pipe()
        # With -noreset, because otherwise the server starts anew when its first client leaves, and the window manager ends with it.
        start(["Xvfb", "-screen", "0", f"{SCREEN[0]}x{SCREEN[1]}x24", "-displayfd", str(writer), "-nolisten", "tcp", "-noreset"],
              running, pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with open(reader, encoding="ascii") as numbers:
            display = ":" + numbers.readline().strip()
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith("QT_") and name != "WAYLAND_DISPLAY"}
        self.environment |= {"DISPLAY": display, "HOME": folder, "XDG_RUNTIME_DIR": folder, "LC_ALL": "C.UTF-8"} | settings
        start(["openbox", "--sm-disable"], running, env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the window manager", self._managed)

    def _managed(self):
        # Only a window manager knows the number of desktops, so an answer means that it is there.
        answer = subprocess.run(["xdotool", "get_num_desktops"], env=self.environment, capture_output=True, text=True, check=False)
        return answer.returncode == 0 and answer.stdout.strip().isdigit()

    def start_game(self, *through):
        self.game = start([*through, self.program_folder / "orvel-tavoren"], self.running, env=self.environment)

    def xdotool(self, *arguments):
        answer = subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, capture_output=True, text=True, check=False)
        return answer.stdout.split()

    def lay_out_keyboard(self, layout):
        subprocess.run(["setxkbmap", layout], env=self.environment, check=True)

    def hand(self, commands):
        """Hands a line of commands to an xdotool that stays, and does not wait for it."""
        if not self.staying:
            self.staying = start(["xdotool", "-"], self.running, env=self.environment, stdin=subprocess.PIPE, text=True)
        print(commands, file=self.staying.stdin, flush=True)

    def window(self, title):
        """The visible window of that title, once it is there."""
        return wait_for(f"the window '{title}'", lambda: self.shows(title))[0]

    def shows(self, title):
        return self.xdotool("search", "--onlyvisible", "--name", f"^{title}$")

    def pass_font_warning(self):
        wait_for("the first window", lambda: self.shows("POZOR!") or self.shows("Orvel Tavoren v1.01"))
        if self.shows("POZOR!"):  # no Arial here
            self.xdotool("windowfocus", "--sync", self.window("POZOR!"))
            self.xdotool("key", "Return")

    def exit_code(self):
        return self.game.wait(PATIENCE)


@contextlib.contextmanager
def stage(program_folder, settings=None):
    with contextlib.ExitStack() as running:
        yield Stage(program_folder, settings or {}, running)
