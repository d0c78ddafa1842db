#!/usr/bin/env python3
"""The art makers where an error would not be seen at a glance: colour distances, the order of cells, sizes."""
import itertools
import math
import pathlib
import re
import unittest

import check_colours
import colours
import make_picture
import make_skin
import svg

SKINS = pathlib.Path(__file__).resolve().parents[2] / "assets" / "skins"
SKIN = "".join(['<svg><metadata>', '[[colour]]\nmain="#f00"\n' * 3, '</metadata><path fill="$main" id="p-$c"/></svg>'])


class Colours(unittest.TestCase):
    def test_difference_agrees_with_the_published_pairs(self):
        pairs = [  # Sharma, Wu and Dalal 2005, table 1
            ("blue turn",         (50, 2.6772, -79.7751), (50, 0, -82.7485), 2.0425),
            ("one without hue",   (50, 0, 0), (50, -1, 2), 2.3669),
            ("hues just within",  (50, 2.49, -0.001), (50, -2.49, 0.0009), 7.1792),
            ("hues just beyond",  (50, 2.49, -0.001), (50, -2.49, 0.0011), 7.2195),
            ("mean hue past 360", (50, 2.5, 0), (50, 0, -2.5), 4.3065),
            ("far apart",         (50, 2.5, 0), (61, -5, 29), 22.8977),
            ("nearly the same",   (60.2574, -34.0099, 36.2677), (60.4626, -34.1751, 39.4387), 1.2644),
        ]
        for what, one, other, apart in pairs:
            with self.subTest(what):
                self.assertAlmostEqual(colours.difference(one, other), apart, places=4)
                self.assertAlmostEqual(colours.difference(other, one), apart, places=4)

    def test_lab_of_known_colours(self):
        known = [("#ffffff", (100, 0, 0)), ("#ff0000", (53.24, 80.09, 67.20)), ("#0000ff", (32.30, 79.19, -107.86))]
        for text, expected in known:
            with self.subTest(text):
                for value, wanted in zip(colours.lab(colours.parse(text)), expected):
                    self.assertAlmostEqual(value, wanted, delta=0.03)

    def test_confusable_pairs_are_found(self):
        cases = [
            ("red and its green", "deuteranopia", "#b03030", "#6d5a1e", True),
            ("blue and yellow",   "deuteranopia", "#2040c0", "#f0d040", False),
            ("sky and mint",      "tritanopia",   "#5ac8e8", "#5cd0b8", True),
            ("equal luminance",   "grey",         "#ff0000", "#6c6c6c", True),
        ]
        for what, view, one, other, confusable in cases:
            with self.subTest(what):
                apart = {v: d for v, _, _, d in check_colours.distances([one, other])}
                self.assertEqual(apart[view] < check_colours.PLAIN_AT_A_GLANCE, confusable)


class Skins(unittest.TestCase):
    def test_cell_shows_its_kind(self):
        cases = [  # cell: shape, colour, quantity
            (0, 0, 0, 1), (2, 0, 2, 1), (3, 0, 0, 2), (11, 0, 2, 4), (12, 1, 0, 1), (22, 1, 1, 4), (35, 2, 2, 4)]
        for cell, shape, colour, quantity in cases:
            with self.subTest(cell=cell):
                pieces = re.findall(r'href="#([^"]+)"', make_skin.card(cell))
                self.assertEqual(pieces, [f"tile-{colour}"] + [f"symbol-{shape}-{colour}"] * quantity)

    def test_last_row_is_erasers(self):
        self.assertEqual([make_skin.card(k) for k in (36, 38)], ['<use href="#eraser-0"/>', '<use href="#eraser-2"/>'])

    def test_cells_run_row_by_row_and_do_not_overlap(self):
        sheet = make_skin.drawing(SKIN, range(39), 3)
        corners = [tuple(map(int, c)) for c in re.findall(r'<svg x="(\d+)" y="(\d+)"', sheet)]
        self.assertEqual((corners[0], corners[4], corners[38]), ((0, 0), (60, 60), (120, 720)))
        self.assertEqual(svg.size(sheet), (180, 780))

    def test_what_a_drawing_refers_to_is_there_once(self):  # the renderer is silent about what it cannot find
        for skin in SKINS.glob("*.svg"):
            with self.subTest(skin.stem):
                sheet = make_skin.drawing(skin.read_text(), range(39), 3)
                there = re.findall(r'\bid="([^"]+)"', sheet)
                self.assertEqual(len(there), len(set(there)))
                self.assertEqual(set(re.findall(r'(?:href="|url\()#([^")]+)', sheet)) - set(there), set())

    def test_symbols_of_a_card_do_not_touch(self):
        for places in make_skin.PLACES.values():
            for (x1, y1, scale), (x2, y2, _) in itertools.combinations(places, 2):
                self.assertGreater(math.dist((x1, y1), (x2, y2)), 40 * scale)  # symbols reach 20 either way


class Pictures(unittest.TestCase):
    def test_pixels_at_a_percentage(self):
        for length, percent, pixels in [(17, 100, 17), (17, 125, 21), (19, 150, 29), (51, 175, 89), (399, 300, 1197)]:
            self.assertEqual(make_picture.percent_pixels(length, percent), pixels)

    def test_a_forgotten_placeholder_is_an_error(self):
        with self.assertRaises(KeyError):
            svg.fill("<rect class='$state'/>", {"house": ""})


if __name__ == "__main__":
    unittest.main()
