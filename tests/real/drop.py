# Skins dropped on the game's window from another program's: a drag of this file's own, when it is given a skin alone.
# usage: drop.py PROGRAM | drop.py --source FILE

import itertools
import pathlib
import sys

from Xlib import X

from desk import MENU, SLOTS, Desk, until, write_skin

CHOSEN = (60, 240, 120, 80)


# A window to drag the file from; says whether it would be taken.
def offer(file):
    import gi
    gi.require_versions({"Gtk": "3.0", "Gdk": "3.0"})
    from gi.repository import Gdk, Gtk
    window = Gtk.Window(title="Source", default_width=200, default_height=200)
    window.move(900, 50)
    window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [Gtk.TargetEntry.new("text/uri-list", 0, 0)], Gdk.DragAction.COPY)
    window.connect("drag-data-get", lambda _, drag, data, *rest: data.set_uris([pathlib.Path(file).as_uri()]))
    window.connect("drag-begin", lambda _, drag: drag.connect(
        "action-changed", lambda _, action: print("taken" if action else "refused", flush=True)))
    window.show()
    Gtk.main()


# Drags the file to a slot and lets it go there, once the game has taken notice of what hovers over it.
def drag(desk, file, slot):
    said, steps = desk.folder / "said", itertools.count(1)
    source = desk.start(sys.executable, __file__, "--source", file, stdout=said.open("w"))
    desk.send((X.MotionNotify, (100, 100)), window=desk.find("Source"))
    desk.send((X.ButtonPress, 1))
    x, y = desk.on_screen(SLOTS[slot])

    def is_taken():
        step = next(steps)
        way = min(step, 20) / 20
        desk.send((X.MotionNotify, (1000 + (x - 1000) * way + step % 3, 150 + (y - 150) * way)), window=desk.root)
        return step > 20 and said.read_text().endswith("taken\n")
    until(is_taken, f"{file} is not taken")
    desk.send((X.ButtonRelease, 1))
    return source


def journey(desk):
    desk.play()
    desk.click(MENU)
    desk.see(lambda seen: seen.at(*SLOTS[1])[2] == 254, "no slots")
    new, broken, art = desk.folder / "new.ppm", desk.folder / "broken.ppm", desk.home / "Art"
    broken.write_bytes(b"P6 12 52 255\n")
    for file, slot, answer, skins, into in [
            (new, 7, None, ["cards", "new", "other"], 2), (new, 1, "Escape", ["cards", "new", "other"], None),
            (new, 1, "Return", ["cards", "new-2", "new"], 1), (new, 2, "Return", ["cards", "new-2", "new"], 2),
            (broken, 5, "Return", ["cards", "new-2", "new"], None), (art / "cards.ppm", 9, None, ["cards", "new-2", "new"], 0)]:
        if file == new:
            write_skin(new, tint=9)
        before = desk.look().part(*CHOSEN)
        source = drag(desk, file, slot)
        if answer:
            desk.answer(answer)
        until(lambda: sorted(each.name for each in art.iterdir()) == [skin + ".ppm" for skin in skins],
              f"not {skins} after {file} on {slot}")
        desk.see(lambda seen: (seen.part(*CHOSEN) == before) == (into is None), "the wrong skin is chosen")
        desk.see(lambda seen: into is None or seen.at(*SLOTS[into])[2] == (255 if into == 0 else 246), "not in its slot")
        assert file.exists() == (file != new or into is None)
        source.kill()
    desk.leave()


if sys.argv[1] == "--source":
    offer(sys.argv[2])
else:
    with Desk(sys.argv[1]) as player:
        journey(player)
