#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whole designs of form20, the class A stage with a Darlington pair: what differs from form15.py, and nothing else.

Prints the walk tests/walks/form20/figures.walk.
"""
from form15 import Design, digits, minus_currency, shown, whole


class Darlington(Design):
    sheet = "form20"
    junctions = 1.2
    stored = {"Text1": "0.78", "Text2": "16", "Text10": "50", "Text11": "100"}

    def supply(self):
        self.enter("Text4")
        Es = self.value("Text4")
        self.EQ3 = Es - self.ERLw
        self.ERL = Es - self.Eq
        self.boxes((self.EQ3 > 30, "Tensión EQ2 no debe superar a Ec(max)...", "Voltage EQ2 no upper to Ec(max)..."),
                   (self.Eq > 30, "Tensión EQ1 no debe superar a Ec(max)...", "Voltage EQ1 upper to Ec(max)..."),
                   (self.ERL < self.Eq / 2, "Tensión ERL debe superar la mitad de Eopp, eleve la Fuente...",
                    "Voltage ERL should overcome half of Eopp, elevate the Source..."))
        self.expect("Label1", "EQ3= " + shown(self.EQ3) + " V")
        self.expect("Q1", "EQ1= " + shown(self.Eq) + " V")
        self.expect("Label10", "ERL= " + shown(self.ERL) + " V")
        self.expect("Label17", "ERLw= " + shown(self.ERLw) + " V")
        self.fill("Text5", shown((10 * self.RLw) * self.value("Text10")))
        self.ERb1 = minus_currency(self.Eq, 0.6)

    def driver(self):
        Zin = (self.RLw * self.value("Text10")) * self.value("Text11")
        self.expect("Label19", "Zin= " + whole(Zin) + " Ohm")
        self.enter("Text5")
        self.RL = self.value("Text5")
        assert self.RL * 10 <= Zin
        least = self.Eopp / Zin
        self.QIc1 = self.ERL / self.RL
        assert least <= self.QIc1
        self.boxes((self.QIc1 > 0.04, "QIc no debe superar el 40 % de Ic(max)", " QIc should not overcome 40% of Ic(max)"))
        beta = digits(self.value("Text10") * self.value("Text11"))
        if self.language == "spanish":
            told = [" con superBeta = " + beta + " (Beta Q2 x Beta Q3), es de :" + shown(least),
                    " Aqui vemos la diferencia con el Clase A simple...", "Si desea más estabilidad ' S ' puede disminuir RL"]
        else:
            told = [" with superBeta =" + beta + " (Beta Q2 x Beta Q3), it is :" + shown(least),
                    " Here we do the difference with the Class A simple...", " If you wants more stability ' S ',  RL can diminish"]
        for text in told:
            print(f'expect-contains Label15.caption "{text}"')
        self.expect("Label8", shown(self.QIc1) + "\n   A")
        self.fill("Text6", shown(10 * self.RLw))
        self.Rb1 = 10 * self.RL

    def base_capacitor(self, C):
        self.expect("Label5", "Cbp= " + whole(C * 1000000) + " mF")

    def input_capacitor(self, C):
        self.expect("Label2", "Ccin= " + whole(C * 1000000) + " mF (200 c/s)")

    def generator(self):
        super().generator()
        RLb = self.RL - self.RL * 20 / 100
        RLa = self.RL - self.RL * 80 / 100
        self.expect("Label9", "RLb = " + whole(RLb) + " Ohm")
        self.expect("Label22", "RLa = " + whole(RLa) + " Ohm\nCbp1 = " + whole(1 / (125.6 * RLa) * 1000000) + " mF")

    def measured_caption(self, power):
        if self.language == "spanish":
            return "Este circuito entrega una Potencia (r.m.s.) = \n      " + power + " Watts"
        return "This circuit gives a Power (r.m.s.) = \n      " + power + " Watts "


if __name__ == "__main__":
    print("# Whole designs of form20, worked out by tests/figures/form20.py from the course's formulas.")
    Darlington("the stored values", "spanish").run()
    Darlington("a smaller RL for more stability", "english", Text5="1500").run()
    Darlington("the loudspeaker, and a supply of 15 V", "spanish", loudspeaker=True, Text2="8", Text4="15", Text10="60").run()
    Darlington("the least power on 1000 ohm: 15 digits in Rb2, which is replaced", "english", Text1="0.01", Text2="1000",
               Text3="0.02", Text4="42", Text5="20000", Text8="1").run()
    Darlington("the largest power: all three boxes about the supply", "spanish", Text1="100", Text2="40", Text4="160",
               Text5="8000").run()
    Darlington("a tie of four decimals: ERLw is 6.39375, shown as 6.3938", "english", Text2="15.5", Text3="0.4125",
               ties=["ERLw"]).run()
