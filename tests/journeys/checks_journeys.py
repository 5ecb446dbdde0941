# SPDX-License-Identifier: MIT
"""A new user checks a finished phase splitter: bets, is surprised by Zin, follows the ladder to its reason, moves the slider until
the wave bends, goes round the windows with F6, and puts the table into the report. Needs ngspice, as the check does; without it the
window says how to get it."""
import re
import shutil
import unittest

from both_languages import BothLanguages
from journey import Atspi, Journey, children, has, until


@unittest.skipUnless(shutil.which("ngspice"), "no ngspice")
class CheckedDesign(BothLanguages, Journey):
    key, first = "alt+shift+F5", "Rg"

    def whole_design(self):
        self.finish()
        self.asleep_before_awake_now()
        self.surprised_by_the_impedance()
        self.bend_the_wave()
        self.round_the_windows()
        self.reported()

    def finish(self):
        self.go(("Rg", "", "QIc"), ("QIc", "", "RLw"), ("RLw", "", "Eopp"), ("Eopp", "", "Ein"), ("Ein", "", "S"), ("S", "", "β"),
                ("β", "", "fo"), ("fo", "", "Ec(max)"), ("Ec(max)", "", "Ic(max)"), ("Ic(max)", "", "Vj"), ("Vj", "", "Es"))
        self.assertIn(self.say(("Espera:", "It waits:")), self.tile().get_description())
        self.program.key("Return")
        self.answer(("Es aconsejable elevar la fuente de alimentación", "Is advisable to elevate the feeding source"),
                    ("La tensión de fuente es baja, si elige elevarla obtendrá más impedancia de entrada...",
                     "The source voltage is low, if chooses to elevate it you will obtain more entrance impedance..."), "n")
        self.program.focused("RL")
        self.go(("RL", "2.7", "Rb2"), ("Rb2", "20", "Rb1"))
        self.enter("Rb1", "46.2")

    def tile(self):
        return until(lambda: self.program.named("simulador|simulator", "push button"), "the tool")

    def asleep_before_awake_now(self):
        until(lambda: not self.tile().get_description(), "the tool awake")
        # A guide that is open is in an editor like that of the report, and must not get the table.
        sheet = self.program.in_hand().get_name()
        self.program.key("ctrl+g")
        until(lambda: self.program.in_hand() and self.program.in_hand().get_name() != sheet, "the guide")
        self.program.turn_to("^" + re.escape(sheet) + "$")
        self.program.key("ctrl+t")
        self.check_in_front()
        self.program.see(self.say(("menos$", "less$")), "push button")
        self.picture("check-start")

    def check_is_active(self):
        return any(re.search("^Comprobar: |^Check: ", node.get_name() or "") and has(node, Atspi.StateType.ACTIVE)
                   for node in children(self.program.root))

    def check_in_front(self):
        until(self.check_is_active, "the window of the check")

    def row(self, name):
        """The row of that quantity in hand."""
        velmor = self.program
        for _ in range(20):
            heading = velmor.showing("^%s · " % name, "label")
            if heading:
                return
            before = velmor.see(" · ", "label").get_name()
            velmor.key("Down")
            until(lambda: velmor.see(" · ", "label").get_name() != before, "the next row")
        raise AssertionError("no row is called " + name)

    def surprised_by_the_impedance(self):
        """18.6 K by the course; 13.1 K with Rb1 beside, which the course leaves out."""
        velmor = self.program
        self.row("Zin")
        velmor.key("3")
        velmor.see(self.say(("y resultó «menos»", "it came out “less”")), "label")
        velmor.see(self.say(("^Difiere, porque el curso deja afuera Rb1", "^Differs, because the course leaves Rb1 out")), "label")
        ladder = velmor.named("paso a paso|step by step")
        self.assertRegex(ladder.get_description(), "18.6 kΩ(.|\n)*Rb1(.|\n)*13.1 kΩ")
        self.picture("check-ladder")

    def bend_the_wave(self):
        """The quiescent current bends it at 2.1 V; the slider's end is four times the course's input."""
        velmor = self.program
        self.row("Eopp")
        velmor.key("2")
        velmor.see(self.say(("la onda se dobla porque QIc x RLac es 2.11 V", "the wave bends because QIc x RLac is 2.11 V")), "label")
        wave = until(lambda: velmor.named("^Onda de salida|^Output wave"), "the wave")
        flat = r"distor\w+ [2-9]\d.*(aplastad|flattened)"
        self.assertNotRegex(wave.get_description(), flat)
        slider = velmor.see("veces la del curso|times that of the course", "slider")
        slider.grab_focus()
        velmor.key("End")
        until(lambda: re.search(flat, wave.get_description() or ""), "a flat crest")
        self.picture("check-bent")

    def round_the_windows(self):
        """F6 leads to the sheet, and on to the check again."""
        velmor = self.program
        velmor.key("F6")
        until(lambda: not self.check_is_active(), "another window")
        if not has(velmor.field("Rb1"), Atspi.StateType.FOCUSED):  # the palette lies between
            velmor.key("F6")
        velmor.focused("Rb1")
        velmor.key("F6")
        self.check_in_front()

    def reported(self):
        velmor = self.program
        velmor.press(velmor.see(self.say(("^Al informe", "^To the report")), "push button"))
        velmor.see(self.say(("al final del informe", "end of the report")), "label")
        velmor.reads(self.say(("Resultados de diseño Parafase: ", "Result of Paraphase design: ")), "Rb1 (kohm) = 46.2",
                     self.say(("Zin: difiere, porque el curso deja afuera Rb1", "Zin: differs, because the course leaves Rb1 out")),
                     self.say(("El simulador; sin explicar quedan 0 dB.", "The simulator; left unexplained: 0 dB.")))
        velmor.key("Escape")
        self.picture("check-reported")
