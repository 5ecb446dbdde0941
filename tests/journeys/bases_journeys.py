# SPDX-License-Identifier: MIT
"""Whole designs of common base, common collector and phase splitter with real keys and clicks, in Spanish and in English. Each is
explained, warned, goes back a step, opens its analysis, is reported, saved and opened anew, and told by its guide. What is read in
the two languages stands side by side; figures are worked out beside each step."""
import unittest

from both_languages import BothLanguages
from journey import Journey, until

APPROACH = ("Criterio de diseño...", "Design approach...")
OTHER_CURRENT = ("Corriente de Colector obtenida es diferente a QIc diseñada...", "Collector currents it's different to design..")
ADJUST = ("Ajuste valor de Rb1", "Adjust Preset Rb1...")


class Metered(BothLanguages):
    """A sheet whose milliammeter shows what the preset gives."""

    def obtained(self, text):
        velmor = self.program
        meter = self.say(("^QIc, Miliamperímetro", "^QIc, Milliammeter"))
        until(lambda: velmor.text(velmor.see(meter, "text")) == text, "the meter at " + text)


class CommonBase(BothLanguages, Journey):
    """A stage with its base to ground, compared with the one whose emitter is bypassed."""
    key, first = "alt+shift+F3", "ΔQIc"

    def whole_design(self):
        self.to_the_stability()
        self.in_the_other_language(self.transistor)
        self.to_the_resistor()
        self.step_back("Res", "Es", {"QIc": "1"})
        self.told({"QIc": "1.05769230769231"})
        self.picture("form4-half")
        self.to_the_divider()
        self.preset()
        self.analysis()
        self.reported()
        self.kept()

    def to_the_stability(self):
        self.told(("Máxima variación de la corriente de reposo (delta QIc) a la máxima temperatura de trabajo (T°)",
                   "Maximum variation of quiescent current (delta QIc) to the maximum work temperature (T°)"),
                  ("Coloque de 1 a 10 % y pulse Enter.", "Put 1 to 10 % and press Enter."),
                  ("Parámetros del transistor", "Transistor Parameters"), ("Parámetros del Circuito", "Circuit Parameters"))
        self.picture("form4-start")
        self.page("F1", ("Para circuitos electromédicos, de 1 a 3 %", "For electro-medical circuits, 1 to 3 %"))
        self.go(
            ("ΔQIc", "", "T", ("Máxima temperatura ambiente en la que trabajará", "Maximum ambient temperature in which")),
            ("T", "", "ΔVbe", ("Corrimiento de la tensión Base - Emisor", "Drift of the Base - Emitter voltage")),
            ("ΔVbe", "", "QIc", ("Corriente de reposo. La base está a masa", "Quiescent current. The base is at ground"),
             ("0,5 mA ó más", "0.5 mA or more")),
            ("QIc", "", "RLw", ("Carga sobre la que se desarrolla la tensión", "Load on which the output voltage")),
            ("RLw", "", "Eopp", "10 K", ("Tensión de salida, de pico a pico", "Output voltage, peak to peak")),
            ("Eopp", "", "Vg", ("Ganancia de tensión, Vg = RLac / r'e", "Voltage gain, Vg = RLac / r'e")),
            ("Vg", "", "Ein", {"Ein": "0.007575"}, ("Tensión eficaz de entrada", "Input voltage, r.m.s.")),  # 3 / 2 x 0.707 / 140
            ("Ein", "", "S", {"Eopp": "2.9906"}, ("Factor de estabilidad", "Stability factor")),  # 0.007575 x 1.41 x 2 x 140
        )

    def transistor(self):
        self.go(
            ("S", "", "β", ("Ganancia de corriente del transistor", "Current gain of the transistor")),
            ("β", "", "fo", ("Menor frecuencia de interés", "Lowest frequency of interest")),
            ("fo", "", "Ec(max)", ("Tensión máxima Colector - Emisor", "Maximum Collector - Emitter voltage")),
            ("Ec(max)", "", "Ic(max)", ("Corriente máxima de Colector", "Maximum Collector current")),
            ("Ic(max)", "", "Vj", ("Tensión de juntura: Silicio 0,6 V", "Junction voltage: Silicon 0.6 V")),
        )

    def to_the_resistor(self):
        self.go(
            # 55 x 2.5 mV x 100 / 10, over 1 mA
            ("Vj", "", "Res", {"Res": "1.375"}, ("Res= 1.375 KOhm Coloque valor comercial...",
                                                 "Res= 1.375 KOhm Put normalized value..."),
             ("Tensión de estabilidad: Eres = 1.375 V", "Voltage of stability: Eres = 1.375 V"),
             ("Resistor de emisor. El valor comercial", "Emitter resistor. The normalized value")),
            # 1.375 V over 1300 ohms; 1.4953 + 1.375 + 3.9906
            ("Res", "1.3", "Es", "r'e = 25 Ohms", {"QIc": "1.05769230769231", "Es": "6.8609"},
             ("Tensión min. de fuente: 6.8609 Volts Coloque tensión disponible...",
              "Source voltage min.: 6.8609 V Place available voltage.. ."),
             ("Asigne tensión de fuente en volts...", "Put a source voltage (V)...")),
        )

    def to_the_divider(self):
        self.warned("Es", "6", ("El diseño NO cumplira con las especificaciones circuitales...",  # less than 6.8609
                                "The design won't fulfill the specifications circuitales..."),
                    ("Al ser el valor de Fuente de Alimentación menor a la mínima necesaria, se produciran recortes de la señal...",
                     "The value of Source Voltage is smaller to the minimum one necessary, cuttings of the sign will take place..."))
        self.enter("Es", "12")  # 10 x 3.5 / 6.5 is 5.3846
        self.told("RL = 5 Kohm", ("Resistor de Colector, RL =", "Collector resistor, RL ="))
        self.go(
            # 140 x 25 ohms, and 10 x 3.5 / 6.5; then 5.6 x 1.0577, the sum of the three drops, 10 x 5.6 / 15.6 over 25 ohms
            ("RL", "5.6", "Rb2", "ERl = 5.9231 V", "Eq =3.9906 V", "RL = 5.6 Kohm", "RLac = 3.5897 Kohms",
             ("Rb2 =13 Kohm Coloque un valor comercial.", "Rb2 =13 Kohm Put normalized value..."),
             ("Resistor de base a masa", "Base resistor to ground"), {"Es": "11.2887", "Vg": "143.5897", "Rb2": "13"}),
            # (3.9906 + 5.9231 - 0.6) x 12.7051 K / 1.975
            ("Rb2", "", "Rb1", ("Rb1 = 59.9143 Kohm Coloque valores al 'Preset'y pulse Enter...",
                                "Rb1 = 59.9143 Kohm Assign values to the 'Preset' and push Enter..."), {"Rb1": "59.9143"},
             ("Para que se cumpla la distribución de tensiones, ajuste el ' Preset '",
              "So that the distribution of voltage is completed, adjust the ' Preset '")),
        )

    def preset(self):
        """(11.2887 - 1.975) / 50 K less 1.975 / 13 K, times 100; and so with 57.4 K."""
        velmor = self.program
        self.enter("Rb1", "50")
        self.told("Rb1 = 50 Kohm", ("Haga CLICK sobre el cuadro superior", "Make CLICK over Box up to see ' Leaf of Analysis '."))
        velmor.key("ctrl+1")
        self.answer(ADJUST, OTHER_CURRENT)
        self.told("3.4351 mA")
        velmor.press(velmor.field("Rb1"))
        self.enter("Rb1", "57.4")
        self.told("318.4713 mF", "7.9618 mF", "Zin=25 Ohm")  # 1 / (125.6 x 25); 1 / (12.56 x 10000)

    def analysis(self):
        """The same stage takes a hundred times less power when its signal enters the base."""
        velmor = self.program
        velmor.key("ctrl+1")
        # 1.0572 V squared over 10 K; / 140 over 25
        self.leaf(("Potencia de salida = 111.7623 microW", "Output power = 111.7623 microW"),
                  ("Potencia del generador = 2.1682 microW", "Power of the generator = 2.1682 microW"),
                  ("Cuando el generador posee baja resistencia interna", "When the generator possesses low internal resistance"))
        self.told("1.0337 mA", ("Intente llevar la señal que entra por emisor", "Drag drop the signal emmiter"))
        self.picture("form4-analysis")
        velmor.drag(velmor.see(self.say(("^Fuente de señal$", "^Signal source$"))),
                    velmor.see(self.say(("^Capacitor de entrada$", "^Entrance capacitor$"))))
        self.told("Zin = 2500 Ohms", "61.2445 mF", "31.8471 mF",  # 100 x 25; 1 / (12.56 x 1300); 1 / (12.56 x 2500)
                  ("Haga click sobre el boton de Hoja de Análisis", "Make Click over botton ' Leaf of Analysis '"))
        self.leaf(("Base a Masa Zin = r'e = 25 Ohms", "Common Base Zin = r'e = 25 Ohms"), "2.1682 microW")
        self.leaf(("Emisor Desacoplado Zin = Beta x r'e = 2500 Ohms", "Emitter Bypass Zin = Beta x r'e = 2500 Ohms"),
                  "0.0217 microW")
        self.picture("form4-bypassed")
        velmor.press(velmor.see(self.say(("^Volver de la hoja de análisis", "^Back from the leaf of analysis")), "push button"))
        self.told("Zin=25 Ohm", "318.4713 mF")
        self.picture("form4-finished")

    def reported(self):
        self.report(("Elaboración de Informe", "Report Design"), ("Alumno: ", "Student: "),
                    ("Base Común Realimentado p/ corriente, polarizado p/ Base",
                     "  Common Base, Feedback for Current, polarized for Base"),
                    ("Ejercicio N° 4 ", "Exercise N° 4 "), ("QIc = 1.0337 mA", "Qic (mA) = 1.05769230769231"), "Rb1 (kohm) = 57.4",
                    "Es = 11.2887", "Res (kohm) = 1.3 K", "ERl = 5.9231 V",
                    ("Conteste el siguiente cuestionario: ", "Answer the following questionnaire : "),
                    ("Que parámetros definen la tensión de estabilidad", "That parameters define the voltage of stability, ERes..?"))
        self.guide(("BASE COMÚN", "COMMON BASE"), ("1. OBJETIVO", "1. AIM"))

    def kept(self):
        self.keep(("base.BCC", "stage.BCI"), ("Base Común", "Common Base"), None,
                  {"Res": "1.3 K", "Es": "11.2887", "RL": "5.6", "Rb2": "13", "Rb1": "57.4"},
                  "ERl = 5.9231 V", ("Circuito de Archivo : Base Común", "Archive Circuit : Common Base"))



