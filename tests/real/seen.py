# Games as they are seen, by mouse and keyboard, and what the window itself answers. usage: seen.py PROGRAM SCALE

import itertools
import sys

from Xlib import X

from desk import (BACKGROUND, CELLS, ERASER, HELP, LEVELS, MENU, MINIMISE, PLAY, PREVIEW, SCORE, SCREEN,
                  SLOTS, START, Desk, until)


# Whether the mark of the keyboard is around a control.
def is_marked(seen, place):
    return (0xF4, 0xC8, 0x4E) in [seen.at(place[0], place[1] - up) for up in ([11] if place in LEVELS else [20, 21, 22])]


def go(desk, key, *places):
    for place in places:
        desk.key(key)
        desk.see(lambda seen: is_marked(seen, place), f"{key} does not go to {place}")


def play_by_mouse_and_keys(desk):
    beginning = desk.look()
    assert not is_marked(beginning, PLAY), "a mark before any key"
    desk.click(PLAY)
    seen = desk.turn()
    kind, following = seen.card(CELLS[START]), seen.card(PREVIEW)
    seen = desk.lock(5)
    expected = {5: None if kind >= ERASER else kind, START: following}
    assert seen.board() == [expected.get(cell) for cell in range(16)]
    assert kind >= ERASER or desk.move(5).is_shaded(5)
    desk.send((X.MotionNotify, CELLS[10]))
    desk.see(lambda seen: seen.active() == [10], "the card does not follow the mouse")
    desk.click(CELLS[10])
    desk.turn()
    shown = desk.move(0).board()
    assert shown[5] == seen.card(CELLS[5]), "what lay under the card does not come back"
    desk.click(CELLS[10], button=3)  # where the mouse rests
    desk.see(lambda seen: seen.is_covered(), "no pause")
    desk.key("p")
    desk.see(lambda seen: seen.board() == shown and seen.active() == [0], "the game does not go on")
    desk.click(HELP)
    desk.see(lambda seen: seen.part(*SCREEN) == beginning.part(*SCREEN), "not the help it began with")


# By keyboard alone: the master level, the second skin, and a game to a full board, whose cards are locked in time.
def play_by_keys(desk):
    go(desk, "Tab", PLAY, MENU)
    desk.act("Return")
    go(desk, "Tab", SCORE, HELP, LEVELS[0])
    go(desk, "Down", *LEVELS[1:])
    desk.act("space")
    go(desk, "Tab", SLOTS[0], SLOTS[1])
    desk.act("Return")
    go(desk, "Right", HELP)
    go(desk, "Down", SCORE, MENU, PLAY)
    desk.act("Return")
    seen = desk.turn()
    assert not is_marked(seen, PLAY) and seen.at(*CELLS[START])[2] == 254, "the board has no keyboard or the wrong skin"
    desk.lock(6)
    desk.see(lambda seen: seen.board().count(None) < 14, "no card is locked in time")
    while not (seen := desk.turn()).is_covered():
        board = seen.board()
        desk.steer(START, board.index(None) if None in board else START)
        desk.act("space")
    desk.key("z", "o", "e", "Return")  # for those who are asked for a name


def move_and_minimise(desk):
    for button in (1, 2, 3):
        before, steps = desk.on_screen((0, 0)), itertools.cycle(range(40))

        # The window manager takes over some time after the first motion, and then wants to see another.
        def moves():
            step = next(steps)
            motion = (X.MotionNotify, (BACKGROUND[0] + step, BACKGROUND[1] + step))
            desk.send(*[motion] if step else [(X.ButtonRelease, button), motion, (X.ButtonPress, button)])
            return desk.on_screen((0, 0)) != before
        until(moves, f"button {button} does not move the window")
        desk.send((X.ButtonRelease, button))
    desk.click(MINIMISE)
    until(lambda: not desk.shown(), "not minimised")
    desk.window.map()
    desk.send()
    desk.find()


with Desk(sys.argv[1], float(sys.argv[2])) as player:
    player.play()
    play_by_mouse_and_keys(player)
    play_by_keys(player)
    move_and_minimise(player)
    for place in (HELP, SCORE, MENU):
        before = player.look().part(*SCREEN)
        player.click(place)
        player.see(lambda seen: seen.part(*SCREEN) != before, "no other screen")
    player.click(PLAY)
    player.turn()
    assert not player.act("p").is_covered()
    player.leave()
