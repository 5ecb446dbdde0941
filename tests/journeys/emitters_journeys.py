# SPDX-License-Identifier: MIT
"""Whole designs of the common-emitter family with real keys and clicks, each in Spanish and in English: a stage that is explained,
warned, goes back a step, hears a word of the other language, is reported, saved and opened anew, and told by its guide. What is
read in the two languages stands side by side, figures are worked out beside each step."""
import os
import tempfile
import unittest

from journey import Journey, Program, role_of, until


class BothLanguages:
    """A design that is said once and gone through twice."""

    def test_in_spanish(self):
        self.whole_design()

    def test_in_english(self):
        """A switch takes effect at the next message: what is to be English from its headings on is opened anew."""
        velmor = self.program
        self.english = True
        velmor.focused("ΔQIc")
        velmor.speak(english=True)
        velmor.key("ctrl+F4")
        velmor.answer("The present file has changed", "n")
        until(lambda: not velmor.sheets(), "an empty desk")
        velmor.press(velmor.see(r"\(feedback for current\)$", "push button"))
        velmor.focused("ΔQIc")
        self.whole_design()


class Emitter(Journey):
    """What the designs of the family have in common."""
    english = False

    def say(self, spanish, english):
        return english if self.english else spanish

    def picture(self, name):
        self.program.picture(name + self.say("-es", "-en"))

    def warned(self, symbol, typed, *boxes):
        """A figure that the sheet does not let pass: what its boxes say, in Spanish and in English."""
        velmor = self.program
        velmor.focused(symbol)
        velmor.type(typed)
        velmor.wait_value(symbol, typed)
        velmor.key("Return")
        for spanish, english in boxes:
            velmor.answer(self.say(spanish, english), "Return")

    def step_back(self, symbol, value, then, *seen):
        """Another thought about the last field, and the first one after all."""
        velmor = self.program
        velmor.key("alt+BackSpace")
        velmor.focused(symbol)
        velmor.wait_value(symbol, value)
        velmor.key("ctrl+y")
        velmor.focused(then)
        for what in seen:
            velmor.wait_value(*what)

    def in_the_other_language(self, symbol, then, spanish, english):
        """One step is told in the other language, and once more in the first."""
        velmor = self.program
        velmor.speak(not self.english)
        velmor.design((symbol, "", then, spanish if self.english else english))
        velmor.speak(self.english)
        velmor.key("alt+BackSpace")
        velmor.design((symbol, "", then, self.say(spanish, english)))

    def explained(self, key, *texts):
        """A page of help: all of these are read in one place."""
        velmor = self.program
        velmor.key(key)
        until(lambda: any(all(text in velmor.text(node) for text in texts)
                          for node in velmor.all() if role_of(node) == "text"), "a page with " + " / ".join(texts))

    def report(self, title, *texts):
        velmor = self.program
        velmor.key("ctrl+r")
        velmor.reads(*texts)
        velmor.turn_to("^ *%s$" % title)

    def keep(self, name, items, *values):
        """The file brings the design back in a sheet of its own."""
        velmor = self.program
        path = velmor.home + "/" + name
        before = len(velmor.sheets())
        velmor.save(path)
        velmor.open_circuit(path, *items)
        # A title is the name less four characters, whatever the ending.
        until(lambda: len(velmor.sheets()) == before + 1 and velmor.in_hand() and velmor.in_hand().get_name() == name[:-4],
              "the sheet of the file")
        for symbol, text in values:
            velmor.wait_value(symbol, text)

    def guide(self, spanish, english):
        self.program.key("ctrl+g")
        self.program.reads(self.say(spanish, english))


class ByCurrent(Emitter):
    """The three sheets stabilised by a resistor in the emitter."""
    other_current = ("Corriente de Colector obtenida es diferente", "Collector currents it's different")

    def open(self, spanish, english):
        """A sheet that an option of the first one opens."""
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.press(velmor.see(self.say(spanish, english), "push button"))
        until(lambda: len(velmor.sheets()) == 2, "the second sheet")
        velmor.focused("ΔQIc")

    def told_of_temperature(self, *drift):
        """The first three fields, and the voltage of stability that they ask for."""
        self.program.design(
            ("ΔQIc", "", "T", self.say("^Coloque la temperatura ambiente", "^It places the ambient temperature")),
            ("T", "", "ΔVbe", self.say("^Para Qic inferior a 10 mA", "^For inferior Qic to 10 MA"),
             self.say("^En el proximo paso", "^In the next step")),
            ("ΔVbe", "", "QIc", *drift, self.say("^Es aconsejable asignar la corriente", "^It is advisable to assign the current")),
        )

    def to_the_gain(self):
        """With the stored figures (75 - 20) x 2.5 mV x 100 / 10, over 1250 ohms."""
        self.told_of_temperature(r"^1\.375, ")
        self.program.design(
            ("QIc", "", "Res", "^1375 ohms", ("Res", "1375"),
             self.say("^El valor normalizado de resistor", "^The normalized value will make")),
            ("Res", "1250", "RLw", ("QIc", "1.1"), self.say("^Especificacion circuital", "^Specification circuital")),
        )
        self.told_of_the_load()
        self.program.design(
            ("S", "", "Vg", self.say("^Especificacion circuital que indica las 'VECES'", "^Specification circuital that indicates")),
        )

    def told_of_the_load(self):
        self.in_the_other_language("RLw", "S", r"^Escape \.\.\.valor predeterminado", r"^Esc\.\.\. predetermined value")

    def warned_of_the_supply(self, Es):
        self.warned("Es", Es, ("^Aumentar tensión de fuente", "^ *To increase voltage"),
                    ("^Disminuya Eopp, o Vg", "^ *Eopp, or Vg Diminishes"))

    def told_of_the_transistor(self, *seen):
        """What the manual says of the transistor, as far as Rb2."""
        self.program.design(
            ("β", "", "Ic(max)", self.say("^El programa NO acepta", r"^\.\.\.than less")),
            ("Ic(max)", "", "Vj", self.say("^Pocas opciones", "^Few options")),
            ("Vj", "", "Rb2", *seen,
             self.say("^Coloque un valor normalizado. El Cálculo de Rb2", "^It places a normalized value. The Calculation")),
        )


