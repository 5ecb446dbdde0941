# SPDX-License-Identifier: MIT
"""Whole designs of the power amplifiers with real keys and clicks: a stage that is warned, goes back a step, changes its language
half-way, shows its calculations, is reported, saved and opened anew, and told by its guide. Figures are worked out beside each
step."""
import unittest

from journey import Journey, until


class Power(Journey):
    def open(self, *items):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("ctrl+n")
        velmor.choose(*items)
        until(lambda: len(velmor.sheets()) == 2, "the second sheet")

    def step_back(self, there, value, here):
        """Another thought about the last field, and the first one after all."""
        velmor = self.program
        velmor.key("alt+BackSpace")
        velmor.focused(there)
        velmor.wait_value(there, value)
        velmor.key("ctrl+y")
        velmor.focused(here)

    def report(self, title, *texts):
        velmor = self.program
        velmor.key("ctrl+r")
        velmor.reads(*texts)
        velmor.turn_to(title)

    def keep(self, name, items, archived, *values):
        """The file brings the design back in a sheet of its own."""
        velmor = self.program
        path = velmor.home + "/" + name
        velmor.save(path)
        before = len(velmor.sheets())
        velmor.open_circuit(path, *items)
        until(lambda: len(velmor.sheets()) == before + 1, "one sheet more")
        velmor.shows("^" + archived)
        for symbol, text in values:
            velmor.wait_value(symbol, text)

    def guide(self, heading):
        self.program.key("ctrl+g")
        self.program.reads(heading)


class ClassA(Power):
    def test_a_simple_stage_from_its_power_to_its_guide(self):
        velmor = self.program
        self.open("Potencia, Clase A", "Clase A Simple")
        velmor.picture("form15-start")
        self.to_the_collector()
        self.too_large_a_collector_resistor()
        velmor.speak(english=True)
        self.to_the_generator()
        self.report("^Amplificador Clase A", "Results of the design of Power in Class A ,Simple : ", "RLw = 16", "Vg (Q1)= 239",
                    "Eopp = 13.1872")  # as the finished circuit is measured: 2 x 16 x 0.4121
        self.keep("stage.CAS", ("Power, Class A", "Class A - Simple"), "Archive Circuit",
                  ("Es", "13.1872"), ("RL", "160"), ("Rb1b", "249"), ("Rb2", "170"))
        self.guide("AMPLIFICADOR DE POTENCIA EN CLASE A SIMPLE")

    def to_the_collector(self):
        velmor = self.program
        velmor.design(
            ("Po", "", "RLw"),
            ("RLw", "", "Elija resistencia ó parlante", r"^Eq= 6\.5947 V"),  # 0.66 x sqr(0.78 x 8 x 16)
        )
        velmor.press(velmor.see("^Carga: resistencia"))
        velmor.design(
            ("β2", "", "β1"),
            ("β1", "", "QIc2", ("QIc2", "0.4121"), r"es : 0\.3122 A, ERLw = 5\.9947 V"),  # 1.1 x 5.9947 / 16; 9.992 / 32
            ("QIc2", "", "Es", ("Es", "13.1872")),  # 2 x 16 x 0.4121
            ("Es", "", "RL", r"^EQ2= 6\.5936 V", r"^EQ1= 7\.1936 V", r"^ERL= 5\.9936 V", "^Zin= 1600 Ohm", ("RL", "160")),
        )

    def too_large_a_collector_resistor(self):
        """Ten times 200 ohms weigh on the 1600 of the output. The table of resistors knows no better."""
        velmor = self.program
        velmor.type("200")
        velmor.key("Return")
        velmor.answer("QIc1 no es suficiente", "Return")
        velmor.focused("RL")
        field = velmor.field("RL")
        velmor.key("F1")
        velmor.see("^Resistores$")
        velmor.press(field)
        velmor.focused("RL")
        velmor.key("ctrl+a")

    def to_the_generator(self):
        velmor = self.program
        velmor.design(
            ("RL", "160", "Rb1b", r"^0\.0375 A", r"it is : 0\.0062 A", ("Rb1b", "160")),  # 5.9936 / 160; 9.992 / 1600
            ("Rb1b", "", "Rb1a", ("Rb1a", "1440")),  # 10 x 160 - 160
            ("Rb1a", "", "Rb2", r"^Cbp= 49\.7611 mF", ("Rb2", "160.1537")),  # 0.6 / (6.5936 / 1600 - 0.03746 / 100)
        )
        velmor.picture("form15-half")
        velmor.design(
            # 6.5936 / (0.6 / 170 + 0.0003746) - 1440; 20 x (1440 // 170 // 100 x 0.025 / 0.03746); 160 x 0.03746 / 0.025
            ("Rb2", "170", "Rs", ("Rb1b", "249"), "^Zin= 46 Ohms", r"^Ccin= 171\.6624 mF \(200 c/s\)", r"^Vg \(Q1\)= 239",
             r"^Eg= 0\.2947 V\(r\.m\.s\.\)", ("Rs", "927")),
        )
        self.step_back("Rb2", "160.1537", "Rs")
        velmor.wait_value("Rb1b", "249")
        velmor.design(
            # (13.1872 / 2 x 0.707) squared / 16; 1440 / 46.3805 x 9.992 / 239.744 / 2 x 0.707
            ("Rs", "", "Po", r"^This circuit gives a Power \(r\.m\.s\.\) = 1\.3582 Watts", r"^Ein= 0\.4574 V\(ef\)"),
        )
        velmor.picture("form15-finished")


