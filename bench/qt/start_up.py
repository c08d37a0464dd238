#!/usr/bin/env python3
"""Start-up to the first painted picture: the game beside a bare Qt window with the same controls.

Usage: start_up.py BUILD_FOLDER [ROUNDS]
"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

# The game stops at a message box where there is no Arial; here the face that stands in for it goes by that name. Its cache comes first,
# so that the machine's own is not written.
FONTS = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><cachedir>{cache}</cachedir><include>/etc/fonts/fonts.conf</include>
<match target="scan"><test name="family"><string>Liberation Sans</string></test>
<edit name="family" mode="assign"><string>Arial</string></edit></match></fontconfig>"""


def main():
    build = Path(sys.argv[1]).resolve()
    rounds = sys.argv[2] if len(sys.argv) > 2 else "15"
    with tempfile.TemporaryDirectory() as folder:
        fonts = Path(folder, "fonts.conf")
        fonts.write_text(FONTS.format(cache=folder), encoding="utf-8")
        reader, writer = os.pipe()
        with subprocess.Popen(["Xvfb", "-screen", "0", "1280x900x24", "-displayfd", str(writer), "-nolisten", "tcp"], pass_fds=[writer],
                              stderr=subprocess.DEVNULL) as screen:
            os.close(writer)
            with open(reader, encoding="ascii") as numbers:
                display = ":" + numbers.readline().strip()
            environment = os.environ | {"DISPLAY": display, "FONTCONFIG_FILE": str(fonts), "XDG_RUNTIME_DIR": folder,
                                        "QT_QPA_PLATFORM": "xcb"}
            subprocess.run(["fc-cache", "-f"], env=environment, check=True)
            command = [build / "bench/qt/first_picture", rounds, build / "bench/qt/bare_window", build / "game/orvel-tavoren"]
            subprocess.run(command, env=environment, check=True)
            screen.terminate()


main()
