#!/usr/bin/python3
"""Fails when two of a skin's three colours could be mistaken for each other, in colour, in greyscale or colour-blind.

usage: check_colours.py SKIN.svg ...
"""
import itertools
import pathlib
import sys

import numpy
from colorspacious import cspace_convert

import make_skin

PLAIN_AT_A_GLANCE = 20  # in CAM02-UCS, where 1 is about the least one can see
BLIND = {"name": "sRGB1+CVD", "severity": 100}
VIEWS = {"full colour": "sRGB1", "protanopia": BLIND | {"cvd_type": "protanomaly"},
         "deuteranopia": BLIND | {"cvd_type": "deuteranomaly"}, "tritanopia": BLIND | {"cvd_type": "tritanomaly"}}


def views(colour):
    """Yields how an "#rrggbb" looks in each view, and in greyscale its lightness alone."""
    rgb = [int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    for view, space in VIEWS.items():
        yield view, cspace_convert(numpy.clip(cspace_convert(rgb, space, "sRGB1"), 0, 1), "sRGB1", "CAM02-UCS")
    yield "greyscale", cspace_convert(rgb, "sRGB1", "CAM02-UCS") * (1, 0, 0)


def main():
    too_close = False
    for skin in map(pathlib.Path, sys.argv[1:]):
        colours = [colour["main"] for colour in make_skin.palette(skin.read_text())["colour"]]
        for one, other in itertools.combinations(colours, 2):
            for (view, first), (_, second) in zip(views(one), views(other)):
                apart = float(numpy.linalg.norm(first - second))
                verdict = "  too close" if apart < PLAIN_AT_A_GLANCE else ""
                too_close |= bool(verdict)
                print(f"{skin.stem:8} {view:13} {one} {other} {apart:5.1f}{verdict}")
    sys.exit(too_close)


if __name__ == "__main__":
    main()
