# The game as it is installed, far from its build, played without a screen: read, pressed and typed through the
# accessibility bus alone. usage: unseen.py BUILD|INSTALLED-PROGRAM

import os
import re
import subprocess
import sys

import gi

from desk import START, Desk
from desktop import until

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

PLACES = [f"Row {cell // 4 + 1}, column {cell % 4 + 1}" for cell in range(16)]
TURN = "focused " + PLACES[START]
said = []


# Keeps what gets the keyboard, what is chosen and what is announced.
def hear(event):
    kind = event.type.split(":")[-1]
    if kind == "announcement":
        said.append(event.any_data)
    elif event.detail1 and (kind != "showing" or event.source.get_role_name() == "notification"):
        said.append(f"{kind} {event.source.get_name()}")


# Acts, and waits until something is heard.
def hears(what, act, *arguments):
    said.clear()
    act(*arguments)
    return until(lambda: next((each for each in said if re.search(what, each)), ""), f"{what} is not heard")


# What is shown, in reading order.
def read(parent):
    for child in filter(None, map(parent.get_child_at_index, range(parent.get_child_count()))):
        if child.get_state_set().contains(Atspi.StateType.SHOWING):
            yield child
            yield from read(child)


def find(name):
    return until(lambda: next((each for each in read(programs) if re.match(name, each.get_name())), None), f"no {name}")


def press(name):
    assert find(name).get_action_iface().do_action(0), name


# A game to its end, each card brought to the first free cell by keys and locked by a press; what was said then.
def play_a_game():
    heard = hears(TURN, press, "play")
    while "Game over" not in heard:
        place = find("Row.*(empty|active card)$").get_name().split(":")[0]
        if place != PLACES[START]:
            hears("focused " + place, desk.steer, START, PLACES.index(place))
        heard = hears(f"{TURN}|Game over", press, place)
    return heard


desk = Desk(sys.argv[1])
if os.path.isdir(desk.program):
    subprocess.run(["cmake", "--install", desk.program, "--component", "system", "--prefix", desk.folder], check=True)
    desk.program = desk.folder / "games/tesselor"
bus = desk.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1", stdout=subprocess.PIPE)
os.environ |= {"DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip(), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
               "TESSELOR_HOME": ""}
Atspi.init()
Atspi.set_timeout(20_000, 20_000)  # the end of a game takes its time
listener = Atspi.EventListener.new(hear)
for event in ("state-changed:focused", "state-changed:showing", "state-changed:checked", "announcement"):
    listener.register("object:" + event)
desk.play()
programs = Atspi.get_desktop(0)
programs.set_cache_mask(Atspi.Cache.NONE)
press("menu")
for choice in ("master", "practice", "sea"):  # a skin that came with the installation
    hears("checked " + choice, press, choice)
while "Score 0." in play_a_game():  # nobody is asked for a name then
    pass
find("Enter")
next(filter(None, (each.get_editable_text_iface() for each in read(programs)))).set_text_contents("Ada")
press("OK")
find("Place 1: Ada")
press("exit")
assert desk.game.wait(20) == 0
