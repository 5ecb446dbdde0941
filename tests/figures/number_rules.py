#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Works out the figures that the tests of the number rules and of the code page compare with, in another language and by
other means: Python's own float formatting and reading, its integers, regular expressions and its cp1252 codec.

    tests/figures/number_rules.py > tests/rules/number_figures.h
"""
import codecs
import random
import re
import sys

DICE = random.Random(1977)


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n").replace("\t", "\\t") + '"'


def random_double():
    while True:
        value = DICE.choice((-1, 1)) * DICE.random() * 10.0 ** DICE.randint(-8, 20)
        if DICE.random() < 0.2:
            value = DICE.choice((-1, 1)) * DICE.randint(1, 10**16) / 10.0 ** DICE.randint(0, 16)
        if value != 0.0:
            return value


# Four decimals: the product as a double, then Python's round, which sends ties to the even integer.


def currency(value):
    return round(value * 10000.0)


def currency_text(scaled):
    whole, decimals = divmod(abs(scaled), 10000)
    text = ("-" if scaled < 0 else "") + "%d.%04d" % (whole, decimals)
    return text.rstrip("0").rstrip(".")


def currency_inputs():
    ties = [(2 * k + 1) / 20000.0 for k in range(0, 40)]
    sixteenths = [k / 32.0 for k in range(1, 32, 2)]
    beside = [value * (1 + sign * 2.0**-52) for value in ties[:10] + sixteenths[:6] for sign in (-1, 1)]
    large = [float(2**k) / 16 for k in range(30, 53, 4)] + [922337203685477.0, -922337203685477.0, 1e14 + 0.03125]
    drawn = [random_double() for _ in range(120)]
    drawn = [value for value in drawn if abs(value) < 9e14]
    return [0.0] + ties + [-value for value in ties[:8]] + sixteenths + beside + large + drawn


def print_currency():
    print("struct CurrencyFigure {\n    double number;\n    std::int64_t scaled;\n    const char* text;\n};\n")
    print("inline constexpr CurrencyFigure currencyFigures[] = {")
    for value in currency_inputs():
        scaled = currency(value)
        print("    {%s, %d, %s}," % (value.hex(), scaled, quoted(currency_text(scaled))))
    print("};\n")


# Number text: Python formats with its own correctly rounding digits.


def number_text_inputs():
    chosen = [0.1, 0.5, 1 / 3, 2 / 3, 20.0, 100.0, 1e14, 1e15, 1.5e15, 999999999999999.0, 999999999999999.9]
    chosen += [123456789012345.6, 1e-4, 1.5e-4, 9.99999999999999e-05, 9.9999999999999995e-05, 1e-5, 1.5e-5, 1e100, 1e-100]
    chosen += [5e-324, 1.7976931348623157e308, 2.2250738585072014e-308, 0.1 + 0.2, 1.005, 12.5, 3.14159265358979323]
    return chosen + [-value for value in chosen[:8]] + [random_double() for _ in range(160)]


def print_number_text():
    print("struct TextFigure {\n    double number;\n    const char* text;\n};\n")
    print("inline constexpr TextFigure textFigures[] = {")
    for value in number_text_inputs():
        print("    {%s, %s}," % (value.hex(), quoted("%.15G" % value)))
    print("};\n")


# The leading number: one regular expression over the text without its blanks.

DECIMAL = re.compile(r"([+-]?)(\d+\.?\d*|\.\d+)(?:[EeDd]([+-]?\d+))?")
PREFIXED = re.compile(r"([+-]?)&(?:[Hh]([0-9A-Fa-f]+)|[Oo]([0-7]+))")
LARGEST = sys.float_info.max


def leading(text):
    text = re.sub(r"[ \t\n]", "", text)
    prefixed = PREFIXED.match(text)
    if prefixed:
        sign, hexadecimal, octal = prefixed.groups()
        value = float(int(hexadecimal, 16) if hexadecimal else int(octal, 8))
    else:
        decimal = DECIMAL.match(text)
        if not decimal:
            return 0.0
        sign, mantissa, exponent = decimal.groups()
        value = min(float(mantissa + ("e" + exponent if exponent else "")), LARGEST)
    return -value if sign == "-" and value else value


def random_text():
    shapes = ("0123456789", "0123456789.", " \t\n", "+-", "EeDd", "&", "HhOo", ",", " V", " mA", " K", "abcdef")
    weights = (30, 12, 6, 5, 8, 2, 2, 2, 2, 2, 2, 2)
    return "".join(DICE.choice(shape) for shape in DICE.choices(shapes, weights, k=DICE.randint(0, 12)))


def prefixed_text():
    return DICE.choice(("", "-", " + ")) + DICE.choice(("&H", "&h", "& H", "&O", "&o", "&")) + random_text()


def print_leading():
    print("struct LeadingFigure {\n    const char* text;\n    double number;\n};\n")
    print("inline constexpr LeadingFigure leadingFigures[] = {")
    for text in [random_text() for _ in range(300)] + [prefixed_text() for _ in range(60)]:
        print("    {%s, %s}," % (quoted(text), leading(text).hex()))
    print("};\n")


def code_page_character(code):
    try:
        return ord(codecs.decode(bytes([code]), "cp1252"))
    except UnicodeDecodeError:
        return code


def print_code_page():
    print("inline constexpr char32_t windows1252Figures[256] = {")
    for row in range(0, 256, 8):
        print("   ", " ".join("0x%04X," % code_page_character(code) for code in range(row, row + 8)))
    print("};\n")


def main():
    print("// SPDX-License-Identifier: MIT")
    print("// Written by tests/figures/number_rules.py; not to be changed by hand.")
    print("#pragma once\n\n#include <cstdint>\n\nnamespace velmor::number_figures {\n\n// clang-format off")
    print_currency()
    print_number_text()
    print_leading()
    print_code_page()
    print("// clang-format on\n\n} // namespace velmor::number_figures")


if __name__ == "__main__":
    main()
