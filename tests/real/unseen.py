# Games played without a screen: read, pressed and typed through the accessibility bus alone. Each turn is compared with
# the rules; what is read and heard on the way, with unseen.txt. usage: unseen.py PROGRAM

import datetime
import difflib
import os
import pathlib
import re
import shutil
import sys
import time

import gi

from desk import ERASER, PLAY, START, Desk, choose, completed, until

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

REWARDS = [(0, 0), (10, 1), (50, 5), (200, 17), (500, 26), (1000, 51)]  # points and cards by what is shared
KINDS = [f"shape {kind // 12 + 1}, colour {kind % 3 + 1}, quantity {kind // 3 % 4 + 1}" for kind in range(36)] + ["eraser"]
CARD = re.compile("|".join(KINDS))
PLACES = [f"ow {cell // 4 + 1}, column {cell % 4 + 1}" for cell in range(16)]
TURN = "focused R" + PLACES[START]


class Reader:
    def __init__(self, desk):
        self.desk, self.heard, self.told = desk, [], []
        bus = desk.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1", stdout=-1)
        desk.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        os.environ |= desk.env
        Atspi.init()
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", GLib.Variant("(ssv)", (
                "org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", True))), None, 0, -1, None)
        self.listener = Atspi.EventListener.new(self.hear)
        for event in ("focused", "showing", "checked"):
            self.listener.register("object:state-changed:" + event)
        desk.play()
        self.programs = Atspi.get_desktop(0)
        self.programs.set_cache_mask(Atspi.Cache.NONE)
        self.await_shown("play")

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
        return until(lambda: next((each for each in self.heard if what in each), ""), f"{what} is not heard", pause)

    # What is shown, in reading order, with its depth.
    def read(self, parent=None, depth=0):
        parent = parent or self.programs
        for child in filter(None, map(parent.get_child_at_index, range(parent.get_child_count()))):
            if child.get_state_set().contains(Atspi.StateType.SHOWING):
                yield child, depth
                yield from self.read(child, depth + 1)

    def named(self, start):
        return next((each for each, _ in self.read() if each.get_name().startswith(start)), None)

    def await_shown(self, start):
        until(lambda: self.named(start), f"{start} is not shown")

    def press(self, start):
        action = self.named(start).get_action_iface()
        assert action.get_action_name(0) == "Press" and action.do_action(0), start

    # Notes down all that can be read.
    def tell(self, heading, parent=None, **unknown):
        self.told += ["", "== " + heading]
        for each, depth in self.read(parent):
            states = {state.value_nick for state in each.get_state_set().get_states()}
            action, text = each.get_action_iface(), each.get_text_iface()
            notes = [each.get_description() if depth else "", *["disabled"] * ("enabled" not in states)]
            notes += sorted(states - {"enabled", "sensitive", "showing", "visible", "active", "focused"})
            notes += [action.get_action_name(i) for i in range(action.get_n_actions())] if action else []
            notes += [repr(text.get_text(0, min(50, text.get_character_count())))] if text else []
            line = f"{'  ' * depth}{each.get_role_name()} {each.get_name()!r} {', '.join(filter(None, notes))}".rstrip()
            for word, value in unknown.items():
                line = line.replace(value, word)
            self.told.append(CARD.sub("CARD", line))

    def walk(self, *keys):
        self.told += [f"{key} {self.hears('focused ', self.desk.key, key)}" for key in keys]

    # The kinds of the active and the next card, once all that is read is as it should be.
    def compare(self, board, score, left):
        shown = [each.get_name() for each, _ in self.read()]
        named = [name for start in ("R" + PLACES[START], "Next card: ") for name in shown if name.startswith(start)]
        active, following = (CARD.search(name)[0] for name in named)
        cards = ["empty" if card is None else KINDS[card] for card in board]
        cards[START] = f"{active}, active card" + f", shaded, over {cards[START]}" * (board[START] is not None)
        wanted = {f"R{place}: {card}" for place, card in zip(PLACES, cards)} | {
            f"Next card: {following}", f"Score {score:,}", f"{left} card{'s' * (left != 1)} left"}
        assert wanted <= set(shown), (wanted - set(shown), shown)
        return KINDS.index(active), KINDS.index(following)

    # A game to its end, with a pause in it; its score and the cards left as shown.
    def play_a_game(self):
        board, score, left, following, ends = [None] * 16, 0, 100, None, False
        self.hears(TURN, self.press, "play")
        for turn in range(400):
            promised, (kind, following) = following, self.compare(board, score, left)
            assert promised in (None, kind)
            to, lines = choose(board, kind, turn > 12 and score), []
            if kind < ERASER:
                lines = [(line, shared) for line, shared in completed(board, to, kind) if shared]
            points, bonus = REWARDS[min(5, sum(shared for _, shared in lines))]
            board[to], before = None if kind == ERASER else kind, left
            points, left = points * (16 - board.count(None)), left + bonus - (kind != ERASER)
            score += points
            for cell in {cell for line, _ in lines for cell in line}:
                board[cell] = None
            ends = None not in board or not left
            self.lock(to, turn % 2, "Game over" if ends else TURN)
            assert (f"Line scored: {points:,} points." in str(self.heard)) == bool(points), (points, self.heard)
            if ends:
                self.hears(f"Game over. Score {score:,}.")
                return score, left if None in board else before
            if turn == 2 and "showing Paused." not in self.told:
                self.told += [self.hears("Paused", self.desk.key, "p"), self.named("Board").get_name()]
                assert sum(each.get_name().endswith(": covered") for each, _ in self.read()) == 16
                self.told += [self.hears("The game", self.desk.key, "p")]

    # By keys or by pressing the cell.
    def lock(self, to, by_keys, what=TURN):
        if not by_keys:
            return self.hears(what, self.press, "R" + PLACES[to])
        if to != START:
            self.hears("focused R" + PLACES[to], self.desk.steer, START, to)
        self.hears(what, self.desk.key, "space")


