#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form17, worked out from the course's formulas alone: kilohms and milliamperes.

Prints a walk: what a student enters, and what must then be shown. The committed tests/walks/form17/figures.walk is this
script's output; the walk player compares every character.
"""
import sys

sys.dont_write_bytecode = True
from course import Paper, currency, digits, header, parallel, shown, whole  # noqa: E402

STORED = {"Text12": "20", "Text5": "20", "Text6": "100", "Text7": ".6", "Text2": "100", "Text4": "10", "Text9": ".5",
          "Text13": "1", "Text14": ".3535", "Text8": "1", "Text15": "1", "Text16": "10", "Text17": "20", "Text10": "10"}


class Follower(Paper):
    def __init__(self, title, language, entries):
        super().__init__("Form17", title, language, STORED, entries)

    def run(self):
        self.data()
        self.emitter()
        self.divider()
        self.preset()
        self.analysis()

    def data(self):
        for name in ("Text12", "Text5", "Text6", "Text7"):
            self.type(name)
        eopp = self.value("Text13")
        least = max((eopp * 0.5 + eopp * 0.5) + (eopp + 1), 4.0)
        self.expect("Label19", self.words("Tensión min. de fuente: \n%s   Volts\nColoque tensión disponible...",
                                          "Voltage  min. of D.C. source :         \n%s   Volts\nPut voltage available ...")
                    % shown(least))
        for name in ("Text2", "Text4", "Text9"):
            self.type(name)
        self.expect("Label30", " Rlw=" + self.field["Text9"] + "K")
        self.type("Text13")
        self.takes("Text14", shown((self.value("Text13") / 2 * 0.707) / 1))
        self.type("Text14")
        if self.value("Text14") < 0.000001:
            self.takes("Text14", digits(self.value("Text13") / 2 * 0.707))
        else:
            self.takes("Text13", shown(self.value("Text14") * 1.41 * 2))
        self.Eopp = self.value("Text13")
        self.RLw = self.value("Text9")
        self.takes("Text8", shown(max(self.Eopp / (2 * self.RLw), 0.5)))
        self.type("Text8")

    def design_current(self):
        self.RLac = parallel(self.Res, self.RLw)
        self.takes("Text8", shown(self.Eopp / (2 * self.RLac)) + " mA")
        self.QIc = self.value("Text8")
        self.ERes = self.QIc * self.Res

    def emitter(self):
        self.takes("Text15", shown(20 * self.RLw) + " K")
        self.EQ = self.Eopp + 1
        self.ERes = self.value("Text8") * self.value("Text15")
        self.expect("Label20", "ERes= " + shown(self.ERes) + "  Volts")
        asked = self.Eopp + 1 < 3
        chosen = "Text20" in self.entries
        if asked:
            print("answer " + ("no" if chosen else "yes"))
        self.type("Text15")
        self.Res = self.value("Text15")
        print("expect-box * * 36" if asked else "expect-no-box")
        self.expect("Label23", "Eq =" + shown(self.EQ) + " Volts")
        before = self.value("Text8")
        self.design_current()
        if asked:
            # The supply is chosen before the current is worked out again.
            told = before * self.Res if chosen else self.ERes
            self.expect("Label20", "ERes= " + shown(told) + "  Volts")
        self.takes("Text20", shown(self.ERes + self.EQ))
        self.Rb2 = currency(self.value("Text10") * self.Res)
        self.expect("Label21", "Rb2 =" + shown(self.Rb2) + " Kohm\n"
                    + self.words("Coloque un valor comercial.", "Put a normalized value."))
        if chosen:
            self.supply()

    def supply(self):
        print("expect-focus Text20")
        self.type("Text20")
        Es = self.value("Text20")
        self.EQ = Es - self.ERes
        self.expect("Label23", "EQ = " + shown(self.EQ) + " Volts")
        self.design_current()
        self.EQ = Es - self.ERes
        print("expect-no-box")

    def divider(self):
        print("expect-focus Text16")
        self.takes("Text16", shown(self.Rb2))
        self.type("Text16")
        self.Rb2 = self.value("Text16")
        self.Vbe = self.value("Text7")
        self.Beta = self.value("Text2")
        self.expect("Label21", "      Rb2 = " + shown(self.Rb2) + " K")
        BetaRes = self.Beta * self.Res
        Rp = parallel(self.Rb2, BetaRes)
        self.Rb1 = (self.EQ - self.Vbe) * Rp / (self.ERes + self.Vbe)
        self.expect("Label24", "Rb1 = " + shown(self.Rb1) + " Kohm\n"
                    + self.words("Coloque un valor comercial...", "Put a normalized value..."))
        self.takes("Text17", shown(self.Rb1))
        self.takes("Text10", shown(currency(self.Rb2 / self.Res)))

    def preset(self):
        Rb1 = float(self.entries.get("Text17", self.field["Text17"]))
        ERb1 = self.EQ - self.Vbe
        IRb1 = ERb1 / (Rb1 * 1000)
        ERes = (self.Res * 1000) * (self.QIc / 1000)
        IRb2 = (ERes + self.Vbe) / (1000 * self.Rb2)
        obtained = ((IRb1 - IRb2) * self.Beta) * 1000
        self.type("Text17")
        far = obtained > self.QIc * 1.1 or obtained < self.QIc * 0.9
        print("expect-box * * 48" if far else "expect-no-box")
        fo = self.value("Text12")
        ZBase = self.Beta * self.RLac
        self.Zin = self.Rb2 * ZBase / (self.Rb2 + ZBase)
        self.expect("Label25", "Zin = " + whole(self.Zin) + " K")
        self.expect("Label26", shown(1000 / ((6.28 * fo * 0.1) * self.Zin)) + " mF")
        self.expect("Label28", shown(1000 / ((6.28 * fo * 0.1) * self.RLw)) + " mF")
        self.expect("Label22", "ERb1= " + shown(ERb1) + " Volts")
        self.expect("Text18", shown(obtained) + " mA", "text")

    def analysis(self):
        Rg = self.value("Text4")
        square = (self.Eopp / 2 * 0.707) ** 2
        output, entering, generator = (shown(square / (R * 1000) * 1000000) + " microW" for R in (self.RLac, self.Zin, Rg))
        text = self.words("Potencia de salida :\n         Eo(eficaz)^2 / RLw =",
                          "Output power:\n        Eo(r.m.s.)^2 / RLw =") + output + "\n"
        light = self.Zin * 1000 > Rg * 1000
        if light:
            text += self.words(" La Zin de entrada es lo suficientemente elevada y no presentara una carga 'pesada'  al generador",
                               " The entrance Zin is the sufficiently high thing and it didn't present a load ' heavy ' to the "
                               "generator")
        else:
            text += self.words("La potencia que puede desarrollar el generador es:",
                               "The power that can develop the generator is: ")
            text += "\n             Pg = " + generator + "\n"
            text += self.words(" La Zin de entrada es mas pequeña que la del generador, este necesitara suministrar una potencia de :",
                               "The entrance Zin is but small that that of the generator, this she/he needed to give a power of: ")
            text += "\n                 Ein^2 / Zin =" + entering
        print("click Picture2")
        quoted = '"' + text.replace("\n", "\\n") + '"'
        print(f"expect-in Form6 Label1.caption {quoted}")
        print("expect-in Form6 shown " + ("Image2" if light else "Image5"))
        print("expect-in Form6 hidden " + ("Image5" if light else "Image2"))
        print("window Form17\nclick Picture1\nanswer no\nclose\nexpect-box *")


header("form17.py")
Follower("the stored values, with the small voltage that they leave to the transistor", "spanish", {}).run()
Follower("the design of the work guide", "english",
         {"Text9": "1", "Text13": "2", "Text15": "4.7", "Text16": "47", "Text17": "16.4"}).run()
Follower("a large output, without a question", "spanish",
         {"Text12": "50", "Text5": "60", "Text6": "250", "Text2": "220", "Text4": "2.2", "Text9": "2.2", "Text13": "10",
          "Text15": "10", "Text16": "82", "Text17": "47"}).run()
Follower("a supply of one's own, germanium, a generator that is lighter than the input", "english",
         {"Text7": "0.2", "Text2": "60", "Text4": "47", "Text9": "1.5", "Text13": "1.2", "Text15": "3.3", "Text20": "9",
          "Text16": "22", "Text17": "50"}).run()
Follower("the smallest load and output, and a Res that is a tie of four decimals", "spanish",
         {"Text12": "0.000001", "Text9": "0.0015625", "Text13": "0.01", "Text4": "1"}).run()
Follower("figures of fifteen digits, and an input of nothing", "english",
         {"Text9": "1.23456789012345678", "Text13": "7.77777777777777777", "Text14": "0", "Text5": "1000000",
          "Text6": "1000000", "Text2": "987.654321", "Text15": "3.14159265358979", "Text16": "31.4159265358979"}).run()