class Unbypassed(ByCurrent, BothLanguages):
    """The first sheet, polarised by base: all that the emitter resistor holds is fed back."""

    def whole_design(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        self.picture("form2-start")
        self.explained("F1", self.say("cuánto puede cambiar la corriente de reposo",
                                      "how much the quiescent current (QIc) may change"))
        self.picture("form2-page")
        self.to_the_load()
        self.to_the_supply()
        self.to_the_preset()
        self.bootstrap()
        self.report(self.say("Emisor Común Realimentado por Corriente", "Common Emitter, Feedback for Current"),
                    self.say("Resultados de diseño polarizado por Base s/desacoplar: ",
                             "Result of polarized by Base design without Bypass: "),
                    self.say("Corriente Qic = 1.1005 mA", "Current Qic = 1.1005 mA"), "Res = 1250", "Rb1 (kohm) = 123.5")
        self.guide("EMISOR COMÚN REALIMENTADO POR CORRIENTE, POLARIZADO POR BASE",
                   "COMMON EMITTER WITH CURRENT FEEDBACK, BIASED AT THE BASE")

    def to_the_load(self):
        velmor = self.program
        self.to_the_gain()
        velmor.design(
            ("Vg", "", "RL", r"^\(Rlac\)= 6250 ohms", ("RL", "16.6666666666667")),  # 5 x 1250; 10 x 6.25 / 3.75
            ("RL", "15", "fo", r"^16\.5 Volts", "^Rlac = 6 K", ("Vg", "4.8")),  # 1.1 x 15; 10 x 15 / 25; over 1250 ohms
        )
        self.step_back("RL", "16.6666666666667", "fo", ("RL", "15"), ("Vg", "4.8"))
        self.picture("form2-half")

    def to_the_supply(self):
        velmor = self.program
        velmor.design(
            ("fo", "", "Eopp", self.say("^Sin dato de tensión pico - pico", "^Without fact of peak - peak voltage")),
            ("Eopp", "2", "Es", ("Ein", "0.1473"), ("Es", "20.875")),  # 2 / 2 x 0.707 / 4.8; 1.375 + 16.5 + 2 + 1
        )
        # 20 V leave 2.125 for the transistor.
        self.warned_of_the_supply("20")
        velmor.design(
            ("Eopp", "", "Es"),
            ("Es", "24", "β", r"^Eq= 6\.125 Volts", self.say("^El Manual brinda un valor", "^The Manual offers a value")),  # less 17.875
        )

    def to_the_preset(self):
        velmor = self.program
        self.told_of_the_transistor(r"^Rb2= 12\.5 K")  # 10 x 1250 ohms
        velmor.design(
            # 12 beside 100000, without conversion; 22.025 V x 11.99856 / 1.975; 12000 / 1250
            ("Rb2", "12", "Rb1", "^B x Res=100 K Rin=11 K", ("S", "9"),
             r"^Preset Rb1= 133\.8067 K " + self.say("Coloque valor", "Put normalized")),
        )
        # 22.025 V over 100 K less 1.975 V over 12 K, times 80
        self.warned("Rb1", "100", self.other_current)
        velmor.shows(r"^4\.4533 mA")
        velmor.focused("Rb1")
        velmor.type("123.5")
        velmor.key("Return")
        velmor.shows(r"^1\.1005 mA")  # the same with 123.5
        velmor.shows("^Zin= 11011 ohms")  # 11.99856 beside 133.8067
        velmor.shows(r"^7\.2306 mf")  # 1 / (12.56 x 11011)
        velmor.shows(r"^7\.9618 mf")  # 1 / (12.56 x 10000)
        velmor.shows(self.say("^Si desea mayor impedancia de entrada", "^If you wants bigger entrance impedance"))
        self.picture("form2-finished")

    def bootstrap(self):
        velmor = self.program
        velmor.key("ctrl+4")
        # Beta x 2 x 1250 beside 133.8; 80 x (1250 beside 5.50619)
        velmor.shows(r"^Zin \(Cbp1\)= 133 K Zin \(Cbp1 y Cbp2\)= 438 K")
        velmor.shows("^181 nf")  # 1 / (12.56 x 438.56)
        velmor.shows(r"^Cbp1= ?13\.2696")  # 2 / (12.56 x 12000)
        velmor.shows(r"^Cbp2= ?1\.2894")  # 2 / (12.56 x 123500)
        self.picture("form2-bootstrapped")


class OutOfAFile(ByCurrent):
    """The first sheet has no dialog for a name: a file that is named at the start is gone on with, and saved under its name."""

    def test_in_spanish(self):
        self.whole_design("etapa.RPC", "0")

    def test_in_english(self):
        self.english = True
        self.whole_design("stage.CEC", "1")

    def whole_design(self, name, language):
        self.program.close()
        folder = tempfile.mkdtemp(prefix="velmor-first-")
        os.makedirs(folder + "/config/Velmor")
        self.write(folder + "/config/Velmor/Velmor.ini", ("[Predeterminados]", "fCastIng=" + language))
        # Text1 to Text4, ERes, Text5 to Text21, what stands beside the drawing: QIc 1.1 mA through 1250 ohms, half designed
        self.write(folder + "/" + name, ("10", "80", "75", "2.5", "1.375", "25", "100", "0.6", "1.1", "10", "10", "5", "20", "2", "0.35",
                                         "1250", "", "15", "", "", "", "  - Es = 20 V", "", "", "1.375  Volt", "16.5     Volts", "1250",
                                         "", "", ""))
        self.program = Program(self.screen, home=folder, arguments=[folder + "/" + name])
        self.addCleanup(self.program.close)
        self.goes_on(folder + "/" + name)

    def goes_on(self, path):
        velmor = self.program
        until(lambda: velmor.in_hand() and velmor.in_hand().get_name() == os.path.basename(path)[:-4], "the sheet of the file")
        for symbol, text in (("QIc", "1.1"), ("Res", "1250"), ("RL", "15")):
            velmor.wait_value(symbol, text)
        self.picture("form2-opened")
        self.told_of_temperature(r"^1\.375, ")
        velmor.design(
            ("QIc", "", "Res", "^1250 ohms", ("Res", "1250")),  # 1.375 V over 1.1 mA
            ("Res", "1375", "RLw", ("QIc", "1")),
        )
        velmor.key("ctrl+s")
        until(lambda: self.lines(path)[8] == "1" and self.lines(path)[15] == "1375", "the figures in the file")
        self.assertEqual(len(self.lines(path)), 31)  # thirty, and the line end that closes the file

    @staticmethod
    def write(path, lines):
        with open(path, "w", encoding="cp1252", newline="\r\n") as file:
            file.write("\n".join(lines) + "\n")

    @staticmethod
    def lines(path):
        with open(path, encoding="cp1252", newline="") as file:
            return file.read().split("\r\n")[:-1]


class ByEmitter(ByCurrent, BothLanguages):
    """The first sheet with a negative supply below its emitter."""

    def whole_design(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.press(velmor.see(self.say("^Polarizado p/Emisor", "^Polarized by Emitter"), "push button"))
        velmor.answer(self.say("El programa asignara la condicion DESACOPLADO", "The program assigned the condition +BYPASS"), "Return")
        self.picture("form2-emitter-start")
        self.to_the_load()
        self.to_the_end()
        self.report(self.say("Emisor Común Realimentado por Corriente", "Common Emitter, Feedback for Current"),
                    self.say("Resultados de diseño Polarizado por Emisor desacoplado: ",
                             "Result of  Bypass polarized by Emitter design: "),
                    "- Ebias =20 Volts", "Res = 20000", "Rb2 (kohm) = 33")
        self.guide("EMISOR COMÚN POLARIZADO POR EMISOR, TOTALMENTE DESACOPLADO",
                   "COMMON EMITTER WITH CURRENT FEEDBACK, BIASED AT THE BASE")

    def to_the_load(self):
        velmor = self.program
        self.told_of_temperature(r"^1\.375, ")
        velmor.design(
            ("QIc", "", "-Es"),
            ("-Es", "", "Res", "^20000 ohms", ("-Es", "20")),  # 20 V over 1 mA; the text that stands there is no number
            ("Res", "", "RLw", ("QIc", "1")),
        )
        self.told_of_the_load()
        velmor.design(
            ("S", "", "Vg"),
            ("Vg", "", "RL", r"^\(Rlac\)= 1375 ohms", ("RL", "1.59420289855072")),  # 55 x 25; 10 x 1.375 / 8.625
            ("RL", "", "fo", ("Vg", "0.0687")),  # 10 x 1.5942 / 11.5942, over 20
        )
        self.step_back("RL", "1.59420289855072", "fo", ("Vg", "0.0687"))
        self.picture("form2-emitter-half")

    def to_the_end(self):
        velmor = self.program
        velmor.design(
            ("fo", "", "Eopp", self.say("^Sin dato de tensión pico - pico", "^Without fact of peak - peak voltage")),
            ("Eopp", "", "Es", ("Ein", "5.1456"), ("Es", "4.96920289855072")),  # 0.5 x 0.707 / 0.0687; 1.375 + 1.5942 + 1 + 1
        )
        # 4 V less 1.5942 are below 3; the student stays with the supply.
        self.warned_of_the_supply("4")
        velmor.focused("Es")
        velmor.key("ctrl+a")
        velmor.design(
            ("Es", "10", "β", r"^Eq= 8\.4058 Volts"),
        )
        self.told_of_the_transistor("^Rb2= 200 K")  # 10 x 20000 ohms
        velmor.design(
            ("Rb2", "33", "Rb1", self.say("^Sin resistor Rb1", "^Without resistor Rb1")),
        )
        velmor.key("Return")
        velmor.shows("^Zin= 1885 ohms")  # 33 K beside 80 x 25
        velmor.shows(r"^42\.2216 mf")  # 1 / (12.56 x 1885.7)
        velmor.shows(self.say("^No se puede +realizar Bootstrapping", "^Bootstrapping can not be carried out"))
        velmor.wait_value("Cbp", "318 microF")  # 1 / (125.6 x 25)
        self.picture("form2-emitter-finished")


class Bypassed(ByCurrent, BothLanguages):
    def whole_design(self):
        velmor = self.program
        self.open("^Desacoplado,", "^Bypass,")
        self.picture("desaco-start")
        self.explained("shift+F1", self.say("El capacitor de desacople Cbp lleva el emisor a masa",
                                            "The capacitor Cbp takes the emitter to ground"))
        self.picture("desaco-help")
        velmor.key("shift+F1")
        self.toggle()
        self.to_the_load()
        self.to_the_supply()
        self.to_the_preset()
        self.report(self.say("Emisor Común Realimentado por Corriente, Desacoplado", "Common Emitter, Feedback for Current, Bypass"),
                    self.say("Resultados de diseño Desacoplado: ", "Result of Bypass design: "),
                    self.say("Corriente Qic obtenida (calibrando Rb1)= 1.1014 mA", "Current Qic = 1.1014 mA"),
                    "RL (kohm) = 1.5", "Rb1 (kohm) = 46.72", "Eq=  6.975 Volts")
        self.keep(self.say("etapa.DES", "stage.DESI"),
                  self.say(("Emisor Común", "Totalmente Desacoplado"), ("Common Emitter", "Fully Bypassed")),
                  ("QIc", "1.1"), ("Vg", "57.3913"), ("Es", "10"), ("Rb2", "12.5"), ("Rb1", "46.72"))
        velmor.shows(self.say("^Circuito de Archivo : Emisor Común Desacoplado", "^Archive Circuit : Common Emitter, Bypass"))
        velmor.shows(r"^Eq= 6\.975 Volts")
        self.picture("desaco-opened")
        self.guide("EMISOR COMÚN TOTALMENTE DESACOPLADO", "COMMON EMITTER, FULLY BYPASSED")

    def toggle(self):
        """The option, the way back, and the option once more."""
        velmor = self.program
        bypassed = self.say("vuelve al comienzo$", "back to the beginning$")
        velmor.key("ctrl+1")
        velmor.see(bypassed, "push button")
        velmor.key("ctrl+2")
        velmor.shows(self.say("^Pulsando DESACOPLADO, obtendra mas ganancia", "^Pressing Bypass, you will obtain more gain"))
        velmor.key("ctrl+1")
        velmor.see(bypassed, "push button")
        velmor.focused("ΔQIc")
        velmor.wait_value("Vg", "55")

    def to_the_load(self):
        velmor = self.program
        self.to_the_gain()
        velmor.design(
            ("Vg", "", "RL", r"^\(Rlac\)= 1250 ohms", ("RL", "1.42857142857143")),  # 55 x 25 / 1.1; 10 x 1.25 / 8.75
            ("RL", "1.5", "fo", r"^1\.65 Volts", r"^Rlac = 1\.3043 K", ("Vg", "57.3913")),  # 10 x 1.5 / 11.5, over 25 / 1.1
        )
        self.step_back("RL", "1.42857142857143", "fo", ("RL", "1.5"), ("Vg", "57.3913"))
        self.picture("desaco-half")

    def to_the_supply(self):
        velmor = self.program
        velmor.design(
            ("fo", "", "Eopp", self.say("^Sin dato de tensión pico - pico", "^Without fact of peak - peak voltage")),
            ("Eopp", "2", "Es", ("Ein", "0.0123"), ("Es", "6.025")),  # 2 / 2 x 0.707 / 57.3913; 1.375 + 1.65 + 2 + 1
        )
        # 6 V leave 2.975 for the transistor.
        self.warned_of_the_supply("6")
        velmor.design(
            ("Eopp", "", "Es"),
            # 10 - 1.65 - 1.375
            ("Es", "10", "β", r"^Eq= 6\.975 Volts", self.say("^El Manual brinda un valor", "^The Manual offers a value")),
        )

    def to_the_preset(self):
        velmor = self.program
        self.told_of_the_transistor(r"^Rb2= 12\.5 K")  # 10 x 1250 ohms
        velmor.design(
            # 12.5 x 100 / 112.5 K; (10 - 0.00165 - 1.375 + 0.00165 - 0.6) x 12.4984 / 1.975
            ("Rb2", "12.5", "Rb1", "^B x Res=100 K Rin=12 K", r"^Preset Rb1= 50\.7848 K " + self.say("Coloque valor", "Put normalized")),
        )
        # 8.025 V over 40 K less 1.975 V over 12.5 K, times 80
        self.warned("Rb1", "40", self.other_current)
        velmor.shows(r"^3\.41 mA")
        velmor.design(
            ("Rb1", "46.72", "Rb2", r"^1\.1014 mA", "^Zin= 1755 ohms", r"^45\.3576 mf", r"^7\.9618 mf", ("Cbp", "350 microF"),
             self.say("^No se puede +realizar Bootstrapping", "^Bootstrapping can not be carried out")),
        )
        self.picture("desaco-finished")


class PartlyBypassed(ByCurrent, BothLanguages):
    def whole_design(self):
        velmor = self.program
        self.open("^Parcialmente desacoplado", "^Parcial Bypass")
        self.picture("parcdesac-start")
        self.explained("shift+F1", self.say("El resistor de emisor se divide en dos", "The emitter resistor is divided in two"))
        velmor.key("shift+F1")
        self.to_the_load()
        self.to_the_supply()
        self.to_the_preset()
        self.bootstrap()
        if self.english:
            self.report_that_is_not_handed_over()
        else:
            self.report("Emisor Común Realimentado por Corriente, Parcialmente Desacoplado",
                        "Elaboración de Informe Parcialmente Desacoplado", "RL (kohm) = 4.7", "Rb1 (kohm) = 91.2")
        self.keep(self.say("etapa.RPCD", "stage.CECB"),
                  self.say(("Emisor Común", "Parcialmente Desacoplado"), ("Common Emitter", "Partly Bypassed")),
                  ("T", "80"), ("Res", "300"), ("Vg", "9.8688"), ("Es", "15"), ("Rb2", "30"), ("Rb1", "91.2"))
        velmor.shows(self.say("^Circuito de Archivo : Emisor Común", "^Archive Circuit : Common Emitter"))
        velmor.shows(r"^11\.4 Volts")
        self.picture("parcdesac-opened")
        self.guide("EMISOR COMÚN PARCIALMENTE DESACOPLADO", "COMMON EMITTER WITH CURRENT FEEDBACK, BIASED AT THE BASE")

    def to_the_load(self):
        velmor = self.program
        velmor.design(
            ("ΔQIc", "", "T", self.say("^Coloque la temperatura ambiente", "^It places the ambient temperature")),
            ("T", "80", "ΔVbe", self.say("^Para Qic inferior a 10 mA", "^For inferior Qic to 10 MA")),
            ("ΔVbe", "", "QIc", "^3, "),  # 60 x 2.5 mV x 100 / 5
            ("QIc", "", "Res", "^Valor total del resistor Res : 3000 ohms", ("Res", "300")),
        )
        # Less than ten times r'e cannot be left without bypass.
        velmor.type("100")
        velmor.press(velmor.field("QIc"))
        velmor.answer(self.say("^El valor de Res sin desacoplar debe ser 10 veces", "^The value of Res must be 10 more time"), "Return")
        velmor.focused("Res")
        velmor.key("ctrl+a")
        velmor.design(
            ("Res", "300", "RLw", "^3 Volt", self.say("^Especificacion circuital", "^Specification circuital")),
        )
        self.told_of_the_load()
        velmor.design(
            ("S", "", "Vg"),
            ("Vg", "", "RL", r"^\(Rlac\)= 3000 ohms", ("RL", "4.8")),  # 10 x 300; 8 x 3 / 5
        )
        self.picture("parcdesac-half")

    def to_the_supply(self):
        self.program.design(
            ("RL", "4.7", "fo", r"^4\.7 Volts", r"^Rlac = 2\.9606 K", ("Vg", "9.8688")),  # 8 x 4.7 / 12.7, over 300 ohms
        )
        self.step_back("RL", "4.8", "fo", ("RL", "4.7"), ("Vg", "9.8688"))
        self.program.design(
            ("fo", "", "Eopp", "^29 microF"),  # 1 / (20 x 0.628 x 2700 ohms)
            ("Eopp", "", "Es", ("Ein", "0.1075"), ("Es", "11.7")),  # 3 / 2 x 0.707 / 9.8688; 3 + 4.7 + 3 + 1
            ("Es", "15", "β", r"^Eq= 7\.3 Volts", self.say("^El Manual brinda un valor", "^The Manual offers a value")),
        )

    def to_the_preset(self):
        velmor = self.program
        self.told_of_the_transistor("^Rb2= 30 K")
        velmor.design(
            # 30 x 600 / 630 K; 11.4 V x 28.571 / 3.6
            ("Rb2", "30", "Rb1", "^B x Res=600 K Rin=28 K", r"^Preset Rb1= 90\.4762 K " + self.say("Coloque valor", "Put normalized")),
            ("Rb1", "100", "Rb1", self.say("^Si desea mayor impedancia de entrada", "^If you wants bigger entrance impedance")),
        )
        # 11.4 V over 100 K less 3.6 V over 30 K, times 200
        velmor.press(velmor.field("Rb2"))
        velmor.answer(self.say(*self.other_current), "Return")
        velmor.shows(r"^-1\.2 mA")
        velmor.design(
            ("Rb1", "91.2", "Rb1"),
        )
        self.picture("parcdesac-finished")

    def bootstrap(self):
        velmor = self.program
        velmor.key("ctrl+4")
        velmor.shows(r"^Cbp2= ?1\.746")  # 2 / (20 x 0.628 x 91200 ohms)
        velmor.shows(r"^Cbp1= ?5\.3079")  # the same with 30000
        velmor.shows("^1 mA")  # 11.4 / 91.2 - 0.12 mA, times 200
        self.picture("parcdesac-bootstrapped")

    def report_that_is_not_handed_over(self):
        """The English editor opens and keeps what it had: nothing."""
        velmor = self.program
        velmor.key("ctrl+r")
        editor = velmor.see("^Text$", "text")
        self.assertEqual(velmor.text(editor).strip(), "")
        velmor.turn_to("Common Emitter, Feedback for Current, Parcial Bypass$")


class PartlyBypassedByEmitter(ByCurrent, BothLanguages):
    def whole_design(self):
        velmor = self.program
        self.open("^Parcialmente desacoplado", "^Parcial Bypass")
        velmor.key("Escape")
        velmor.focused("T")
        velmor.wait_value("ΔQIc", "10")
        velmor.key("ctrl+3")  # by emitter since Esc; this takes it back, and the next one offers it with its word
        velmor.key("ctrl+3")
        velmor.answer(self.say("El programa asignara la condicion DESACOPLADO", "The program assigned the condition +BYPASS"), "Return")
        self.to_the_load()
        self.to_the_end()

    def to_the_load(self):
        velmor = self.program
        self.told_of_temperature(r"^1\.375, ")
        velmor.design(
            ("QIc", "", "-Es"),
            ("-Es", "2", "Res", ("Res", "2000"), self.say("^Especificacion circuital", "^Circuit especification")),
            ("Res", "1600", "RLw", ("QIc", "1.25")),  # 2 V over 1600 ohms
        )
        velmor.key("alt+BackSpace")
        velmor.design(
            ("Res", "", "RLw", ("QIc", "1")),
        )
        self.told_of_the_load()
        velmor.design(
            ("S", "", "Vg"),
            ("Vg", "1", "RL", r"^\(Rlac\)= 2000 ohms", ("RL", "2.66666666666667")),  # 8 x 2 / 6
            ("RL", "2.7", "fo", r"^Rlac = 2\.0187 K", ("Vg", "1.0093")),  # 8 x 2.7 / 10.7, over 2
        )
        self.picture("parcdesac-emitter-half")

    def to_the_end(self):
        velmor = self.program
        velmor.design(
            ("fo", "", "Eopp", "^-127 microF"),  # 1 / (20 x 0.628 x (1375 - 2000))
            ("Eopp", "", "Es", ("Ein", "1.0507"), ("Es", "8.075")),
        )
        # 5 V less 2.7 are below 3; the student stays with the supply.
        self.warned_of_the_supply("5")
        velmor.focused("Es")
        velmor.key("ctrl+a")
        velmor.design(
            ("Es", "12", "β", r"^Eq= 9\.3 Volts"),  # the emitter does not count here
        )
        self.told_of_the_transistor(r"^Rb2= 13\.75 K")  # 10 x 1375 ohms
        velmor.design(
            ("Rb2", "27", "Rb1", self.say("^Los valores de impedancia de entrada NO difieren",
                                          "^The values of entrance impedance don't differ")),
            ("Rb1", "", "Rb1", ("Cbp", "318 microF"),  # 1 / (25 ohms x 20 x 6.28)
             self.say("^No se puede +realizar Bootstrapping", "^Bootstrapping can not be carried out")),
        )
        self.picture("parcdesac-emitter-finished")


class ByVoltage(Emitter):
    """The two sheets fed back from the collector, by the panel that presents them."""

    def open(self, spanish, english, first):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.press(velmor.see(self.say("^Emisor Común Realimentado por tensión$", r"\(feedback for Voltage\)$"), "push button"))
        velmor.press(velmor.see("^%s$" % self.say(spanish, english), "push button"))
        begin = velmor.see(self.say("^Empezar$", "^Begin$"), "push button")
        self.picture("form7-" + english.lower())
        velmor.press(begin)
        until(lambda: len(velmor.sheets()) == 2, "the second sheet")
        velmor.focused(first)

    def ask_about_supply(self, answer):
        """Enter in RL asks whether the supply is to be another one."""
        velmor = self.program
        velmor.design(
            ("RL", "", "RL", self.say(r"^Cambia Fuente de Alimentación\?", r"^DC Volt Change\?")),
        )
        velmor.press(velmor.see("^%s" % answer, "push button"))

    def told_of_the_limits(self):
        """What the manual says of the transistor, and a current of more than 40 % of its 100 mA."""
        velmor = self.program
        velmor.design(
            ("Ec(max)", "", "Ic(max)", self.say("^El dato de la corriente máxima", "^The date of the current maximum")),
            ("Ic(max)", "", "Vj", self.say("^Para transistores de Germanio", "^For transistors of Germanium")),
            ("Vj", "", "QIc", self.say("^Comience asignando la corriente", "^Begin assigning the current")),
        )
        self.warned("QIc", "41", ("^La corriente de Colector +no debe superar el 40%",
                                  "^The current of Collector should not overcome 40%"))
        velmor.focused("QIc")
        velmor.design(
            ("QIc", "1", "RLw", self.say("^Este valor corresponde a la carga", "^This value corresponds to the load")),
        )

    def told_of_the_signal(self):
        """The load, and what is asked of it: the same figures on both sheets."""
        self.program.design(
            ("RLw", "", "Eopp"),
            ("Eopp", "", "Vg", self.say("^En este tipo de configuración", "^In this configuration type")),
            # 1.25 x 0.707 / 100
            ("Vg", "", "Ein", ("Ein", "0.0088"), self.say("^Ingrese la señal de entrada", "^Enters in the entrance sign")),
            ("Ein", "", "S", ("Eopp", "2.4816")),  # 0.0088 x 1.41 x 2 x 100
        )

    def fed_by(self, Rg, *seen):
        """A generator of so many kilohms, and what the analysis says of it."""
        velmor = self.program
        velmor.press(velmor.field("Rg"))
        velmor.key("ctrl+a")
        velmor.type(Rg)
        velmor.wait_value("Rg", Rg)
        velmor.key("Return")
        for text in seen:
            velmor.see(text)

    def fed_easily_by(self, Rg):
        """Zin exceeds Rg, and the output power is all that is told: 0.8773 V squared over 4 K."""
        self.fed_by(Rg, self.say(r"Potencia de salida : Eo\(eficaz\)\^2 / RLw = 192 microW.*no presentara una carga 'pesada'",
                                 r"Output power : Eo\(r\.m\.s\.\)\^2 / RLw = 192 microW.*didn't present a load ' heavy '"))


class FedBack(ByVoltage, BothLanguages):
    def whole_design(self):
        self.open("Simple", "Simple", "Ec(max)")
        self.picture("form8-start")
        self.to_beta()
        self.to_the_supply()
        self.to_the_preset()
        self.analysis()
        self.bootstrap()
        self.report(self.say("Circuito Realimentado por Tensión Simple", "Feedback Voltage Circuits Simple"),
                    self.say("Emisor Común Realimentado p/ tensión, polarizado p/ Base",
                             "Common Emitter, Feedback for Voltage, polarized for Base"),
                    "RL (kohm) = 10.3621", "Rb1 (kohm) = 100", "Zin= 5000 ohms",
                    self.say("Zin del Generador (Kohm) = 2 K", "Zin of Generator (Kohm) = 2 K"))
        self.keep(self.say("simple.RPT", "simple.FVS"),
                  self.say(("Realimentado por Tensión", "Circuito Simple"), ("Voltage Feedback", "Circuits Simple")),
                  ("QIc", "1"), ("Vg", "115"), ("RL", "10.3621"), ("Es", "12"), ("Rb1", "100"), ("Rg", "2"), ("S", "9"))
        self.program.shows("^Zin= 5000 ohms")
        self.program.shows(self.say(r"^Como los valores de impedancia de entrada \(Zin\)", r"^As the values of entrance impedance \(Zin\)"))
        self.picture("form8-opened")

    def to_beta(self):
        velmor = self.program
        self.told_of_the_limits()
        self.explained("F1", self.say("puede asignar un valor de resistencia de carga", "you can assign a value of load resistance"))
        self.told_of_the_signal()
        velmor.design(
            # 25 / 1 mA; 100 x 25; 4 x 2.5 / 1.5, at 1 mA; 0.66 x 2.4816; the sum
            ("S", "", "β", "^r'e = 25 Ohms", r"^\(Rlac\)= 2500 ohms", r"^ERl = 6\.6667 Volts", r"^Eq =1\.6379 Volt",
             ("RL", "6.6667"), ("Es", "8.3045"), self.say("^Si utiliza transistor BC548", "^If it uses transistor BC548")),
        )
        self.step_back("S", "s/uso", "β", ("RL", "6.6667"))
        self.picture("form8-half")

    def to_the_supply(self):
        velmor = self.program
        self.in_the_other_language("β", "RL", "^Coloque un valor normalizado de RL", "^It places a normalized value of RL")
        self.ask_about_supply(self.say("Cambiar", "Change"))
        velmor.focused("Es")
        velmor.shows(self.say("^Es aconsejable asignar un valor mas elevado", "^It is advisable to assign a value more high"))
        velmor.design(
            # what 12 V leave on RL, at 1 mA; (1.637856 - 0.6) x 100 kilohms
            ("Es", "12", "Rb1", r"^ERl = 10\.3621 Volts", "^Rlac= 2885 ohms", ("RL", "10.3621"), ("Rb1", "103.7856"),
             self.say("^Coloque un valór normalizado para Rb1", "^It places a valór normalized for Rb1")),
        )

    def to_the_preset(self):
        self.warned("Rb1", "130", ("^El preset debe ser ajustado dentro de un rango del 20%",
                                   "^The preset should be adjusted inside a range of 20%"))
        self.program.design(
            # 2885.96 / 25; 902.48 beside 2500; 1 / (12.56 x 663.106) and the same with 4000; 100 / 10.3621
            ("Rb1", "100", "Rg", "^Zin= 663 ohms", r"^Cin= 120\.068 mF", r"^Cco= 19\.9045 mF", ("Vg", "115"), ("S", "9"),
             self.say("^Haga Click sobre el boton superior", "^You makes Click on the superior button")),
        )
        self.picture("form8-finished")

    def analysis(self):
        """The generator of half a kilohm feeds 663 ohms, one of 2 K does not."""
        self.fed_easily_by("0.5")
        self.picture("form8-light")
        # 0.76956 / 2000 and / 663.106, times 100
        self.fed_by("2", r"Pg = 0\.0385 microW.*Ein\^2 / Zin =0\.1161 microW",
                    self.say("es mas pequeña que la del generador", "is too small that that"))
        self.picture("form8-heavy")

    def bootstrap(self):
        velmor = self.program
        velmor.press(velmor.field("Rg"))
        velmor.key("ctrl+1")
        velmor.shows(r"^1\.5343 mF")  # 1 / (12.56 x 51892.8)
        velmor.shows("^Zin= 5000 ohms")  # 2 x 100 x 25
        self.picture("form8-bootstrapped")


class FedBackByTheSupplyProposed(ByVoltage, BothLanguages):
    """The student goes on with the supply as it stands; what is left for RL is too little, and another one is asked for."""

    def whole_design(self):
        self.open("Simple", "Simple", "Ec(max)")
        self.to_the_load()
        self.to_the_refusal()
        self.to_the_end()

    def to_the_load(self):
        self.program.design(
            ("Ec(max)", "", "Ic(max)"),
            ("Ic(max)", "", "Vj"),
            ("Vj", "", "QIc"),
            ("QIc", "", "RLw"),
            ("RLw", "", "Eopp"),
            ("Eopp", "1.5", "Vg"),
            ("Vg", "30", "Ein", ("Ein", "0.0177")),  # 0.75 x 0.707 / 30
            ("Ein", "", "S", ("Eopp", "1.4974")),  # 0.0177 x 1.41 x 2 x 30
            # 4 x 0.75 / 3.25; 0.66 x 1.4974 is below 1, and lifted by 1
            ("S", "", "β", ("RL", "0.9231"), r"^Eq =1\.9883 Volt", ("Es", "2.9114")),
            ("β", "", "RL"),
        )

    def to_the_refusal(self):
        """The preset is proposed in ohms and judged in kilohms; and 1.9883 V stay on the transistor, 0.9231 on RL."""
        velmor = self.program
        self.ask_about_supply(self.say("Continuar", "Follow"))
        velmor.shows(r"^0\.9231 Volt")
        velmor.shows(r"^Eq= 1\.9883 volt")
        velmor.wait_value("Rb1", "138830")  # (1.9883 - 0.6) over 10 microampere
        self.warned("Rb1", "138830", ("^El preset debe ser ajustado", "^The preset should be adjusted"))
        self.warned("Rb1", "140", ("^El valor de tensión en ERl debe ser superior a EQ",
                                   "^The value of voltage in ERl should be superior to EQ"))
        velmor.focused("Es")
        velmor.wait_value("S", "..?")
        velmor.shows("^Asigne un nuevo valor de ES")  # in both languages
        self.picture("form8-refused")

    def to_the_end(self):
        velmor = self.program
        velmor.key("ctrl+a")
        velmor.design(
            ("Es", "6", "Rb1", r"^ERl = 4\.0117 Volts", ("RL", "4.0117"), ("Rb1", "138.83")),  # 6 - 1.9883
            # 2002.92 / 25; 1735.38 beside 2500; 1 / (12.56 x 1024.33); 140 / 4.0117
            ("Rb1", "140", "Rg", "^Zin= 1024 ohms", r"^Cin= 77\.7265 mF", ("Vg", "80"), ("S", "34")),
        )
        self.fed_by("1", "RLw = 70 microW")  # 0.52933 V squared over 4 K


class FedBackStably(ByVoltage, BothLanguages):
    def whole_design(self):
        self.open("Estable", "Stable", "fo")
        self.picture("form18-start")
        self.to_beta()
        self.to_the_supply()
        self.divider()
        self.analysis()
        self.bootstrap()
        self.report(self.say("Circuito Realimentado por Tensión Estable", "Feedback Voltage Circuits Stable"),
                    self.say("Emisor Común Realimentado p/ tensión, polarizado p/ Base, estabilizado",
                             "Common Emitter, Feedback for Voltage, polarized for Base"),
                    self.say("QIc (obtenida) = 0.001A", "QIc (obtained in A)= 0.001A"),
                    "Rb1 (kohm) = 110", "3.967 K", self.say("Rg del Generador (kohms) = 0.5 K", "Rg Generator (kohm) = 0.5 K"))
        self.keep(self.say("estable.RTE", "stable.FVS"),
                  self.say(("Realimentado por Tensión", "Circuito Estable"), ("Voltage Feedback", "Circuits Stable")),
                  ("RL", "6.66666666666667"), ("Es", "25"), ("Rb1", "110"), ("Rb2", "3.967"), ("Rg", "0.5"))
        self.program.shows(r"^0\.001A")
        self.program.shows(self.say(r"^Como los valores de impedancia de entrada \(Zin\)", r"^As the values of entrance impedance \(Zin\)"))
        self.picture("form18-opened")

    def to_beta(self):
        velmor = self.program
        velmor.design(
            ("fo", "", "Ec(max)", self.say("^El dato de la tensión máxima", "^The date of the voltage maximum")),
        )
        self.told_of_the_limits()
        self.told_of_the_signal()
        self.explained("F1", self.say("S fija el valor del resistor que va de Colector a Base", "S fixes the value of the resistor"))
        velmor.design(
            ("S", "", "β", r"^\(Rlac\)= 2500 ohm", r"^ERl = 6\.66666666666667 Volt", ("RL", "6.66666666666667"), ("Es", "8.3045"),
             self.say("^Si utiliza transistor BC548", "^If it uses transistor BC548")),
        )
        self.step_back("S", "16.6", "β", ("RL", "6.66666666666667"))
        self.picture("form18-half")

    def to_the_supply(self):
        velmor = self.program
        self.in_the_other_language("β", "RL", "^Coloque un valor normalizado de RL", "^It places a normalized value of RL")
        self.ask_about_supply(self.say("Cambiar", "Change"))
        self.warned("Es", "8", (r"^Cambiar el valor de fuente\.\.!", r"^To change the source value\.\.!"))  # less than 8.3045
        if not self.english:  # the student of a Spanish sheet has gone on to the preset meanwhile
            velmor.focused("Rb1")
            velmor.press(velmor.field("Es"))
        velmor.focused("Es")
        velmor.key("ctrl+a")
        velmor.design(
            # 25 - 6.66667; 16.6 x 6.66667
            ("Es", "25", "Rb1", r"^Eq= 18\.3333 Volt", ("Rb1", "110.6667"),
             self.say("^Coloque un valór normalizado para Rb1", "^It places a valór normalized for Rb1")),
        )

    def divider(self):
        velmor = self.program
        velmor.design(
            # 0.6 V / (17.73333 / 110000 - 0.001 / 20), with the lowest frequency in the place of Beta
            ("Rb1", "110", "Rb2", r"^Zin= 343\.7281 ohms", ("Rb2", "5.3951"), ("Vg", "100")),
            ("Rb2", "", "Rg", r"^0\.005A", self.say("^El valor de QIc es distinto al calculado", "^It's not QIc value"),
             self.say("^Al variar el valor de Rb2", "^If varied Rb2 changed")),
        )
        velmor.press(velmor.field("Rb2"))
        velmor.key("ctrl+a")
        velmor.design(
            ("Rb2", "3.967", "Rg", r"^0\.001A"),  # (0.161212 - 0.151248) mA x 100
        )
        self.picture("form18-finished")

    def analysis(self):
        """The generator of 0.2 K feeds 343 ohms, one of 0.5 K does not."""
        self.fed_easily_by("0.2")
        self.picture("form18-light")
        # 0.0088375 V squared over 500 and over 343.7281
        self.fed_by("0.5", r"Pg = 0\.1562 microW.*Ein\^2 / Zin =0\.2272 microW",
                    self.say("este necesitará suministrar una potencia", "he needed to give a power"))
        self.picture("form18-heavy")

    def bootstrap(self):
        velmor = self.program
        velmor.press(velmor.field("Rg"))
        velmor.key("ctrl+1")
        velmor.shows("^Zin= 1491 ohms")  # 55 K beside 2500, beside 3967
        velmor.shows(r"^1\.4476 mF")  # 1 / (12.56 x 55000)
        self.picture("form18-bootstrapped")


class FedBackStablyByTheSupplyProposed(ByVoltage, BothLanguages):
    def whole_design(self):
        velmor = self.program
        self.open("Estable", "Stable", "fo")
        velmor.design(
            ("fo", "", "Ec(max)"),
            ("Ec(max)", "", "Ic(max)"),
            ("Ic(max)", "", "Vj"),
            ("Vj", "", "QIc"),
            ("QIc", "", "RLw"),
        )
        self.told_of_the_signal()
        velmor.design(
            ("S", "1", "β", ("RL", "6.66666666666667"), ("Es", "8.3045")),
            ("β", "", "RL"),
        )
        self.ask_about_supply(self.say("Continuar", "Follow"))
        velmor.shows(r"^Eq= 1\.6378 Volt")  # 8.3045 - 6.66667
        velmor.wait_value("Rb1", "6.6667")  # 1 x 6.66667
        velmor.design(
            # 0.6 V / (1.03783 / 6666.7 - 0.001 / 20)
            ("Rb1", "", "Rb2", ("Rb2", "5.6778")),
            ("Rb2", "4.119", "Rg", r"^0\.001A"),
        )
        self.picture("form18-proposed")


if __name__ == "__main__":
    unittest.main()
