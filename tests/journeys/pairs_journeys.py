# SPDX-License-Identifier: MIT
"""Whole designs of two pairs in cascade and of the current source of their tail with real keys and clicks, in Spanish and in
English. Each is explained, warned, goes back a step, is reported, saved and opened anew, and told by its guide. What is read in
the two languages stands side by side; figures are worked out beside each step."""
import unittest

from both_languages import BothLanguages
from journey import Journey, until


class Pairs(BothLanguages):
    key, first = "alt+shift+F2", "T"
    high_voltage = (("Opciones : SI = Volver NO = Proseguir", "Options: Yes = Return No = Continue"),
                    ("La caida de tensión en EQ no puede superar la máxima que soporta el transistor",
                     "The voltage in EQ can not overcome the maxim that supports the transistor"))

    @property
    def step(self):
        return self.say(("Calcula Q3-4 y sigue con Q1-2", "Works out Q3-4 and goes on with Q1-2"))

    def yes(self):
        return "y" if self.english else "s"


class TwoPairs(Pairs, Journey):
    """From the output to the input, and through the door to the source."""

    def whole_design(self):
        self.to_the_output()
        self.to_the_second_pair()
        self.in_the_other_language(self.warning)
        self.to_the_first_pair()
        self.load()
        self.mirror()
        self.kept()
        self.reported()
        self.source()

    def to_the_output(self):
        self.told(("Coloque la temperatura ambiente donde opera el circuito...", "Ambient temperature to which the circuit worked..."),
                  ("Tamb.: de 25 a 200 ºC.", "Tamb.: from 25 to 200 ºC."), ("Parámetros del Circuito", "Circuit Parameters"),
                  ("Datos", "Date"), ("Consideraciones y Criterios :", "Considerations and approaches:"))
        self.picture("form13-start")
        self.go(
            # 70 x 2.5 mV x 100 / 7
            ("T", "", "Vg", "Eres1= 2.5 V", "Res1= 2.5 K", "(Tamb. - 25°) x 2.5mV ERes = ---",
             ("Q3-4 trabajan con la corriente mínima (1 mA)", "Q3-4 get the minimum current (1 mA)"),
             ("Especifique un valor de ganancia superior a 1000.", "Specifies a value of superior gain at 1000.")),
            ("Vg", "", "Eopp", ("Cual es la señal pico a pico de salida, (Eopp)..?", "Which is the out - sign, peak to peak, (Eopp)..?"),
             ("Datos ERes = 2.5 V Vg = 1000", "Date ERes = 2.5 V Vg = 1000")),
            # 3 / 1000 / 2 x 0.707; 4 x 2.5 K at 0.5 mA; 5 + 2.5 + 4
            ("Eopp", "", "Es", "Ein = 0.0011 Vef", "RL2= 10 K", "ERL2= 5 V", "EQ3 = 4 V", "Eopp = 3 Vpp Eo(r.m.s.) = 1.0605 V",
             ("Tensión mínima de fuente es : 11.5", "Source Voltage (minimum) : 11.5"), {"Es": "11.5"}),
        )

    def to_the_second_pair(self):
        self.go(
            ("Es", "13", "RL2", "Es = 13 V", {"RL2": "13"},  # (13 - 6.5) / 0.5 mA
             ("Asigne valor comercial al resistor RL2...", "Put normalized value of RL2...")),
            ("RL2", "12", "Res", {"Res": "2"},
             ("Asigne valor comercial al resistor Res..", "Assigns commercial value to the resister Res..")),
        )
        self.picture("form13-half")

    def warning(self):
        """With 2 K the pair asks for 7.5 + 2.5 + 4 volts; with 3 K for 11.5."""
        self.warned("Res", "2", ("Mas corriente.., mas tensión en RL2.., menos tensión EQ!!",
                                 "High current.., high voltage in RL2.., minus voltage EQ!!"),
                    ("Deberá aumentar la tensión de fuente ó aumentar Res", "The source voltage will increase or to increase Res"))
        self.go(("Res", "3", self.step, "ERL2= 5 V", "EQ4 = 5.5 V", "Zin = 300 K",  # 13 - 7.5; 100 x 3
                 ("A continuación el programa realiza los cálculos para Q1-2. Pulse click ó Enter....",
                  "Next the program carries out the calculations for Q1-2. Press click or Enter...."),
                 # 60 ohms; 12000 / (2.5 x 60)
                 ("Datos S (Q5) = 6 QIc(3-4) = 0.4167 mA r'e = 60 ohms Vg(3-4) = 80 EQ(3-4) = 5.5 V",
                  "Date S (Q5) = 6 QIc(3-4) = 0.4167 mA r'e = 60 ohms Vg(3-4) = 80 EQ(3-4) = 5.5 V")))
        self.step_back("Res", self.step)

    def to_the_first_pair(self):
        self.go(
            (self.step, "", "RL1", {"RL1": "17.1"}, "EQ1 = 3.1 V", "ERL1= 9.9 V",  # 5.7 x 3; 2.5 + 0.6; 13 - 3.1
             ("Coloque un valor comercial a RL1...", "Put a normalized value for RL1...")),
            # 9.9 / 18 mA
            ("RL1", "18", "Res1", {"Res1": "2.5"}, "0.55 mA", "Zin1= 12 K",
             ("Coloque un valor comercial a Res1...", "Put a normalized value for Res1..."),
             ("El factor 1.25 se utiliza pues la salida es doble entre colectores",
              "The factor 1.25 is used because the sing out is double, among collectors")),
            # (5.5 + 2.5 - 0.6) / 2.7; 13 - 7.4; 200 x 25 / 0.55; 1 / (12.56 x 9090.91)
            ("Res1", "2.7", "RLw", "EQ5 = 5.6 V", "Rb1= 9.0909 K", "C1 = 8.758 microF", "Zin = 270 K", "QIc(3y4) =0.8333 mA",
             ("Puede modificar Res1... ...ó colocar una resistencia de carga (RLw)",
              "Can modify Res1... ... or to place a load resistance (RLw)")),
        )

    def load(self):
        self.enter("RLw", "27")
        self.told("Zin = 245.4545 K", "Res1=2.4545 K Eres= 7.4 V",  # 100 x 2.7 x 27 / 29.7
                  ("Para modificar RLw, debe colocar nuevamente Res1...", "..to modify RLw, should place Res1 again..."))

    def mirror(self):
        velmor = self.program
        self.picture("form13-finished")
        velmor.key("ctrl+1")
        velmor.see(self.say(("^Ver circuito", "^View circuit")), "push button")
        self.picture("form13-mirror")
        velmor.key("ctrl+1")
        velmor.see(self.say(("^Ver espejo", "^View mirror")), "push button")

    def kept(self):
        self.keep(("pares.DCC", "pairs.LTC"), ("Diferenciales", "Differential"), ("Diferencial Compuesto", "Long Tail Pairs Compound"),
                  ("Circuito de Archivo", "Archive Circuit"), "EQ5 = 5.6 V", "RL1= 18 K", "Res1=2.4545 K Eres= 7.4 V")
        self.picture("form13-opened")

    def reported(self):
        self.report(("Elaboración de Informe : Diferencial Compuesto", "Design :   Long Tail Pair, Compound "), ("Alumno: ", "Student: "),
                    ("Ejercicio N° 5", "Exercise N° 5"), "T (ºC) = 190 °", "Vg = 41000", "RL1= 18 K", "EQ5 = 5.6 V")
        self.guide(("DIFERENCIAL COMPUESTO", "COMPOUND LONG TAIL PAIR"), ("1. OBJETIVO", "1. AIM"))

    def source(self):
        """From the sheet itself a door leads to the source of its tail."""
        velmor = self.program
        velmor.key("ctrl+2")
        title = self.say(("Fuente de Corriente Constante", "D.C. source"))
        until(lambda: velmor.in_hand() and title in velmor.in_hand().get_name(), "the sheet of the source")
        velmor.wait_value("QIc", "1 mA")


