#!/usr/bin/env python3
"""The sounds as they come out: their size, that they begin and end in silence, and how loud they are to each other."""
import math
import pathlib
import tomllib

import make_sounds

TABLE = tomllib.loads((pathlib.Path(__file__).parents[2] / "assets/sounds/sounds.toml").read_text())
levels = {}
for sound in TABLE["sound"]:
    made = make_sounds.make(sound, TABLE)
    data, width = made[44:44 + int.from_bytes(made[40:44], "little")], int.from_bytes(made[24:28], "little") // 10
    assert len(made) == sound["bytes"], f"{sound} has another size"
    assert data[0] == data[-1] == 128 and 1 < min(data) and max(data) < 255, f"{sound} clicks or is clipped"
    power = max(sum((value - 128) ** 2 for value in data[i:i + width]) for i in range(0, len(data), width)) / width
    levels.setdefault(sound["loudness"], []).append(10 * math.log10(power))
scores = levels["score"]
assert max(scores) - min(scores) < 4, levels
assert min(scores) > max(levels["event"]) and min(scores) > max(levels["move"]) + 6 and min(scores) > max(levels["menu"]) + 8