class SmallLoad(BothLanguages, Journey):
    """A common base whose load asks for more than its current gives: the ways that its questions open, and a clipped wave."""
    key, first = "alt+shift+F3", "ΔQIc"
    raise_current = (("Es aconsejable elevar la corriente QIc", "it is advisable to elevate the current QIc"),
                     ("La corriente asignada QIc es baja, debera elevarla aunque obtenga menos impedancia de entrada...",
                      "The assigned current QIc is low, it will elevate it although obtains less entrance impedance..."))
    small_gain = (("Voltaje ERL es menor a 1/2 Eopp ...", "Voltage ERL is less to 1/2 Eopp ..."),
                  ("En tiempo de diseño, la pequeña Vg asignada hace una ERL de insuficiente valor Continua..? (Si) Cambia Vg ...(No)",
                   "In time of design, the litlle Vg asignated make a small ERL Continue..? (Yes) Change Vg ...(No)"))

    def whole_design(self):
        self.go(("ΔQIc", "", "T"), ("T", "", "ΔVbe"), ("ΔVbe", "", "QIc"), ("QIc", "2", "RLw"), ("RLw", "1", "Eopp", "1 K"),
                ("Eopp", "", "Vg"), ("Vg", "3", "Ein", {"Ein": "0.3535"}))  # 3 / 2 x 0.707 / 3
        self.in_the_other_language(self.transistor)
        self.too_much_current()
        self.too_little_gain()
        self.clipped()
        self.pages()

    def transistor(self):
        """Two figures that no transistor stands."""
        self.go(("Ein", "", "S", {"Eopp": "2.9906"}), ("S", "", "β"), ("β", "", "fo"), ("fo", "", "Ec(max)"))
        self.warned("Ec(max)", "3.9", APPROACH,  # 2.9906 + 1 is more
                    ("La tensión ' Eopp ', no debe superar la máxima que soporta el transistor.",
                     "The voltage ' Eopp ' doesn't should it overcomes the maxim that supports the transistor."))
        self.enter("Ec(max)", "30")
        self.warned("Ic(max)", "1.9", APPROACH,
                    ("La corriente ' QIc ', no debe superar la máxima que soporta el transistor.",
                     "The current ' QIc ' doesn't should it overcomes the maxim that supports the transistor."))
        self.enter("Ic(max)", "100")
        self.through("Vj", {"Res": "0.6875"})  # 1.375 V over 2 mA

    def through(self, symbol, proposed):
        """From a parameter of the transistor to the supply, with the resistor that is proposed."""
        steps = ("Ein", "S", "β", "fo", "Ec(max)", "Ic(max)", "Vj", "Res")
        for at, then in zip(steps, steps[1:]):
            if steps.index(at) >= steps.index(symbol):
                self.go((at, "", then))
        self.told(proposed)
        self.go(("Res", "", "Es"))

    def too_much_current(self):
        """3 x 12.5 ohms, and 1 x 0.0375 / 0.9625 K: not even half of what is asked for. With 1 mA it is 0.075 / 0.925 K."""
        title, text = self.raise_current
        self.told({"Es": "6.8609"})  # 1.4953 + 1.375 + 3.9906
        self.warned("Es", "9", title, text, "n")
        self.answer(("No insista...", "You doesn't insist..."),
                    ("Lo siento, la corriente asignada QIc es demasiado baja, debera elevarla ...",
                     "Sorry, the assigned current QIc is too low, it will elevate it..."))
        self.warned("Es", "9", title, text, "y" if self.english else "s")
        self.go(("QIc", "1", "RLw"), ("RLw", "", "Eopp"), ("Eopp", "", "Vg"), ("Vg", "", "Ein"))
        self.through("Ein", {"Res": "1.375", "Eopp": "2.9812"})  # 2.9906 / 2 x 0.707 x 2.82
        self.warned("Es", "9", title, text, "n")
        self.told({"RL": "0.0811"}, ("= 0.0001 Kohm, coloque valor comercial...", "= 0.0001 Kohm, put normalized value..."))

    def too_little_gain(self):
        """0.082 V and 0.12 V do not hold half of Eopp: another gain, and then on with a clipped signal."""
        title, text = self.small_gain
        self.warned("RL", "0.082", title, text, "n")
        self.go(("Vg", "4", "Ein"))
        self.through("Ein", {"Eopp": "2.9719"})
        self.enter("Es", "9")
        self.told({"RL": "0.1111"}, "RL = 0 Kohm")  # 0.1 / 0.9
        self.warned("RL", "0.12", title, text, "y" if self.english else "s")
        # 1.375 + 0.12 + 3.9719; 0.12 / 1.12 K, over 25 ohms
        self.told("ERl= 0.12 V", "RLac = 0.1071 Kohms", {"Es": "5.4669", "Vg": "4.2857", "Rb2": "13.75"})
        self.picture("form4-small-load")

    def clipped(self):
        """(3.9719 + 0.12 - 0.6) x 6.6667 / 1.975; 3.4919 V over 24.6 K less 1.975 V over 15 K, times 100."""
        velmor = self.program
        self.go(("Rb2", "15", "Rb1", {"Rb1": "11.787", "S": "10.9091"}))
        self.enter("Rb1", "24.6")
        self.told("318.4713 mF", "79.6178 mF")
        velmor.key("ctrl+1")
        # 1.0506 V squared over 1 K; / 4.2857 over 25
        self.leaf(("Potencia de salida = 1103.6903 microW", "Output power = 1103.6903 microW"), "2403.6082 microW")
        self.told("1.028 mA")
        velmor.see(self.say(("^Señal recortada: ERL no alcanza", "^Clipped signal: ERL does not suffice")))
        self.picture("form4-clipped")
        velmor.key("ctrl+1")
        self.no_leaf("1103")
        self.told({"Rb2": "15"})

    def pages(self):
        """The page of the preset, and the table of resistors with it."""
        velmor = self.program
        velmor.press(velmor.field("Rb1"))
        velmor.focused("Rb1")
        self.page("F1", ("Menos Rb1, más corriente.", "Less Rb1, more current."))
        velmor.see(self.say(("^Resistores$", "^Resistor$")))
        self.picture("form4-table")


