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


class CommonBase(BothLanguages, Journey):
    """A stage with its base to ground, compared with the one whose emitter is bypassed."""
    key, first = "alt+shift+F3", "ΔQIc"

    def whole_design(self):
        self.to_the_stability()
        self.in_the_other_language(self.to_the_resistor)
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

    def to_the_resistor(self):
        self.go(
            ("S", "", "β", ("Ganancia de corriente del transistor", "Current gain of the transistor")),
            ("β", "", "fo", ("Menor frecuencia de interés", "Lowest frequency of interest")),
            ("fo", "", "Ec(max)", ("Tensión máxima Colector - Emisor", "Maximum Collector - Emitter voltage")),
            ("Ec(max)", "", "Ic(max)", ("Corriente máxima de Colector", "Maximum Collector current")),
            ("Ic(max)", "", "Vj", ("Tensión de juntura: Silicio 0,6 V", "Junction voltage: Silicon 0.6 V")),
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
        self.picture("form4-finished")

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

    def reported(self):
        self.report(("Elaboración de Informe", "Report Design"), ("Alumno: ", "Student: "),
                    ("Base Común Realimentado p/ corriente, polarizado p/ Base", "  Common Base, Feedback for Current, polarized for Base"),
                    ("Ejercicio N° 4 ", "Exercise N° 4 "), ("QIc = 1.0337 mA", "Qic (mA) = 1.05769230769231"), "Rb1 (kohm) = 57.4",
                    "Es = 11.2887", "Res (kohm) = 1.3 K", "ERl = 5.9231 V",
                    ("Conteste el siguiente cuestionario: ", "Answer the following questionnaire : "),
                    ("Que parámetros definen la tensión de estabilidad", "That parameters define the voltage of stability, ERes..?"))
        self.guide(("BASE COMÚN", "COMMON BASE"), ("1. OBJETIVO", "1. AIM"))

    def kept(self):
        self.keep(("base.BCC", "stage.BCI"), ("Base Común", "Common Base"), None,
                  {"Res": "1.3 K", "Es": "11.2887", "RL": "5.6", "Rb2": "13", "Rb1": "57.4"},
                  "ERl = 5.9231 V", ("Circuito de Archivo : Base Común", "Archive Circuit : Common Base"))


if __name__ == "__main__":
    unittest.main()
