# A desktop of one's own, without a screen or a person at it, and the game on it as its player finds it. It is the
# environment of the process that makes it, and ends with that process.

import atexit
import contextlib
import os
import pathlib
import resource
import signal
import subprocess
import sys
import tempfile
import time

import numpy
from gi.repository import GLib

SANITIZED = "--sanitized" in sys.argv
START, ERASER, COVER, BLACK = 12, 36, 36, -1
# Where things are, in logical pixels from the window's corner.
HELP, SCORE, MENU, PLAY, MINIMISE, EXIT = (367, 125), (367, 172), (367, 217), (366, 262), (363, 11), (384, 11)
BACKGROUND, PREVIEW, SCREEN = (345, 80), (84, 361), (60, 130, 250, 150)
LEVELS = [(121, 114 + 24 * level) for level in range(5)]
SLOTS = [(191 + slot % 3 * 42, 120 + slot // 3 * 44) for slot in range(12)]
CELLS = [(83 + cell % 4 * 66, 93 + cell // 4 * 66) for cell in range(16)]


# Looks until something holds, and gives it back. Meanwhile what this process has on the display and the bus lives on.
def until(holds, what):
    end = time.monotonic() + 30
    while not (held := holds()):
        assert time.monotonic() < end, what
        GLib.MainContext.default().iteration(False) or time.sleep(0.005)
    return held


# A skin that tells a card's kind by its colour, through shading and frames.
def write_skin(path, cell=4, tint=0):
    cells = numpy.array([(128 | kind & 31, 16 | kind & 32, 255 - tint) for kind in range(39)], numpy.uint8)
    sheet = cells.reshape(13, 3, 3).repeat(cell, 0).repeat(cell, 1)
    path.write_bytes(b"P6 %d %d 255\n" % (3 * cell, 13 * cell) + sheet.tobytes())


# A process has so many more bytes of memory, or files: each takes the lowest number that is free. Not a sanitizer's,
# which ends a program that has none.
@contextlib.contextmanager
def limited(process, kind, more):
    proc, (_, most) = pathlib.Path(f"/proc/{process.pid}"), resource.prlimit(process.pid, kind)
    used = {resource.RLIMIT_NOFILE: min(set(range(1000)) - set(map(int, os.listdir(proc / "fd")))),
            resource.RLIMIT_AS: int((proc / "statm").read_text().split()[0]) * resource.getpagesize()}
    resource.prlimit(process.pid, kind, (most if SANITIZED else used[kind] + more, most))
    yield
    resource.prlimit(process.pid, kind, (most, most))


class Desk:
    def __init__(self, program, scale=1):
        self.program, self.scale, self.kept = program, scale, tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.folder = pathlib.Path(self.kept.name)
        self.home = self.folder / "home"
        (self.home / "Art").mkdir(parents=True)
        write_skin(self.home / "Art/cards.ppm")
        write_skin(self.home / "Art/other.ppm", tint=1)
        os.environ |= {f"XDG_{name}_HOME": str(self.folder / name) for name in ("CONFIG", "DATA", "CACHE", "STATE")} | {
            "XDG_RUNTIME_DIR": self.kept.name, "PULSE_SERVER": f"unix:{self.folder}/native", "LC_ALL": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:", "QT_QPA_PLATFORM": "xcb", "GDK_BACKEND": "x11",
            "QT_SCALE_FACTOR": str(scale), "TESSELOR_HOME": str(self.home)}
        # Keys do not repeat: on a busy machine any press is a long one.
        self.server = self.start("Xvfb", "-displayfd", "1", "-screen", "0", "1400x1000x24", "-fbdir", self.folder,
                                 "-nocursor", "-r", end=signal.SIGTERM, stdout=subprocess.PIPE)
        os.environ["DISPLAY"] = ":" + self.server.stdout.readline().strip()
        self.screen = numpy.memmap(self.folder / "Xvfb_screen0", mode="r")[-1400 * 1000 * 4:].reshape(1000, 1400, 4)
        # A window manager without uses of its own for the mouse: it would hold each click back to look at it first.
        (self.folder / "rc.xml").write_text('<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/></openbox_config>')
        ready = self.folder / "ready"
        self.start("openbox", "--sm-disable", "--config-file", self.folder / "rc.xml", "--startup", f"touch {ready}")
        until(ready.exists, "no window manager")

    def start(self, *command, end=signal.SIGKILL, **options):
        process = subprocess.Popen(command, text=True, **options)
        atexit.register(process.wait)  # a server that is still ending would take the name of the next one's display away
        atexit.register(process.send_signal, end)
        return process

    # What xdotool does and answers.
    def do(self, *command):
        return subprocess.run(["xdotool", *map(str, command)], capture_output=True, text=True).stdout

    # The game, in the upper left corner of the screen.
    def play(self):
        self.game = self.start(self.program)
        self.window = until(self.shown, "no window").pop()
        self.do("windowmove", self.window, 0, 0, "windowfocus", self.window)
        return self.see(lambda seen: seen.at(5, 200)[2] > 20, "the window is not painted")

    def leave(self):
        self.click(EXIT)
        assert self.game.wait(20) == 0

    def shown(self):
        return set(self.do("search", "--onlyvisible", "--name", "^Tesselor$").split())

    # Waits for a message, and until Return has answered it.
    def answer(self, key="Return"):
        box = until(lambda: self.shown() - {self.window}, "no message").pop()
        self.do("windowfocus", box, "key", key)
        until(lambda: box not in self.shown(), "the message stays")
        self.do("windowfocus", self.window)

    def point(self, place, *then):
        self.do("mousemove", *(int(length * self.scale) for length in place), *then)

    def click(self, *places, button=1):
        for place in places:
            self.point(place, "click", button)

    def look(self):
        rows, columns = ((numpy.arange(size) * self.scale).astype(int) for size in (411, 399))
        return Picture(self.screen[numpy.ix_(rows, columns)][..., 2::-1])

    # Waits until what is shown is as it should be. Looks twice: the first look may come in the middle of a change.
    def see(self, holds, what):
        return until(lambda: holds(self.look()) and holds(seen := self.look()) and seen, what)

    # Acts and waits until something looks different.
    def changes(self, act, *arguments, part=()):
        before = self.look().part(*part)
        act(*arguments)
        return self.see(lambda seen: seen.part(*part) != before, f"nothing changes by {arguments}")

    def turn(self):
        return self.see(lambda seen: seen.is_covered() or seen.active() == [START] and BLACK not in seen.board()
                        and isinstance(seen.card(PREVIEW), int), "no next turn")

    def steer(self, start, to):
        right, down = to % 4 - start % 4, to // 4 - start // 4
        self.do("key", *["Right"] * right, *["Left"] * -right, *["Down"] * down, *["Up"] * -down)

    def move(self, to):
        self.steer(self.look().active()[0], to)
        return self.see(lambda seen: seen.active() == [to], f"the card does not come to {to}")

    def lock(self, to):
        self.move(to)
        self.changes(self.do, "key", "space")
        return self.turn()


# What the window shows, in logical pixels.
class Picture:
    def __init__(self, pixels):
        self.pixels = pixels

    def at(self, x, y):
        return tuple(self.pixels[y, x].tolist())

    def part(self, left=0, top=0, width=399, height=411):
        return self.pixels[top:top + height, left:left + width].tobytes()

    # The kind of the card at a place, None where it is white, BLACK, or "" where it is neither.
    def card(self, place):
        (red, green, blue), *others = {self.at(place[0] + x, place[1] + y) for x in (-20, 0, 20) for y in (-20, 0, 20)}
        return "" if others else {(255,) * 3: None, (0,) * 3: BLACK}.get((red, green, blue), red & 31 | green & 32)

    def board(self):
        return [self.card(place) for place in CELLS]

    # The cells with the red frame of the active card.
    def active(self):
        edges = (self.pixels[y - 28, x - 10:x + 11:10] for x, y in CELLS)
        return [cell for cell, edge in enumerate(edges) if (edge[:, 0] > 99).all() and not edge[:, 1:].any()]

    # A panel may hide the middle.
    def is_covered(self):
        return {self.card(place) for place in CELLS[:4] + CELLS[12:]} == {COVER}
