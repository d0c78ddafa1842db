# The game in a system that goes wrong around it: nothing is lost, and it goes on or ends in order.
# usage: trouble.py PROGRAM [--sanitized]

import os
import pathlib
import resource
import shutil
import signal
import sys
import time

from desk import CELLS, HELP, LEVELS, MENU, PLAY, SANITIZED, SCORE, SCREEN, SLOTS, START, Desk, limited, room, until, write_skin

CARDS_LEFT = (176, 360, 50, 51)


# Away for longer than a lock time, as in a laptop that was closed: one card is locked late, and no more.
def suspended(desk):
    desk.click(MENU, LEVELS[4], PLAY)
    desk.turn()
    one = desk.lock(5)
    os.kill(desk.game.pid, signal.SIGSTOP)
    back = time.monotonic() + 4
    until(lambda: time.monotonic() > back, "the end of the sleep")
    os.kill(desk.game.pid, signal.SIGCONT)
    late = desk.see(lambda seen: seen.part(*CARDS_LEFT) != one.part(*CARDS_LEFT) and seen.active() == [START], "no lock")
    assert sum(card is not None for card in late.board()) <= 3


# Too little memory for a skin of the largest size: the player is told, and the game goes on.
def no_memory(desk):
    desk.click(MENU, SLOTS[1])
    desk.see(lambda seen: seen.at(*SLOTS[1]) == (128, 16, 255), "the slot is not there")
    with limited(desk.game, resource.RLIMIT_AS, room(desk.game, 20_000_000)):
        desk.click(PLAY)
        desk.find(other=desk.window)
    desk.answer("Return")
    desk.click(MENU, SLOTS[0], PLAY)
    desk.turn()


# As much at once a second time takes no more room.
def thousands_of_clicks(desk):
    def burst():
        desk.click(*(MENU, LEVELS[4], SCORE, MENU, LEVELS[0], HELP) * (30 if SANITIZED else 300), PLAY)
        desk.see(lambda seen: seen.active() == [START] and seen.board().count(None) == 15, "no game")
        desk.lock(5)
        desk.lock(6)
        desk.click(*CELLS[5:7] * (100 if SANITIZED else 1000))
        desk.key("p")
        desk.see(lambda seen: seen.is_covered(), "no pause")
        memory = int(pathlib.Path(f"/proc/{desk.game.pid}/statm").read_text().split()[1])
        return memory, len(os.listdir(f"/proc/{desk.game.pid}/fd"))
    (memory, files), (later, more) = burst(), burst()
    assert more <= files + 4 and (SANITIZED or later < memory * 1.1), (memory, later, files, more)


def folders_removed(desk):
    shutil.rmtree(desk.home)
    shutil.rmtree(desk.store.parent)
    before = desk.look().part(*SCREEN)
    desk.click(PLAY)
    desk.answer("Return")
    desk.click(SCORE)
    desk.see(lambda seen: seen.part(*SCREEN) != before, "no table")
    desk.leave()


# The game ends by itself, not by a signal.
def display_killed(desk):
    desk.click(PLAY)
    desk.turn()
    kept = desk.store.read_bytes()
    desk.server.kill()
    assert desk.game.wait(20) > 0 and kept == desk.store.read_bytes() != b""


with Desk(sys.argv[1]) as player:
    write_skin(player.home / "Art/other.ppm", 1920, 8320)
    player.play()
    suspended(player)
    if not SANITIZED:
        no_memory(player)
    thousands_of_clicks(player)
    folders_removed(player)
with Desk(sys.argv[1]) as player:
    player.play()
    display_killed(player)
