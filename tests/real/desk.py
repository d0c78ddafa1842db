# The game on a virtual desktop as its player sees it.

import os
import time

import desktop
import numpy
from desktop import CELLS, EXIT, PREVIEW, Desktop, until
from gi.repository import GLib
from windows import Openbox

START, ERASER, COVER, BLACK = 12, 36, 36, -1
SCREEN = 60, 130, 250, 150
# While waiting, this process serves its own windows and the accessibility bus.
desktop.pause = lambda: GLib.MainContext.default().iteration(False) or time.sleep(0.005)


# A skin that tells a card's kind by its colour, through shading and frames.
def write_skin(path, cell=4, tint=0):
    cells = numpy.array([(128 | kind & 31, 16 | kind & 32, 255 - tint) for kind in range(39)], numpy.uint8)
    sheet = cells.reshape(13, 3, 3).repeat(cell, 0).repeat(cell, 1)
    path.write_bytes(b"P6 %d %d 255\n" % (3 * cell, 13 * cell) + sheet.tobytes())


class Desk(Desktop):
    def __init__(self, program, scale=1, windows=Openbox):
        super().__init__(scale, windows)
        self.program, self.home = program, self.folder / "home"
        (self.home / "Art").mkdir(parents=True)
        write_skin(self.home / "Art/cards.ppm")
        write_skin(self.home / "Art/other.ppm", tint=1)
        os.environ |= {"DBUS_SESSION_BUS_ADDRESS": "disabled:", "LANGUAGE": "en", "TESSELOR_HOME": str(self.home)}

    def play(self):
        super().play(self.program, "--scale", os.environ.pop("QT_SCALE_FACTOR"))

    def leave(self):
        self.click(EXIT)
        assert self.game.wait(20) == 0

    # Waits for a message, and until Return has answered it.
    def answer(self, key="Return"):
        box = until(lambda: self.shown() - {self.window}, "no message").pop()
        self.windows.focus(box)
        self.do("key", key)
        until(lambda: box not in self.shown(), "the message stays")
        self.windows.focus(self.window)

    def look(self):
        return Picture(self.pixels())

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
