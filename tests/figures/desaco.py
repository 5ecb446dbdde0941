#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of desaco, worked out from the course's formulas alone.

Prints a walk: what a student enters, and what must then be shown. The committed tests/walks/desaco/figures.walk is this
script's output; the walk player compares every character. parcdesac.py goes on from here.
"""
import math


def currency(number):
    """Four decimals, the nearest, ties to the even one (Python's round does just that)."""
    return round(number * 10000) / 10000


def shown(number):
    scaled = round(number * 10000)
    whole_part, fraction = divmod(abs(scaled), 10000)
    sign = "-" if scaled < 0 else ""
    return sign + (f"{whole_part}.{fraction:04d}".rstrip("0") if fraction else str(whole_part))


def digits(number):
    return "%.15G" % (number + 0.0)


def whole(number):
    return digits(float(math.trunc(number)))


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


class Design:
    """One design on paper. `text` holds the fields as the sheet shows them: what is read again is what was shown."""

    sheet = "desaco"
    stored = {"Text1": "10", "Text3": "75", "Text4": "2.5", "Text8": "1", "Text9": "10", "Text10": "10", "Text11": "55",
              "Text12": "20", "Text13": "1", "Text2": "80", "Text6": "100", "Text7": "0.6"}
    preset_advice = {"english": "  Put normalized value...", "spanish": "  Coloque valor comercial..."}

    def __init__(self, title, language, entries):
        print(f"\n# {title}\nlanguage {language}\nnew {self.sheet}")
        self.language = language
        self.entries = entries
        self.text = dict(self.stored)

    def value(self, field):
        return float(self.text[field])

    def enter(self, field, proposal=None):
        """The student's own figure, or what stands in the field."""
        given = self.entries.get(field)
        if given is None:
            print(f"enter {field}")
            given = self.text[field] if proposal is None else proposal
        else:
            print(f"enter {field} {given}")
        self.text[field] = digits(float(given))
        return float(given)

    def expect(self, control, text, kind="caption"):
        print(f"expect {control}.{kind} {quoted(text)}")

    def field(self, control, text):
        self.text[control] = text
        self.expect(control, text, "text")

    def run(self):
        self.stability()
        self.resistor()
        self.load()
        self.supply()
        self.transistor()
        self.divider()
        self.presets()

    def stability(self):
        allowed = self.enter("Text1")
        temperature = self.enter("Text3")
        drift = self.enter("Text4")
        self.ERes = ((temperature - 20) * (drift / 1000) * 100) / allowed
        self.expect("Voltaje", shown(self.ERes))

    def resistor(self):
        current = self.enter("Text8")
        ideal = self.ERes / (current / 1000)
        self.expect("res", shown(ideal) + " ohms")
        self.expect("statu17", " R'e =" + shown(25 / current) + "     ohms")
        self.field("Text15", digits(ideal))
        Res = self.enter("Text15")
        self.field("Text8", digits((self.ERes / Res) * 1000))
        self.expect("VRes", digits(self.ERes) + "  Volt")

    def first_load(self, Vg):
        return Vg * 25 / self.value("Text8")

    def real_gain(self, load):
        return load / ((25 / self.value("Text8")) / 1000)

    def load(self):
        RLw = self.enter("Text9")
        self.expect("statu35", "RLw " + self.text["Text9"] + " K")
        self.enter("Text10")
        RLac = self.first_load(self.enter("Text11"))
        self.expect("statu18", " (Rlac)=           " + digits(RLac) + "  ohms")
        ohms = RLw * 1000
        self.RLCalc = (ohms * RLac) / (ohms - RLac)
        self.expect("statu19", "    " + whole(self.RLCalc / 1000) + " K  ")
        self.field("Text17", digits(self.RLCalc / 1000))
        RL = self.enter("Text17")
        self.ERL = self.value("Text8") * RL
        self.expect("ER", shown(self.ERL) + "     Volts")
        load = (RLw * RL) / (RLw + RL)
        self.expect("statu18", "Rlac = " + shown(load) + " K")
        self.gain = self.real_gain(load)
        self.field("Text11", shown(self.gain))

    def eq(self, Es):
        QIc = self.value("Text8")
        return Es - ((QIc / 1000) * self.value("Text15") + self.value("Text17") * QIc)

    def stabilising(self):
        """The resistor that sets Rb2."""
        return self.value("Text15")

    def supply(self):
        self.enter("Text12")
        self.left_fo()
        output = self.enter("Text13")
        self.field("Text14", shown((output / 2 * 0.707) / self.value("Text11")))
        self.field("Text16", digits(self.ERes + self.ERL + output + 1))
        Eq = self.eq(self.enter("Text16"))
        assert 3 <= Eq <= 25, Eq
        self.expect("statu25", " Eq=  " + shown(Eq) + " Volts")
        Rb2 = currency(self.stabilising() * self.value("Text10"))
        self.expect("statu22", " Rb2= " + shown(Rb2 / 1000) + " K         comercial...")

    def left_fo(self):
        pass

    def transistor(self):
        self.enter("Text2")
        self.enter("Text6")
        self.enter("Text7")

    def divider(self):
        Rb2 = self.enter("Text18")
        QIc, Res, RL, fo, Vj = (self.value(f) for f in ("Text8", "Text15", "Text17", "Text12", "Text7"))
        beta = self.value("Text2")
        BRes = beta * Res
        Rin = (Rb2 * BRes) / (Rb2 + BRes)
        self.expect("statu23", "B x Res=" + shown(BRes / 1000) + " K\nRin=" + whole(Rin) + " K")
        ERb1 = self.value("Text16") - (QIc / 1000 * RL + QIc * Res / 1000) + QIc * (RL / 1000) - Vj
        self.expect("statu30", digits(ERb1) + " Volts")
        Rb1 = ERb1 * Rin / (Res * QIc / 1000 + Vj)
        self.expect("statu24", " Preset  Rb1= " + shown(Rb1) + " K" + self.preset_advice[self.language])
        junction = beta * 25 / QIc
        Zin = junction * Rb1 * 1000 / (junction + Rb1 * 1000)
        self.expect("statu31", " Zin= " + whole(Zin) + "  ohms")
        self.expect("statu32", shown(1 / (fo * 6.28 * 0.1 * Zin) * 1000000) + " mf")
        self.expect("statu33", shown(1 / (fo * 6.28 * 0.1 * (self.value("Text9") * 1000)) * 1000000) + " mf")
        self.field("Text20", shown(1 / (fo * 6.28 * 25 / QIc) * 1000000) + " mf")
        self.field("Text10", whole(1000 * currency(Rb2) / Res))

    def bypass(self):
        capacitor = (1 / ((0.025 / (self.value("Text8") / 1000)) * (self.value("Text12") * 6.28))) * 1000000
        self.expect("Text20", whole(capacitor) + " microF", "text")

    def check(self):
        """The voltage of the emitter and the junction as the last test takes them."""
        return self.value("Text15") * self.value("Text8") / 1000, 0.6

    def obtained(self, Rb1):
        ERes, Vj = self.check()
        QIc, RL = self.value("Text8"), self.value("Text17")
        Eq = self.value("Text16") - (RL * QIc + ERes)
        upper = ((Eq + RL * QIc) - Vj) / (Rb1 * 1000)
        lower = (ERes + Vj) / (self.value("Text18") * 1000)
        return (upper - lower) * self.value("Text2") * 1000

    def fitting(self):
        """The Rb1 that gives the designed current, as near as two decimals come."""
        ERes, Vj = self.check()
        QIc, RL = self.value("Text8"), self.value("Text17")
        Eq = self.value("Text16") - (RL * QIc + ERes)
        lower = (ERes + Vj) / (self.value("Text18") * 1000)
        upper = QIc / (self.value("Text2") * 1000) + lower
        return "%.2f" % (((Eq + RL * QIc) - Vj) / (upper * 1000))

    def presets(self):
        """One preset too large, then the one that fits."""
        fitting = self.fitting()
        for preset in (digits(float(fitting) * 1.5), fitting):
            self.entries["Text19"] = preset
            self.turn(self.enter("Text19"))

    def turn(self, Rb1):
        obtained = self.obtained(Rb1)
        band = self.value("Text8") * 10 / 100
        fits = self.value("Text8") - band <= obtained <= self.value("Text8") + band
        print("expect-no-box" if fits else "expect-box *")
        self.expect("Label24", shown(obtained) + " mA")
        self.bypass()
        print("expect-focus " + ("Text18" if fits else "Text19"))


def main():
    print("# SPDX-License-Identifier: MIT\n# Printed by tests/figures/desaco.py; change that script, not this file.")
    Design("the stored values, with a supply of 12 V", "spanish", {"Text16": "12", "Text18": "13.75"}).run()
    Design("a standard resistor moves the current; 15 digits", "english",
           {"Text1": "7", "Text3": "70", "Text4": "2.2", "Text8": "1.3", "Text15": "1200", "Text11": "60", "Text9": "4.7",
            "Text16": "13.7", "Text2": "110", "Text18": "11.1"}).run()
    Design("the lowest ends of the ranges", "english",
           {"Text1": "1", "Text3": "25", "Text4": "2", "Text8": "0.4", "Text15": "2500", "Text9": "1", "Text10": "1",
            "Text11": "10", "Text12": "1", "Text13": "0.00001", "Text16": "6", "Text2": "20", "Text6": "10", "Text7": "0.2",
            "Text18": "2.5"}).run()
    Design("the highest ends of the ranges", "spanish",
           {"Text1": "10", "Text3": "200", "Text4": "3", "Text8": "20", "Text15": "270", "Text9": "100", "Text10": "10",
            "Text11": "400", "Text12": "15000", "Text13": "4", "Text17": "0.56", "Text16": "33", "Text2": "400", "Text6": "500",
            "Text7": "0.7", "Text18": "2.7"}).run()
    Design("a tie of the rounding, down to the even digit: ERes of 0.15625 V", "spanish",
           {"Text1": "8", "Text3": "25", "Text4": "2.5", "Text8": "1", "Text15": "150", "Text11": "60", "Text17": "1.8",
            "Text16": "10", "Text18": "3.3"}).run()
    Design("a tie of the rounding, up to the even digit: ERes of 0.71875 V", "spanish",
           {"Text1": "8", "Text3": "43", "Text4": "2.5", "Text8": "1", "Text15": "680", "Text11": "60", "Text17": "1.875",
            "Text16": "10", "Text18": "3.3"}).run()
    Design("a current of three decimals, a germanium transistor", "english",
           {"Text1": "3", "Text3": "33", "Text4": "2.75", "Text8": "2.345", "Text15": "470", "Text9": "3.3", "Text11": "120",
            "Text13": "0.7", "Text16": "9.1", "Text2": "55.5", "Text7": "0.3", "Text18": "3.9"}).run()


if __name__ == "__main__":
    main()
