#!/usr/bin/env python3
"""The sounds as they come out: their size, that they begin and end in silence, and how loud they are to each other."""
import io
import math
import pathlib
import statistics
import tomllib
import wave

import loudness
import make_sounds

TABLE = tomllib.loads((pathlib.Path(__file__).parents[2] / "assets/sounds/sounds.toml").read_text())
ROWS = {  # bytes, samples a second, seconds
    "101": (3644, 11025, 0.33), "102": (632, 11025, 0.05), "103": (768, 11025, 0.02), "104": (1756, 11025, 0.15),
    "105": (3768, 11025, 0.34), "106": (10260, 22050, 0.46), "107": (19844, 11025, 1.79), "108": (33656, 11013, 3.05),
    "109": (27888, 11025, 2.53), "110": (21340, 11025, 1.93), "111": (2344, 11025, 0.21), "112": (1516, 11127, 0.13),
}
level = {}
for sound in TABLE["sound"]:
    name, made = pathlib.Path(sound["file"]).stem, make_sounds.make(sound, TABLE)
    with wave.open(io.BytesIO(made)) as file:
        rate, data = file.getframerate(), file.readframes(file.getnframes())
        assert (file.getnchannels(), file.getsampwidth()) == (1, 1), name
    size, wanted_rate, seconds = ROWS.get(name, (len(made), rate, len(data) / rate))
    assert (len(made), rate) == (size, wanted_rate) and abs(len(data) / rate - seconds) < 0.01, name
    assert data[0] == data[-1] == 128 and 1 < min(data) and max(data) < 255, f"{name} clicks or is clipped"
    assert max(abs(v - 128) for v in data[-rate // 1000:]) < 3, f"{name} ends with an edge"
    assert abs(statistics.mean(data) - 128) < 1, f"{name} lies beside the middle"
    width = rate // 10
    power = max(sum((v - 128) ** 2 for v in data[i:i + width]) for i in range(0, len(data), width)) / width
    level[name] = 10 * math.log10(power)
    assert len(data) > 20000 or make_sounds.make(sound, TABLE) == made, f"{name} comes out differently each time"
assert set(level) == {*ROWS, "Space"}
scores = [level[name] for name in ("106", "107", "108", "109", "110")]
assert max(scores) - min(scores) < 4 and min(scores) > level["104"] + 6, level
assert min(scores) > max(level[name] for name in ("101", "105", "Space")), level
assert min(scores) > 8 + max(level[name] for name in ("102", "103", "111", "112")), level

# At full scale a sine has -3.01. The published weighting adds 0.69 at 997 Hz and tends to 4 above; far below it is a
# high-pass of second order at 38.1 Hz without resonance: 20^2 / (20^2 + 38.1^2) is -13.3.
for rate, hertz, decibels in [(48000, 997, -2.32), (11025, 997, -2.32), (48000, 4000, 0.9), (48000, 20, -16.3)]:
    tone = [math.sin(2 * math.pi * hertz * i / rate) for i in range(rate)]
    assert abs(loudness.loudness(tone, rate) - decibels) < 0.2, (rate, hertz)
