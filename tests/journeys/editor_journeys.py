# SPDX-License-Identifier: MIT
"""Journeys of a student who writes: the search line of an editor, a report that is proposed where reports belong, and what the
shell says on the way."""
import re
import unittest

from journey import Atspi, Program, Screen, until


class Journey(unittest.TestCase):
    size = "1366x768"

    def setUp(self):
        self.screen = Screen(self.size)
        self.addCleanup(self.screen.close)
        self.program = Program(self.screen)
        self.addCleanup(self.program.close)

    def has(self, node, state):
        return node.get_state_set().contains(state)

    def open_report(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("ctrl+r")
        return velmor.see("^(Texto|Text)$", "text")


class Search(Journey):
    def test_the_search_line_is_found_and_used_by_keys_alone(self):
        velmor = self.program
        editor = self.open_report()
        until(lambda: "Ejercicio" in velmor.text(editor), "the report")
        velmor.key("ctrl+f")
        line = velmor.see("^Buscar en el texto$", "text")
        until(lambda: self.has(line, Atspi.StateType.FOCUSED), "the keyboard in the search line")
        velmor.type("EJERCICIO")
        times = len(re.findall("ejercicio", velmor.text(editor), re.IGNORECASE))
        self.assertGreater(times, 1)
        velmor.see("^%d veces$" % times, "label")
        velmor.key("Return")
        velmor.see("^1 de %d" % times, "label")
        velmor.key("shift+F3")
        velmor.see("^%d de %d, dando la vuelta$" % (times, times), "label")
        velmor.key("Escape")
        until(lambda: self.has(editor, Atspi.StateType.FOCUSED), "the keyboard back in the text")
        until(lambda: not self.has(line, Atspi.StateType.SHOWING), "the end of the search line")

    def test_it_speaks_english_after_a_switch(self):
        velmor = self.program
        self.open_report()
        velmor.key("ctrl+f")
        velmor.see("^Siguiente$", "push button")
        velmor.key("Escape")
        velmor.key("ctrl+shift+i")
        velmor.key("ctrl+f")
        velmor.see("^Find in the text$", "text")
        velmor.see("^Next$", "push button")


class Report(Journey):
    def test_a_report_is_proposed_among_the_documents_under_its_design(self):
        velmor = self.program
        self.open_report()
        velmor.key("ctrl+s")
        name = velmor.see("^(Nombre de archivo|Nombre del archivo|&?Nombre.*):?$", "text")
        until(lambda: "Emisor Común" in velmor.text(name), "the name of the design, not %r" % velmor.text(name))
        velmor.see("^Guardar$", "push button")
        velmor.key("Escape")

    def test_the_keys_of_a_sheet_delete_nothing_in_a_report(self):
        velmor = self.program
        editor = self.open_report()
        until(lambda: "Ejercicio" in velmor.text(editor), "the report")
        written = velmor.text(editor)
        velmor.key("ctrl+Home", "Down")
        velmor.key("ctrl+d", "ctrl+k", "ctrl+u")
        velmor.type("Zq")
        until(lambda: "Zq" in velmor.text(editor), "what was typed")
        self.assertEqual(velmor.text(editor).replace("Zq", ""), written)


if __name__ == "__main__":
    unittest.main()
