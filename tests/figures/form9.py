#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form9, worked out from the course's formulas alone: kilohms and milliamperes.

Prints a walk: what a student enters, and what must then be shown. The committed tests/walks/form9/figures.walk is this
script's output; the walk player compares every character.
"""
import sys

sys.dont_write_bytecode = True
from course import Paper, currency, digits, header, parallel, quoted, shown, whole  # noqa: E402

STORED = {"Text4": "10", "Text8": "1", "Text9": "10", "Text13": "5", "Text14": ".3535", "Text10": "10", "Text2": "100",
          "Text12": "20", "Text5": "30", "Text6": "100", "Text7": ".6", "Text20": "0", "Text15": "1", "Text16": "0", "Text17": "0"}


class Splitter(Paper):
    def __init__(self, title, language, entries):
        super().__init__("Form9", title, language, STORED, entries)

    def run(self):
        self.data()
        self.supply()
        self.resistors()
        self.divider()
        self.preset()
        self.analysis()

    def data(self):
        for name in ("Text4", "Text8", "Text9"):
            self.type(name)
        for label in ("Label30", "Label31"):
            self.expect(label, self.field["Text9"] + "\nK")
        self.type("Text13")
        self.takes("Text14", shown(((self.value("Text13") / 2) * 0.707) / 1))
        self.type("Text14")
        if self.value("Text14") < 0.000001:
            self.takes("Text14", digits((self.value("Text13") / 2) * 0.707))
        self.takes("Text13", shown((self.value("Text14") * 1.41) * 2))
        for name in ("Text10", "Text2", "Text12", "Text5", "Text6", "Text7"):
            self.type(name)
        self.Eopp = self.value("Text13")
        self.QIc = self.value("Text8")
        self.RLw = self.value("Text9")
        self.Vj = self.value("Text7")
        self.Beta = self.value("Text2")
        self.EQ = self.Eopp + 1
        least = shown(max((0.5 * self.Eopp + 0.5 * self.Eopp) + self.EQ, 4.0))
        self.takes("Text20", least)
        self.expect("Label19", self.words("Tensión min. de fuente: \n%s   Volts\nColoque tensión disponible...",
                                          "Voltage  min. of D.C. source :         \n%s   Volts\nPut voltage available ...")
                    % least)

    def supply(self):
        Es = float(self.entries.get("Text20", self.field["Text20"]))
        ERL = (Es - self.EQ) / 2
        RL = ERL / (self.QIc / 1000)
        low = RL < self.RLw * 1000
        if low:
            print("answer no")
        self.type("Text20")
        print("expect-box * * 20" if low else "expect-no-box")
        if low:
            self.expect("Label19", "RL = " + shown(RL / 1000)
                        + self.words("  Kohm,         coloque valor comercial...", "  Kohm,         put normalized value..."))
        else:
            self.expect("Label19", "RL= " + whole(RL / 1000) + "  Kohm")
            self.expect("Label20", "Res= " + whole(RL / 1000) + "  Kohm")
        self.takes("Text15", shown(RL / 1000))

    def resistors(self):
        self.type("Text15")
        self.RL = self.value("Text15")
        self.expect("Label20", "Res = " + self.field["Text15"] + " Kohm")
        self.ERL = ((self.QIc / 1000) * self.RL) * 1000
        assert self.ERL >= self.Eopp / 2
        self.expect("Label22", "ERl = " + shown(self.ERL) + " Volts")
        self.expect("Voltaje", shown(self.ERL) + " Volts")
        self.expect("Label23", "Eq =" + shown(self.EQ) + " Volts")
        self.takes("Text20", shown(((2 * self.ERL) + self.Eopp) + 1))
        self.expect("Label19", "RL=" + shown(self.ERL / self.QIc) + " Kohm")
        small = self.Eopp + 1 < 3
        print("expect-shown Frame1" if small else "expect-hidden Frame1")
        Rb2 = self.value("Text10") * parallel(self.RL, self.RLw)
        self.expect("Label21", "Rb2 =" + whole(Rb2) + " Kohm")
        self.takes("Text16", shown(Rb2))
        if small:
            print("click Command1\nexpect-focus Text16\nexpect-hidden Frame1")
            self.expect("Label21", "Rb2 =" + whole(Rb2) + " Kohm\n"
                        + self.words("Coloque un valor comercial.", "Put a normalized value."))

    def divider(self):
        self.type("Text16")
        self.Rb2 = self.value("Text16")
        self.expect("Label21", "Rb2 = " + shown(self.Rb2) + " K")
        BaseZ = self.Beta * self.RL
        self.Zin = (self.Rb2 * BaseZ) / (self.Rb2 + BaseZ)
        VRb1 = (self.EQ + self.ERL) + self.Vj
        Rb1 = currency((VRb1 * self.Zin) / (self.ERL + self.Vj))
        self.expect("Label24", "Rb1 = " + whole(Rb1) + " Kohm\n"
                    + self.words("Coloque un valor comercial...", "Put a normalized value..."))
        self.takes("Text17", shown(Rb1))
        self.takes("Text10", shown(self.Rb2 / self.RL))

    def preset(self):
        Rb1 = float(self.entries.get("Text17", self.field["Text17"]))
        VRes = (self.RL * 1000) * (self.QIc / 1000)
        IRb1 = (self.value("Text20") - (VRes + 0.6)) / (1000 * Rb1)
        IRb2 = (VRes + 0.6) / (self.Rb2 * 1000)
        obtained = ((IRb1 - IRb2) * self.Beta) * 1000
        self.type("Text17")
        far = obtained > self.QIc * 1.1 or obtained < self.QIc * 0.9
        print("expect-box * * 48" if far else "expect-no-box")
        print("expect-focus Text17")
        fo = self.value("Text12")
        self.expect("Label24", "Rb1 = " + shown(self.value("Text17")) + " Kohm")
        self.expect("Label25", "Zin=" + whole(self.Zin) + " K")
        self.expect("Label26", shown(1 / (((6.28 * fo) * 0.1) * self.Zin) * 1000) + " mF")
        for label in ("Label27", "Label28"):
            self.expect(label, shown(1 / (((6.28 * fo) * 0.1) * self.RLw) * 1000) + " mF")
        self.expect("Text18", shown(obtained) + " mA", "text")

    def analysis(self):
        Rg = self.value("Text4")
        square = ((self.Eopp / 2) * 0.707) ** 2
        text = self.words("Potencia de salida :\n         Eo(eficaz)^2 / RLw =",
                          "Output power:\n        Eo(r.m.s.)^2 / RLw =")
        text += whole(square / (self.RLw * 1000) * 1000000) + " microW \n"
        light = self.Zin * 1000 > Rg * 1000
        if light:
            text += self.words(" La Zin de entrada es lo suficientemente elevada y no presentara una carga 'pesada'  al generador",
                               " The entrance Zin is the sufficiently high thing and it didn't present a load ' heavy ' to the "
                               "generator")
        else:
            text += self.words("La potencia que puede desarrollar el generador es:\n             Pg = ",
                               "The power that can develop the generator is: \n            Pg = ")
            text += shown(square / (Rg * 1000) * 1000000) + " microW\n"
            text += self.words(" La Zin de entrada es mas pequeña que la del generador, este necesitara suministrar una potencia de :",
                               "The entrance Zin is but small that that of the generator, this she/he needed to give a power of: ")
            text += "\n                 Ein^2 / Zin =" + whole(square / (self.Zin * 1000) * 1000000) + " microW "
        print("click Picture2")
        print("expect-in Form6 Label1.caption " + quoted(text))
        print("expect-in Form6 " + ("hidden" if light else "shown") + " Image2 Image5")
        print("window Form9\nclick Picture1\nexpect-window Form6 0\nanswer no\nclose\nexpect-box *")


header("form9.py")
Splitter("the stored values: the least supply gives less RL than RLw, and it is taken all the same", "spanish", {}).run()
Splitter("the design of the work guide", "english",
         {"Text5": "45", "Text20": "30", "Text15": "12", "Text16": "56", "Text17": "74"}).run()
Splitter("a small output, gone on with, and a generator heavier than the input", "spanish",
         {"Text4": "100", "Text8": "0.5", "Text9": "1", "Text13": "1", "Text14": "0.5", "Text10": "1", "Text20": "9"}).run()
Splitter("germanium, a high stability and a high frequency", "english",
         {"Text4": "600", "Text8": "2.5", "Text9": "0.1", "Text13": "12", "Text10": "1000", "Text2": "350", "Text12": "15000",
          "Text5": "60", "Text6": "2.5", "Text7": "0.2", "Text20": "40", "Text15": "5.6", "Text17": "2.2"}).run()
Splitter("a stability that is a tie of four decimals, an input of nothing, and figures of fifteen digits", "spanish",
         {"Text8": "3.2", "Text9": "1.23456789012345678", "Text13": "7.2222222222222222", "Text14": "0", "Text20": "220",
          "Text5": "1000", "Text2": "123.456789012345", "Text15": "32", "Text16": "1"}).run()
