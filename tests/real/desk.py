# A desktop of one's own, without a screen or a person at it, and the game on it as its player finds it. All of it ends
# with the Desk.

import contextlib
import os
import pathlib
import resource
import subprocess
import sys
import tempfile
import time

from Xlib import X, XK, display
from Xlib.ext import xtest

SANITIZED = "--sanitized" in sys.argv
START, ERASER, COVER, BLACK = 12, 36, 36, -1
# Where things are, in logical pixels from the window's corner.
HELP, SCORE, MENU, PLAY, MINIMISE, EXIT = (367, 125), (367, 172), (367, 217), (366, 262), (363, 11), (384, 11)
BACKGROUND, PREVIEW, SCREEN = (345, 80), (84, 361), (60, 130, 250, 150)
LEVELS = [(121, 114 + 24 * level) for level in range(5)]
SLOTS = [(191 + slot % 3 * 42, 120 + slot // 3 * 44) for slot in range(12)]
CELLS = [(83 + cell % 4 * 66, 93 + cell // 4 * 66) for cell in range(16)]


# Looks until something holds, and gives it back.
def until(holds, what, pause=lambda: time.sleep(0.01)):
    end = time.monotonic() + 30
    while not (held := holds()):
        assert time.monotonic() < end, what
        pause()
    return held


# A skin that tells a card's kind by its colour, through shading and frames.
def write_skin(path, width=12, height=52, tint=0):
    colours = [bytes([128 | kind & 31, 16 | kind & 32, 255 - tint]) * (width // 3) for kind in range(39)]
    rows = (b"".join(colours[row * 3:row * 3 + 3]) * (height // 13) for row in range(13))
    path.write_bytes(b"P6 %d %d 255\n" % (width, height) + b"".join(rows))


# A limit of a process's files or memory; not in a sanitizer's, which ends a program that has none.
@contextlib.contextmanager
def limited(process, kind, limit):
    _, most = resource.prlimit(process.pid, kind)
    resource.prlimit(process.pid, kind, (most if SANITIZED else limit, most))
    yield
    resource.prlimit(process.pid, kind, (most, most))


# The addresses that a process takes up, and some more.
def room(process, more):
    return int(pathlib.Path(f"/proc/{process.pid}/statm").read_text().split()[0]) * resource.getpagesize() + more


class Desk:
    def __init__(self, program, scale=1, **environment):
        self.program, self.scale, self.processes, self.kept = program, scale, [], tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.kept.name)
        self.home, self.store = self.folder / "home", self.folder / "CONFIG/Tesselor/store.sqlite"
        (self.home / "Art").mkdir(parents=True)
        write_skin(self.home / "Art/cards.ppm")
        write_skin(self.home / "Art/other.ppm", tint=1)
        folders = {f"XDG_{name}_HOME": str(self.folder / name) for name in ("CONFIG", "DATA", "CACHE", "STATE")}
        self.env = os.environ | folders | {
            "XDG_RUNTIME_DIR": self.kept.name, "PULSE_SERVER": f"unix:{self.folder}/native", "LC_ALL": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:", "QT_QPA_PLATFORM": "xcb", "GDK_BACKEND": "x11",
            "QT_SCALE_FACTOR": str(scale), "TESSELOR_HOME": str(self.home)} | environment
        # Keys do not repeat: on a busy machine any press is a long one.
        self.server = self.start("Xvfb", "-displayfd", "1", "-screen", "0", "1400x1000x24", "-r", stdout=subprocess.PIPE)
        self.env["DISPLAY"] = ":" + self.server.stdout.readline().strip()
        self.x = display.Display(self.env["DISPLAY"])
        self.root, ready = self.x.screen().root, self.x.intern_atom("_NET_SUPPORTING_WM_CHECK")
        # A window manager without uses of its own for the mouse: it would hold each click back to look at it first.
        (self.folder / "rc.xml").write_text('<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/></openbox_config>')
        self.start("openbox", "--sm-disable", "--config-file", self.folder / "rc.xml")
        until(lambda: self.root.get_full_property(ready, X.AnyPropertyType), "no window manager")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            (process.terminate if process == self.server else process.kill)()
            process.wait()
        self.kept.cleanup()

    def start(self, *command, **options):
        self.processes.append(subprocess.Popen(command, env=self.env, text=True, **options))
        return self.processes[-1]

    def play(self):
        self.game = self.start(self.program)
        self.window = self.find()
        self.see(lambda seen: seen.at(5, 200)[2] > 20, "the window is not painted")
        self.window.set_input_focus(X.RevertToParent, X.CurrentTime)

    def leave(self):
        self.click(EXIT)
        assert self.game.wait(20) == 0

    def shown(self, title="Tesselor"):
        search = ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]
        found = subprocess.run(search, env=self.env, stdout=subprocess.PIPE).stdout.split()
        return [self.x.create_resource_object("window", int(number)) for number in found]

    def find(self, title="Tesselor", other=None):
        return until(lambda: [window for window in self.shown(title) if window != other], f"no window {title}")[0]

    # Waits for a message, and until a key has answered it.
    def answer(self, key):
        box = self.find(other=self.window)
        box.set_input_focus(X.RevertToParent, X.CurrentTime)
        self.key(key)
        until(lambda: box not in self.shown(), f"{key} answers no message")
        self.window.set_input_focus(X.RevertToParent, X.CurrentTime)

    # A place in the window as one on the screen, in device pixels.
    def on_screen(self, place, window=None):
        corner = self.root.translate_coords(window or self.window, 0, 0)
        return corner.x + int(place[0] * self.scale), corner.y + int(place[1] * self.scale)

    # Pairs of an event and the key, button or place that it is about.
    def send(self, *events, window=None):
        for event, what in events:
            x, y = self.on_screen(what, window) if event == X.MotionNotify else (0, 0)
            xtest.fake_input(self.x, event, 0 if event == X.MotionNotify else what, x=x, y=y)
        self.x.sync()

    def click(self, *places, button=1):
        for place in places:
            self.send((X.MotionNotify, place), (X.ButtonPress, button), (X.ButtonRelease, button))

    def key(self, *names):
        codes = [self.x.keysym_to_keycode(XK.string_to_keysym(name)) for name in names]
        self.send(*((event, code) for code in codes for event in (X.KeyPress, X.KeyRelease)))

    def look(self):
        (x, y), (width, height) = self.on_screen((0, 0)), (int(399 * self.scale), int(411 * self.scale))
        # In slices: it takes long to put a large answer together.
        slices = (self.root.get_image(x, y + top, width, min(64, height - top), X.ZPixmap, 0xFFFFFF).data
                  for top in range(0, height, 64))
        return Picture(b"".join(slices), width, self.scale)

    # Waits until what is shown is as it should be. Looks twice: the first look may come in the middle of a change.
    def see(self, holds, what):
        return until(lambda: holds(self.look()) and holds(seen := self.look()) and seen, what)

    # Presses a key and waits until something looks different.
    def act(self, key):
        before = self.look()
        self.key(key)
        return self.see(lambda seen: seen.pixels != before.pixels, f"nothing changes by {key}")

    def turn(self):
        return self.see(lambda seen: seen.is_covered() or seen.active() == [START] and BLACK not in seen.board()
                        and isinstance(seen.card(PREVIEW), int), "no next turn")

    def steer(self, start, to):
        right, down = to % 4 - start % 4, to // 4 - start // 4
        self.key(*["Right"] * right, *["Left"] * -right, *["Down"] * down, *["Up"] * -down)

    def move(self, to):
        self.steer(self.look().active()[0], to)
        return self.see(lambda seen: seen.active() == [to], f"the card does not come to {to}")

    def lock(self, to):
        self.move(to)
        self.act("space")
        return self.turn()


# What the window shows; places are in logical pixels.
class Picture:
    def __init__(self, pixels, width, scale):
        self.pixels, self.width, self.scale = pixels, width, scale

    def at(self, x, y):
        start = 4 * (int(y * self.scale) * self.width + int(x * self.scale))
        return self.pixels[start + 2], self.pixels[start + 1], self.pixels[start]

    def part(self, left, top, width, height):
        return [self.at(x, y) for y in range(top, top + height) for x in range(left, left + width)]

    # The kind of the card at a place, None where it is white, BLACK, or "" where it is neither.
    def card(self, place):
        colours = {self.at(place[0] + x, place[1] + y) for x in (-20, 0, 20) for y in (-20, 0, 20)}
        red, green, blue = colours.pop()
        return "" if colours else {(255,) * 3: None, (0,) * 3: BLACK}.get((red, green, blue), red & 31 | green & 32)

    def board(self):
        return [self.card(place) for place in CELLS]

    # The cells with the red frame of the active card.
    def active(self):
        edges = ([self.at(x + step, y - 28) for step in (-10, 0, 10)] for x, y in CELLS)
        return [cell for cell, edge in enumerate(edges) if all(red > 99 and green + blue == 0 for red, green, blue in edge)]

    def is_shaded(self, cell):
        return self.at(*CELLS[cell])[2] == 0xD0

    # A panel may hide the middle.
    def is_covered(self):
        return {self.card(place) for place in CELLS[:4] + CELLS[12:]} == {COVER}
