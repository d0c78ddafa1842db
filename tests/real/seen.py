# Games as they are seen, by mouse and keyboard, and what the window itself answers. usage: seen.py PROGRAM SCALE [sway]

import os
import pathlib
import sys

import gi

from desk import ERASER, START, Desk, write_skin
from desktop import BACKGROUND, CELLS, LEVELS, MENU, MINIMISE, MORE, PLAY, PREVIEW, SLOTS, until
from windows import Openbox, Sway

gi.require_version("Gtk", "3.0")


# Whether the mark of the keyboard is around a control.
def is_marked(seen, place):
    return (0xF4, 0xC8, 0x4E) in [seen.at(place[0], place[1] - up) for up in ([11] if place in LEVELS else [20, 21, 22])]


# A skin is dragged from another program's window to an empty slot, and then another of its name on top of it.
def drop(desk):
    from gi.repository import Gtk  # which looks for the display
    skin, (x, y), taken = desk.folder / "new.ppm", SLOTS[2], []
    link, source = Gtk.LinkButton(uri=skin.as_uri()), Gtk.Window(title="Source", default_width=200, default_height=200)
    link.connect("drag-begin", lambda _, drag: drag.connect("action-changed", lambda _, action: taken.append(action)))
    source.add(link)
    source.show_all()
    desk.windows.move(until(lambda: desk.windows.shown("Source"), "no other window").pop(), 450, 50)
    for tint in (9, 19):
        write_skin(skin, tint=tint)
        taken.clear()
        desk.point((490, 90))
        until(lambda: link.get_state_flags() & Gtk.StateFlags.PRELIGHT, "nothing to drag from")
        desk.do("mousedown", 1)
        desk.point((470, 90))
        until(lambda: desk.point((x + 1, y)) or desk.point((x, y)) or taken[-1:] > [0], "not taken")
        desk.do("mouseup", 1)
        if tint == 19:
            desk.answer("y")
        desk.see(lambda seen: seen.at(x, y)[2] == 255 - tint, "not in its slot")
        assert not skin.exists() and set(os.listdir(desk.home / "Art")) == {"cards.ppm", "new.ppm", "other.ppm"}


desk = Desk(sys.argv[1], float(sys.argv[2]), Sway if "sway" in sys.argv else Openbox)
desk.play()
desk.click(MORE)
desk.answer("Escape")
entry, = pathlib.Path(__file__).parents[2].glob("packaging/*.desktop")
assert desk.window in desk.windows.of(entry), "the desktop does not know whose window it is"
desk.click(PLAY)
seen = desk.turn()
kind, following = seen.card(CELLS[START]), seen.card(PREVIEW)
seen = desk.lock(5)
expected = {5: None if kind >= ERASER else kind, START: following}
assert seen.board() == [expected.get(cell) for cell in range(16)]
shades = {desk.move(5).at(CELLS[5][0] - left, CELLS[5][1])[2] for left in (0, 30)}
assert kind >= ERASER or shades == {0xD0}, "not shaded"
desk.point(CELLS[10])
desk.see(lambda seen: seen.active() == [10], "the card does not follow the mouse")
desk.click(CELLS[10])
desk.turn()
shown = desk.move(0).board()
assert shown[5] == seen.card(CELLS[5]), "what lay under the card does not come back"
desk.click(CELLS[10], button=3)  # where the mouse rests
desk.see(lambda seen: seen.is_covered(), "no pause")
desk.do("key", "p")
desk.see(lambda seen: seen.board() == shown and seen.active() == [0], "the game does not go on")

# By keyboard alone: the master level, the second skin, and a game to a full board, whose cards are locked in time.
for keys, place in (("Tab", PLAY), ("Tab", MENU), ("Return Tab Tab Tab Down Down Down Down", LEVELS[4])):
    assert not is_marked(desk.look(), place), "marked before any key"
    desk.do("key", *keys.split())
    desk.see(lambda seen: is_marked(seen, place), f"{keys} does not go to {place}")
desk.do("key", *"space Tab Tab Return Right Down Down Down Return".split())
seen = desk.turn()
assert not is_marked(seen, PLAY) and seen.at(*CELLS[START])[2] == 254, "the board has no keyboard or the wrong skin"
desk.lock(6)
desk.see(lambda seen: seen.board().count(None) < 14, "no card is locked in time")
while not (seen := desk.turn()).is_covered():
    board = seen.board()
    desk.steer(START, board.index(None) if None in board else START)
    desk.changes(desk.do, "key", "space")
desk.do("key", "z", "o", "e", "Return")  # for those who are asked for a name
desk.click(MENU)
drop(desk)
corner = desk.windows.where(desk.window)
for button in (1, 2, 3):
    desk.point(BACKGROUND, "mousedown", button)
    # The window manager takes over some time after the first motion, and then wants to see another.
    until(lambda: desk.do("mousemove_relative", 1, 1) or desk.windows.where(desk.window) != corner,
          f"button {button} does not move the window")
    desk.do("mouseup", button)
    desk.windows.move(desk.window, 0, 0)
    until(lambda: desk.windows.where(desk.window) == corner, "the window does not come back")
if "sway" not in sys.argv:  # which minimises nothing
    desk.click(MINIMISE)
    until(lambda: not desk.shown(), "not minimised")
    desk.do("windowmap", desk.window)
    until(desk.shown, "it stays minimised")
desk.click(PLAY)
desk.turn()
desk.leave()
