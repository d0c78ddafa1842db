#!/usr/bin/env python3
"""Fails when two of a skin's three colours could be taken for one another, in colour, in grey or colour-blind.

usage: check_colours.py SKIN.svg ...
"""
import itertools
import pathlib
import sys

import colours
import make_skin

PLAIN_AT_A_GLANCE = 15

VIEWS = {"full colour": lambda colour: colour, "grey": colours.grey} | {
    defect: lambda colour, defect=defect: colours.without_cone(colour, defect) for defect in colours.MISSING_CONE}


def distances(palette):
    """Yields (view, first colour, second colour, how far apart) for each pair under each view."""
    for view, seen in VIEWS.items():
        for one, other in itertools.combinations(palette, 2):
            yield view, one, other, colours.difference(*(colours.lab(seen(colours.parse(c))) for c in (one, other)))


def main():
    too_close = False
    for skin in map(pathlib.Path, sys.argv[1:]):
        main_colours = [colour["main"] for colour in make_skin.palette(skin.read_text())["colour"]]
        for view, one, other, apart in distances(main_colours):
            verdict = "" if apart >= PLAIN_AT_A_GLANCE else "  too close"
            too_close |= bool(verdict)
            print(f"{skin.stem:8} {view:13} {one} {other} {apart:5.1f}{verdict}")
    sys.exit(too_close)


if __name__ == "__main__":
    main()