class CommonCollector(Metered, Journey):
    """A follower lends its current to a heavy load; two generators feel it differently."""
    key, first = "alt+shift+F6", "fo"

    def whole_design(self):
        self.start()
        self.in_the_other_language(self.to_the_load)
        self.to_the_resistor()
        self.question()
        self.preset()
        self.light()
        self.poor_generator()
        self.reported()
        self.kept()

    def start(self):
        self.told(("Menor frecuencia de interés. En ella cada capacitor", "Lowest frequency of interest. There each capacitor"),
                  ("Parámetros del Transistor", "Transistor Parameters"), ("Parámetros del Circuito", "Circuits Parameters"),
                  ("Rg de generador (Kohm)", "Rg of generator (Kohm)"))
        self.picture("form17-start")
        if self.english:  # the pages of this sheet stand in Spanish alone
            self.program.key("F1")
            self.program.see("^Not available$", "label")
        else:
            self.page("F1", "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )")

    def to_the_load(self):
        self.go(
            ("fo", "", "Ec(max)", ("Tensión Colector - Emisor que soporta", "Collector - Emitter voltage that the transistor")),
            ("Ec(max)", "", "Ic(max)", ("Corriente máxima de Colector", "Largest Collector current")),
            ("Ic(max)", "", "Vj", ("Tensión de juntura: 0.6 Volt", "Junction voltage: 0.6 Volt")),
        )

    def to_the_resistor(self):
        self.go(
            # 1 / 2 + 1 / 2 + 2 is less than 4
            ("Vj", "", "β", ("Tensión min. de fuente: 4 Volts Coloque tensión disponible...",
                             "Voltage min. of D.C. source : 4 Volts Put voltage available ..."),
             ("Ganancia de corriente del transistor.", "Current gain of the transistor.")),
            ("β", "", "Rg", ("Resistencia interna del generador, en Kohms.", "Internal resistance of the generator, in Kohms.")),
            ("Rg", "", "RLw", ("Carga del circuito, en Kohms.", "Load of the circuit, in Kohms.")),
            ("RLw", "1", "Eopp", "Rlw=1K", ("Tensión de salida pico a pico.", "Output voltage, peak to peak.")),
            ("Eopp", "2", "Ein", {"Ein": "0.707"}, ("Señal de entrada en valor eficaz.", "Input signal, r.m.s.")),
            # 0.707 x 1.41 x 2; over twice 1 K
            ("Ein", "", "QIc", {"Eopp": "1.9937", "QIc": "0.9968"}, ("QIc = Eopp / (2 x RLw)", "QIc = Eopp / (2 x RLw)")),
            ("QIc", "", "Res", {"Res": "20 K"}, "ERes= 19.936 Volts", ("Res = 20 x RLw casi no", "Res = 20 x RLw takes hardly")),
        )

    def question(self):
        """The transistor keeps less than 3 volts: gone on with, thought over, and gone on with."""
        self.picture("form17-half")
        self.warned("Res", "4.7", ("Tensión COLECTOR - EMISOR es menor a 3 Volts...",
                                   "Voltage COLLECTOR - EMITTER is smaller to 3 Volts..."),
                    ("Desea continuar..? (Si) Cambiar Fuente...(No)", "Continue..? (Yes) Change Source...(No)"))
        self.program.focused("Rb2")
        self.step_back("Res", "Rb2", {"Res": "20 K"})
        # 1.9937 / (2 x 0.82456 K), times 4.7
        self.told("Eq =2.9937 Volts", "ERes= 5.6818 Volts", {"Rb2": "47"},
                  ("Rb2 =47 Kohm Coloque un valor comercial.", "Rb2 =47 Kohm Put a normalized value."),
                  ("Formula utilizada: Rb2 = S x Res // RLw", "Formulates used : Rb2 = S x Res // RLw"))

    def preset(self):
        """2.3937 x 42.727 / 6.2818; then 2.3937 V over 12 K less 6.2818 V over 47 K, times 100; and so with 16.4 K."""
        self.go(("Rb2", "", "Rb1", {"S": "10"}, ("Rb1 = 16.2813 Kohm Coloque un valor comercial...",
                                                 "Rb1 = 16.2813 Kohm Put a normalized value..."),
                 ("Coloque un 'Preset' del doble", "Place a ' Preset ' of double")))
        self.warned("Rb1", "12", ADJUST, OTHER_CURRENT)
        self.obtained("6.5819 mA")
        self.enter("Rb1", "16.4")
        # 47 x 82.456 / 129.456; 1000 / (12.56 x 29.936); 1000 / (12.56 x 1)
        self.told("Zin = 29 K", "2.6596 mF", "79.6178 mF", "ERb1= 2.3937 Volts",
                  ("En el semáforo se encuentra la 'Hoja de Análisis'", "In the traffic light is the ' Leaf of Analysis '"))
        self.picture("form17-finished")

    def light(self):
        velmor = self.program
        velmor.key("ctrl+1")
        self.leaf(("Potencia de salida : Eo(eficaz)^2 / RLw =602.3868 microW",  # 0.70477 V squared over 824.56 ohms
                   "Output power: Eo(r.m.s.)^2 / RLw =602.3868 microW"),
                  ("La Zin de entrada es lo suficientemente elevada y no presentara una carga 'pesada' al generador",
                   "The entrance Zin is the sufficiently high thing and it didn't present a load ' heavy ' to the generator"))
        self.picture("form17-light")
        velmor.press(velmor.see(self.say(("^Quitar la Hoja de Análisis", "^Take the Leaf of Analysis away")), "push button"))
        self.no_leaf("602.3868")

    def poor_generator(self):
        """Rg may be changed at the end: 29 K are too little for 100 K."""
        velmor = self.program
        velmor.press(velmor.field("Rg"))
        self.enter("Rg", "100")
        velmor.focused("Rb1")
        velmor.key("Return", "ctrl+1")
        # 0.70477 V squared over 100 K and over 29.936 K
        self.leaf(("La potencia que puede desarrollar el generador es: Pg = 4.967 microW",
                   "The power that can develop the generator is: Pg = 4.967 microW"),
                  ("La Zin de entrada es mas pequeña que la del generador, este necesitara suministrar una potencia de : "
                   "Ein^2 / Zin =16.5921 microW",
                   "The entrance Zin is but small that that of the generator, this she/he needed to give a power of: "
                   "Ein^2 / Zin =16.5921 microW"))
        self.picture("form17-heavy")
        velmor.key("ctrl+1")
        self.no_leaf("16.5921")

    def reported(self):
        """All of the English report but its head is Spanish, and its questions are those of the differential amplifier."""
        self.report(("Elaboración de Informe : Colector Común", "Design :   Long Tail pair "), ("Alumno: ", "Student: "),
                    "Ejercicio N° 5 ", "Rg = 100", "Ein = 0.707 Volt (r.m.s.)", "Rb1 (kohm) = 16.4", "QIc  = 1.2301 mA",
                    "Cin = 2.6596 mF",
                    ("Aconsejo continuar con el diseño de Diferencial Compuesto ", "Aconsejo continuar con el diseño de Base a Masa "))
        self.guide("COLECTOR COMÚN", "1. OBJETIVO")

    def kept(self):
        self.keep(("seguidor.CCC", "follower.COC"), ("Colector Común", "Common Collector"), None,
                  {"RLw": "1", "Res": "4.7", "Rb2": "47", "Rb1": "16.4"}, "Zin = 29 K",
                  ("Circuito de Archivo", "Archive Circuit"))


