#!/usr/bin/env python3
"""Makes the game's sounds, WAVE files of 8 bits on one channel, from a table of notes and voices.

usage: make_sounds.py SOUNDS.toml FOLDER [FILE ...]     all sounds of the table, or those whose file is named

The same table gives the same bytes on every machine. assets/sounds/README.md says what the table holds.
"""
import argparse
import math
import pathlib
import random
import re
import struct
import tomllib

from loudness import loudness

HEAD = 44          # bytes of a WAVE file before its samples
MIDDLE = 128       # silence in 8 bits
STEP = 1 / 127     # one step of 8 bits, of full scale
FADE = 0.12        # seconds in which a sound ends, at most a quarter of it
HIGHEST = 0.45     # of the sample rate: what lies above would come back as another tone
CLEAR = 0.97       # of full scale: no sample may be beyond


def hertz(pitch):
    """The frequency of "A4", "F#5", "Bb3"."""
    name, sign, octave = re.fullmatch(r"([A-G])([#b]?)(\d)", pitch).groups()
    semitone = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}[name] + {"": 0, "#": 1, "b": -1}[sign]
    return 440 * 2 ** (semitone / 12 + int(octave) - 4)


def rise(seconds, attack):
    """From 0 to 1 within `attack` seconds, without an edge."""
    return 1.0 if seconds >= attack else 0.5 - 0.5 * math.cos(math.pi * seconds / attack)


def phases(pitch, bend, count, rate):
    """The angle of a tone at each sample; `bend` is what it is off its pitch at first, and how long."""
    semitones, milliseconds = bend
    angle, angles = 0.0, []
    for i in range(count):
        angles.append(angle)
        off = semitones * math.exp(-i / rate * 1000 / milliseconds) / 12
        angle += 2 * math.pi * pitch * 2 ** off / rate
    return angles


def low_pass(samples, cut, rate):
    """Two gentle filters in a row, which let pass what is below `cut` hertz."""
    share = 1 - math.exp(-2 * math.pi * cut / rate)
    for _ in range(2):
        value, out = 0.0, []
        for sample in samples:
            value += share * (sample - value)
            out.append(value)
        samples = out
    return samples


def noise_band(low, high, count, rate, chance):
    """Noise between `low` and `high` hertz."""
    below_high = low_pass([chance.uniform(-1, 1) for _ in range(count)], high, rate)
    return [a - b for a, b in zip(below_high, low_pass(below_high, low, rate))]


def note(voice, pitch, count, rate, chance):
    """`count` samples of a note of `voice`, from its beginning."""
    angles = phases(pitch, voice.get("bend", [0, 1]), count, rate)
    out = [0.0] * count
    for ratio, strength, decay in voice["partials"]:
        if pitch * ratio < HIGHEST * rate:
            fall = math.exp(-1000 / decay / rate)
            for i, angle in enumerate(angles):
                out[i] += strength * fall ** i * math.sin(angle * ratio)
    if "noise" in voice:
        strength, low, high, decay = voice["noise"]
        fall = math.exp(-1000 / decay / rate)
        for i, value in enumerate(noise_band(low, high, count, rate, chance)):
            out[i] += 3 * strength * fall ** i * value
    return [value * rise(i / rate, voice["attack"] / 1000) for i, value in enumerate(out)]


def mix(sound, voices, count):
    """The notes of `sound` together, `count` samples, faded out."""
    rate, chance = sound["rate"], random.Random(sound["file"])
    out = [0.0] * count
    for start, voice, pitch, strength in sound["notes"]:
        first = round(start * rate / 1000)
        for i, value in enumerate(note(voices[voice], hertz(pitch), count - first, rate, chance), first):
            out[i] += strength * value
    fade = min(FADE, count / rate / 4)
    return [value * rise((count - 1 - i) / rate, fade) for i, value in enumerate(out)]


def levelled(samples, rate, target):
    """`samples` as loud as `target` decibels."""
    gain = 10 ** ((target - loudness(samples, rate)) / 20)
    return [value * gain for value in samples]


def eight_bits(samples, rate, chance):
    """The bytes of `samples`. Rounding would turn soft tones into a buzz, so a little noise goes with them and
    ends with them: what is softer than half a step becomes silence."""
    envelope, release, out = 0.0, math.exp(-1 / (0.012 * rate)), bytearray()
    for value in samples:
        envelope = max(abs(value), envelope * release)
        dither = (chance.random() - chance.random()) * STEP * min(1.0, envelope / (2 * STEP)) ** 2
        out.append(MIDDLE + round((value + dither) / STEP) if envelope > STEP / 2 else MIDDLE)
    out[0] = out[-1] = MIDDLE
    return bytes(out)


def wave_file(data, rate, size):
    """A WAVE file of `size` bytes; what the samples leave free is filled with a chunk that players skip."""
    chunks = b"fmt " + struct.pack("<IHHIIHH", 16, 1, 1, rate, rate, 1, 8)
    chunks += b"data" + struct.pack("<I", len(data)) + data + bytes(len(data) % 2)
    if (free := size - 12 - len(chunks)) >= 8:
        chunks += b"PAD " + struct.pack("<I", free - 8) + bytes(free - 8)
    return b"RIFF" + struct.pack("<I", 4 + len(chunks)) + b"WAVE" + chunks


def make(sound, table):
    """The whole file of one entry of the table."""
    rate = sound["rate"]
    count = round(sound["seconds"] * rate) if "seconds" in sound else sound["bytes"] - HEAD
    samples = levelled(mix(sound, table["voice"], count), rate, table["loudness"][sound["loudness"]])
    if max(map(abs, samples)) > CLEAR:
        raise SystemExit(f"{sound['file']} cannot be that loud: its peaks would be cut off")
    made = wave_file(eight_bits(samples, rate, random.Random(count)), rate, sound["bytes"])
    if len(made) != sound["bytes"]:
        raise SystemExit(f"{sound['file']} cannot have {sound['bytes']} bytes")
    return made


def main():
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1].split("\n")[0])
    parser.add_argument("table", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("files", nargs="*")
    args = parser.parse_args()
    table = tomllib.loads(args.table.read_text())
    for sound in table["sound"]:
        if not args.files or sound["file"] in args.files:
            path = args.folder / sound["file"]
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(make(sound, table))


if __name__ == "__main__":
    main()
