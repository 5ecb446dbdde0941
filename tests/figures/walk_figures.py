# SPDX-License-Identifier: MIT
"""The number texts of the sheets, by Python's own means, for the scripts that print a walk of figures."""
import math


def currency(number):
    """Four decimals, the nearest, ties to the even one (Python's round does just that)."""
    return round(number * 10000) / 10000


def shown(number):
    scaled = round(number * 10000)
    whole_part, fraction = divmod(abs(scaled), 10000)
    return ("-" if scaled < 0 else "") + (f"{whole_part}.{fraction:04d}".rstrip("0") if fraction else str(whole_part))


def digits(number):
    return "%.15G" % (number + 0.0)


def whole(number):
    return digits(float(math.trunc(number)))


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'