class OwnSupply(BothLanguages, Journey):
    """A follower whose supply the student chooses: too little, more than the transistor stands, and one that does."""
    key, first = "alt+shift+F6", "fo"

    def whole_design(self):
        self.limits()
        self.in_the_other_language(self.too_little)
        self.too_much()
        self.anew()
        self.preset()

    def limits(self):
        velmor = self.program
        self.go(("fo", "", "Ec(max)"))
        self.warned("Ec(max)", "1.9", APPROACH,  # 1 + 1 is more
                    ("La tensión ' Eopp ', no debe supera la máxima que soporta el transistor.",
                     "The voltage ' Eopp ' doesn't should it overcomes the maxim that supports the transistor."))
        self.enter("Ec(max)", "20")
        self.go(("Ic(max)", "2", "Vj"), ("Vj", "", "β"), ("β", "", "Rg"), ("Rg", "", "RLw"), ("RLw", "", "Eopp", "Rlw=0.5K"))
        velmor.press(velmor.field("Vg"))
        self.warned("Vg", "7", ("Concepto de diseño.", "Design concept."),
                    ("La ganancia en Colector Común es unitaria...", "The gain in Common Collector is unitary..."))
        self.told({"Vg": "1", "Ein": "0.3535"})
        self.enter("Ein", "0.3535")
        # 0.9969 mA are more than 40 % of 2 mA
        self.answer(("Es conveniente elegir otro transistor...", "..it is convenient to choose another transistor."),
                    ("Corriente de Colector supera ICmax...", "Current of Collector ICmax overcomes..."))
        self.told({"Eopp": "0.9969"})
        self.go(("Ic(max)", "100", "Vj"), ("Vj", "", "β"), ("β", "", "Rg"), ("Rg", "", "RLw"), ("RLw", "", "Eopp"),
                ("Eopp", "1", "Ein", {"Ein": "0.3535"}), ("Ein", "", "QIc", {"QIc": "0.9969"}),
                ("QIc", "", "Res", {"Res": "10 K"}, "ERes= 9.969 Volts"))

    def too_little(self):
        """0.9969 / (2 x 0.45192 K) is 1.103 mA; with 4.7 K 5.1841 V, and 1.9969 V more."""
        self.warned("Res", "4.7", ("Tensión COLECTOR - EMISOR es menor a 3 Volts...",
                                   "Voltage COLLECTOR - EMITTER is smaller to 3 Volts..."),
                    ("Desea continuar..? (Si) Cambiar Fuente...(No)", "Continue..? (Yes) Change Source...(No)"), "n")
        self.told({"Es": "7.181"}, "Eq =1.9969 Volts")
        self.warned("Es", "5", ("Tensión COLECTOR - EMISOR es menor a 1 Volts...",
                                "Voltage COLLECTOR - EMITTER more small to 1 Volt..."), ("Insuficiente Fuente", "Not enugth source"))
        self.told({"Es": "5"}, "EQ = -0.1841 Volts")

    def too_much(self):
        self.warned("Es", "30", ("Cambie el transistor...", "Change the transistor..."),  # 30 - 5.1841 is more than 20
                    ("Tensión Colector -Emisor supera a Ecmax...", "Collector -Emitter voltage overcomes Ecmax..."))
        self.program.focused("Ec(max)")

    def anew(self):
        """The walk back to the supply, which is now 12 V: 0.3524 x 2.82, over 2 x 0.45192 K, times 4.7; 12 - 5.1676."""
        self.go(("Ec(max)", "", "Ic(max)"), ("Ic(max)", "", "Vj"), ("Vj", "", "β"), ("β", "", "Rg"), ("Rg", "", "RLw"),
                ("RLw", "", "Eopp"), ("Eopp", "", "Ein", {"Ein": "0.3524"}), ("Ein", "", "QIc", {"Eopp": "0.9938", "QIc": "0.9938"}),
                ("QIc", "", "Res"))
        self.warned("Res", "4.7", ("Tensión COLECTOR - EMISOR es menor a 3 Volts...",
                                   "Voltage COLLECTOR - EMITTER is smaller to 3 Volts..."),
                    ("Desea continuar..? (Si) Cambiar Fuente...(No)", "Continue..? (Yes) Change Source...(No)"), "n")
        self.told({"Es": "7.1614"})
        self.picture("form17-supply")
        self.enter("Es", "12")
        # Rb2 was left when 5 V were too little: S is 47 / 2.35 / 5.2 since, and Rb2 as many times 4.7.
        self.told("EQ = 6.8324 Volts", {"S": "3.8462", "Rb2": "18.0771"})

    def preset(self):
        """6.2324 x 42.7273 / 5.7676; 6.2324 V over 46.5 K less 5.7676 V over 47 K, times 100."""
        velmor = self.program
        self.go(("Rb2", "47", "Rb1", {"Rb1": "46.1698", "S": "10"}))
        self.enter("Rb1", "46.5")
        self.told("Zin = 23 K", "3.4558 mF", "159.2357 mF", "ERb1= 6.2324 Volts")
        velmor.key("ctrl+1")
        self.leaf("273.0941 microW", ("carga 'pesada'", "load ' heavy '"))  # 0.3513 V squared over 451.92 ohms
        self.picture("form17-own-supply")


