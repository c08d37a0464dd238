"""A virtual screen with a window manager, on which a program can be watched and played without cost to it.

The server keeps the screen's pixels in a file that is mapped here, so watching costs the programs nothing and is the same for all of
them: a picture is finished when it has changed and then kept still for a while. Needs Xvfb, openbox and the X client libraries.
"""
import ctypes
import hashlib
import mmap
import os
import pathlib
import struct
import subprocess
import tempfile
import time

WIDTH, HEIGHT = 1280, 1024
STILL, PATIENCE = 0.25, 15.0  # seconds

# Without Arial the game stops at a message box, so Liberation Sans goes by that name here. The cache of these settings is named first, so
# that the machine's own is not written.
FONTS = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><cachedir>{cache}</cachedir><include>/etc/fonts/fonts.conf</include>
<match target="scan"><test name="family"><string>Liberation Sans</string></test>
<edit name="family" mode="assign"><string>Arial</string></edit></match></fontconfig>"""


class Screen:
    """A virtual X screen with a window manager; its pixels are read from the server's memory."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-fbdir", self.folder.name, "-noreset"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.name = ":" + self.server.stdout.readline().decode().strip()
        os.environ["DISPLAY"] = self.name
        fonts = pathlib.Path(self.folder.name) / "fonts.conf"
        fonts.write_text(FONTS.format(cache=self.folder.name), encoding="utf-8")
        os.environ["FONTCONFIG_FILE"] = str(fonts)
        subprocess.run(["fc-cache", "-f"], check=True)
        self.manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        with open(pathlib.Path(self.folder.name) / "Xvfb_screen0", "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">25I", self.memory[:100])
        self.stride = header[12]
        self.start = header[0] + header[19] * 12
        self.x11, self.test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.root = self.x11.XDefaultRootWindow
        self.root.restype = ctypes.c_ulong
        time.sleep(1)

    def pixels(self, left, top, width, height, step=1):
        rows = range(top, top + height, step)
        return hashlib.md5(b"".join(
            self.memory[self.start + y * self.stride + left * 4:self.start + y * self.stride + (left + width) * 4]
            for y in rows)).digest()

    def settle(self, began, area, still=STILL):
        """Seconds from `began` to the last change before the area keeps still."""
        last = self.before
        changed = None
        while True:
            now = time.perf_counter()
            seen = self.pixels(*area)
            if seen != last:
                last, changed = seen, now
            if changed and now - changed > still:
                return changed - began
            if now - began > PATIENCE:
                raise TimeoutError("the screen " + ("never changed" if changed is None else "never kept still"))
            time.sleep(0.0003)

    def watch(self, area):
        self.before = self.pixels(*area)

    def corner(self, window):
        """The top left corner of the window's client area. xdotool is not asked, because it counts the frame twice."""
        x, y, child = ctypes.c_int(), ctypes.c_int(), ctypes.c_ulong()
        root = ctypes.c_ulong(self.root(self.display))
        self.x11.XTranslateCoordinates(self.display, ctypes.c_ulong(window), root, 0, 0, ctypes.byref(x), ctypes.byref(y),
                                       ctypes.byref(child))
        return x.value, y.value

    def flush(self):
        self.x11.XSync(self.display, 0)

    def click(self, x, y, pause=0.0):
        self.test.XTestFakeMotionEvent(self.display, 0, x, y, ctypes.c_ulong(0))
        self.flush()
        time.sleep(pause)
        began = time.perf_counter()
        for down in (1, 0):
            self.test.XTestFakeButtonEvent(self.display, 1, down, ctypes.c_ulong(0))
        self.flush()
        return began

    def key(self, name):
        code = self.x11.XKeysymToKeycode(self.display, ctypes.c_ulong(self.x11.XStringToKeysym(name.encode())))
        began = time.perf_counter()
        for down in (1, 0):
            self.test.XTestFakeKeyEvent(self.display, code, down, ctypes.c_ulong(0))
        self.flush()
        return began

    def close(self):
        self.manager.terminate()
        self.server.terminate()
