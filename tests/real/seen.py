# Games as they are seen, by mouse and keyboard, and what the window itself answers. usage: seen.py PROGRAM SCALE

import sys

from desk import ERASER, START, Desk
from desktop import BACKGROUND, CELLS, LEVELS, MENU, MINIMISE, PLAY, PREVIEW, until


# Whether the mark of the keyboard is around a control.
def is_marked(seen, place):
    return (0xF4, 0xC8, 0x4E) in [seen.at(place[0], place[1] - up) for up in ([11] if place in LEVELS else [20, 21, 22])]


desk = Desk(sys.argv[1], float(sys.argv[2]))
desk.play()
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


def where():
    return desk.do("getwindowgeometry", desk.window)


corner = where()
for button in (1, 2, 3):
    desk.point(BACKGROUND, "mousedown", button)
    # The window manager takes over some time after the first motion, and then wants to see another.
    until(lambda: desk.do("mousemove_relative", 1, 1) or where() != corner, f"button {button} does not move the window")
    desk.do("mouseup", button, "windowmove", desk.window, 0, 0)
    until(lambda: where() == corner, "the window does not come back")
desk.click(MINIMISE)
until(lambda: not desk.shown(), "not minimised")
desk.do("windowmap", desk.window)
until(desk.shown, "it stays minimised")
desk.click(PLAY)
desk.turn()
desk.leave()
