#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form13, worked out from the course's formulas alone.

Prints a walk: what a student enters, and what must then be shown. The committed tests/walks/form13/figures.walk is this
script's output; the walk player compares every character.
"""
import sys

sys.dont_write_bytecode = True

from walk_figures import digits, quoted, shown, whole

PROMPT = {"english": "  Source Voltage (minimum) : ", "spanish": "  Tensión mínima de fuente es : "}


class Design:
    """One design on paper. Entries: T, Vg, Eopp or Ein, Es, RL2, Res, RL1, Res1, RLw; what is missing is proposed."""

    def __init__(self, title, language, **entries):
        self.title, self.language, self.entries = title, language, entries

    def expect(self, control, text):
        print("expect %s %s" % (control, quoted(text)))

    def enter(self, field, key, proposed):
        """Enter in a field, with a value of the student's own or with what the field shows."""
        if key in self.entries:
            print("enter %s %s" % (field, self.entries[key]))
            return float(self.entries[key])
        print("enter %s" % field)
        return proposed

    def run(self):
        print("\n# %s\nlanguage %s\nnew Form13" % (self.title, self.language))
        self.expect("Text1.text", "90")
        self.T = self.enter("Text1", "T", 90.0)
        self.inputs()
        self.second_pair()
        self.first_pair()
        self.output()
        print("expect-no-box")

    def inputs(self):
        self.ERes = (((self.T - 20) * 0.0025) * 100) / 7
        self.expect("Label17.caption", "Eres1= " + shown(self.ERes) + " V")
        self.expect("Label12.caption", "Res1= " + shown(self.ERes) + " K")
        self.Vg = self.enter("Text2", "Vg", 1000.0)
        self.Eopp = float(self.entries.get("Eopp", "3"))
        if "Ein" in self.entries:
            self.Eopp = ((self.Vg * float(self.entries["Ein"])) * 1.41) * 2
        self.ERL2 = 0.5 * (4 * self.ERes)
        goes_on = self.ERL2 < self.Eopp / 2
        if goes_on:
            self.ERL2 = self.Eopp / 2
            print("answer no")
        if "Ein" in self.entries:
            print("clear\nenter Text3")
            self.enter("Text4", "Ein", 0.0)
        else:
            self.enter("Text3", "Eopp", 3.0)
        if goes_on:
            print("expect-box * * 308")
        self.supply()

    def supply(self):
        self.expect("Label19.caption", "Ein = " + shown(((self.Eopp / self.Vg) / 2) * 0.707) + " Vef")
        RL2Start = 4 * self.ERes
        self.Res34 = max(1, round(self.ERes))
        self.EQmin = self.Eopp + 1
        EsMin = (self.ERL2 + self.ERes) + self.EQmin
        for label in ("Label5", "Label8"):
            self.expect(label + ".caption", "RL2= " + shown(RL2Start) + " K")
        self.expect("Label9.caption", "ERL2= " + shown(self.ERL2) + " V")
        self.expect("Label14.caption", " EQ4 = " + shown(self.EQmin) + " V")
        self.expect("Label15.caption", " EQ3 = " + shown(self.EQmin) + " V")
        self.expect("Label23.caption", "Eopp = " + shown(self.Eopp) + " Vpp\nEo(r.m.s.) = " +
                    shown((self.Eopp / 2) * 0.707) + " V")
        self.expect("Label25.caption", PROMPT[self.language] + shown(EsMin))
        self.expect("Text5.text", digits(EsMin))
        self.Es = self.enter("Text5", "Es", EsMin)

    def second_pair(self):
        RL2Calc = (self.Es - (self.EQmin + self.ERes)) / 0.5
        self.expect("Label1.caption", "Es = " + shown(self.Es) + " V")
        self.expect("Text6.text", digits(RL2Calc))
        self.RL2 = self.enter("Text6", "RL2", float(digits(RL2Calc)))
        self.expect("Text7.text", str(self.Res34))
        Res = round(self.enter("Text7", "Res", float(self.Res34)))
        self.QIc34 = (self.ERes / Res) / 2
        ERL2 = self.QIc34 * self.RL2
        self.EQ34 = self.Es - (ERL2 + self.ERes)
        assert ERL2 >= self.Eopp / 2 and (ERL2 + self.ERes) + self.EQmin <= self.Es and self.EQ34 <= 50, self.title
        self.Re34 = 25 / self.QIc34
        self.Vg34 = (self.RL2 * 1000) / (2.5 * self.Re34)
        self.expect("Label9.caption", "ERL2= " + shown(ERL2) + " V")
        self.expect("Label14.caption", "EQ4 = " + shown(self.EQ34) + " V")
        self.expect("Label15.caption", "EQ3 = " + shown(self.EQ34) + " V")
        self.expect("Label30.caption", "Zin = " + shown(100 * Res) + " K")
        self.expect("Label31.caption", shown(self.QIc34))
        self.expect("Text7.text", "Res :" + shown(Res) + " K")
        print('expect-contains Label26.caption "S (Q5) = %s"' % shown(self.RL2 / self.Res34))
        print("enter Text8")
        self.RL1Calc = 5.7 * Res

    def first_pair(self):
        EQ12 = self.ERes + 0.6
        ERL1 = self.Es - EQ12
        self.expect("Text9.text", shown(self.RL1Calc))
        self.expect("Label16.caption", "EQ1 = " + shown(EQ12) + " V")
        self.expect("Label13.caption", "EQ2 = " + shown(EQ12) + " V")
        for label in ("Label3", "Label11"):
            self.expect(label + ".caption", "ERL1= " + shown(ERL1) + " V")
        for label in ("Label2", "Label10"):
            self.expect(label + ".caption", "RL1= " + shown(self.RL1Calc) + " K")
        RL1 = self.enter("Text9", "RL1", float(shown(self.RL1Calc)))
        QIc12 = ERL1 / RL1
        self.Re12 = 25 / QIc12
        Zin34 = 200 * self.Re34
        RLac = ((RL1 * 1000) * Zin34) / ((RL1 * 1000) + Zin34)
        self.VgTotal = (RLac / (1.25 * self.Re12)) * self.Vg34
        self.expect("Label4.caption", shown(QIc12) + "\nmA")
        self.expect("Label32.caption", "Zin1= " + whole(Zin34 / 1000) + " K")
        self.expect("Label19.caption", "Ein = " + shown(((self.Eopp / self.VgTotal) / 2) * 0.707) + " Vef")
        print('expect-contains Label26.caption "Vg = %s"' % whole(self.VgTotal))
        print('expect-contains Label29.caption "     Zin1 = %s"' % shown((100 * self.ERes) * 1000))

    def tail(self, resistor):
        self.expect("Label33.caption", shown(self.ERes1 / resistor))
        self.expect("Label21.caption", " EQ5 = " + shown(self.Es - self.ERes1) + " V")
        self.expect("Label30.caption", "Zin = " + shown(100 * resistor) + " K")
        self.expect("Label12.caption", "Res1=" + shown(resistor) + " K\nEres= " + shown(self.ERes1) + " V")

    def output(self):
        self.expect("Text10.text", shown(self.ERes))
        Res1 = self.enter("Text10", "Res1", float(shown(self.ERes)))
        self.ERes1 = (self.EQ34 + self.ERes) - 0.6
        Rb1 = 200 * self.Re12
        self.tail(Res1)
        self.expect("Label22.caption", "Rb1= " + shown(Rb1 / 1000) + " K")
        self.expect("Label20.caption", "Zin= " + shown(Rb1 / 1000) + " K")
        self.expect("Label35.caption", " C1 = " + shown((1 / (12.56 * Rb1)) * 1000000) + " microF")
        self.expect("Label7.caption", "QIc(3y4) =" + shown(self.QIc34 * 2) + " mA")
        RLw = self.enter("Text11", "RLw", None)
        if RLw < 0.0001:
            RLw = 10 * Res1
            self.expect("Text11.text", digits(RLw))
        parallel = (Res1 * RLw) / (Res1 + RLw)
        self.tail(parallel)
        assert 100 * parallel >= 10 * self.RL2, self.title


print("# SPDX-License-Identifier: MIT\n# Printed by tests/figures/form13.py; change that script, not this file.")
Design("the design of the work guide", "english", Es="15", RL2="12", RL1="12", Res1="2.7", RLw="27").run()
Design("the coldest place and the least of everything: Res comes out as 1 K", "spanish",
       T="25", Eopp="0.3", Es="3", RL2="4", Res="1", RL1="4.7", Res1="0.47", RLw="0").run()
Design("the hottest place, a supply as high as EQ allows", "english",
       T="200", Vg="41000", Eopp="13", Es="60", RL2="33", Res="6", RL1="68", Res1="10", RLw="100").run()
Design("an input in the place of an output", "spanish",
       T="60", Vg="1400", Ein="0.002", Es="24", RL2="18", Res="2", RL1="15", Res1="3.3", RLw="47").run()
Design("a tie of the fourth decimal: RLw equal to Res1 halves 0.0625", "english",
       Es="15", RL2="0.3", Eopp="0.25", Res="2", RL1="12", Res1="0.0625", RLw="0.0625").run()
Design("a temperature whose ERes has no end of digits", "spanish",
       T="75", Eopp="5", Es="17.3", RL2="15", Res="2", RL1="10", Res1="2.2", RLw="22").run()
