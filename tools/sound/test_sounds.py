#!/usr/bin/env python3
"""The sounds as they come out: their size, that they begin and end in silence, and how loud they are to each other."""
import math
import pathlib
import statistics
import tomllib
import unittest
import wave
from io import BytesIO

import loudness
import make_sounds

TABLE = pathlib.Path(__file__).parents[2] / "assets/sounds/sounds.toml"
ROWS = {  # bytes, samples a second, seconds
    "101": (3644, 11025, 0.33), "102": (632, 11025, 0.05), "103": (768, 11025, 0.02), "104": (1756, 11025, 0.15),
    "105": (3768, 11025, 0.34), "106": (10260, 22050, 0.46), "107": (19844, 11025, 1.79), "108": (33656, 11013, 3.05),
    "109": (27888, 11025, 2.53), "110": (21340, 11025, 1.93), "111": (2344, 11025, 0.21), "112": (1516, 11127, 0.13),
}


def loudest(samples, rate):
    """Decibels of the loudest tenth of a second, unweighted."""
    width = rate // 10
    power = max(sum(s * s for s in samples[i:i + width]) for i in range(0, len(samples), width)) / width
    return 10 * math.log10(power)


class Sounds(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.table = tomllib.loads(TABLE.read_text())
        cls.files = {pathlib.Path(s["file"]).stem: make_sounds.make(s, cls.table) for s in cls.table["sound"]}

    def read(self, name):
        with wave.open(BytesIO(self.files[name])) as file:
            self.assertEqual((file.getnchannels(), file.getsampwidth()), (1, 1))
            return file.getframerate(), file.readframes(file.getnframes())

    def test_sizes_and_lengths(self):
        self.assertEqual(set(self.files), {*ROWS, "Space"})
        for name, (size, rate, seconds) in ROWS.items():
            with self.subTest(name):
                got_rate, data = self.read(name)
                self.assertEqual((len(self.files[name]), got_rate), (size, rate))
                self.assertAlmostEqual(len(data) / rate, seconds, delta=0.01)

    def test_no_clicks_no_clipping_and_silence_about(self):
        for name in self.files:
            with self.subTest(name):
                rate, data = self.read(name)
                self.assertEqual((data[0], data[-1]), (128, 128))
                self.assertTrue(1 < min(data) and max(data) < 255)
                self.assertLess(max(abs(v - 128) for v in data[-rate // 1000:]), 3, "ends with an edge")
                self.assertLess(abs(statistics.mean(data) - 128), 1, "lies beside the middle")

    def test_scores_stand_out_and_menus_stay_behind(self):
        level = {name: loudest([(v - 128) / 128 for v in data], rate) for name, (rate, data) in
                 ((name, self.read(name)) for name in self.files)}
        scores = [level[name] for name in ("106", "107", "108", "109", "110")]
        self.assertLess(max(scores) - min(scores), 4)
        self.assertGreater(min(scores), level["104"] + 6)
        self.assertGreater(min(scores), max(level[name] for name in ("101", "105", "Space")))
        self.assertLess(max(level[name] for name in ("102", "103", "111", "112")), min(scores) - 8)

    def test_the_same_table_gives_the_same_bytes(self):
        again = next(s for s in self.table["sound"] if s["file"].endswith("101.wav"))
        self.assertEqual(make_sounds.make(again, self.table), self.files["101"])


class Loudness(unittest.TestCase):
    def test_known_tones(self):
        # At full scale a sine has -3.01. The published weighting adds 0.69 at 997 Hz and tends to 4 above; far
        # below it is a high-pass of second order at 38.1 Hz without resonance: 20^2 / (20^2 + 38.1^2) is -13.3.
        for rate, hertz, decibels in [(48000, 997, -2.32), (11025, 997, -2.32), (48000, 4000, 0.9), (48000, 20, -16.3)]:
            with self.subTest((rate, hertz)):
                tone = [math.sin(2 * math.pi * hertz * i / rate) for i in range(rate)]
                self.assertAlmostEqual(loudness.loudness(tone, rate), decibels, delta=0.2)


if __name__ == "__main__":
    unittest.main()
