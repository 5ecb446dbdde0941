#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form8, worked out from the course's formulas alone.

Prints a walk: what a student enters, and what must then be shown. The committed tests/walks/form8/figures.walk is this
script's output; the walk player compares every character.
"""
import math


def shown(number):
    """Four decimals, the nearest, ties to the even one (Python's round does just that)."""
    scaled = round(number * 10000)
    ones, fraction = divmod(abs(scaled), 10000)
    return ("-" if scaled < 0 else "") + (f"{ones}.{fraction:04d}".rstrip("0") if fraction else str(ones))


def digits(number):
    return "%.15G" % (number + 0.0)


def whole(number):
    return digits(float(math.trunc(number)))


def quoted(text):
    return '"' + text.replace('"', '\\"').replace("\n", "\\n") + '"'


WORDS = {
    "spanish": {
        "output": "Potencia de salida :", "rms": "eficaz",
        "light": " La Zin de entrada es lo suficientemente elevada y no presentara una carga 'pesada'  al generador",
        "generator": "La potencia que puede desarrollar el generador es:",
        "heavy": " La Zin de entrada es mas pequeña que la del generador, este necesitara suministrar una potencia de :",
    },
    "english": {
        "output": "Output  power :", "rms": "r.m.s.",
        "light": "The entrance Zin is the sufficiently high thing and it didn't present a load ' heavy ' to the generator",
        "generator": "The power that can develop the generator is:",
        "heavy": " The entrance Zin is too small that that of the generator,  he needed to give a power of :",
    },
}


def light_page(words, power):
    return (words["output"] + "\n         Eo(" + words["rms"] + ")^2 / RLw =           " + whole(power * 1000000)
            + " microW\n" + words["light"])


def heavy_page(words, power, generator, entering):
    return (words["output"] + "\n       Eo(" + words["rms"] + ")^2 / RLw =" + power + " microW\n" + words["generator"]
            + "\n             Pg = " + generator + " microW\n" + words["heavy"] + "\n                 Ein^2 / Zin ="
            + entering + " microW")


class Sheet:
    """A design on paper: `field` holds the texts as the sheet shows them, since what is read again is what was shown."""

    name = "Form8"
    chain = ["Text5", "Text6", "Text7", "Text8", "Text9", "Text13", "Text11", "Text14", "Text10"]
    stored = {"Text5": "20", "Text6": "100", "Text7": ".6", "Text8": "1", "Text9": "4", "Text13": "2.5", "Text11": "100",
              "Text14": ".00883", "Text10": "s/uso", "Text2": "100", "Text12": "20"}

    def __init__(self, title, language, entries):
        self.entries = entries
        self.language = language
        self.words = WORDS[language]
        self.field = dict(self.stored)
        print(f"# {title}\nlanguage {language}\nnew {self.name}")

    def value(self, field):
        return float(self.field[field])

    def expect(self, control, text, what="caption"):
        print(f"expect {control}.{what} {quoted(text)}")

    def enter(self, field):
        """Enter in the field, with the student's own value if there is one; the field becomes a bare number."""
        if field in self.entries:
            self.field[field] = self.entries[field]
            print(f"enter {field} {self.entries[field]}")
        else:
            print(f"enter {field}")
        if self.field[field] != "s/uso":
            self.field[field] = digits(self.value(field))

    def parameters(self):
        for field in self.chain:
            if field == "Text14":
                self.ein = (self.value("Text13") / 2 * 0.707) / self.value("Text11")
                self.field["Text14"] = shown(self.ein)
                self.expect("Text14", self.field["Text14"], "text")
            self.enter(field)
            if field == "Text9":
                self.expect("Label24", self.load_caption())
            if field == "Text14":
                output = self.value("Text14") * 1.41 * 2 * self.value("Text11")
                self.field["Text13"] = shown(output)
                self.expect("Text13", self.field["Text13"], "text")

    def load_caption(self):
        return "RLw = " + digits(self.value("Text9")) + " K"

    def first_design(self):
        self.QIc, self.RLw, self.Eopp = self.value("Text8"), self.value("Text9"), self.value("Text13")
        self.re = 25 / self.QIc
        self.RLac = self.value("Text11") * self.re
        self.expect("Label32", "r'e = " + shown(self.re) + " Ohms")
        self.RL = self.RLw * (self.RLac / 1000) / (self.RLw - self.RLac / 1000)
        self.ERL = self.QIc * self.RL
        self.Eq = 0.66 * self.Eopp
        if self.Eq < 1:
            self.Eq = 0.66 * self.Eopp + 1
        assert self.ERL >= self.Eopp * 0.5

    def load_in_use(self):
        self.RL = self.value("Text17")
        self.RLac = self.RL * self.RLw / (self.RL + self.RLw)
        self.expect("statu18", "Rlac= " + whole(self.RLac * 1000) + " ohms")

    def gain_in_use(self):
        self.load_in_use()
        self.field["Text11"] = whole(self.RLac * 1000 / self.re)
        self.expect("Text11", self.field["Text11"], "text")
        self.Vg = self.value("Text11")

    def capacitors(self):
        fo = self.value("Text12")
        self.expect("statu32", "Cin= " + shown(1 / (6.28 * fo * 0.1 * self.Zin) * 1000000) + " mF")
        self.expect("statu33", "Cco= " + shown(1 / (6.28 * fo * 0.1 * self.RLw * 1000) * 1000000) + " mF")

    def analysis(self):
        self.enter("Text15")
        self.Rg = self.value("Text15")
        light = self.Zin / 1000 > self.Rg
        power = (self.Eopp / 2 * 0.707) ** 2 / (self.RLw * 1000)
        page = light_page(self.words, power) if light else self.heavy(power)
        print(f"expect-in Form6 Label1.caption {quoted(page)}")
        print("expect-in Form6 shown " + ("Image2\nexpect-in Form6 hidden Image5" if light else
                                          "Image5\nexpect-in Form6 hidden Image2"))
        print(f"window {self.name}\nexpect-no-box")

    def run(self):
        if self.name == "Form8" and "Text12" in self.entries:
            print("focus Text12")
            self.enter("Text12")
        self.parameters()
        self.first_design()
        self.first_captions()
        self.enter("Text2")
        self.Beta, self.Vj = self.value("Text2"), self.value("Text7")
        self.enter("Text17")
        self.supply()
        self.closing()


class Simple(Sheet):
    def first_captions(self):
        self.expect("statu18", " (Rlac)=           " + shown(self.RLac) + "  ohms")
        self.field["Text17"] = shown(self.RL)
        self.expect("Text17", self.field["Text17"], "text")
        self.expect("Label22", "ERl = " + shown(self.ERL) + " Volts")
        self.expect("Label23", "Eq =" + shown(self.Eq) + " Volt")
        self.field["Text16"] = shown(self.Eq + self.ERL)
        self.expect("Text16", self.field["Text16"], "text")

    def preset(self):
        base = (self.QIc / 1000) / self.Beta
        self.Rb1 = (self.Eq - self.Vj) / base

    def supply(self):
        if "Text16" in self.entries:
            print("click Command1")
            self.enter("Text16")
            self.ERL = self.value("Text16") - self.Eq
            self.expect("Label22", "ERl = " + shown(self.ERL) + " Volts")
            self.field["Text17"] = shown(self.ERL / self.QIc)
            self.expect("Text17", self.field["Text17"], "text")
            self.preset()
            self.field["Text19"] = shown(self.Rb1 / 1000)
            self.load_in_use()
        else:
            print("click Command2")
            self.ERL = self.QIc * self.value("Text17")
            self.Eq = self.value("Text16") - self.ERL
            self.expect("Label22", shown(self.ERL) + " Volt")
            self.expect("Label23", "Eq= " + shown(self.Eq) + " volt")
            self.preset()
            self.field["Text19"] = shown(self.Rb1)
        self.expect("Text19", self.field["Text19"], "text")

    def zin(self):
        self.Zin = (self.Rb1 / self.Vg) * self.Beta * self.re / (self.Rb1 / self.Vg + self.Beta * self.re)
        self.expect("Label21", "Zin= " + whole(self.Zin) + " ohms")

    def closing(self):
        self.enter("Text19")
        self.gain_in_use()
        self.zin()
        self.capacitors()
        self.expect("Text10", whole(self.value("Text19") / self.value("Text17")), "text")
        if self.entries.get("bootstrap"):
            print("click Image8")
            fo = self.value("Text12")
            self.expect("stas", shown(1 / (6.28 * fo * 0.1 * (self.Rb1 / 2)) * 1000000) + " mF")
            self.Zin = ((self.Rb1 / 2 * self.Beta * self.re) / (self.Rb1 / 2)) + self.Beta * self.re
            self.expect("Label21", "Zin= " + whole(self.Zin) + " ohms")
            self.capacitors()
        self.analysis()
        if self.entries.get("bootstrap"):
            print("click Image2")
            self.zin()
            self.capacitors()

    def heavy(self, power):
        swing = (self.Eopp / 2 * 0.707) ** 2
        return heavy_page(self.words, shown(power * 1000000), shown(swing / (self.Rg * 1000) * 100), shown(swing / self.Zin * 100))


if __name__ == "__main__":
    print("# SPDX-License-Identifier: MIT\n# Printed by tests/figures/form8.py; change that script, not this file.")
    Simple("the values that the sheet proposes, a light load", "spanish", {"Text19": "105", "Text15": "0.5"}).run()
    Simple("the same with a generator of 1 K, which it is too heavy for", "english", {"Text19": "100", "Text15": "1"}).run()
    Simple("the same, bootstrapped", "english", {"Text19": "110", "Text15": "1", "bootstrap": True}).run()
    Simple("a supply of 12 V, standard values, fifteen digits of the load", "spanish",
           {"Text12": "40", "Text5": "25", "Text6": "200", "Text8": "2", "Text9": "3.14159265358979", "Text13": "3", "Text11": "80",
            "Text2": "250", "Text17": "1.5", "Text16": "12", "Text19": "180", "Text15": "0.6"}).run()
    Simple("germanium and the input that the student gives", "english",
           {"Text7": "0.2", "Text8": "1.5", "Text9": "10", "Text14": "0.005", "Text11": "150", "Text2": "60", "Text16": "9",
            "Text19": "50", "Text15": "0.22", "bootstrap": True}).run()
    Simple("a tie that goes down and one that goes up, large currents and the smallest load", "spanish",
           {"Text5": "60", "Text6": "3000", "Text8": "800", "Text9": "0.05", "Text13": "0.1", "Text11": "3", "Text2": "30",
            "Text16": "6", "Text19": "0.0175", "Text15": "0.001"}).run()
    Simple("the least current, a small swing lifted by a volt", "english",
           {"Text8": "0.01", "Text9": "900", "Text13": "0.9", "Text11": "200", "Text2": "480", "Text16": "15", "Text19": "45000",
            "Text15": "47", "bootstrap": True}).run()
