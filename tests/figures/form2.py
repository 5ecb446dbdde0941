#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Figures of whole designs of Form2, worked out from the course's formulas alone.

Prints, design by design, what a student enters ("Text1 = 10") and what must then be shown ("Voltaje : 1.375"). The
program's tests play these designs and compare every character. The committed form2.txt is this script's output.
"""
import math


def currency(number):
    """Ten-thousandths, the nearest whole number of them, ties to the even one (Python's round does just that)."""
    return round(number * 10000)


def currency_text(number):
    scaled = currency(number)
    sign = "-" if scaled < 0 else ""
    whole, fraction = divmod(abs(scaled), 10000)
    return sign + (f"{whole}.{fraction:04d}".rstrip("0").rstrip(".") if fraction else str(whole))


def number_text(number):
    return "%.15G" % (number + 0.0)


def whole_text(number):
    return number_text(float(math.trunc(number)))


def parallel(one, other):
    return (one * other) / (one + other)


class Design:
    """One design on paper. Fields hold texts, as on the sheet: what is read again is what was shown."""

    def __init__(self, name, circuit, entries):
        print(f"design {name}")
        print(f"circuit {circuit}")
        self.circuit = circuit
        self.entries = entries
        self.text = {}

    def value(self, field):
        return float(self.text[field])

    def enter(self, field, proposal=None):
        """The student's own figure, or the proposal as it stands."""
        given = self.entries.get(field)
        if given is None:
            given = proposal
            print(f"{field} = *")
        else:
            print(f"{field} = {given}")
        self.text[field] = number_text(float(given))
        return float(given)

    @staticmethod
    def show(control, text):
        print(f"{control} : {text}")

    def run(self):
        self.stability()
        self.load()
        self.supply()
        self.base()
        print()

    def stability(self):
        allowed = self.enter("Text1")
        temperature = self.enter("Text3")
        drift = self.enter("Text4")
        self.ERes = ((temperature - 20) * (drift / 1000) * 100) / allowed
        self.show("Voltaje", currency_text(self.ERes))
        current = self.enter("Text8")
        if self.circuit == "emitter":
            supply = self.enter("Text21")
            ideal = supply / (current / 1000)
            self.supply_minus = supply
        else:
            ideal = self.ERes / (current / 1000)
        self.show("res", currency_text(ideal) + " ohms")
        self.show("statu17", " R'e =" + currency_text(25 / current) + "     ohms")
        self.show("Text15", number_text(ideal))
        self.Res = self.enter("Text15", number_text(ideal))
        source = self.supply_minus if self.circuit == "emitter" else self.ERes
        self.text["Text8"] = number_text((source / self.Res) * 1000)
        self.show("Text8", self.text["Text8"])
        if self.circuit != "emitter":
            self.show("VRes", number_text(self.ERes) + "  Volt")
        self.QIc = self.value("Text8")

    def load(self):
        self.RLw = self.enter("Text9")
        self.S = self.enter("Text10")
        Vg = self.enter("Text11")
        RLac = Vg * self.Res if self.circuit == "base" else Vg * (25 / self.QIc)
        self.show("statu18", " (Rlac)=           " + currency_text(RLac) + "  ohms")
        ohms = self.RLw * 1000
        computed = (ohms * RLac) / (ohms - RLac)
        self.show("statu19", "    " + whole_text(computed / 1000) + " K  ")
        self.show("Text17", number_text(computed / 1000))
        self.RL = self.enter("Text17", number_text(computed / 1000))
        self.ERL = self.QIc * self.RL
        self.show("ER", currency_text(self.ERL) + "     Volts")
        real = parallel(self.RLw, self.RL)
        self.show("statu18", "Rlac = " + currency_text(real) + " K")
        self.text["Text11"] = currency_text(real / (self.Res / 1000))
        self.show("Text11", self.text["Text11"])

    def supply(self):
        self.fo = self.enter("Text12")
        output = self.enter("Text13")
        self.show("Text14", currency_text((output / 2 * 0.707) / self.value("Text11")))
        least = self.ERes + self.ERL + output + 1
        self.show("Text16", number_text(least))
        self.Es = self.enter("Text16", number_text(least))
        if self.circuit == "emitter":
            Eq = self.Es - self.RL * self.QIc
        else:
            Eq = self.Es - ((self.QIc / 1000) * self.Res + self.RL * self.QIc)
        assert 3 <= Eq <= 25, Eq
        self.show("statu25", " Eq=  " + currency_text(Eq) + " Volts")
        rb2 = currency(self.Res * self.S) / 10000
        self.show("statu22", " Rb2= " + currency_text(rb2 / 1000) + " K         comercial...")
        self.beta = self.enter("Text2")
        self.enter("Text6")
        self.Vj = self.enter("Text7")

    def base(self):
        Rb2 = self.enter("Text18")
        if Rb2 < self.Res / 1000:
            print("box Design approach")
        QIc, Res, RL = self.QIc, self.Res, self.RL
        BRes = self.beta * (25 / QIc) if self.circuit == "bypassed" else self.beta * Res
        Rin = parallel(Rb2, BRes)
        self.show("statu23", "B x Res=" + currency_text(BRes / 1000) + " K\\nRin=" + whole_text(Rin) + " K")
        rule = self.fo * 6.28 * 0.1
        self.show("statu71", "Cbp1=" + currency_text((1 / (((Rb2 * 1000) * rule) / 2)) * 1000000))
        self.show("statu33", currency_text((1 / (rule * self.RLw)) * 1000000 / 1000) + " mf")
        self.show("Text10", whole_text((1000 * (currency(Rb2) / 10000)) / Res))
        if self.circuit == "emitter":
            self.by_emitter(Rb2, rule)
        else:
            self.by_base(Rb2, BRes, Rin, rule)

    def by_base(self, Rb2, BRes, Rin, rule):
        QIc, Res, RL = self.QIc, self.Res, self.RL
        ERb1 = self.Es - (QIc / 1000 * RL + QIc * Res / 1000) + QIc * (RL / 1000) - self.Vj
        self.show("statu30", number_text(ERb1) + " Volts")
        Rb1 = (ERb1 * Rin) / ((((Res / 1000) * QIc) / 1000) * 1000 + self.Vj)
        self.show("statu24", " Preset  Rb1= " + currency_text(Rb1) + " K  Put normalized value...")
        self.show("Text19", number_text(Rb1))
        if self.circuit == "bypassed":
            divider = parallel(Rb2, Rb1)
            Zin = (divider * BRes / 1000) / (divider + BRes / 1000)
        else:
            Zin = parallel(Rin, Rb1)
        self.show("statu31", " Zin= " + whole_text(Zin * 1000) + "  ohms")
        halves = ((Rb2 / 2) * (Rb1 / 2)) / ((Rb2 / 2) + (Rb1 / 2))
        both = self.beta * (Res + (Res * (Rb2 / 2)) / (Rb2 / 2))
        boot = self.beta * parallel(Res, halves)
        first = parallel(Rb1, both)
        self.show("statu61", "Zin (Cbp1)= " + whole_text(first) + "  K \\nZin (Cbp1 y Cbp2)= " + whole_text(boot) + " K")
        self.show("statu32", currency_text((1 / (rule * Zin)) * 1000000 / 1000) + " mf")
        self.show("statu62", whole_text(((1 / (rule * boot)) * 1000000 / 1000) * 1000) + " nf")
        if self.circuit == "bypassed":
            self.enter("Text19")
            self.bypass_capacitor()
            return
        for preset in self.entries["presets"]:
            self.entries["Text19"] = preset
            self.turn_preset(self.enter("Text19"), Rb2, rule)

    def turn_preset(self, Rb1, Rb2, rule):
        QIc, Res, RL = self.QIc, self.Res, self.RL
        ERes = Res * (QIc / 1000)
        Eq = self.Es - (RL * QIc + ERes)
        upper = ((Eq + RL * QIc) - 0.6) / (Rb1 * 1000)
        lower = (ERes + 0.6) / (Rb2 * 1000)
        obtained = (upper - lower) * self.beta * 1000
        band = QIc * 10 / 100
        adjusted = QIc - band <= obtained <= QIc + band
        if not adjusted:
            print("box Adjust Preset Rb1...")
        self.show("Label24", currency_text(obtained) + " mA")
        if adjusted:
            print("click Picture2")
            capacitor = (1 / ((rule * (Rb1 * 1000)) / 2)) * 1000000
            self.show("statu72", "Cbp2=\\n" + currency_text(capacitor))

    def by_emitter(self, Rb2, rule):
        print("Text19 = *")
        reflected = self.beta * (25 / self.QIc)
        Zin = ((Rb2 * 1000) * reflected) / ((Rb2 * 1000) + reflected)
        self.show("statu31", " Zin= " + whole_text(Zin) + "  ohms")
        self.show("statu32", currency_text((1 / (rule * Zin)) * 1000000) + " mf")
        self.show("statu33", currency_text((1 / (rule * (self.RLw * 1000))) * 1000000) + " mf")
        self.bypass_capacitor()
        self.show("Text21", "- Ebias =" + str(round(self.Res * self.QIc / 1000)) + " Volts")

    def bypass_capacitor(self):
        capacitor = (1 / ((0.025 / (self.QIc / 1000)) * (self.fo * 6.28))) * 1000000
        self.show("Text20", whole_text(capacitor) + " microF")


def entries(text, presets=()):
    fields = dict(pair.split("=") for pair in text.split())
    return {"presets": presets, **{"Text" + name: value for name, value in fields.items()}}


Design("the defaults", "base", entries(
    "1=10 3=75 4=2.5 8=1 15=1375 9=10 10=10 11=5 17=22 12=20 13=1 16=35 2=80 6=100 7=0.6 18=12",
    presets=("120", "198", "186.5"))).run()
Design("a critical circuit with standard values", "base", entries(
    "1=3 3=60 4=2.2 8=2 15=1500 9=4.7 10=8 11=2 17=8.2 12=50 13=2 16=33 2=150 6=200 7=0.6 18=12",
    presets=("100", "95.8"))).run()
Design("a germanium transistor with every proposal as it stands, fifteen digits", "base", entries(
    "1=7 3=71 4=2.3 8=3 9=5.6 10=6 11=3 12=30 13=1.5 16=21 2=63 6=150 7=0.2 18=3.3",
    presets=("27", "25.4"))).run()
Design("a tie that goes down to the even figure", "base", entries(
    "1=10 3=75 4=2.5 8=1 15=1000.03125 9=10 10=10 11=1 17=1.2 12=20 13=1 16=12 2=80 6=100 7=0.6 18=10",
    presets=("47",))).run()
Design("a tie that goes up to the even figure", "base", entries(
    "1=10 3=75 4=2.5 8=1 15=1000.09375 9=10 10=10 11=1 17=1.2 12=20 13=1 16=12 2=80 6=100 7=0.6 18=10",
    presets=("47",))).run()
Design("polarised by emitter, the defaults", "emitter", entries(
    "1=10 3=75 4=2.5 8=1 21=20 9=10 10=10 11=55 12=20 13=1 16=12 2=80 6=100 7=0.6 18=12")).run()
Design("polarised by emitter with standard values", "emitter", entries(
    "1=5 3=50 4=2.5 8=2 21=12 15=5600 9=22 10=4 11=120 17=1.8 12=40 13=3 16=15 2=200 6=100 7=0.65 18=27")).run()
Design("bypassed, polarised by base", "bypassed", entries(
    "1=10 3=75 4=2.5 8=1 15=1500 9=10 10=10 11=100 17=4.7 12=20 13=2 16=15 2=80 6=100 7=0.6 18=15 19=68")).run()
