#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form15, the class A stage, worked out from the course's formulas alone.

Prints a walk: what a student enters, and what must then be shown. The committed tests/walks/form15/figures.walk is this
script's output; the walk player compares every character.
"""
import math


def shown(number):
    """Four decimals, the nearest, ties to the even one (Python's round does just that)."""
    scaled = round(number * 10000)
    whole, fraction = divmod(abs(scaled), 10000)
    return ("-" if scaled < 0 else "") + (f"{whole}.{fraction:04d}".rstrip("0") if fraction else str(whole))


def digits(number):
    return "%.15G" % (number + 0.0)


def whole(number):
    return digits(float(math.trunc(number)))


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


def minus_currency(value, drop):
    """A value of four decimals less another, in ten-thousandths."""
    return (round(value * 10000) - round(drop * 10000)) / 10000


class Design:
    """One design on paper. `field` holds the texts as the sheet shows them: what is read again is what was shown."""

    sheet = "Form15"
    junctions = 0.6

    def __init__(self, title, language, loudspeaker=False, **entries):
        print(f"\n# {title}\nlanguage {language}\nnew {self.sheet}")
        self.language = language
        self.loudspeaker = loudspeaker
        self.ties = entries.pop("ties", [])
        self.entries = entries
        self.field = dict(self.stored)

    stored = {"Text1": "0.78", "Text2": "16", "Text10": "100", "Text11": "100"}

    def value(self, field):
        return float(self.field[field])

    def enter(self, field):
        if field in self.entries:
            self.field[field] = digits(float(self.entries[field]))
            print(f"enter {field} {self.entries[field]}")
        else:
            self.field[field] = digits(self.value(field))
            print(f"enter {field}")

    @staticmethod
    def box(spanish):
        print(f"expect-box {quoted(spanish)} * 48")

    def boxes(self, *tests):
        """The boxes of a step, in their order: what must hold, and both texts."""
        for holds, spanish, english in tests:
            if holds:
                self.box(spanish if self.language == "spanish" else english)

    def expect(self, control, text, kind="caption"):
        print(f"expect {control}.{kind} {quoted(text)}")

    def fill(self, field, text):
        self.field[field] = text
        self.expect(field, text, "text")

    def run(self):
        self.power_and_load()
        self.output_current()
        self.supply()
        self.driver()
        self.divider()
        self.base_resistor()
        self.generator()
        self.measured()
        print("expect-no-box")

    def power_and_load(self):
        self.enter("Text1")
        self.enter("Text2")
        RLw = self.value("Text2")
        self.Eopp = math.sqrt(self.value("Text1") * 8 * RLw)
        self.Eq = round(0.66 * self.Eopp * 10000) / 10000
        self.expect("Q1", "Eq= " + shown(self.Eq) + " V")
        self.ERLw = minus_currency(self.Eq, self.junctions)
        self.expect("Label17", "ERLw= " + shown(self.ERLw) + " V")
        self.expect("Label14", "RLw= " + shown(RLw) + " Ohms")
        self.QIcRLw = self.ERLw / RLw
        if self.loudspeaker:
            print("click image2")
            self.fill("Text2", shown(RLw - RLw * 30 / 100))
            self.expect("Label14", "RLw= " + self.field["Text2"] + " Ohms")
        else:
            print("click Image1")
        self.RLw = self.value("Text2")

    def betas(self):
        self.enter("Text10")
        self.enter("Text11")

    def output_current(self):
        self.betas()
        self.fill("Text3", shown(self.QIcRLw + self.QIcRLw * 10 / 100))
        self.enter("Text3")
        self.QIc2 = self.value("Text3")
        self.boxes((self.QIc2 > 1, "Corriente Colector Emisor no debe superar a Ic(max)...",
                    "Current Collector Emitter no upper to Ic(max)..."))
        self.ERLw = self.QIc2 * self.RLw
        assert "ERLw" not in self.ties or self.ERLw * 10000 % 1 == 0.5
        self.expect("Label17", "ERLw= " + shown(self.ERLw) + " V")
        self.fill("Text4", shown(self.ERLw + self.ERLw))

    def supply(self):
        self.enter("Text4")
        Es = self.value("Text4")
        self.EQ2 = Es - self.ERLw
        self.boxes((self.EQ2 > 30, "Tensión EQ2 no debe superar a Ec(max)...", "Voltage EQ2 no upper to Ec(max)..."),
                   (self.ERLw + 0.6 > 30, "Tensión EQ1 no debe superar a Ec(max)...", "Voltage EQ1 upper to Ec(max)..."))
        self.expect("Label1", "EQ2= " + shown(self.EQ2) + " V")
        EQ1 = self.ERLw + 0.6
        self.expect("Q1", "EQ1= " + shown(EQ1) + " V")
        self.ERL = Es - EQ1
        self.expect("Label10", "ERL= " + shown(self.ERL) + " V")
        self.expect("Label17", "ERLw= " + shown(self.ERLw) + " V")
        self.fill("Text5", shown(10 * self.RLw))
        self.ERb1 = EQ1 - 0.6

    def driver(self):
        Zin = self.RLw * self.value("Text10")
        self.expect("Label19", "Zin= " + whole(Zin) + " Ohm")
        self.enter("Text5")
        self.RL = self.value("Text5")
        assert self.RL * 10 <= Zin
        least = self.Eopp / (self.RLw * self.value("Text10"))
        self.QIc1 = self.ERL / self.RL
        assert least <= self.QIc1
        self.boxes((self.QIc1 > 0.04, "QIc no debe superar el 40 % de Ic(max)", "QIc should not overcome 40% of Ic(max)"))
        print(f'expect-contains Label15.caption "{self.field["Text10"]}"')
        print(f'expect-contains Label15.caption "{shown(least)} A"')
        self.expect("Label8", shown(self.QIc1) + "\n   A")
        self.fill("Text6", shown(10 * self.RLw))
        self.Rb1 = 10 * self.RL

    def divider(self):
        self.enter("Text6")
        Rb1b = self.value("Text6")
        self.fill("Text7", shown(self.Rb1 - Rb1b))
        self.enter("Text7")
        Rb1a = self.value("Text7")
        Rb1 = Rb1a + Rb1b
        self.Ib = self.QIc1 / self.value("Text11")
        self.IRb2 = self.ERb1 / Rb1 - self.Ib
        self.Rb2 = 0.6 / self.IRb2
        self.fill("Text8", shown(self.Rb2))
        self.base_capacitor(1 / (125.6 * Rb1b))

    def base_capacitor(self, C):
        self.expect("Label5", "Cbp= " + shown(C * 1000000) + " mF")

    def base_resistor(self):
        self.enter("Text8")
        Rb2 = self.value("Text8")
        if not self.Rb2 - self.Rb2 * 20 / 100 <= Rb2 <= self.Rb2 + self.Rb2 * 20 / 100:
            self.boxes((True, "El valor asignado a Rb2 no es conveniente...", "The value assigned at Rb2 is not convenient..."))
            Rb2 = 0.6 / self.IRb2
            self.field["Text8"] = digits(Rb2)
            Rb2 = self.value("Text8")
            self.expect("Text8", self.field["Text8"], "text")
        Rb1a = self.value("Text7")
        Rb1 = self.ERb1 / (self.Ib + 0.6 / Rb2)
        Rb1b = round(Rb1 - Rb1a)
        assert Rb1 - Rb1a <= Rb1 * 25 / 100 and Rb1b >= 10 * self.RLw
        self.fill("Text6", str(Rb1b))
        self.fill("Text7", digits(Rb1a))
        self.re = 0.025 / self.QIc1
        Zb = self.value("Text11") * self.re
        Rp = Rb1a * Rb2 / (Rb1a + Rb2)
        self.Zin = Rp * Zb / (Rp + Zb)
        self.expect("Label13", "Zin= " + whole(self.Zin) + " Ohms")
        self.input_capacitor(1 / (125.6 * self.Zin))
        self.fill("Text9", whole(20 * self.Zin))
        Vg = self.RL / self.re
        self.expect("Label21", "Vg (Q1)= " + whole(Vg) + " ")
        self.EinPP = self.Eopp / Vg
        self.expect("Label20", "Eg= " + shown(20 * self.EinPP / 2 * 0.707) + " V(r.m.s.)")

    def input_capacitor(self, C):
        self.expect("Label2", "Ccin= " + shown(C * 1000000) + " mF (200 c/s)")

    def generator(self):
        self.enter("Text9")
        # Rs is read from the field of Rb1a
        EgPP = (self.value("Text7") / self.Zin) * self.EinPP
        self.expect("Label20", "Ein= " + shown(EgPP / 2 * 0.707) + " V(ef)")

    def measured(self):
        swing = self.value("Text3") * 2 * self.RLw
        power = (swing / 2 * 0.707) * (swing / 2 * 0.707) / self.RLw
        self.expect("Text1", digits(power), "text")
        self.expect("Label18", self.measured_caption(shown(power)))

    def measured_caption(self, power):
        if self.language == "spanish":
            return "Este circuito entrega una Potencia (r.m.s.) = " + power + " Watts"
        return "This circuit gives a Power (r.m.s.) = " + power + " Watts "


if __name__ == "__main__":
    print("# Whole designs of Form15, worked out by tests/figures/form15.py from the course's formulas.")
    Design("the stored values", "spanish").run()
    Design("Rb2 of the guide, 180 ohm within its 20 per cent", "english", Text8="180").run()
    Design("the loudspeaker: the swing keeps the load as typed", "spanish", loudspeaker=True, Text4="14", Text10="120",
           Text8="130").run()
    Design("a tie of four decimals: ERLw is 6.39375, shown as 6.3938", "english", Text2="15.5", Text3="0.4125",
           ties=["ERLw"]).run()
    Design("the least power and a load of 200000 ohm, supplies beyond 30 V", "spanish", Text1="0.000001", Text2="200000",
           Text10="200", Text3="0.01", Text8="7000").run()
    Design("the largest power, 15 digits in Rb2 and in the power measured", "english", Text1="100", Text2="3.3", Text10="50",
           Text5="15", Text6="34", Text8="1000").run()
    Design("a driver of small Beta takes a good part of the bias", "spanish", Text1="1.5", Text2="25", Text11="20",
           Text10="300").run()