class KnownInput(Pairs, Journey):
    """The student knows the input and not the output; much supply, a heavy load, and what the program asks on the way."""

    def whole_design(self):
        self.to_the_supply()
        self.in_the_other_language(self.second_pair)
        self.first_pair()
        self.heavy_load()
        self.boxes()

    def to_the_supply(self):
        """50 x 2.5 mV x 100 / 7; four times that at 0.5 mA holds half of no more than 7.1429 V."""
        velmor = self.program
        self.go(("T", "70", "Vg", "Eres1= 1.7857 V"), ("Vg", "2000", "Eopp"))
        velmor.key("ctrl+a", "BackSpace", "Return")
        velmor.focused("Ein")
        self.told(("Coloque el valor de la señal de entrada en valor eficaz...", "Places the value of the entrance sign in r.m.s...."))
        self.picture("form13-input")
        small = (("Opciones : SI = Volver NO = Proseguir", "Options : Yes = Back No = Continue"),
                 ("La caida de tensión en ERL2 no es suficiente para manejar la mitad de Eopp...",
                  "The voltage in ERL2 is not enough to manage half of Eopp..."))
        self.warned("Ein", "0.005", *small, self.yes())  # 2000 x 0.005 x 1.41 x 2
        self.warned("Eopp", "10", *small, "n")
        # 5 + 1.7857 + 11; 10 / 2000 / 2 x 0.707; 10 / 2 x 0.707
        self.told({"Es": "17.7857142857143"}, "ERL2= 5 V", "EQ3 = 11 V", "Ein = 0.0018 Vef", "Eopp = 10 Vpp Eo(r.m.s.) = 3.535 V")
        self.go(("Es", "70", "RL2", {"RL2": "114.428571428571"}), ("RL2", "15", "Res", {"Res": "2"}))  # 57.2143 / 0.5

    def second_pair(self):
        """15 K x 1.7857 / 4 / 2 is 3.3482 V, which leaves 64.8661 and does not hold half of Eopp; with 2 K it is twice as much."""
        self.warned("Res", "4", *self.high_voltage, self.yes())
        self.enter("Res", "4")
        self.answer(*self.high_voltage, "n")
        self.answer(("Menos corriente.., menos tensión en RL2.., recorte de la señal !!",
                     "Low current.., low voltage in RL2.., cut sign !!"),
                    ("Pruebe disminuyendo Res, caso contrario imposible continuar..!",
                     "Diminishing Res, impossible contrary case to continue..!"))
        self.enter("Res", "2")
        self.answer(*self.high_voltage, "n")
        self.told("ERL2= 6.6964 V", "EQ4 = 61.5179 V", "Zin = 200 K", "0.4464")

    def first_pair(self):
        self.go(
            (self.step, "", "RL1", {"RL1": "11.4"}, "EQ1 = 2.3857 V", "ERL1= 67.6143 V"),  # 5.7 x 2; 1.7857 + 0.6; 70 - 2.3857
            # 67.6143 / 12 mA; 200 x 56 ohms; 5793.1 / (1.25 x 4.437) x 15000 / (2.5 x 56)
            ("RL1", "12", "Res1", {"Res1": "1.7857"}, "5.6345 mA", "Zin1= 11 K", "Zin1",
             ("Datos QIc(1-2) = 5.6345 mA", "Date QIc(1-2) = 5.6345 mA")),
            # 61.5179 + 1.7857 - 0.6, over 1.8 K; 200 x 4.437 ohms; 1 / (12.56 x 887.4)
            ("Res1", "1.8", "RLw", "34.8353", "EQ5 = 7.2964 V", "Rb1= 0.8874 K", "C1 = 89.7217 microF", "Zin = 180 K",
             ("Datos Vg = 111913", "Date Vg = 111913")),
        )

    def heavy_load(self):
        """0.1 K beside 1.8 K is 9.4737 K at the base, less than ten times 15 K; 27 K make it 168.75 K."""
        velmor = self.program
        self.warned("RLw", "0.1", ("Eleve el valor de RLw o diseñe un nuevo circuito...",
                                   "Elevates the value of RLw or design a new circuit..."),
                    ("La resistencia estática de entrada del circuito, influye sobre la corriente de colector del diferencial que lo "
                     "alimenta...",
                     "The static resistance of entrance of the circuit, influences on the current of collector of the differential that "
                     "feeds him..."))
        self.told("Zin = 9.4737 K")
        velmor.press(velmor.field("Res1"))
        self.enter("Res1", "1.8")
        self.enter("RLw", "27")
        self.told("Zin = 168.75 K", "37.1577", "Res1=1.6875 K")
        self.picture("form13-known-input")

    def boxes(self):
        """What is under the pointer, by its key."""
        self.program.key("ctrl+7")
        self.told("Corriente en Transistor Q5 QIc(5) = 37.1577 mA")
        self.picture("form13-current")


