#!/usr/bin/env python3
"""The art makers where an error would not be seen at a glance: the order of cells, colours that are confused."""
import collections
import pathlib
import re

import check_colours
import make_skin

CARDS = [[f"tile-{colour}"] + quantity * [f"symbol-{shape}-{colour}"]
         for shape in range(3) for quantity in range(1, 5) for colour in range(3)]
ERASERS = [[f"eraser-{colour}"] for colour in range(3)]

for skin in (pathlib.Path(__file__).resolve().parents[2] / "assets/skins").glob("*.svg"):
    sheet = make_skin.drawing(skin.read_text(), range(39), 3)
    cells = re.findall(r'<svg x="(\d+)" y="(\d+)" width="60" height="60">(.*?)</svg>', sheet)
    assert [re.findall(r'href="#([^"]+)"', shown) for _, _, shown in cells] == CARDS + ERASERS, skin
    assert [(int(x), int(y)) for x, y, _ in cells] == [(i % 3 * 60, i // 3 * 60) for i in range(39)], skin
    there = collections.Counter(re.findall(r'\bid="([^"]+)"', sheet))  # the renderer is silent about what it misses
    assert set(there.values()) == {1} and set(re.findall(r'(?:href="|url\()#([^")]+)', sheet)) <= set(there), skin

for view, one, other, confusable in [
        ("deuteranopia", "#b03030", "#6d5a1e", True), ("deuteranopia", "#2040c0", "#f0d040", False),
        ("tritanopia", "#5ac8e8", "#5cd0b8", True), ("grey", "#ff0000", "#6c6c6c", True)]:
    apart = {seen: distance for seen, _, _, distance in check_colours.distances([one, other])}[view]
    assert (apart < check_colours.PLAIN_AT_A_GLANCE) == confusable, (view, one, other)
