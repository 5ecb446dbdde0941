# SPDX-License-Identifier: MIT
"""What the scripts of figures share: the program's number rules by Python's own means, and the writing of a walk."""
import math


def currency(number):
    """Four decimals, the nearest, ties to the even one (Python's round does just that)."""
    return round(number * 10000) / 10000


def shown(number):
    scaled = round(number * 10000)
    whole_part, fraction = divmod(abs(scaled), 10000)
    return ("-" if scaled < 0 else "") + (
        f"{whole_part}.{fraction:04d}".rstrip("0") if fraction else str(whole_part))


def digits(number):
    return "%.15G" % (number + 0.0)


def whole(number):
    return digits(float(math.trunc(number)))


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


def parallel(one, other):
    return (one * other) / (one + other)


def header(script):
    print(f"# SPDX-License-Identifier: MIT\n# Printed by tests/figures/{script}; change that script, not this file.")


class Paper:
    """One design on paper. `field` holds the texts as the sheet shows them: what is read again is what was shown."""

    def __init__(self, sheet, title, language, stored, entries):
        print(f"\n# {title}\nlanguage {language}\nnew {sheet}")
        self.field = dict(stored)
        self.entries = entries
        self.english = language == "english"

    def value(self, name):
        return float(self.field[name].split(" ")[0])

    def words(self, spanish, english):
        return english if self.english else spanish

    def type(self, name):
        """What the student enters with Enter: a figure of his own, or what stands there."""
        if name in self.entries:
            self.field[name] = digits(float(self.entries[name]))
            print(f"enter {name} {self.entries[name]}")
        else:
            self.field[name] = digits(self.value(name))
            print(f"enter {name}")

    @staticmethod
    def expect(control, text, kind="caption"):
        print(f"expect {control}.{kind} {quoted(text)}")

    def takes(self, name, text):
        """A field that the sheet fills."""
        self.field[name] = text
        self.expect(name, text, "text")
