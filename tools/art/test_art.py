#!/usr/bin/env python3
"""The art makers where an error would not be seen at a glance: colour distances, the order of cells, sizes."""
import collections
import pathlib
import re

import check_colours
import colours
import make_picture
import make_skin
import svg

SKINS = pathlib.Path(__file__).resolve().parents[2] / "assets" / "skins"


def near(one, other, within):
    return all(abs(a - b) < within for a, b in zip(one, other, strict=True))


for one, other, apart in [  # Sharma, Wu and Dalal 2005, table 1
        ((50, 2.6772, -79.7751), (50, 0, -82.7485), 2.0425), ((50, 0, 0), (50, -1, 2), 2.3669),
        ((50, 2.49, -0.001), (50, -2.49, 0.0009), 7.1792), ((50, 2.49, -0.001), (50, -2.49, 0.0011), 7.2195),
        ((50, 2.5, 0), (50, 0, -2.5), 4.3065), ((50, 2.5, 0), (61, -5, 29), 22.8977),
        ((60.2574, -34.0099, 36.2677), (60.4626, -34.1751, 39.4387), 1.2644)]:
    assert near((colours.difference(one, other), colours.difference(other, one)), (apart, apart), 5e-5), (one, other)
for text, lab in [("#ff0000", (53.24, 80.09, 67.20)), ("#0000ff", (32.30, 79.19, -107.86))]:
    assert near(colours.lab(colours.parse(text)), lab, 0.03), text
for view, one, other, confusable in [
        ("deuteranopia", "#b03030", "#6d5a1e", True), ("deuteranopia", "#2040c0", "#f0d040", False),
        ("tritanopia", "#5ac8e8", "#5cd0b8", True), ("grey", "#ff0000", "#6c6c6c", True)]:
    apart = {seen: distance for seen, _, _, distance in check_colours.distances([one, other])}[view]
    assert (apart < check_colours.PLAIN_AT_A_GLANCE) == confusable, (view, one, other)

for skin in SKINS.glob("*.svg"):
    sheet = make_skin.drawing(skin.read_text(), range(39), 3)
    assert svg.size(sheet) == (180, 780), skin
    cells = re.findall(r'<svg x="(\d+)" y="(\d+)" width="60" height="60">(.*?)</svg>', sheet)
    for kind, (x, y, shown) in enumerate(cells):
        assert (int(x), int(y)) == (kind % 3 * 60, kind // 3 * 60), (skin, kind)
        shape, quantity, colour = kind // 12, kind // 3 % 4 + 1, kind % 3
        pieces = [f"tile-{colour}"] + quantity * [f"symbol-{shape}-{colour}"] if kind < 36 else [f"eraser-{colour}"]
        assert re.findall(r'href="#([^"]+)"', shown) == pieces, (skin, kind)
    assert len({shown for _, _, shown in cells}) == 39, skin
    there = collections.Counter(re.findall(r'\bid="([^"]+)"', sheet))  # the renderer is silent about what it misses
    assert set(there.values()) == {1} and set(re.findall(r'(?:href="|url\()#([^")]+)', sheet)) <= set(there), skin

for length, percent, pixels in [(17, 125, 21), (19, 150, 29), (51, 175, 89), (399, 300, 1197)]:
    assert make_picture.percent_pixels(length, percent) == pixels, (length, percent)
