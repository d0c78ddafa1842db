"""How loud a short sound is to the ear."""
import math

WINDOW = 0.1  # seconds; within about this time the ear adds up what it hears


def biquad(samples, b, a):
    """`samples` through the filter (b0 + b1/z + b2/z^2) / (1 + a1/z + a2/z^2)."""
    x1 = x2 = y1 = y2 = 0.0
    out = []
    for x in samples:
        y = b[0] * x + b[1] * x1 + b[2] * x2 - a[0] * y1 - a[1] * y2
        x1, x2, y1, y2 = x, x1, y, y1
        out.append(y)
    return out


def weighted(samples, rate):
    """`samples` as the ear weighs their frequencies (ITU-R BS.1770): less below 100 Hz, more above 2 kHz."""
    k, q = math.tan(math.pi * 1681.974450955533 / rate), 0.7071752369554196
    high, band = 10 ** (3.999843853973347 / 20), 10 ** (3.999843853973347 / 20 * 0.4996667741545416)
    norm = 1 + k / q + k * k
    shelf = [(high + band * k / q + k * k) / norm, 2 * (k * k - high) / norm, (high - band * k / q + k * k) / norm]
    samples = biquad(samples, shelf, [2 * (k * k - 1) / norm, (1 - k / q + k * k) / norm])
    k, q = math.tan(math.pi * 38.13547087602444 / rate), 0.5003270373238773
    norm = 1 + k / q + k * k
    return biquad(samples, [1, -2, 1], [2 * (k * k - 1) / norm, (1 - k / q + k * k) / norm])


def loudness(samples, rate):
    """Decibels of the loudest tenth of a second; a full-scale sine of 1 kHz and longer has about -3."""
    power = [0.0]
    for value in weighted(samples, rate):
        power.append(power[-1] + value * value)
    width = round(WINDOW * rate)
    loudest = max(power[min(end + width, len(power) - 1)] - power[end] for end in range(0, len(power), 16))
    return 10 * math.log10(max(loudest / width, 1e-12))
