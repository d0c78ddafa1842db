#!/usr/bin/env python3
"""The sounds as they come out: their size, that they begin and end in silence, and how loud they are to each other."""
import io
import math
import pathlib
import statistics
import tomllib
import wave

import make_sounds

TABLE = tomllib.loads((pathlib.Path(__file__).parents[2] / "assets/sounds/sounds.toml").read_text())
levels = {}
for sound in TABLE["sound"]:
    name, made = pathlib.Path(sound["file"]).stem, make_sounds.make(sound, TABLE)
    with wave.open(io.BytesIO(made)) as file:
        rate, data = file.getframerate(), file.readframes(file.getnframes())
    assert len(made) == sound["bytes"], f"{name} has another size"
    assert data[0] == data[-1] == 128 and 1 < min(data) and max(data) < 255, f"{name} clicks or is clipped"
    assert max(abs(value - 128) for value in data[-rate // 1000:]) < 3, f"{name} ends with an edge"
    assert abs(statistics.mean(data) - 128) < 1, f"{name} lies beside the middle"
    width = rate // 10
    power = max(sum((value - 128) ** 2 for value in data[i:i + width]) for i in range(0, len(data), width)) / width
    levels.setdefault(sound["loudness"], []).append(10 * math.log10(power))
scores = levels["score"]
assert max(scores) - min(scores) < 4, levels
assert min(scores) > max(levels["event"]) and min(scores) > max(levels["move"]) + 6 and min(scores) > max(levels["menu"]) + 8
