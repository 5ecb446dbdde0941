# SPDX-License-Identifier: MIT
"""A new user checks a finished design: bets, is surprised by Zin, follows the ladder to its reason, moves the slider until the wave
bends, and puts the table into the report. Needs ngspice, as the check does; without it the window says how to get it."""
import shutil
import unittest

from journey import Atspi, Journey, has, until


class Checked(Journey):
    def finish(self):
        """The stage that the program proposes, from its first field to its last."""
        velmor = self.program
        velmor.focused("ΔQIc")
        until(lambda: self.passed_on(), "the finished design")

    def passed_on(self):
        """One Enter more, until the tile of the check is awake."""
        velmor = self.program
        tile = velmor.named("simulador|simulator", "push button")
        if tile and not tile.get_description():
            return True
        velmor.key("Return")
        return False

    def check_window(self, title):
        return self.program.see(title, "dialog")

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

    def follow_it(self, title, lower, lost, reason, curves_bent, reported, reads):
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
        until(lambda: has_bent(velmor, curves_bent), "a wave that bends")
        velmor.picture("check-bent")
        velmor.press(velmor.see(reported[0], "push button"))
        velmor.see(reported[1], "label")
        velmor.reads(*reads)
        velmor.picture("check-reported")


def has_bent(velmor, pattern):
    import re
    wave = velmor.named("^Onda de salida|^Output wave")
    return wave and re.search(pattern, wave.get_description() or "")


@unittest.skipUnless(shutil.which("ngspice"), "no ngspice")
class CheckedDesign(Checked):
    def test_in_spanish(self):
        self.follow_it("^Comprobar: ", "menos$", "y resultó «menos»", "Rb1|base|Res", "aplastad",
                       ("^Al informe", "al final del informe"), ["Magnitud\tPedido\tCurso\tSimulador\tVeredicto"])

    def test_in_english(self):
        self.program.focused("ΔQIc")
        self.program.speak(english=True)
        self.follow_it("^Check: ", "less$", "it came out “less”", "Rb1|base|Res", "flattened",
                       ("^To the report", "end of the report"), ["Quantity\tAsked\tCourse\tSimulator\tVerdict"])