def journey(reader):
    reader.tell("help")
    reader.walk(*["Tab"] * 10, "Left", "Down", "Down", "Down", "Down", "Left", "Left", "Up", "Right")
    reader.press("menu")
    reader.await_shown("junior")
    reader.tell("menu")
    reader.walk(*["Tab"] * 14, "Up", "Left", "Left", "Down", "Up", "Right", "Right")
    for choice in ("junior", "other"):
        reader.hears("checked " + choice, reader.press, choice)
    reader.tell("another level and skin")
    for choice in ("practice", "cards"):
        reader.hears("checked " + choice, reader.press, choice)
    reader.press("help")
    reader.await_shown("demo")
    reader.hears("focused", reader.press, "more")
    reader.tell("rules", reader.named("The rules"))
    reader.hears("focused", reader.desk.key, "Escape")
    score = 0
    while not score:  # nobody is asked for a name then
        score, left = reader.play_a_game()
    reader.hears("focused Enter")
    unknown = {"SCORE": f"Score {score:,}", "LEFT": f"{left} card", "DATE": f"{datetime.date.today():Date %-m/%-d/%y}"}
    reader.tell("name", **unknown)
    next(filter(None, (each.get_editable_text_iface() for each, _ in reader.read()))).set_text_contents("Ada")
    reader.press("OK")
    reader.await_shown("Place 1: Ada")
    reader.tell("score", **unknown)
    reader.press("menu")
    reader.hears("checked master", reader.press, "master")
    reader.hears(TURN, reader.press, "play")
    reader.lock(5, False)
    kind, bar = CARD.search(reader.named("R" + PLACES[START]).get_name())[0], reader.named("Time used").get_value_iface()
    reader.told.append(reader.hears("of the time bar"))
    assert 75 <= bar.get_current_value() <= bar.get_maximum_value() == 100
    locked = reader.hears("Time is up").removeprefix("showing Time is up: locked in r").rstrip(".")
    assert kind == "eraser" or kind in reader.named("R" + locked).get_name()
    shutil.rmtree(reader.desk.home)
    reader.hears("focused OK", reader.desk.click, PLAY)
    reader.tell("no skin", next(each for each, _ in reader.read() if each.get_role_name() == "alert"))
    reader.desk.answer("Return")
    reader.press("exit")
    assert reader.desk.game.wait(20) == 0


with Desk(sys.argv[1]) as player:
    (player.home / "Res").mkdir()
    (player.home / "Res/Tesselor rules.txt").write_text("RULES\nLines of four.\n")
    reader, kept = Reader(player), pathlib.Path("unseen.txt")
    journey(reader)
    kept.write_text("\n".join(reader.told) + "\n")
    expected = pathlib.Path(__file__).with_suffix(".txt").read_text().splitlines()
    print(*difflib.unified_diff(expected, reader.told, "expected", "told", lineterm=""), sep="\n")
    assert reader.told == expected, f"another text; when that is meant, copy {kept.absolute()}"
