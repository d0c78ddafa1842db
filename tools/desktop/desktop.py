"""A virtual desktop with the game on it, seen as pixels and driven by mouse and keyboard: for tests, screenshots and
measurements. TESSELOR_PROGRAM in the environment names the game; that of the release build when it does not."""
import atexit
import os
import pathlib
import signal
import subprocess
import tempfile
import time

import numpy
from windows import Openbox

ROOT = pathlib.Path(__file__).resolve().parents[2]
GAME = pathlib.Path(os.environ.get("TESSELOR_PROGRAM", ROOT / "build/release/tesselor"))

# Where things are, in logical pixels from the window's corner.
HELP, SCORE, MENU, PLAY, MINIMISE, EXIT = (367, 125), (367, 172), (367, 217), (366, 262), (363, 11), (384, 11)
BACKGROUND, PREVIEW, MORE, DEMONSTRATION = (345, 80), (84, 361), (286, 83), (229, 295)
LEVELS = [(121, 114 + 24 * level) for level in range(5)]
SLOTS = [(191 + slot % 3 * 42, 120 + slot // 3 * 44) for slot in range(12)]
CELLS = [(83 + cell % 4 * 66, 93 + cell // 4 * 66) for cell in range(16)]


def pause():
    """Called by `until` between polls; a program with an event loop replaces it."""
    time.sleep(0.005)


def until(holds, what, seconds=30):
    """Polls until `holds()` is true and returns its value; fails with `what` after `seconds`."""
    end = time.monotonic() + seconds
    while not (held := holds()):
        assert time.monotonic() < end, what
        pause()
    return held


class Desktop:
    """An X server in memory, and what manages the windows there. Sets the environment of this process, and ends with
    it."""
    WIDTH, HEIGHT = 1400, 1000

    def __init__(self, scale=1, windows=Openbox):
        self.kept = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.folder, self.scale = pathlib.Path(self.kept.name), scale
        os.environ |= {f"XDG_{name}_HOME": str(self.folder / name) for name in ("CONFIG", "DATA", "CACHE", "STATE")} | {
            "XDG_RUNTIME_DIR": self.kept.name, "PULSE_SERVER": f"unix:{self.folder}/native", "LC_ALL": "C.UTF-8"}
        # Keys do not repeat: on a busy machine any press is a long one.
        self.server = self.start("Xvfb", "-displayfd", "1", "-screen", "0", f"{self.WIDTH}x{self.HEIGHT}x24", "-fbdir",
                                 self.folder, "-nocursor", "-r", end=signal.SIGTERM, stdout=subprocess.PIPE,
                                 stderr=subprocess.DEVNULL)
        os.environ["DISPLAY"] = ":" + self.server.stdout.readline().strip()
        pixels = numpy.memmap(self.folder / "Xvfb_screen0", mode="r")[-self.WIDTH * self.HEIGHT * 4:]
        self.screen = pixels.reshape(self.HEIGHT, self.WIDTH, 4)
        self.windows = windows(self)
        until((self.folder / "ready").exists, "no window manager")

    @staticmethod
    def start(*command, end=signal.SIGKILL, **options):
        """Starts a program that ends with this process."""
        process = subprocess.Popen(command, text=True, **options)
        atexit.register(process.wait)  # a server that is still ending would take the name of the next one's display away
        atexit.register(process.send_signal, end)
        return process

    def do(self, *command):
        """Runs xdotool and returns its output."""
        return subprocess.run(["xdotool", *map(str, command)], capture_output=True, text=True).stdout

    def play(self, program, *options):
        """Starts the game in the upper left corner of the screen."""
        self.game = self.start(*self.windows.RUN, program, *options)
        self.window = until(self.shown, "no window").pop()
        self.windows.move(self.window, 0, 0)
        self.windows.focus(self.window)
        until(lambda: self.pixels()[200, 5, 2] > 70, "the window is not painted")

    def shown(self):
        """The ids of the game's windows."""
        return self.windows.shown("Tesselor")

    def pixels(self):
        """The game window in red, green and blue: what is in the middle of each logical pixel."""
        rows, columns = ((numpy.arange(0.5, size) * self.scale).astype(int) for size in (411, 399))
        return self.screen[numpy.ix_(rows, columns)][..., 2::-1]

    def point(self, place, *then):
        """Moves the mouse to a place in the window, and then does more with xdotool."""
        self.do("mousemove", *(int(length * self.scale) for length in place), *then)

    def click(self, *places, button=1):
        for place in places:
            self.point(place, "click", button)
