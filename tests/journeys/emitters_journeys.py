# SPDX-License-Identifier: MIT
"""Whole designs of the common-emitter family with real keys and clicks: a stage that is warned, goes back a step, changes its
language half-way, is saved and opened anew, reported, and told by its guide. Figures are worked out beside each step."""
import unittest

from journey import Journey, until


class Emitter(Journey):
    def open(self, option):
        """A sheet that an option of the first one opens."""
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.press(velmor.see(option, "push button"))
        until(lambda: len(velmor.sheets()) == 2, "the second sheet")


class Bypassed(Emitter):
    def test_a_bypassed_stage_from_the_first_field_to_its_report(self):
        self.open("^Desacoplado,")
        self.to_the_load()
        self.step_back()
        self.program.speak(english=True)
        self.to_the_supply()
        self.to_the_preset()
        self.keep()
        self.report()

    def to_the_load(self):
        velmor = self.program
        velmor.picture("desaco-start")
        velmor.design(
            ("ΔQIc", "", "T", "^Coloque la temperatura ambiente"),
            ("T", "", "ΔVbe", "^Para Qic inferior a 10 mA"),
            ("ΔVbe", "", "QIc", r"^1\.375, "),  # (75 - 20) x 2.5 mV x 100 / 10
            ("QIc", "", "Res", "^1375 ohms", ("Res", "1375")),
            ("Res", "1250", "RLw", ("QIc", "1.1")),  # 1.375 V over 1250 ohms
            ("RLw", "", "S"),
            ("S", "", "Vg"),
            ("Vg", "", "RL", r"^\(Rlac\)= 1250 ohms", ("RL", "1.42857142857143")),  # 55 x 25 / 1.1; 10 x 1.25 / 8.75
            ("RL", "1.5", "fo", r"^1\.65 Volts", r"^Rlac = 1\.3043 K", ("Vg", "57.3913")),  # 10 x 1.5 / 11.5, over 25 / 1.1
        )

    def step_back(self):
        """Another thought about RL, and the first one after all."""
        velmor = self.program
        velmor.key("alt+BackSpace")
        velmor.focused("RL")
        velmor.wait_value("RL", "1.42857142857143")
        velmor.wait_value("Vg", "55")
        velmor.key("ctrl+y")
        velmor.focused("fo")
        velmor.wait_value("RL", "1.5")
        velmor.picture("desaco-half")

    def to_the_supply(self):
        velmor = self.program
        velmor.design(
            ("fo", "", "Eopp", "^Without fact of peak - peak voltage"),
            ("Eopp", "2", "Es", ("Ein", "0.0123"), ("Es", "6.025")),  # 2 / 2 x 0.707 / 57.3913; 1.375 + 1.65 + 2 + 1
        )
        # 6 V leave 2.975 for the transistor.
        velmor.type("6")
        velmor.key("Return")
        velmor.answer("To increase voltage", "Return")
        velmor.answer("Eopp, or Vg Diminishes", "Return")
        velmor.design(
            ("Eopp", "", "Es"),
            ("Es", "10", "β", r"^Eq= 6\.975 Volts"),  # 10 - 1.65 - 1.375
        )

    def to_the_preset(self):
        velmor = self.program
        velmor.design(
            ("β", "", "Ic(max)"),
            ("Ic(max)", "", "Vj"),
            ("Vj", "", "Rb2", r"^Rb2= 12\.5 K"),  # 10 x 1250 ohms
            # 12.5 x 100 / 112.5 K; (10 - 0.00165 - 1.375 + 0.00165 - 0.6) x 12.4984 / 1.975
            ("Rb2", "12.5", "Rb1", "^B x Res=100 K Rin=12 K", r"^Preset Rb1= 50\.7848 K Put normalized value"),
        )
        # 8.025 V over 40 K less 1.975 V over 12.5 K, times 80
        velmor.type("40")
        velmor.key("Return")
        velmor.answer("Collector currents it's different to design", "Return")
        velmor.shows(r"^3\.41 mA")
        velmor.design(
            ("Rb1", "46.72", "Rb2", r"^1\.1014 mA", "^Zin= 1755 ohms", r"^45\.3576 mf", r"^7\.9618 mf", ("Cbp", "350 microF")),
        )
        velmor.picture("desaco-finished")

    def keep(self):
        """The file brings the design back in a sheet of its own."""
        velmor = self.program
        path = velmor.home + "/stage.DESI"
        velmor.save(path)
        velmor.open_circuit(path, "Common Emitter", "Fully Bypassed")
        until(lambda: len(velmor.sheets()) == 3, "a third sheet")
        for symbol, text in (("QIc", "1.1"), ("Vg", "57.3913"), ("Es", "10"), ("Rb2", "12.5"), ("Rb1", "46.72")):
            velmor.wait_value(symbol, text)
        velmor.shows("^Archive Circuit : Common Emitter, Bypass")
        velmor.shows(r"^Eq= 6\.975 Volts")

    def report(self):
        velmor = self.program
        velmor.key("ctrl+r")
        velmor.reads("Result of Bypass design", "RL (kohm) = 1.5", "Rb1 (kohm) = 46.72", "Eq=  6.975 Volts")
        velmor.turn_to("^stage")
        velmor.key("ctrl+g")
        velmor.reads("COMMON EMITTER, FULLY BYPASSED")


if __name__ == "__main__":
    unittest.main()
