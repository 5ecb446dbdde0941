#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form18, worked out from the course's formulas alone.

Prints a walk, as form8.py does for the simple circuit, whose first fields and pages are the same.
"""
import sys

sys.dont_write_bytecode = True
from form8 import Sheet, digits, heavy_page, shown, whole  # noqa: E402

ACCENTED = " La Zin de entrada es mas pequeña que la del generador, este necesitará suministrar una potencia de :"


class Stable(Sheet):
    name = "Form18"
    chain = ["Text12"] + Sheet.chain
    stored = dict(Sheet.stored, Text10="16.6")

    def load_caption(self):
        return "RLw = \n" + digits(self.value("Text9")) + " K"

    def first_captions(self):
        self.expect("statu18", " (Rlac)=           " + shown(self.RLac) + "  ohm")
        self.field["Text17"] = digits(self.RL)
        self.expect("Text17", self.field["Text17"], "text")
        self.expect("Label22", "ERl = " + digits(self.ERL) + " Volt")
        self.expect("Label23", "Eq =" + shown(self.Eq) + " Volts")
        self.field["Text16"] = shown(self.Eq + self.ERL)
        self.expect("Text16", self.field["Text16"], "text")

    def supply(self):
        if "Text16" in self.entries:
            print("click Command1")
            self.enter("Text16")
            self.Eq = self.value("Text16") - self.ERL
            self.ERL = self.value("Text17") * self.QIc
            self.expect("Label22", "ERl= " + digits(self.ERL) + " Volt")
        else:
            print("click Command2")
            self.Eq = self.value("Text16") - self.ERL
        self.expect("Label23", "Eq= " + shown(self.Eq) + " Volt")
        self.field["Text19"] = shown(self.value("Text10") * self.value("Text17"))
        self.expect("Text19", self.field["Text19"], "text")

    def zin(self, beta, lower, text):
        reflected = self.Rb1 * 1000 / self.Vg
        first = (reflected * beta * self.re) / (reflected + beta * self.re)
        self.Zin = first * (1000 * lower) / (first + 1000 * lower)
        self.expect("Label21", "Zin= " + text(self.Zin) + " ohms")

    def closing(self):
        self.enter("Text19")
        fo = self.value("Text12")
        self.Rb1 = self.value("Text19")
        IRb1 = (self.Eq - self.Vj) / (self.Rb1 * 1000)
        IRb2 = IRb1 - (self.QIc / 1000) / fo
        ohms = round(self.Vj / IRb2 * 10000) / 10000
        self.field["Text18"] = shown(ohms / 1000)
        self.expect("Text18", self.field["Text18"], "text")
        self.gain_in_use()
        self.zin(fo, ohms, shown)
        self.capacitors()
        self.enter("Text18")
        Rb2 = self.value("Text18")
        obtained = (IRb1 - self.Vj / (1000 * Rb2)) * self.Beta
        self.expect("Label26", shown(obtained) + "A")
        band = self.QIc * 10 / 100
        differs = not self.QIc - band <= obtained * 1000 <= self.QIc + band
        print("expect-" + ("shown" if differs else "hidden") + " Label29")
        held = round(Rb2 * 10000) / 10000
        if self.entries.get("bootstrap"):
            self.bootstrap(fo, held)
        self.analysis()
        if self.entries.get("bootstrap"):
            print("click Image8")
            self.zin(self.Beta, held, whole)
            self.capacitors()

    def bootstrap(self, fo, held):
        print("click Image2")
        half = self.Rb1 / 2 * 1000
        first = half * (self.Beta * self.re) / (half + self.Beta * self.re)
        self.Zin = first * held * 1000 / (first + 1000 * held)
        self.expect("Label21", "Zin= " + whole(self.Zin) + " ohms")
        self.expect("stas", shown(1 / (6.28 * fo * 0.1 * (self.Rb1 * 1000 / 2)) * 1000000) + " mF")

    def heavy(self, power):
        entering = shown(self.ein ** 2 / self.Zin * 1000000)
        generator = shown(self.ein ** 2 / (self.Rg * 1000) * 1000000)
        words = dict(self.words)
        if self.language == "spanish":
            words["heavy"] = ACCENTED
        return heavy_page(words, shown(power * 1000000), generator, entering)


if __name__ == "__main__":
    print("# SPDX-License-Identifier: MIT\n# Printed by tests/figures/form18.py; change that script, not this file.")
    Stable("what the sheet proposes, with a supply of 25 V", "spanish",
           {"Text16": "25", "Text19": "110", "Text15": "0.1"}).run()
    Stable("the same in English, a generator of 1 K, bootstrapped", "english",
           {"Text16": "25", "Text19": "110", "Text15": "1", "bootstrap": True}).run()
    Stable("the supply that the sheet proposes, S of 3, fifteen digits of the load", "spanish",
           {"Text12": "60", "Text8": "2", "Text9": "3.14159265358979", "Text13": "2", "Text11": "50", "Text10": "3", "Text2": "250",
            "Text17": "0.78", "Text19": "2.2", "Text18": "2.2", "Text15": "0.47"}).run()
    Stable("germanium, the input that the student gives", "english",
           {"Text12": "100", "Text7": "0.2", "Text8": "1.5", "Text9": "10", "Text14": "0.005", "Text11": "150", "Text10": "5",
            "Text2": "60", "Text17": "3.3", "Text16": "9", "Text19": "16", "Text18": "1", "Text15": "0.22", "bootstrap": True}).run()
    Stable("a tie that goes down and one that goes up, large currents and the smallest load", "spanish",
           {"Text12": "1000", "Text5": "60", "Text6": "3000", "Text8": "800", "Text9": "1", "Text13": "0.2", "Text11": "11",
            "Text10": "200", "Text2": "30", "Text16": "30", "Text19": "1", "Text15": "0.001"}).run()
    Stable("the least current and a small swing lifted by a volt", "english",
           {"Text12": "5000", "Text5": "50", "Text8": "0.01", "Text9": "900", "Text13": "0.9", "Text11": "200", "Text10": "1",
            "Text2": "480", "Text17": "1200", "Text16": "40", "Text19": "1000", "Text15": "47", "bootstrap": True}).run()
