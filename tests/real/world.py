# The game among other programs, and in a system that goes wrong around it: nothing is lost, and it goes on or ends in
# order. usage: world.py PROGRAM [--sanitized]

import os
import resource
import shutil
import subprocess
import sys

from desk import SCREEN, Desk, write_skin
from desktop import MENU, PLAY, SCORE, SLOTS, until


# The player is told when there is too little memory for a skin of the largest size, and the game goes on.
def no_memory(desk):
    desk.click(SLOTS[1])
    used = 1024 * int(subprocess.check_output(["ps", "-o", "vsz=", "-p", str(desk.game.pid)]))
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
(desk.folder / "libpulse.so.0").touch()  # no library: the whole journey is silent
os.environ["LD_LIBRARY_PATH"] = str(desk.folder)
desk.play()
desk.click(MENU)
desk.see(lambda seen: seen.at(*SLOTS[1]) == (128, 16, 255), "the slots are not filled")
if "--sanitized" not in sys.argv:
    no_memory(desk)
shutil.rmtree(desk.home)
shutil.rmtree(desk.folder / "CONFIG")
desk.click(PLAY)
desk.answer()
desk.changes(desk.click, SCORE, part=SCREEN)
desk.server.terminate()
assert desk.game.wait(20) > 0, "the game ends by a signal"