class CurrentSource(BothLanguages, Journey):
    """A source that says what its commercial values really give."""
    key, first = "alt+shift+F4", "QIc"

    def whole_design(self):
        self.warning()
        self.voltages()
        self.in_the_other_language(self.share)
        self.analysis()
        self.kept()
        self.reported()
        self.start_over()

    def warning(self):
        velmor = self.program
        self.told(("Coloque el requerimiento de corriente (en miliamper), del amplificador diferencial a alimentar...",
                   "Places the current requirement (in miliampere), of the differential amplifier to feed..."),
                  ("QIc: la corriente que pide el amplificador", "QIc: the current that the differential amplifier asks for"))
        self.picture("form12-start")
        self.warned("QIc", "41", ("Criterio de diseño...", "Design Approach..."),
                    ("La corriente elegida no debe superar el 40 % de la máxima que soporta el transistor...",
                     "The elected quiescent current, should not overcome the 40%"))
        velmor.focused("Eb")
        velmor.key("alt+BackSpace")

    def voltages(self):
        self.go(
            ("QIc", "2", "Eb", {"QIc": "2 mA"},
             ("Elegir una tensión de base superior a 2 Volts", "To choose a voltage of Base, 2V high too")),
            ("Eb", "4", "Eq", {"Eb": "4 V"},
             ("Elegir una tensión de Colector igual a Eb", "To choose a voltage of Collector similar to Eb")),
            # 4 + 4 + 1.2
            ("Eq", "", "-Ebias", {"-Ebias": "9.2"}, "Ebias = EQ + Eb + 1.2 V", "Ebias = 9.2 V"),
            ("-Ebias", "", "Res", {"Res": "2.3", "Eq": "4 V"},  # (9.2 - 4.6) / 2 mA
             ("Res = (Ebias - (Eb + Vj)) / QIc El programa asume Vj = 0.6 V",
              "Res = (Ebias - (Eb + Vj)) / QIc it Assumes the program to Vj = 0.6 V")),
        )
        self.picture("form12-half")

    def share(self):
        self.go(
            ("Res", "2.2", "Ibias", {"QIc": "2.0909mA"},  # 4.6 / 2.2
             ("Asigne un valor de Ibias entre 0.3 y 1 , del valor de Qic...",
              "Assigns a value of Ibias among 0.3 to 1 , the value of Qic...")),
            ("Ibias", "", "Rb1", {"Ibias": "1.0455mA", "Rb1": "3.8259"},  # half of it; 4 / 1.0455
             ("El valor de estabilidad es: S = 2", "The value of stability is: S = 2")),
        )

    def analysis(self):
        velmor = self.program
        self.warned("Rb1", "1", "Error", ("La corriente de polarización de base supera al valor pre-calculado...",  # 4 mA
                                          "The current of Base polarization overcomes to the pre-calculated value..."))
        self.enter("Rb1", "3.9")
        velmor.focused("Rb2")
        self.told({"Rb2": "4.4852"}, ("Rb2 = ( Ebias - (Eb + EQ) ) / Ibias = 4.4852 Kohms Asigne un valor comercial...",  # 4.6 / 1.0256
                                      "Rb2 = ( Ebias - (Eb + EQ) ) / Ibias = 4.4852 Kohms Assigns a commercial value..."))
        # 3.9 x 4.6 / 4.7; (9.2 - 4.417) / 2.2; times 2.2
        self.go(("Rb2", "4.7", self.say(("Análisis", "Analysis")),
                 {"Eb": "3.817 v", "QIc": "2.1741mA", "ERes": "4.783V", "Ibias": "0.9787", "Eq": "3.817V"},
                 ("Formulas de Análisis : Ibias =", "Analysis formulate : Ibias ="), "ERes = 4.783V"))
        self.picture("form12-analysis")

    def reported(self):
        """The second exercise is headed in Spanish in both languages."""
        self.report(("Elaboración de Informe : Fuente de Corriente Constante", "Design :   D.C. Source "), "Ejercicio N° 2 ",
                    ("-Ebias = (mínima posible)", "-Ebias = (min.)"), ("Ejercicio N° 5 ", "Exercise N° 5 "), "Rb2= 4.7  K",
                    "Rb1= 3.9  K", "ERes = 4.783V", "QIc = 2.1741mA", (" Parámetros del Circuito: ", " Circuit Parameters: "))

    def kept(self):
        self.keep(("fuente.FCC", "source.DCS"), ("Diferenciales", "Differential"), ("Fuente de Corriente", "D.C. Source"),
                  {"-Ebias": "9.2", "Res": "2.2 K", "Rb1": "3.9  K", "ERes": "4.783V"}, "Circuito de Archivo")

    def start_over(self):
        """A click on the first field begins anew; the guide tells how."""
        velmor = self.program
        velmor.press(velmor.field("QIc"))
        velmor.wait_value("QIc", "1 mA")
        self.guide("FUENTE DE CORRIENTE CONSTANTE", "1. OBJETIVO")


