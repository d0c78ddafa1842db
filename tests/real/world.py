# The game among other programs, and in a system that goes wrong around it: nothing is lost, and it goes on or ends in
# order. usage: world.py PROGRAM [--sanitized]

import os
import resource
import shutil
import sys

import gi

from desk import SCREEN, Desk, write_skin
from desktop import MENU, PLAY, SCORE, SLOTS, until

gi.require_version("Gtk", "3.0")


# A skin is dragged from another program's window to an empty slot, and then another of its name on top of it.
def drop(desk):
    from gi.repository import Gtk  # which looks for the display
    skin, (x, y), taken = desk.folder / "new.ppm", SLOTS[2], []
    link, source = Gtk.LinkButton(uri=skin.as_uri()), Gtk.Window(title="Source", default_width=200, default_height=200)
    link.connect("drag-begin", lambda _, drag: drag.connect("action-changed", lambda _, action: taken.append(action)))
    source.add(link)
    source.move(900, 50)
    source.show_all()
    for tint in (9, 19):
        write_skin(skin, tint=tint)
        taken.clear()
        desk.do("mousemove", 1000, 150)
        until(lambda: link.get_state_flags() & Gtk.StateFlags.PRELIGHT, "nothing to drag from")
        desk.do("mousedown", 1, "mousemove", 950, 150)
        until(lambda: desk.do("mousemove", x + 1, y, "mousemove", x, y) or taken[-1:] > [0], "not taken")
        desk.do("mouseup", 1)
        if tint == 19:
            desk.answer("y")
        desk.see(lambda seen: seen.at(x, y)[2] == 255 - tint, "not in its slot")
        assert not skin.exists() and set(os.listdir(desk.home / "Art")) == {"cards.ppm", "new.ppm", "other.ppm"}


# The player is told when there is too little memory for a skin of the largest size, and the game goes on.
def no_memory(desk):
    desk.click(SLOTS[1])
    used = int(open(f"/proc/{desk.game.pid}/statm").read().split()[0]) * resource.getpagesize()
    _, most = resource.prlimit(desk.game.pid, resource.RLIMIT_AS)
    resource.prlimit(desk.game.pid, resource.RLIMIT_AS, (used + 20_000_000, most))
    desk.click(PLAY)
    until(lambda: len(desk.shown()) == 2, "nothing is told")
    resource.prlimit(desk.game.pid, resource.RLIMIT_AS, (most, most))
    desk.answer()
    desk.click(MENU, SLOTS[0], PLAY)
    desk.turn()


desk = Desk(sys.argv[1])
write_skin(desk.home / "Art/other.ppm", 640)
desk.play()
desk.click(MENU)
desk.see(lambda seen: seen.at(*SLOTS[1]) == (128, 16, 255), "the slots are not filled")
drop(desk)
if "--sanitized" not in sys.argv:
    no_memory(desk)
shutil.rmtree(desk.home)
shutil.rmtree(desk.folder / "CONFIG")
desk.click(PLAY)
desk.answer()
desk.changes(desk.click, SCORE, part=SCREEN)
desk.server.terminate()
assert desk.game.wait(20) > 0, "the game ends by a signal"
