"""Colours as eyes meet them: how far apart two of them look, and what is left of one without a kind of cone.

A colour is a triple of sRGB components, 0..1.
"""
from math import atan2, cos, degrees, exp, hypot, radians, sin, sqrt

# Machado, Oliveira and Fernandes 2009, severity 1.0; they act on linear light.
MISSING_CONE = {
    "protanopia":   ((0.152286, 1.052583, -0.204868), (0.114503, 0.786281, 0.099216), (-0.003882, -0.048116, 1.051998)),
    "deuteranopia": ((0.367322, 0.860646, -0.227968), (0.280085, 0.672501, 0.047413), (-0.011820, 0.042940, 0.968881)),
    "tritanopia":   ((1.255528, -0.076749, -0.178779), (-0.078411, 0.930809, 0.147602), (0.004733, 0.691367, 0.303900)),
}
LUMINANCE = (0.2126729, 0.7151522, 0.0721750)
TO_XYZ = ((0.4124564, 0.3575761, 0.1804375), LUMINANCE, (0.0193339, 0.1191920, 0.9503041))
WHITE = (0.95047, 1.0, 1.08883)  # daylight, D65


def parse(text):
    """The colour written as "#rrggbb"."""
    return tuple(int(text[i:i + 2], 16) / 255 for i in (1, 3, 5))


def linear(colour):
    return tuple(v / 12.92 if v <= 0.04045 else ((v + 0.055) / 1.055) ** 2.4 for v in colour)


def gamma(light):
    inside = (min(max(v, 0.0), 1.0) for v in light)
    return tuple(12.92 * v if v <= 0.0031308 else 1.055 * v ** (1 / 2.4) - 0.055 for v in inside)


def times(matrix, vector):
    return tuple(sum(m * v for m, v in zip(row, vector)) for row in matrix)


def without_cone(colour, defect):
    """`colour` as an eye with `defect`, a key of MISSING_CONE, meets it."""
    return gamma(times(MISSING_CONE[defect], linear(colour)))


def grey(colour):
    """The grey of the same luminance."""
    return gamma((sum(m * v for m, v in zip(LUMINANCE, linear(colour))),) * 3)


def lab(colour):
    """CIE L*, a*, b* under daylight."""
    def lightness(t):
        return t ** (1 / 3) if t > 216 / 24389 else (24389 / 27 * t + 16) / 116
    x, y, z = (lightness(v / w) for v, w in zip(times(TO_XYZ, linear(colour)), WHITE))
    return 116 * y - 16, 500 * (x - y), 200 * (y - z)


def hue(a, b):
    return degrees(atan2(b, a)) % 360


def mean_hue(h1, h2, c1, c2):
    if c1 * c2 == 0:
        return h1 + h2  # one has no hue: the other's counts
    return (h1 + h2) / 2 if abs(h1 - h2) <= 180 else (h1 + h2 + (360 if h1 + h2 < 360 else -360)) / 2


def hue_step(h1, h2, c1, c2):
    return 0 if c1 * c2 == 0 else (h2 - h1 + 180) % 360 - 180


def difference(lab1, lab2):
    """CIEDE2000 between two L*a*b* colours; about 1 is the least one can see, 15 is plain at a glance."""
    (l1, a1, b1), (l2, a2, b2) = lab1, lab2
    c = ((hypot(a1, b1) + hypot(a2, b2)) / 2) ** 7
    g = 1.5 - sqrt(c / (c + 25 ** 7)) / 2
    c1, c2 = hypot(g * a1, b1), hypot(g * a2, b2)
    h1, h2 = hue(g * a1, b1), hue(g * a2, b2)
    lm, cm, hm = (l1 + l2) / 2, (c1 + c2) / 2, mean_hue(h1, h2, c1, c2)
    t = (1 - 0.17 * cos(radians(hm - 30)) + 0.24 * cos(radians(2 * hm))
         + 0.32 * cos(radians(3 * hm + 6)) - 0.20 * cos(radians(4 * hm - 63)))
    dl = (l2 - l1) / (1 + 0.015 * (lm - 50) ** 2 / sqrt(20 + (lm - 50) ** 2))
    dc = (c2 - c1) / (1 + 0.045 * cm)
    dh = 2 * sqrt(c1 * c2) * sin(radians(hue_step(h1, h2, c1, c2) / 2)) / (1 + 0.015 * cm * t)
    turn = -2 * sqrt(cm ** 7 / (cm ** 7 + 25 ** 7)) * sin(radians(60 * exp(-((hm - 275) / 25) ** 2)))
    return sqrt(dl ** 2 + dc ** 2 + dh ** 2 + turn * dc * dh)