class WrongShares(BothLanguages, Journey):
    """A source with a current too small to be worth it, and dividers that take too little."""
    key, first = "alt+shift+F4", "QIc"
    low_current = (("No se justifica el diseño...", "Not justified the design..."),
                   ("La corriente del transistor es muy baja...", "The current of the transistor is very low..."))
    low_bias = ("Error", ("La corriente de polarización de base es inferior al valor pre-calculado...",
                          "The current of Base polarization is smaller to the pre-calculated value..."))

    def whole_design(self):
        self.small_current()
        self.in_the_other_language(self.to_the_share)
        self.divider()
        self.begin_anew()

    def voltages(self):
        """2 + 2 + 1.2; what is left for the collector counts as 3; (5.2 - 2.6) / 1 mA."""
        self.go(("Eb", "2", "Eq", {"Eb": "2 V"}), ("Eq", "5", "-Ebias", {"Eq": "2 V", "-Ebias": "5.2"}),
                ("-Ebias", "", "Res", {"Res": "2.6", "Eq": "3 V"}))

    def small_current(self):
        """2.6 V over 20 K: another resistor, or the current of the source again, which begins anew."""
        velmor = self.program
        self.go(("QIc", "1", "Eb", {"QIc": "1 mA"}))
        self.voltages()
        self.warned("Res", "20", *self.low_current)
        velmor.focused("Res")
        self.told({"Res": "2.6", "QIc": "0.13mA"})
        self.warned("Res", "20", *self.low_current, "Escape")
        velmor.focused("QIc")
        self.told({"QIc": "1 mA", "Res": "20Kohms"})

    def to_the_share(self):
        self.go(("QIc", "1", "Eb"))
        self.voltages()
        # 2.6 / 2.7; 1.01 is no share, and half of the current is 0.4815; 2 over that
        self.go(("Res", "2.7", "Ibias", {"QIc": "0.963mA", "-Ebias": "6.2"}),
                ("Ibias", "1.01", "Rb1", {"Ibias": "0.4815mA", "Rb1": "4.1537"}))

    def divider(self):
        """Less than 0.3 of the current: 2 V over 10 K, and 3.6 V over 15 K, which leads back to the share."""
        self.warned("Rb1", "10", *self.low_bias)
        self.enter("Rb1", "3.9")
        self.program.focused("Rb2")
        self.told({"Rb2": "7.0203"})  # 3.6 / 0.5128
        self.warned("Rb2", "15", *self.low_bias)
        # 3.9 x 3.6 / 6.8; (6.2 - 2.6647) / 2.7; times 2.7; 6.2 - 4.1353
        self.go(("Ibias", "0.5", "Rb1", {"Ibias": "0.4815mA"}), ("Rb1", "3.9", "Rb2", {"Rb2": "7.0203"}),
                ("Rb2", "6.8", self.say(("Análisis", "Analysis")),
                 {"Eb": "2.0647 v", "QIc": "1.3094mA", "ERes": "3.5353V", "Eq": "2.0647V", "Ibias": "0.5294"}))

    def begin_anew(self):
        velmor = self.program
        self.picture("form12-shares")
        velmor.key("F3")
        velmor.focused("QIc")
        self.told({"QIc": "1 mA"}, ("Coloque el requerimiento de corriente", "Places the current requirement"))
        self.page("shift+F1", ("Ocupa el lugar del resistor común de emisores", "It takes the place of the common emitter resistor"))
        self.picture("form12-help")


if __name__ == "__main__":
    unittest.main()
