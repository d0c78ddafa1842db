#!/usr/bin/env python3
"""Composes a skin's pieces into its picture set, 3 columns by 13 rows of cells.

usage: make_skin.py SKIN.svg OUT.png                       the whole set, 180 pixels a cell
       make_skin.py SKIN.svg OUT.svg --cell K --size W H SIDE   cell K alone, SIDE wide in a picture of W x H

A skin's drawing holds its palette as TOML in <metadata>: three [[colour]] tables. The drawing is written
into the sheet once per colour, with that table's $placeholders filled and $c numbering the colour, so the
pieces it must define are "tile-$c", "symbol-0-$c", "symbol-1-$c", "symbol-2-$c" and "eraser-$c".
Tiles and erasers span 0 0 60 60; symbols are drawn about the origin within 20 units either way.
"""
import argparse
import pathlib
import re
import subprocess
import tomllib

import svg

CELL = 60
COLUMNS, ROWS = 3, 13
SCALE = 3  # sheet pixels per logical pixel: sharp on the densest display
FIRST_ERASER = 36

# Where the symbols of a card stand, by their quantity: centre x, centre y, scale. Laid out like dice.
PLACES = {
    1: [(30, 30, 0.96)],
    2: [(19.5, 19.5, 0.58), (40.5, 40.5, 0.58)],
    3: [(30, 19, 0.52), (18.7, 40.5, 0.52), (41.3, 40.5, 0.52)],
    4: [(18.7, 18.7, 0.5), (41.3, 18.7, 0.5), (18.7, 41.3, 0.5), (41.3, 41.3, 0.5)],
}


def palette(source):
    """The parsed <metadata> of a skin's text `source`."""
    return tomllib.loads(re.search(r"<metadata>(.*?)</metadata>", source, re.S).group(1))


def pieces(source):
    """The skin's drawing three times, once in each colour."""
    drawing = re.sub(r"<metadata>.*?</metadata>|<\?xml.*?\?>", "", source, flags=re.S)
    return "".join(svg.fill(drawing, colour | {"c": c}) for c, colour in enumerate(palette(source)["colour"]))


def card(kind):
    """What cell `kind` shows, 0..38: its tile with 1 to 4 symbols, or an eraser."""
    colour = kind % 3
    if kind >= FIRST_ERASER:
        return f'<use href="#eraser-{colour}"/>'
    shape, quantity = kind // 12, kind // 3 % 4 + 1
    symbols = (f'<use href="#symbol-{shape}-{colour}" transform="translate({x} {y}) scale({scale})"/>'
               for x, y, scale in PLACES[quantity])
    return f'<use href="#tile-{colour}"/>' + "".join(symbols)


def drawing(source, cells, columns, size=None):
    """An SVG of the given cells in rows of `columns`, each clipped to its own square. A `size` of (width, height,
    side) makes the picture that large, with its cells drawn `side` wide in the middle of its upper edge."""
    placed = (f'<svg x="{i % columns * CELL}" y="{i // columns * CELL}" width="{CELL}" height="{CELL}">{card(k)}</svg>'
              for i, k in enumerate(cells))
    width, height = columns * CELL, -(-len(cells) // columns) * CELL
    shown_width, shown_height, side = size or (width, height, CELL)
    unit = CELL / side
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{shown_width}" height="{shown_height}" viewBox="'
            f'{(width - shown_width * unit) / 2} 0 {shown_width * unit} {shown_height * unit}">' + pieces(source) + "".join(placed) + "</svg>")


def refuse_broken(sheet):
    """Exits if a piece that is used is missing or defined twice, which the renderer would not report."""
    ids, used = re.findall(r'\bid="([^"]+)"', sheet), set(re.findall(r'(?:href="|url\()#([^")]+)', sheet))
    if wrong := used - set(ids) | {piece for piece in ids if ids.count(piece) > 1}:
        raise SystemExit(f"missing or defined twice: {', '.join(sorted(wrong))}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("skin", type=pathlib.Path)
    parser.add_argument("out", type=pathlib.Path)
    parser.add_argument("--cell", type=int)
    parser.add_argument("--size", type=int, nargs=3)
    given = parser.parse_args()
    source = given.skin.read_text()
    if given.cell is not None:
        given.out.write_text(drawing(source, [given.cell], 1, given.size))
    else:
        sheet = drawing(source, range(COLUMNS * ROWS), COLUMNS)
        refuse_broken(sheet)
        svg.rasterise(sheet, given.out, COLUMNS * CELL * SCALE, ROWS * CELL * SCALE)
        # The renderer does not look for repetitions: this takes a fifth off the file, and half off the time to read it.
        subprocess.run(["optipng", "-quiet", "-f0", "-zc9", "-zm9", "-zs0", "-strip", "all", given.out], check=True)


if __name__ == "__main__":
    main()
