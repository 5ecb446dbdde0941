#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form12 and their analysis, worked out from the course's formulas alone.

Prints a walk: what a student enters, and what must then be shown. The committed tests/walks/form12/figures.walk is this
script's output; the walk player compares every character.
"""
import sys

sys.dont_write_bytecode = True

from walk_figures import currency, digits, quoted, shown

Vj = 0.6


class Design:
    """One design on paper. Entries: QIc, Eb, Ebias, Res, K, Rb1, Rb2; what is missing is what the sheet proposes."""

    def __init__(self, title, language, **entries):
        self.title, self.language, self.entries = title, language, entries

    def expect(self, control, text):
        print("expect %s %s" % (control, quoted(text)))

    def enter(self, field, key, proposed):
        if key in self.entries:
            print("enter %s %s" % (field, self.entries[key]))
            return float(self.entries[key])
        print("enter %s" % field)
        return proposed

    def run(self):
        print("\n# %s\nlanguage %s\nnew Form12" % (self.title, self.language))
        self.expect("Text1.text", "1 mA")
        self.needs()
        self.resistors()
        self.analysis()
        print("expect-no-box")

    def needs(self):
        self.QIc = self.enter("Text1", "QIc", 1.0)
        self.expect("Text1.text", digits(self.QIc) + " mA")
        self.Eb = max(2.0, self.enter("Text2", "Eb", 0.0))
        self.expect("Text2.text", digits(self.Eb) + " V")
        print("enter Text3")
        self.expect("Text3.text", digits(self.Eb) + " V")
        calculated = (self.Eb + self.Eb) + 1.2
        self.expect("Text9.text", digits(calculated))
        self.Ebias = self.enter("Text9", "Ebias", float(digits(calculated)))
        self.expect("Text9.text", digits(self.Ebias) + " V")
        self.Eq = max(3.0, self.Ebias - (1.2 + self.Eb))
        self.expect("Text3.text", digits(self.Eq) + " V")

    def resistors(self):
        calculated = (self.Ebias - (self.Eb + 0.6)) / self.QIc
        self.expect("Text4.text", shown(calculated))
        self.Res = self.enter("Text4", "Res", float(shown(calculated)))
        self.QIc = (self.Ebias - (self.Eb + 0.6)) / self.Res
        assert self.QIc >= 0.2, self.title
        self.expect("Text1.text", shown(self.QIc) + "mA")
        ebias = (self.Eq + (self.QIc * self.Res)) + Vj
        self.expect("Text9.text", digits(ebias))
        self.Ebias = float(digits(ebias))
        self.expect("Text5.text", "0.001")
        self.K = self.enter("Text5", "K", 0.5)
        ibias = currency(self.K * self.QIc)
        calculated = self.Eb / ibias
        self.expect("Text5.text", shown(ibias) + "mA")
        print("expect-contains SSPanel1.caption %s" % quoted("S = " + shown(1 / self.K)))
        self.expect("Text6.text", shown(calculated))
        self.Rb1 = self.enter("Text6", "Rb1", float(shown(calculated)))
        current = self.Eb / self.Rb1
        assert 0.3 * self.QIc <= current <= self.QIc, self.title
        ibias = currency(current)
        self.expect("Text6.text", digits(self.Rb1) + "  K")
        self.drop = self.Ebias - (self.Eb + 0.6)
        calculated = self.drop / ibias
        self.expect("Text7.text", shown(calculated))
        self.Rb2 = self.enter("Text7", "Rb2", float(shown(calculated)))
        reference = self.drop / self.Res
        assert 0.3 * reference <= self.drop / self.Rb2 <= reference, self.title
        self.expect("Label4.caption", "S = " + shown(1 / (self.QIc / ibias)))

    def analysis(self):
        divider = self.drop / self.Rb2
        Eb = self.Rb1 * divider
        QIc = (self.Ebias - (Eb + 0.6)) / self.Res
        ERes = QIc * self.Res
        Eq = self.Ebias - (ERes + 0.6)
        self.expect("Text5.text", shown(divider))
        self.expect("Text8.text", shown(ERes) + "V")
        self.expect("Text7.text", shown(self.Rb2) + "  K")
        self.expect("Text2.text", shown(Eb) + " v")
        self.expect("Text1.text", shown(QIc) + "mA")
        self.expect("Text3.text", shown(Eq) + "V")
        print("expect-contains SSPanel1.caption %s" % quoted("          ERes = " + shown(ERes) + " V"))


print("# SPDX-License-Identifier: MIT\n# Printed by tests/figures/form12.py; change that script, not this file.")
Design("the values that the sheet proposes", "english").run()
Design("the design of the work guide", "spanish", QIc="2", Eb="4", Res="2.2", Rb1="3.9", Rb2="4.7").run()
Design("the largest current without a warning, and all of it in the divider", "english",
       QIc="40", Eb="6", Ebias="15", Res="0.22", K="1", Rb1="0.18", Rb2="0.27").run()
Design("a small current and the least of it in the divider", "spanish",
       QIc="0.25", Eb="3.3", Ebias="12", Res="33", K="0.3", Rb1="39", Rb2="100").run()
Design("a tie of the fourth decimal: 0.5 x 0.5625 mA halves to 0.28125", "english",
       QIc="0.5625", Eb="2.4", Ebias="7.5", Res="8", Rb1="8", Rb2="12").run()
Design("an Ebias that is written with all its digits", "spanish",
       QIc="3", Eb="2.7", Ebias="9.1", Res="1.9", K="0.7", Rb1="1.5", Rb2="2.7").run()
