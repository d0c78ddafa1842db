#!/usr/bin/env python3
"""Renders one drawing at all the sizes the program needs.

usage: make_picture.py SOURCE STEM --percents 100 150 ... [--set name=value ...]   writes STEM@100.png ...
       make_picture.py SOURCE STEM --pixels 16 32 ...     [--set name=value ...]   writes STEM-16.png ...
       make_picture.py SOURCE STEM --filled               [--set name=value ...]   writes STEM.svg

In SOURCE, $house stands for the metals, stones and line styles shared by all pictures (house.svg); every
other placeholder is given with --set.
"""
import argparse
import pathlib

import svg

HOUSE = pathlib.Path(__file__).resolve().parents[2] / "assets" / "house.svg"


def percent_pixels(length, percent):
    """Device pixels of a logical length; half a pixel counts as a whole one."""
    return int(length * percent / 100 + 0.5)


def outputs(stem, drawing, percents, pixels):
    """Yields (file, width, height) of every picture to write."""
    width, height = svg.size(drawing)
    for percent in percents:
        yield f"{stem}@{percent}.png", percent_pixels(width, percent), percent_pixels(height, percent)
    for side in pixels:
        yield f"{stem}-{side}.png", side, side


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", type=pathlib.Path)
    parser.add_argument("stem")
    parser.add_argument("--percents", type=int, nargs="*", default=[])
    parser.add_argument("--pixels", type=int, nargs="*", default=[])
    parser.add_argument("--filled", action="store_true")
    parser.add_argument("--set", nargs="*", default=[])
    given = parser.parse_args()
    values = {"house": HOUSE.read_text()} | dict(pair.split("=", 1) for pair in given.set)
    drawing = svg.fill(given.source.read_text(), values)
    for target, width, height in outputs(given.stem, drawing, given.percents, given.pixels):
        svg.rasterise(drawing, target, width, height)
    if given.filled:
        pathlib.Path(f"{given.stem}.svg").write_text(drawing)


if __name__ == "__main__":
    main()