class PhaseSplitter(Metered, Journey):
    """Two equal resistors give two opposite waves; two generators feel the stage differently."""
    key, first = "alt+shift+F5", "Rg"

    def whole_design(self):
        self.to_the_signal()
        self.in_the_other_language(self.transistor)
        self.to_the_supply()
        self.resistors()
        self.preset()
        self.analysis()
        self.poor_generator()
        self.reported()
        self.kept()

    def to_the_signal(self):
        self.told(("Ingrese el valor de la resistencia interna del generador (Rint)",
                   "Enters the value of the internal resistance of the generator (Rg)"),
                  ("Parámetros del Transistor", "Transistor Parameters"), ("Parámetros del Circuito", "Circuits Parameters"),
                  ("Rg de generador (Kohm)", "Rg of generator (Kohm)"))
        self.picture("form9-start")
        self.go(
            ("Rg", "", "QIc", ("Corriente de reposo. Con menos corriente RL y Res", "Quiescent current. With less current RL and Res")),
            ("QIc", "", "RLw", ("Carga del circuito, en Kohms.", "Load of the circuit, in Kohms.")),
            ("RLw", "", "Eopp", "10 K", ("Tensión de salida pico a pico.", "Output voltage, peak to peak.")),
            ("Eopp", "", "Ein", {"Ein": "1.7675"}, ("Señal de entrada en valor eficaz.", "Input signal, r.m.s.")),  # 5 / 2 x 0.707
            ("Ein", "", "S", {"Eopp": "4.9844"}, ("Factor de estabilidad", "Stability factor")),
        )

    def transistor(self):
        self.go(
            ("S", "", "β", ("Ganancia de corriente del transistor.", "Current gain of the transistor.")),
            ("β", "", "fo", ("Menor frecuencia de interés.", "Lowest frequency of interest.")),
            ("fo", "", "Ec(max)", ("Tensión Colector - Emisor que soporta", "Collector - Emitter voltage that the transistor")),
            ("Ec(max)", "45", "Ic(max)", ("Corriente máxima de Colector", "Largest Collector current")),
            ("Ic(max)", "", "Vj", ("Tensión de juntura: 0.6 Volt", "Junction voltage: 0.6 Volt")),
        )

    def to_the_supply(self):
        """2 x 2.4922 + 5.9844. 2.4922 K in the collector are less than the load: the supply may be raised."""
        self.go(("Vj", "", "Es", {"Es": "10.9688"}, ("Tensión min. de fuente: 10.9688 Volts Coloque tensión disponible...",
                                                     "Voltage min. of D.C. source : 10.9688 Volts Put voltage available ..."),
                 ("De ser posible asigne tensiones mucho mas elevadas", "Of being possible it, assigns voltage a lot high")))
        self.warned("Es", "10.9688", ("Es aconsejable elevar la fuente de alimentación", "Is advisable to elevate the feeding source"),
                    ("La tensión de fuente es baja, si elige elevarla obtendrá más impedancia de entrada...",
                     "The source voltage is low, if chooses to elevate it you will obtain more entrance impedance..."))
        self.enter("Es", "30")
        self.program.focused("RL")

    def resistors(self):
        self.step_back("Es", "RL")
        self.told("RL= 12 Kohm", {"RL": "12.0078"})  # (30 - 5.9844) / 2, at 1 mA
        self.picture("form9-half")
        self.go(
            # 2 x 12 + 4.9844 + 1; 10 x 12 x 10 / 22
            ("RL", "12", "Rb2", "Res = 12 Kohm", "ERl = 12 Volts", "Eq =5.9844 Volts", {"Es": "29.9844", "Rb2": "54.5455"},
             ("Formula utilizada: Rb2 = S x Res // RLw", "Formulates used : Rb2 = S x Res // RLw")),
            # (5.9844 + 12 + 0.6) x 53.5032 / 12.6; 56 / 12
            ("Rb2", "56", "Rb1", {"Rb1": "78.9146", "S": "4.6667"},
             ("Rb1 = 78 Kohm Coloque un valor comercial...", "Rb1 = 78 Kohm Put a normalized value..."),
             ("Coloque un 'Preset' del doble de valor", "Places a ' Preset ' of double value")),
        )

    def preset(self):
        """17.3844 V over 60 K less 12.6 V over 56 K, times 100; and so with 74 K."""
        self.warned("Rb1", "60", ADJUST, OTHER_CURRENT)
        self.obtained("6.474 mA")
        self.enter("Rb1", "74")
        self.obtained("0.9924 mA")
        self.told("Zin=53 K", "1.4881 mF", "7.9618 mF",  # 56 x 1200 / 1256; 1000 / (12.56 x 53.503); / (12.56 x 10)
                  ("Click sobre 'Hoja de Análisis', para observar la relación", "Make Click on ' Leaf of Analysis ', and observe"))
        self.picture("form9-finished")

    def analysis(self):
        velmor = self.program
        velmor.key("ctrl+1")
        self.leaf(("Potencia de salida : Eo(eficaz)^2 / RLw =310 microW", "Output power: Eo(r.m.s.)^2 / RLw =310 microW"),  # 1.762 V, 10 K
                  ("La Zin de entrada es lo suficientemente elevada", "The entrance Zin is the sufficiently high thing"))
        self.picture("form9-analysis")
        velmor.press(velmor.see(self.say(("^Quitar la Hoja de Análisis", "^Take the Leaf of Analysis away")), "push button"))
        self.no_leaf("310 microW")

    def poor_generator(self):
        """Rg may be changed at the end: 53 K are too little for 100 K."""
        velmor = self.program
        velmor.press(velmor.field("Rg"))
        self.enter("Rg", "100")
        velmor.focused("Rb1")
        velmor.key("Return", "ctrl+1")
        # 1.762 V squared over 100 K and over 53.503 K
        self.leaf(("La potencia que puede desarrollar el generador es: Pg = 31.0459 microW",
                   "The power that can develop the generator is: Pg = 31.0459 microW"), "Ein^2 / Zin =58 microW")
        self.picture("form9-heavy")
        velmor.key("ctrl+1")
        self.no_leaf("58 microW")

    def reported(self):
        self.report(("Elaboración de Informe", "Report Design"), ("Parafase", "  Paraphase"), ("Ejercicio N° 4 ", "Exercise N° 4 "),
                    "Rlw (Kohm) =  .1 kohm", ("Resultados de diseño Parafase: ", "Result of Paraphase design: "), "RL = 12",
                    "Rb1 (kohm) = 74", "Qic (mA) = 0.9924 mA")
        self.guide("PARAFASE", "1. OBJETIVO")

    def kept(self):
        self.keep(("inversor.CIF", "splitter.PCI"), ("Colector Común", "Common Collector"), ("Parafase", "Paraphase"),
                  {"Es": "29.9844", "RL": "12", "Rb2": "56", "Rb1": "74", "S": "4.6667"}, "Zin=53 K",
                  ("Circuito de Archivo", "Archive Circuit"))


