# Games as they are seen, by mouse and keyboard, and what the window itself answers. usage: seen.py PROGRAM SCALE

import itertools
import sys

from Xlib import X

from desk import (BACKGROUND, BLACK, CELLS, ERASER, HELP, LEVELS, MENU, MINIMISE, PLAY, POINTS, PREVIEW, SCORE, SCREEN,
                  SLOTS, START, Desk, choose, until)


# Whether the mark of the keyboard is around a control.
def is_marked(seen, place):
    return (0xF4, 0xC8, 0x4E) in [seen.at(place[0], place[1] - up) for up in ([11] if place in LEVELS else [20, 21, 22])]


def go(desk, key, *places):
    for place in places:
        desk.key(key)
        desk.see(lambda seen: is_marked(seen, place), f"{key} does not go to {place}")


def play_by_mouse_and_keys(desk):
    screens = [desk.look().part(*SCREEN)]
    for place in (MENU, SCORE):
        desk.click(place)
        screens.append(desk.see(lambda seen: seen.part(*SCREEN) not in screens, "no other screen").part(*SCREEN))
    desk.click(PLAY)
    seen, board = desk.turn(), [None] * 16
    for to, by_mouse in ((5, False), (START, True), (10, False), (3, True)):
        kind, following = seen.card(CELLS[START]), seen.card(PREVIEW)
        if by_mouse and to != START:
            desk.send((X.MotionNotify, CELLS[to]))
            desk.see(lambda seen: seen.active() == [to], "the card does not follow the mouse")
        seen = desk.lock(to)
        board[to] = None if kind >= ERASER else kind
        shown = seen.board()
        assert shown == [*board[:START], following, *board[START + 1:]], (board, shown)
        assert seen.is_shaded(START) == (board[START] is not None)
    for cell in (cell for cell in range(16) if board[cell] is not None):
        assert desk.move(cell).is_shaded(cell)
    shown = desk.move(0).board()
    assert shown[1:] == board[1:], "what lies under the card comes back"
    desk.click(CELLS[3], button=3)  # where the mouse rests
    desk.see(lambda seen: seen.is_covered(), "no pause")
    desk.key("p")
    desk.see(lambda seen: seen.board() == shown and seen.active() == [0], "the game does not go on")
    desk.click(CELLS[3])
    desk.see(lambda seen: seen.active() == [START], "a click locks nothing")
    desk.click(HELP)
    desk.see(lambda seen: seen.part(*SCREEN) == screens[0], "not the help it began with")


# By keyboard alone: the master level and the second skin, a game whose cards are locked in time, and a name.
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
    zero, seen = seen.part(*POINTS), desk.lock(6)
    desk.see(lambda now: len(now.board()) - now.board().count(None) > 2, "no card is locked in time")
    while not (seen := desk.turn()).is_covered() or seen.part(*POINTS) == zero:  # nobody is asked for a name then
        if seen.is_covered():
            desk.click(PLAY)
            desk.see(lambda seen: not seen.is_covered(), "no other game")
            continue
        board = seen.board()
        kind, board[START] = board[START], BLACK if seen.is_shaded(START) else None
        desk.steer(START, choose(board, kind, seen.part(*POINTS) != zero))
        desk.act("space")
    desk.key("z", "o", "e", "Return")
    until(lambda: "zoe" in desk.stored(), "the name is not kept")
    return desk.see(lambda seen: not seen.is_covered(), "no table").part(*SCREEN)


def move_and_minimise(desk):
    for button in (1, 2, 3):
        before, steps = desk.on_screen((0, 0)), itertools.cycle(range(40))

        # The window manager takes over some time after the first motion, and then wants to see another.
        def moves():
            step = next(steps)
            release = [(X.ButtonRelease, button)] * (step == 0)
            desk.send(*release, (X.MotionNotify, (BACKGROUND[0] + step, BACKGROUND[1] + step)))
            desk.send(*[(X.ButtonPress, button)] * (step == 0))
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
    table = play_by_keys(player)
    move_and_minimise(player)
    player.click(HELP, SCORE)
    player.see(lambda seen: seen.part(*SCREEN) == table, "another table")
    player.click(PLAY)
    player.turn()
    assert not player.act("p").is_covered()
    player.leave()