class ClassADarlington(Power):
    def test_a_darlington_stage_drives_a_loudspeaker(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.speak(english=True)
        self.open("Power, Class A", "(Class A Darlington)")
        velmor.picture("form20-start")
        self.to_the_supply()
        self.too_low_a_supply()
        velmor.speak(english=False)
        self.to_the_generator()
        self.report("^Power Amplifier", "Resultados del diseño de Potencia en Clase A Compuesto: ", "RLw = 11.2", "Vg (Q1)= 256")
        self.keep("etapa.CAD", ("Potencia, Clase A", "Clase A - Darlington"), "Circuito de Archivo",
                  ("RLw", "11.2"), ("Es", "13"), ("RL", "5600"), ("Rb1b", "1895"), ("Rs", "31783"))
        self.guide("EMISOR COMÚN REALIMENTADO POR CORRIENTE")

    def to_the_supply(self):
        velmor = self.program
        velmor.design(
            ("Po", "", "RLw"),
            ("RLw", "", "Choose resistor or loudspeaker", r"^Eq= 6\.5947 V"),
        )
        velmor.press(velmor.see("^Load: loudspeaker"))
        velmor.design(
            ("β3", "", "β2"),
            # 0.7 x 16; 1.1 x (6.5947 - 1.2) / 16
            ("β2", "", "QIc3", ("RLw", "11.2"), ("QIc3", "0.3709"), r"ERLw = 5\.3947 V"),
            ("QIc3", "", "Es", ("Es", "8.3082")),  # 2 x 11.2 x 0.3709
        )

    def too_low_a_supply(self):
        """What the load asks for leaves RL 1.7135 V, and half of Eq is 3.2974. The student goes back and takes more."""
        velmor = self.program
        velmor.key("Return")
        velmor.answer("Voltage ERL should overcome half of Eopp", "Return")
        velmor.focused("RL")
        velmor.shows(r"^ERL= 1\.7135 V")
        velmor.key("alt+BackSpace")
        velmor.focused("Es")
        velmor.design(("Es", "13", "RL", r"^EQ3= 8\.8459 V", r"^EQ1= 6\.5947 V", r"^ERL= 6\.4053 V", "^Zin= 56000 Ohm", ("RL", "5600")))
        velmor.picture("form20-half")

    def to_the_generator(self):
        velmor = self.program
        velmor.design(
            ("RL", "", "Rb1b", r"superBeta = 5000 .*es de :0\.0002", r"^0\.0011 A", ("Rb1b", "112")),  # 9.992 / 56000; 6.4053 / 5600
            ("Rb1b", "", "Rb1a", ("Rb1a", "55888")),  # 10 x 5600 - 112
            ("Rb1a", "", "Rb2", "^Cbp= 71 mF", ("Rb2", "6275.4825")),  # 0.6 / (5.9947 / 56000 - 0.0011438 / 100)
            # 5.9947 / (0.6 / 6500 + 0.000011438) - 55888; 20 x (55888 // 6500 // 100 x 0.025 / 0.0011438)
            ("Rb2", "6500", "Rs", ("Rb1b", "1895"), "^Zin= 1589 Ohms", r"^Ccin= 5 mF \(200 c/s\)", r"^Vg \(Q1\)= 256",
             r"^Eg= 0\.2757 V\(r\.m\.s\.\)", ("Rs", "31783")),
            # a fifth and four fifths of 5600; 55888 / 1589.167 x 9.992 / 256.212 / 2 x 0.707; (0.3709 x 11.2 x 0.707) squared / 11.2
            ("Rs", "", "Po", "^RLb = 4480 Ohm", "^RLa = 1120 Ohm Cbp1 = 7 mF", r"^Ein= 0\.4848 V\(ef\)", r"= 0\.7701 Watts"),
        )
        velmor.picture("form20-finished")


class ClassB(Power):
    def test_a_simple_stage_from_its_power_to_its_guide(self):
        velmor = self.program
        self.open("Potencia, Clase B", "Clase B Simple")
        velmor.picture("form10-start")
        self.to_the_base()
        velmor.speak(english=True)
        self.to_the_load()
        self.to_the_peak_current()
        self.report("^Amplificador de Potencia", "Icmáx (A)= 1.375 Amps", "Pg = 316  microW,   Value with complete", "Vg (Q1)= 87")
        self.keep("stage.CBS", ("Power, Class B", "Class B Simple"), "Archive Circuit",
                  ("Es", "24"), ("Ibias", "6.66666666666667"), ("RLb", "0.5"), ("Rs", "5.6"), ("Ip", "1.375 Amps"))
        self.guide("EMISOR COMÚN REALIMENTADO POR CORRIENTE")

    def to_the_base(self):
        velmor = self.program
        velmor.design(
            ("Po", "", "RLw"),
            ("RLw", "", "Es", r"\(Es\), es : 23\.0571 Volts"),  # 2 x 0.66 x 1.41 x 2 x sqr(4 x 8) + 2
        )
        velmor.type("20")
        velmor.key("Return")
        velmor.answer("Tensión Eq no puede manejar Eopp", "Return")
        velmor.focused("Es")
        velmor.key("ctrl+a")
        velmor.design(
            ("Es", "24", "Ibias", "^Eq=12 V", r"^ERl = 10\.8 Volts", ("Ibias", "6 mA")),
            ("Ibias", "", "Rb1a", r"RL\(total\) : 1\.8 K", "^Rd= 100 Ohms"),  # 10.8 / 6; 600 / 6
        )
        velmor.press(velmor.field("Rb1a"))
        # 11.4 V over 18 K less 60 microamperes; 0.6 V over the rest
        velmor.shows(r"Rb1 = S x RL = 18 K ERb1 = Eq - 0\.6 = 11\.4 Volts .* IRb2 = IRb1 - Ib = 573\.3333 microA .* Rb2 = 1\.0465 Kohms")
        velmor.picture("form10-page")
        velmor.key("Return")
        velmor.focused("Rb1b")

    def to_the_load(self):
        velmor = self.program
        velmor.press(velmor.field("Rb1b"))
        velmor.wait_value("Rb1b", "10")
        velmor.shows("^To half of the value of Rb1")
        velmor.design(
            ("Rb1b", "", "Rb1a", ("Rb1a", "12"), r"Rb1a = 13\.5 K"),  # 3/4 of 18 K
            ("Rb1a", "", "Rb2", ("Rb2", "1"), r"of Rb2 is : 1\.0465 K"),
            ("Rb2", "", "RLb", ("RLb", ""), r"^IRb1 = 633\.3333 microÄ Ib = 60 microA", r"25 % of RL\(total\) : 0\.45 K"),
        )
        velmor.picture("form10-half")
        self.step_back("Rb2", "1", "RLb")
        velmor.design(("RLb", "0.5", "RLa", r"of RLa is : 1\.3 K"))

    def to_the_peak_current(self):
        velmor = self.program
        velmor.type("1.3")
        velmor.key("Return")
        # 12 V over 1.8 K are 6.6667 mA, r'e is 3.75 ohms: 375 // 1000 // 10000; 1800 // 400 over 3.75; 15.9523 over 87.2727
        velmor.shows(r"Rb1b = 265\.4867 Ohms Rs = 20 x Zin = 5309\.7345 Ohms .* Vg\(T1\) = 87\.2727 times"
                     r" .* Ein = Eopp / Vg = 0\.1828 Volts")
        velmor.key("Return")
        velmor.design(
            # 5600 / 265.4867 x 0.1828; the capacitors for 20 c/s
            ("Rs", "5.6", "Ic(max)", r"^Z = 5\.8655 K Ein = 3\.8556 Volts p-p", r"^Cin = 29\.9894 microF", r"^Cbp = 6\.1244 microF"),
            ("Ic(max)", "2", "Vce(sat)", "^It places value of Ic"),
        )
        velmor.key("Return")
        velmor.wait_value("Ip", "1.375 Amps")  # (12 - 1) / 8
        velmor.shows(r"^The peak current .* :1\.375 Amper, .* the cage of your head")
        velmor.picture("form10-finished")


class ClassBDarlington(Power):
    def test_a_darlington_stage_is_analysed_and_started_without_harm(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.speak(english=True)
        self.open("Power, Class B", "Class B Darlington")
        velmor.picture("form11-start")
        self.too_low_a_supply()
        self.to_the_base()
        velmor.speak(english=False)
        self.to_the_load()
        self.to_the_peak_current()
        self.steps_of_the_start()
        self.report("^Power Amplifier", "Icmáx (A)= 2.0875 Amps", "Vg (Q1)= 16")
        self.keep("etapa.CBD", ("Potencia, Clase B", "Clase B - Darlington"), "Circuito de Archivo",
                  ("Es", "36"), ("Rb1b", "46.8"), ("RLa", "3.9"), ("Rs", "1.5"), ("Ip", "2.0875 Amps"))
        self.guide("CLASE B MEJORADO (DARLINGTON)")

    def too_low_a_supply(self):
        """15 V are less than 0.66 x 25.2982 V, and 12.6 V on the driver's load less than half of 25.2982 V."""
        velmor = self.program
        velmor.design(
            ("Po", "", "RLw"),
            ("RLw", "", "Es", ("Es", "35.3937")),  # 2 x 0.66 x sqr(10 x 8 x 8) + 2
        )
        velmor.type("30")
        field = velmor.field("Es")
        velmor.key("Return")
        velmor.answer("Voltage Eq can not manage", "Escape")
        velmor.answer("Insufficient voltage ERL", "Return")
        velmor.see(r"^Voltage in ERl can not manage half of EOPP, the output sign is 25\.2982 V, .* Erl of: 12\.6491")
        velmor.press(field)
        velmor.focused("Es")
        velmor.wait_value("Es", "35.3937")
        velmor.key("ctrl+a")

    def to_the_base(self):
        velmor = self.program
        velmor.design(
            ("Es", "36", "Ibias", "^Eq=18 V", r"^ERl = 15\.6 Volts", ("Ibias", "3 mA")),
            ("Ibias", "", "Rb1a", r"RL\(total\) : 5\.2 K", "^Res = 100 Ohms", ("Rb1a", "Click")),  # 15.6 / 3; 300 / 3
        )
        velmor.press(velmor.field("Rb1a"))
        # 18 V less 0.9 V over 52 K less 30 microamperes; 0.9 V over the rest
        velmor.see(r"Rb1 = S x RL = 52 K .* = 17\.1 Volts .* IRb2 = IRb1 - Ib = 298\.8462 microA .* Rb2 = 3\.0116 Kohms")
        velmor.picture("form11-page")
        velmor.press(velmor.see("^Back$", "push button"))
        velmor.focused("Rb1b")

    def to_the_load(self):
        velmor = self.program
        velmor.press(velmor.field("Rb1b"))
        velmor.wait_value("Rb1b", "46.8")  # 52 - 5.2
        velmor.design(
            ("Rb1b", "", "Rb1a", ("Rb1a", "46.8"), r"valor de el Preset : 46\.8"),
            ("Rb1a", "", "Rb2", ("Rb2", "3.0116"), r"^Cba= 0\.1701 mF"),  # 1 / (125.6 x 46.8 K)
            ("Rb2", "3", "RLb", ("RLb", "1.3")),  # 5.2 / 4
        )
        velmor.picture("form11-half")
        self.step_back("Rb2", "3.0116", "RLb")
        velmor.design(("RLb", "", "RLa", ("RLa", "3.9")))
        velmor.key("Return")
        # 18 V over 5.2 K; 25 / 3.4615 + 100 ohms into 3900 // 3200; 3 K // 10722 // 46800 / 16.3935
        velmor.see(r"/ Vg = 1287\.1904 Ohms .* Vg\(T1\) = 16\.3935 veces Ein = Eopp / Vg = 1\.5432 Volts pico-pico")
        velmor.press(velmor.see("^Volver$", "push button"))

    def to_the_peak_current(self):
        velmor = self.program
        velmor.design(
            # twice 1.5432 V, since 1500 / 1287.19 is less than two; half of it, times 0.707
            ("Rs", "1.5", "Ic(max)", r"^Z = 2\.7872 K Ein = 1\.091 Volts \(r\.ms\.\)", ("Ibias", "3.46153846153846")),
            ("Ic(max)", "4", "Vce(sat)", "^Si disminuye el valor de la frecuencia de corte"),
        )
        velmor.key("Return")
        velmor.wait_value("Ip", "2.0875 Amps")  # (18 - 1 - 0.3) / 8
        velmor.shows(r"^La corriente pico .* :2\.0875 Amper, .* de su cabeza")
        velmor.picture("form11-finished")

    def steps_of_the_start(self):
        velmor = self.program
        field = velmor.field("Po")
        velmor.key("ctrl+1")
        velmor.see("^Recomendaciones para la puesta en marcha: .* 4\\)", "label")
        velmor.see("^9\\).* 2\\.5 a 10 mA", "label")
        velmor.picture("form11-steps")
        velmor.press(velmor.see("^Volver$", "push button"))
        velmor.press(field)
        velmor.focused("Po")
        velmor.shows("^Circuito sustituto de Rd y Diodos")


if __name__ == "__main__":
    unittest.main()
