"""What every art maker needs: a drawing with its $placeholders filled, and the same drawing as a PNG."""
import pathlib
import re
import string
import subprocess


def fill(drawing, values):
    """`drawing` with every $name replaced by values["name"]; a name without a value raises KeyError."""
    return string.Template(drawing).substitute(values)


def size(drawing):
    """Width and height of the SVG text `drawing` in logical pixels, as its root element states them."""
    root = re.search(r"<svg\b[^>]*>", drawing).group()
    return tuple(float(re.search(rf'\b{side}="([\d.]+)"', root).group(1)) for side in ("width", "height"))


def rasterise(drawing, target, width, height):
    """Writes `drawing` to the file `target` as a PNG of exactly width x height pixels."""
    pathlib.Path(target).parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["rsvg-convert", "-w", str(width), "-h", str(height), "-o", str(target)],
                   input=drawing.encode(), check=True)
