# The game as it is installed, far from its build, for players with and without a folder of their own.
# usage: installed.py PROGRAM BUILD

import os
import subprocess
import sys

from desk import PLAY, START, Desk

with Desk(None, TESSELOR_HOME="") as one, Desk(None, TESSELOR_HOME="", XDG_DATA_HOME="/proc/data") as other:
    subprocess.run(["cmake", "--install", sys.argv[2], "--component", "system", "--prefix", one.folder], check=True)
    for player in (one, other):
        player.program = one.folder / "games/tesselor"
        player.play()
        player.click(PLAY)
        player.see(lambda seen: seen.active() == [START], "no skin to play with")
        player.leave()
    assert sorted(os.listdir(one.folder / "DATA/Tesselor/Art")) == sorted(os.listdir(sys.argv[2] + "/Art"))
