#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of Form4 with their analysis, worked out from the course's formulas alone.

Prints a walk: what a student enters, and what must then be shown, Spanish and English side by side. The committed
tests/walks/form4/figures.walk is this script's output; the walk player compares every character.
"""
import math


def currency(number):
    """Four decimals, the nearest, ties to the even one (Python's round does just that)."""
    return round(number * 10000) / 10000


def shown(number):
    scaled = round(number * 10000)
    whole, fraction = divmod(abs(scaled), 10000)
    return ("-" if scaled < 0 else "") + (f"{whole}.{fraction:04d}".rstrip("0") if fraction else str(whole))


def digits(number):
    return "%.15G" % (number + 0.0)


def whole(number):
    return digits(float(math.trunc(number)))


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


def rms(peak_to_peak):
    return (peak_to_peak / 2) * 0.707


STORED = {"Text1": "10", "Text3": "75", "Text4": "2.5", "Text8": "1", "Text9": "10", "Text13": "3", "Text11": "140",
          "Text10": "10", "Text2": "100", "Text12": "20", "Text5": "30", "Text6": "100", "Text7": "0.6"}
PARAMETERS = ["Text1", "Text3", "Text4", "Text8", "Text9", "Text13", "Text11", "Text14", "Text10", "Text2", "Text12",
              "Text5", "Text6", "Text7"]


class Design:
    """One design on paper. `field` holds the texts as the sheet shows them: what is read again is what was shown."""

    def __init__(self, title, entries):
        print(f"\n# {title}\nnew Form4")
        self.entries = entries
        self.field = dict(STORED)
        self.parameters()
        self.emitter()
        self.supply()
        self.collector()
        self.lower_base_resistor()
        self.preset()
        self.analysis()

    def value(self, field):
        return float(self.field[field])

    def enter(self, field):
        entry = self.entries.get(field)
        if entry is not None:
            self.field[field] = digits(float(entry))
        print(f"enter {field}" + (f" {entry}" if entry is not None else ""))

    @staticmethod
    def expect(control, spanish, english=None):
        print(f"expect {control} {quoted(spanish)}" + (f" | {quoted(english)}" if english is not None else ""))

    def shows(self, field, text):
        self.field[field] = text
        self.expect(field + ".text", text)

    def parameters(self):
        for field in PARAMETERS:
            if field == "Text14":
                self.shows("Text14", digits(rms(self.value("Text13")) / self.value("Text11")))
            self.enter(field)
            if field == "Text14":
                output = ((self.value("Text14") * 1.41) * 2) * self.value("Text11")
                self.shows("Text13", shown(output))
            if field == "Text9":
                self.expect("Label31.caption", self.field["Text9"] + "\nK")
        self.design_current = self.value("Text8")
        drift = (self.value("Text3") - 20) * (self.value("Text4") / 1000)
        self.ERes = (drift * 100) / self.value("Text1")
        proposal = shown(self.ERes / (self.design_current / 1000) / 1000)
        self.shows("Text18", proposal)
        self.expect("Label32.caption", f"Res= {proposal} KOhm\nColoque valor comercial...",
                    f"Res= {proposal} KOhm\nPut normalized value...")
        self.expect("Label20.caption", f"Tensión de estabilidad:\nEres = {shown(self.ERes)} V",
                    f"Voltage  of stability:\nEres = {shown(self.ERes)} V")

    def emitter(self):
        self.enter("Text18")
        self.Res = self.value("Text18")
        self.expect("Text18.text", self.field["Text18"] + " K")
        self.shows("Text8", digits(self.ERes / self.Res))
        self.re = 0.025 / (self.design_current / 1000)
        self.expect("Label32.caption", f"r'e = {shown(self.re)} Ohms")

    def supply(self):
        Eopp = self.value("Text13")
        least = shown(max(4.0, (0.5 * Eopp + self.ERes) + (max(2.0, Eopp) + 1)))
        self.shows("Text20", least)
        self.expect("Label19.caption", f"Tensión min. de fuente:\n{least}   Volts\nColoque tensión disponible...",
                    f"Source voltage min.: \n{least}   V\nPlace available voltage.. .")
        RLac = self.value("Text11") * self.re / 1000
        self.Eq = max(3.0, Eopp + 1)
        RL = (self.value("Text9") * RLac) / (self.value("Text9") - RLac)
        if RL < 0.1:
            print("answer no")
        self.enter("Text20")
        if RL < 0.1:
            print("expect-box * *  20")
            small = shown(RL / 1000)
            self.expect("Label19.caption", f"= {small}  Kohm, coloque valor comercial...",
                        f"= {small}  Kohm, put normalized value...")
        else:
            self.expect("Label19.caption", f"RL = {whole(RL)}  Kohm")
        self.shows("Text15", shown(RL))

    def collector(self):
        if "Text15" in self.entries:
            self.field["Text15"] = self.entries["Text15"]
        QIc = self.value("Text8")
        self.ERL = ((QIc / 1000) * self.value("Text15")) * 1000
        self.small = self.ERL * 2 < self.value("Text13")
        if self.small:
            print("answer yes")
        self.enter("Text15")
        if self.small:
            print("expect-box * * 36")
        self.expect("Label22.caption", ("ERl= " if self.small else "ERl = ") + shown(self.ERL) + " V")
        self.expect("Label23.caption", f"Eq ={shown(self.Eq)} V")
        self.shows("Text20", shown(self.ERes + self.ERL + self.Eq))
        RL = self.ERL / QIc
        self.expect("Label19.caption", f"RL = {shown(RL)} Kohm")
        RLac = (self.value("Text9") * RL) / (self.value("Text9") + RL)
        self.expect("Label10.caption", f"RLac = {shown(RLac)} Kohms")
        self.shows("Text11", shown((RLac * 1000) / self.re))
        Rb2 = shown(currency(self.value("Text10") * self.Res))
        self.expect("Label21.caption", f"Rb2 ={Rb2} Kohm\nColoque un valor comercial.",
                    f"Rb2 ={Rb2} Kohm\nPut normalized value...")
        self.shows("Text16", Rb2)

    def lower_base_resistor(self):
        self.enter("Text16")
        self.Rb2 = self.value("Text16")
        base = (self.value("Text2") * self.value("Text15")) * 1000
        beside = ((self.Rb2 * 1000) * base) / ((self.Rb2 * 1000) + base)
        Rb1 = (((self.Eq + self.ERL) - self.value("Text7")) * beside) / (self.ERes + self.value("Text7"))
        self.shows("Text17", shown(Rb1 / 1000))
        self.expect("Label24.caption", f"Rb1 = {shown(Rb1 / 1000)} Kohm\nColoque valores al 'Preset'y pulse Enter...",
                    f"Rb1 = {shown(Rb1 / 1000)} Kohm\nAssign  values to the  'Preset' and push Enter...")
        self.expect("Label21.caption", f"      Rb2 = {shown(self.Rb2)} K")
        self.shows("Text10", shown(self.Rb2 / self.Res))

    def obtained(self, Rb1):
        VRes = (self.Res * 1000) * (self.value("Text8") / 1000)
        upper = (self.value("Text20") - (VRes + 0.6)) / (Rb1 * 1000)
        lower = (VRes + 0.6) / (self.Rb2 * 1000)
        return ((upper - lower) * self.value("Text2")) * 1000

    def preset(self):
        if "Text17" not in self.entries:  # turned until the current is the one designed
            VRes = (self.Res * 1000) * (self.value("Text8") / 1000)
            through = self.value("Text8") / (self.value("Text2") * 1000) + (VRes + 0.6) / (self.Rb2 * 1000)
            self.entries["Text17"] = "%.5g" % ((self.value("Text20") - (VRes + 0.6)) / through / 1000)
        self.enter("Text17")
        Rb1 = self.value("Text17")
        self.expect("Label24.caption", f"Rb1 = {shown(Rb1)} Kohm")
        fo, RLw = self.value("Text12"), self.value("Text9")
        self.Cin = shown(1 / ((6.28 * fo) * self.re) * 1000000) + " mF"
        self.Cout = shown(1 / (((6.28 * fo) * 0.1) * (RLw * 1000)) * 1000000) + " mF"
        self.common_base()
        current = self.obtained(Rb1)
        QIc = self.value("Text8")
        assert QIc * 0.9 < current < QIc * 1.1, (current, QIc)
        print("click Picture2")
        print("window Form4")
        self.expect("Label2.caption", shown(current) + " mA")

    def common_base(self):
        self.expect("Label26.caption", self.Cin)
        self.expect("Label27.caption", self.Cout)
        self.expect("Label28.caption", self.Cin)
        self.expect("Label25.caption", f"Zin={whole(self.re)} Ohm")

    def analysis(self):
        Eopp, Vg, fo = self.value("Text13"), self.value("Text11"), self.value("Text12")
        out = shown(rms(Eopp) ** 2 / (self.value("Text9") * 1000) * 1000000)

        def power(Zin):
            return shown((rms(Eopp) / Vg) ** 2 / Zin * 1000000)
        print(f"expect-in Form6 {'shown' if self.small else 'hidden'} Image3 image2")
        spanish = (f" Potencia de salida = {out} microW\n Potencia del generador = {power(self.re)} microW\n\n Cuando el generador "
                   "posee baja resistencia interna, resulta este circuito ideal como adaptador de impedancias...")
        english = (f" Output power = {out} microW\n Power of the generator = {power(self.re)} microW\n\n When the generator "
                   "possesses low internal resistance, it is this ideal circuit as adapter of impedances...")
        print(f"expect-in Form6 Label1.caption {quoted(spanish)} | {quoted(english)}")
        print("drag image2 Image4")
        print("window Form4")
        Zin = self.value("Text2") * self.re
        self.expect("Label25.caption", f" Zin = {whole(Zin)} Ohms")
        self.expect("Label26.caption", shown(1 / ((((6.28 * fo) * 0.1) * self.Res) * 1000) * 1000000) + " mF")
        self.expect("Label27.caption", self.Cout)
        self.expect("Label28.caption", shown(1 / (((6.28 * fo) * 0.1) * Zin) * 1000000) + " mF")
        self.expect_in_leaf("Label1", "Base a Masa", "Common Base", "Zin = r'e =", self.re, power(self.re))
        self.expect_in_leaf("Label2", "Emisor Desacoplado", "Emitter Bypass", "Zin = Beta x r'e =", Zin, power(Zin))
        print("click Picture1")
        self.common_base()
        print("expect-no-box")

    @staticmethod
    def expect_in_leaf(label, spanish, english, impedance, Zin, power):
        def column(title, words):
            return quoted(f"     {title}\n{impedance} {whole(Zin)} Ohms\n {words} = {power} microW")
        print(f"expect-in Form6 {label}.caption " + column(spanish, "Potencia del generador") + " | " +
              column(english, "Power of the generator"))


def main():
    print("# Written by tests/figures/form4.py; not to be changed by hand.")
    print("language spanish | english")
    Design("the proposals but for standard resistors; 1.375 V / 1.3 K needs all fifteen digits",
           {"Text18": "1.3", "Text20": "12", "Text15": "5.6", "Text17": "57.4"})
    Design("the lower ends of the ranges; the load voltage is small and accepted",
           {"Text1": "1", "Text3": "25", "Text4": "2", "Text8": "0.5", "Text9": "1", "Text13": "0.5", "Text11": "5",
            "Text10": "1", "Text2": "20", "Text12": "1", "Text5": "2", "Text6": "0.5", "Text7": "0.2",
            "Text18": "2.2", "Text20": "5", "Text15": "0.33", "Text16": "2.2"})
    Design("the upper ends of the ranges",
           {"Text1": "10", "Text3": "200", "Text4": "3", "Text8": "20", "Text9": "100", "Text13": "20",
            "Text11": "200", "Text10": "10", "Text2": "500", "Text12": "20000", "Text5": "60", "Text6": "1000",
            "Text7": "0.7", "Text18": "0.27", "Text20": "40", "Text15": "0.27"})
    Design("ties of four decimals go to the even digit: Rb2 = 1 x 0.03125 is 0.0312; the supply is never below 4 V",
           {"Text3": "25", "Text4": "2", "Text8": "4", "Text9": "1", "Text13": "1", "Text11": "50", "Text10": "1",
            "Text18": "0.03125", "Text15": "0.47"})
    Design("who insists on a small current gets a resistor a thousand times too small in the advice",
           {"Text11": "3", "Text18": "1.5", "Text20": "9", "Text15": "0.082", "Text16": "15"})


if __name__ == "__main__":
    main()
