# SPDX-License-Identifier: MIT
"""A new user checks a finished design: bets, is surprised by Zin, follows the ladder to its reason, moves the slider until the wave
has grown to four times its height, and puts the table into the report. Needs ngspice, as the check does; without it the window
says how to get it."""
import re
import shutil
import unittest

from journey import Atspi, Journey, children, has, until


class Checked(Journey):
    # What is typed where the program's own proposal is no standard value, or is more than the transistor stands.
    typed = {"Res": "1300", "RL": "18", "Es": "25", "Rb2": "13", "Rb1": "139.43"}

    def finish(self):
        """A whole stage, from its first field to its last."""
        velmor = self.program
        velmor.focused("ΔQIc")
        for _ in range(30):
            if self.is_awake():
                return
            symbol = self.field_in_hand()
            if symbol in self.typed:
                velmor.type(self.typed[symbol])
                velmor.wait_value(symbol, self.typed[symbol])
            velmor.key("Return")
            until(lambda: self.is_awake() or self.field_in_hand() != symbol, "what comes behind " + symbol)
        raise AssertionError("the design has no end")

    def is_awake(self):
        tile = self.program.named("simulador|simulator", "push button")
        return tile is not None and not tile.get_description()

    def field_in_hand(self):
        return until(lambda: next((node.get_name().split(",")[0] for node in self.program.all(self.program.in_hand())
                                   if node.get_role_name() == "text" and has(node, Atspi.StateType.FOCUSED)), None),
                     "a field in hand")

    def check_window(self, title):
        velmor = self.program
        until(lambda: any(re.search(title, node.get_name() or "") and has(node, Atspi.StateType.ACTIVE)
                          for node in children(velmor.root)), "the window " + title)

    def row(self, name):
        """The row of that quantity in hand."""
        velmor = self.program
        for _ in range(20):
            heading = velmor.named("^%s · " % name, "label")
            if heading and has(heading, Atspi.StateType.SHOWING):
                return heading
            before = velmor.named(" · ", "label").get_name()
            velmor.key("Down")
            until(lambda: velmor.named(" · ", "label").get_name() != before, "the next row")
        raise AssertionError("no row is called " + name)

    def follow_it(self, title, lower, lost, reason, grown, reported, reads):
        velmor = self.program
        self.finish()
        velmor.key("ctrl+t")
        self.check_window(title)
        velmor.see(lower, "push button")
        velmor.picture("check-start")
        self.row("Zin")
        velmor.key("3")
        velmor.see(lost, "label")
        ladder = velmor.named("paso a paso|step by step")
        self.assertRegex(ladder.get_description(), reason)
        velmor.picture("check-ladder")
        self.row("Eopp")
        velmor.key("2")
        slider = velmor.see("veces la del curso|times that of the course", "slider")
        slider.grab_focus()
        velmor.key("End")
        until(lambda: has_grown(velmor, grown), "a wave four times as high")
        velmor.picture("check-grown")
        velmor.press(velmor.see(reported[0], "push button"))
        velmor.see(reported[1], "label")
        velmor.reads(*reads)
        velmor.picture("check-reported")


def has_grown(velmor, pattern):
    # The row says 0.969 V peak to peak at the course's input; a wave that is not bent yet reaches four times half of that.
    wave = velmor.named("^Onda de salida|^Output wave")
    return wave and re.search(pattern, wave.get_description() or "")


@unittest.skipUnless(shutil.which("ngspice"), "no ngspice")
class CheckedDesign(Checked):
    def test_in_spanish(self):
        self.follow_it("^Comprobar: ", "menos$", "y resultó «menos»", "Rb1|base|Res", r"Sube hasta 1\.9\d V",
                       ("^Al informe", "al final del informe"), ["Magnitud\tPedido\tCurso\tSimulador\tVeredicto"])

    def test_in_english(self):
        self.program.focused("ΔQIc")
        self.program.speak(english=True)
        self.follow_it("^Check: ", "less$", "it came out “less”", "Rb1|base|Res", r"It goes up to 1\.9\d V",
                       ("^To the report", "end of the report"), ["Quantity\tAsked\tCourse\tSimulator\tVerdict"])
