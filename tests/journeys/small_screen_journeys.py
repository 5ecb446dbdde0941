# SPDX-License-Identifier: MIT
"""The same journeys on the smallest screen that a school still has: every field that gets the keyboard is in view, and so are the
buttons of boxes and tools and the search line of an editor."""
import re
import unittest

import journeys
import shell_journeys
from journey import Atspi, Journey, has, role_of, until


class SmallScreen(Journey):
    size = "1024x600"
    settings = journeys.Design.settings
    open = journeys.Pair.open
    design = journeys.Pair.design
    drag_and_measure = journeys.Pair.drag_and_measure
    read_the_meter = journeys.Pair.read_the_meter
    dialog = shell_journeys.Shell.dialog
    main_window = shell_journeys.Shell.main_window

    def setUp(self):
        super().setUp()
        focused = self.program.focused

        def focused_and_in_view(symbol):
            focused(symbol)
            until(lambda: self.in_view(self.program.field(symbol)), symbol + " in view")

        self.program.focused = focused_and_in_view
        self.press = self.program.press
        self.program.press = self.press_in_view

    def on_screen(self, node):
        width, height = (int(side) for side in self.size.split("x"))
        return shell_journeys.inside(self.program.place(node), (0, 0, width, height))

    def in_view(self, node):
        """Inside the main window, and not behind the palette in its lower edge."""
        place = self.program.place(node)
        strip = self.program.named("^(Diseños posibles|Possible designs)", None)
        return shell_journeys.inside(place, self.program.place(self.main_window())) and \
            (strip is None or shell_journeys.apart(place, self.program.place(strip)))

    def press_in_view(self, node, button="1"):
        """As a person who finds it by the wheel: up or down, then to the side."""
        wheel = {True: ("4", "6"), False: ("5", "7")}
        middle = [side // 2 for side in self.program.place(self.main_window())[2:]]
        for _ in range(12):
            if self.in_view(node):
                break
            place = self.program.place(node)
            axis = 1 if not 150 < place[1] < 450 else 0
            self.program.tool("mousemove", str(middle[0]), str(middle[1]), "click", wheel[place[axis] < 150][1 - axis])
            until(lambda: self.program.place(node) != place, "the sheet moved by the wheel")
        self.press(node, button)

    def test_a_stage_is_designed_in_spanish_with_every_field_in_view(self):
        journeys.Design.test_a_student_designs_a_stage_with_the_keyboard_alone(self)

    def test_the_pair_is_designed_in_english_with_every_field_in_view(self):
        journeys.Pair.test_the_same_in_english(self)

    def test_a_box_and_a_help_page_are_on_the_screen_with_their_buttons(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("F1")
        page = until(lambda: next((window for window in velmor.windows() if (window.get_name() or "").strip() == "Ayuda"),
                                  None), "the help page")
        until(lambda: self.on_screen(page), "the whole help page")
        velmor.key("alt+F4")
        velmor.box("Desea abandonar")
        dialog = self.dialog()
        self.assertTrue(self.on_screen(dialog))
        buttons = [node for node in velmor.all(dialog) if role_of(node) == "push button" and has(node, Atspi.StateType.SHOWING)]
        self.assertEqual(len([node for node in buttons if re.fullmatch("&?Sí|&?No", node.get_name())]), 2)
        for button in buttons:
            self.assertTrue(shell_journeys.inside(velmor.place(button), velmor.place(dialog)))
        velmor.key("n")
        velmor.gone("^¿?Desea abandonar")

    def test_the_search_line_of_an_editor_is_whole_and_leaves_room_for_the_text(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("ctrl+r")
        editor = velmor.see("^Texto$", "text")
        until(lambda: "Ejercicio" in velmor.text(editor), "the report")
        velmor.key("ctrl+f")
        velmor.see("^Siguiente$", "push button")
        velmor.key("ctrl+h")
        for name in ("Anterior", "Siguiente", "Cerrar", "Reemplazar", "Reemplazar todo"):
            button = velmor.see("^%s$" % name, "push button")
            until(lambda: self.in_view(button), name + " in view")
        line = velmor.place(velmor.see("^Buscar en el texto$", "text"))
        until(lambda: velmor.place(editor)[1] + velmor.place(editor)[3] <= line[1], "the text above its search line")
        self.assertGreater(velmor.place(editor)[3], 200)


if __name__ == "__main__":
    unittest.main()
