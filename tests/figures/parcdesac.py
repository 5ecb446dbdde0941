#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of ParcDesac, worked out from the course's formulas alone; desaco.py has what both sheets do alike.

Prints a walk. The committed tests/walks/parcdesac/figures.walk is this script's output; the walk player compares every
character.
"""
from desaco import Design, currency, digits, shown, whole


class PartlyBypassed(Design):
    """One design on paper with a part of the emitter resistor left without bypass."""

    sheet = "ParcDesac"
    stored = {"Text1": "5", "Text3": "75", "Text4": "2.5", "Text8": "1", "Text9": "8", "Text10": "10", "Text11": "10",
              "Text12": "20", "Text13": "3", "Text2": "200", "Text6": "100", "Text7": "0.6"}
    largest_eq = 50

    def total(self):
        return self.ERes / (self.value("Text8") / 1000)

    def resistor(self):
        current = self.enter("Text8")
        self.expect("res", " Valor total del resistor Res :\n" + shown(self.total()) + " ohms")
        self.expect("statu17", " R'e =" + shown(25 / current) + "     ohms")
        self.field("Text15", digits(self.total() / 10))
        Res = self.enter("Text15")
        least = float(digits((25 / current) * 10))
        if Res < least:
            self.field("Text15", digits(least))
        self.expect("VRes", digits(self.ERes) + "  Volt")
        self.expect("Text8", self.text["Text8"], "text")

    def first_load(self, Vg):
        return Vg * self.value("Text15")

    def real_gain(self, load):
        return load / (self.value("Text15") / 1000)

    def left_fo(self):
        bypassed = self.total() - self.value("Text15")
        capacitor = 1 / (self.value("Text12") * 6.28 * 0.1 * bypassed) * 1000000
        self.expect("sta1", whole(capacitor) + "\nmicroF")

    def eq(self, Es):
        return Es - (self.ERes + self.value("Text8") * self.value("Text17"))

    def stabilising(self):
        return self.total()

    def divider(self):
        Rb2 = self.enter("Text18")
        QIc, Res, RL, fo, Vj = (self.value(f) for f in ("Text8", "Text15", "Text17", "Text12", "Text7"))
        beta = self.value("Text2")
        BRes = beta * self.total()
        Rin = Rb2 * 1000 * BRes / (Rb2 * 1000 + BRes)
        self.expect("statu23", "B x Res=" + shown(BRes / 1000) + " K\nRin=" + whole(Rin / 1000) + " K")
        ERb1 = self.value("Text16") - (self.total() * QIc / 1000 + QIc * RL) + QIc * RL - Vj
        self.expect("statu30", digits(ERb1) + " Volts")
        Rb1 = ERb1 * Rin / (self.ERes + Vj)
        self.expect("statu24", " Preset  Rb1= " + shown(Rb1 / 1000) + " K" + self.preset_advice[self.language])
        both = Rb2 * Rb1 / (Rb2 + Rb1)
        Zin = (both * beta * Res / 1000) / (both + beta * Res / 1000)
        self.expect("statu31", " Zin= " + whole(Zin * 1000) + "  ohms")
        Y = beta * (Res + Res * (Rb2 / 2) / (Rb2 / 2))
        halves = (Rb2 / 2) * (Rb1 / 2) / (Rb2 / 2 + Rb1 / 2)
        bootstrapped = beta * (Res * halves / (Res + halves))
        self.expect("statu61", "Zin (Cbp1)= " + whole(Rb1 * Y / (Rb1 + Y)) + "  K \nZin (Cbp1 y Cbp2)= " + whole(bootstrapped) + " K")
        self.expect("statu32", whole(1 / (fo * 6.28 * 0.1 * (Zin * 1000)) * 1000000) + " mf")
        self.expect("statu33", whole(1 / (fo * 6.28 * 0.1 * (self.value("Text9") * 1000)) * 1000000) + " mf")
        self.field("Text10", whole(1000 * currency(Rb2) / self.total()))

    def check(self):
        return self.ERes, self.value("Text7")

    def turn(self, Rb1):
        """The focus stays at Enter; the click on the option picture leaves the field, and is heard all the same. The way back
        leaves the field once more."""
        obtained = self.obtained(Rb1)
        band = self.value("Text8") * 10 / 100
        fits = self.value("Text8") - band <= obtained <= self.value("Text8") + band
        print("expect-focus Text19\nexpect-shown Picture2\nclick Picture2")
        print("expect-no-box" if fits else "expect-box *")
        self.expect("Label24", shown(obtained) + " mA")
        capacitor = 1 / ((self.value("Text12") * 6.28 * 0.1 * (Rb1 * 1000)) / 2) * 1000000
        self.expect("statu72", "Cbp2=\n" + shown(capacitor))
        print("expect-focus " + ("Picture7" if fits else "Text19"))
        print("click Picture7" if fits else "click Picture7\nexpect-box *")


def main():
    print("# SPDX-License-Identifier: MIT\n# Printed by tests/figures/parcdesac.py; change that script, not this file.")
    PartlyBypassed("the stored values, with a supply of 15 V", "spanish", {"Text16": "15", "Text18": "27"}).run()
    PartlyBypassed("80 degrees: 3000 ohm in all, 300 of them without bypass", "english",
                   {"Text3": "80", "Text16": "17.5", "Text18": "27", "Text2": "150"}).run()
    PartlyBypassed("less than ten times r'e is raised to it; 15 digits", "english",
                   {"Text1": "7", "Text3": "66", "Text4": "2.3", "Text8": "1.3", "Text15": "100", "Text9": "6.8", "Text11": "12",
                    "Text16": "13.3", "Text2": "110", "Text18": "8.2"}).run()
    PartlyBypassed("the lowest ends of the ranges", "spanish",
                   {"Text1": "1", "Text3": "25", "Text4": "2", "Text8": "0.4", "Text15": "700", "Text9": "4", "Text10": "1",
                    "Text11": "2", "Text12": "1", "Text13": "0.00001", "Text16": "6", "Text2": "30", "Text6": "10", "Text7": "0.2",
                    "Text18": "2.5"}).run()
    PartlyBypassed("the highest ends of the ranges", "spanish",
                   {"Text1": "10", "Text3": "200", "Text4": "3", "Text8": "12", "Text15": "39", "Text9": "10", "Text11": "60",
                    "Text12": "15000", "Text13": "4", "Text17": "0.68", "Text16": "33", "Text2": "400", "Text6": "500",
                    "Text7": "0.7", "Text18": "2.7"}).run()
    PartlyBypassed("ties of the rounding: ERes of 0.15625 V", "english",
                   {"Text1": "8", "Text3": "25", "Text4": "2.5", "Text8": "0.5", "Text15": "500", "Text11": "3", "Text9": "10",
                    "Text13": "0.5", "Text16": "9", "Text18": "1.1"}).run()


if __name__ == "__main__":
    main()
