# A game played without a screen: read, pressed and typed through the accessibility bus alone. usage: unseen.py PROGRAM

import os
import re
import sys
import time

import gi

from desk import START, Desk, until

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

PLACES = [f"Row {cell // 4 + 1}, column {cell % 4 + 1}" for cell in range(16)]
TURN = "focused " + PLACES[START]


class Reader:
    def __init__(self, desk):
        self.desk, self.heard = desk, []
        bus = desk.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1", stdout=-1)
        desk.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        os.environ |= desk.env
        Atspi.init()
        Atspi.set_timeout(20_000, 20_000)  # the end of a game takes its time
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", GLib.Variant("(ssv)", (
                "org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", True))), None, 0, -1, None)
        self.listener = Atspi.EventListener.new(self.hear)
        for event in ("focused", "showing", "checked"):
            self.listener.register("object:state-changed:" + event)
        desk.play()
        self.programs = Atspi.get_desktop(0)
        self.programs.set_cache_mask(Atspi.Cache.NONE)
        until(lambda: self.named("play"), "nothing to be read")

    # Keeps what gets the keyboard, what is chosen and what is said.
    def hear(self, event):
        kind = event.type.split(":")[2]
        if event.detail1 and (kind != "showing" or event.source.get_role_name() == "notification"):
            self.heard.append(f"{kind} {event.source.get_name()}")

    # Acts, and waits until something is heard.
    def hears(self, what, act=None, *arguments):
        if act:
            self.heard.clear()
            act(*arguments)
        pause = lambda: GLib.MainContext.default().iteration(False) or time.sleep(0.002)
        return until(lambda: next((each for each in self.heard if re.search(what, each)), ""), f"{what} is not heard", pause)

    # What is shown, in reading order.
    def read(self, parent=None):
        parent = parent or self.programs
        for child in filter(None, map(parent.get_child_at_index, range(parent.get_child_count()))):
            if child.get_state_set().contains(Atspi.StateType.SHOWING):
                yield child
                yield from self.read(child)

    def named(self, start):
        return next((each for each in self.read() if each.get_name().startswith(start)), None)

    def press(self, start):
        action = until(lambda: self.named(start), f"{start} is not shown").get_action_iface()
        assert action.get_action_name(0) == "Press" and action.do_action(0), start

    # The first cell without a card of its own.
    def free(self):
        cells = [name for name in (each.get_name() for each in self.read()) if name.startswith("Row")]
        return next(cell for cell, name in enumerate(cells) if name.endswith(("empty", "active card")))

    # A game to its end, by keys and by pressing cells in turn; its score as it was told.
    def play_a_game(self):
        told, turn, heard = 0, 0, self.hears(TURN, self.press, "play")
        while "Game over" not in heard:
            to, turn = self.free(), turn + 1
            if turn % 2 and to != START:
                self.hears("focused " + PLACES[to], self.desk.steer, START, to)
            act = (self.desk.key, "space") if turn % 2 else (self.press, PLACES[to])
            heard = self.hears(f"{TURN}|Game over", *act)
            told += sum(int(points.replace(",", "")) for points in re.findall(r"scored: ([\d,]+)", str(self.heard)))
        self.hears(f"Game over. Score {told:,}.")
        return told


def journey(reader):
    reader.press("menu")
    for choice in ("master", "practice", "other"):
        reader.hears("checked " + choice, reader.press, choice)
    while not reader.play_a_game():  # nobody is asked for a name then
        pass
    reader.hears("focused Enter")
    next(filter(None, (each.get_editable_text_iface() for each in reader.read()))).set_text_contents("Ada")
    reader.press("OK")
    until(lambda: reader.named("Place 1: Ada"), "no table")
    reader.press("menu")
    reader.hears("checked master", reader.press, "master")
    reader.hears(TURN, reader.press, "play")
    reader.hears("Paused", reader.desk.key, "p")
    reader.hears("The game goes on", reader.desk.key, "p")
    reader.hears(TURN, reader.press, PLACES[5])
    reader.hears("A quarter of the time bar is left.")
    reader.hears("Time is up")
    reader.press("exit")
    assert reader.desk.game.wait(20) == 0


with Desk(sys.argv[1]) as player:
    journey(Reader(player))