class SmallOutput(BothLanguages, Journey):
    """A phase splitter whose transistor keeps less than three volts: the question on the paper, and both of its answers."""
    key, first = "alt+shift+F5", "Rg"
    steps = ("Ein", "S", "β", "fo", "Ec(max)", "Ic(max)", "Vj", "Es")

    def whole_design(self):
        self.to_the_supply()
        self.in_the_other_language(self.low_supply)
        self.small_voltage()
        self.preset()

    def to_the_supply(self):
        velmor = self.program
        self.go(("Rg", "", "QIc"), ("QIc", "", "RLw"), ("RLw", "", "Eopp"))
        velmor.press(velmor.field("Vg"))
        self.warned("Vg", "3", ("Concepto de diseño.", "Design concept."),
                    ("La ganancia en circuitos Parafase es unitaria...", "The gain in circuits Paraphase is unitary..."))
        self.told({"Vg": "1", "Ein": "1.7675"})
        velmor.press(velmor.field("Eopp"))
        self.enter("Eopp", "1")
        self.told({"Ein": "0.3535"})
        self.go(("Ein", "", "S", {"Eopp": "0.9969"}), ("S", "", "β"), ("β", "", "fo"), ("fo", "", "Ec(max)"))
        self.warned("Ec(max)", "1.9", APPROACH,
                    ("La tensión ' Eopp ', no debe supera la máxima que soporta el transistor.",
                     "The voltage ' Eopp ' doesn't should it overcomes the maxim D.C. voltage that supports the transistor."))
        self.enter("Ec(max)", "30")
        self.warned("Ic(max)", "0.9", APPROACH,
                    ("La corriente ' QIc ', no debe superar la máxima que soporta el transistor.",
                     "The current ' QIc ' doesn't should it overcomes the maxim that supports the transistor."))
        self.enter("Ic(max)", "100")
        self.go(("Vj", "", "Es", {"Es": "4"}))  # 0.9969 + 1.9969 is less

    def low_supply(self):
        """(9 - 1.9969) / 2 at 1 mA: less than the load, and taken all the same."""
        self.warned("Es", "9", ("Es aconsejable elevar la fuente de alimentación", "Is advisable to elevate the feeding source"),
                    ("La tensión de fuente es baja, si elige elevarla obtendrá más impedancia de entrada...",
                     "The source voltage is low, if chooses to elevate it you will obtain more entrance impedance..."), "n")
        self.program.focused("RL")
        self.told({"RL": "3.5016"}, ("RL = 3.5016 Kohm, coloque valor comercial...", "RL = 3.5016 Kohm, put normalized value..."))
        self.warned("RL", "0.47", ("Tensión en ERL es insuficiente para Eopp", "ERL Voltage isn't enought for Eopp"),
                    ("Aumente valor de RL", "Up value for RL"))

    def small_voltage(self):
        velmor = self.program
        self.enter("RL", "3.3")
        question = ("Tensión COLECTOR - EMISOR es menor a 3 Volts...", "Voltage COLLECTOR - EMITTER is less to 3 Volts...")
        self.told("ERl = 3.3 Volts", "Eq =1.9969 Volts", {"Es": "8.5969", "Rb2": "24.812"})  # 6.6 + 1.9969; 33 x 10 / 13.3
        self.picture("form9-question")
        velmor.press(velmor.see(self.say(("^Cambiar Eopp", "^Change Eopp")), "push button"))
        self.go(("Eopp", "1.6", "Ein", {"Ein": "0.5656"}))
        for at, then in zip(self.steps, self.steps[1:]):
            self.go((at, "", then))
        self.enter("Es", "24")
        # 0.5656 x 2.82; (24 - 2.595) / 2; 24 + 2.595; 120 x 10 / 22
        self.told({"Eopp": "1.595", "RL": "10.7025"}, "RL= 10 Kohm", "Res= 10 Kohm")
        self.go(("RL", "12", "Rb2", {"Es": "26.595", "Rb2": "54.5455"}, question))
        velmor.press(velmor.see(self.say(("^Continuar", "^Follow")), "push button"))
        self.told(("Rb2 =54 Kohm Coloque un valor comercial.", "Rb2 =54 Kohm Put a normalized value."))

    def preset(self):
        """15.195 x 53.5032 / 12.6; 13.995 V over 59.5 K less 12.6 V over 56 K, times 100."""
        velmor = self.program
        self.go(("Rb2", "56", "Rb1", {"Rb1": "64.5223"}))
        self.enter("Rb1", "59.5")
        self.told("Zin=53 K")
        velmor.key("ctrl+1")
        self.leaf("31 microW", ("carga 'pesada'", "load ' heavy '"))  # 0.5638 V squared over 10 K
        self.picture("form9-small-output")


if __name__ == "__main__":
    unittest.main()
