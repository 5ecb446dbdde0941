# SPDX-License-Identifier: MIT
"""Journeys through the shell around the sheets: boxes, tools, the palette strip, the one menu bar, children and their order."""
import unittest

import journeys
from journey import Atspi, role_of, until

# The cases of the other file are played there, not once more for being known here.
Journey = journeys.Journey


def inside(one, other):
    return other[0] <= one[0] and other[1] <= one[1] and one[0] + one[2] <= other[0] + other[2] \
        and one[1] + one[3] <= other[1] + other[3]


def apart(one, other):
    return one[0] + one[2] <= other[0] or other[0] + other[2] <= one[0] or one[1] + one[3] <= other[1] \
        or other[1] + other[3] <= one[1]


class Shell(Journey):
    def dialog(self):
        """The box in front, as assistive technology finds it."""
        return until(lambda: next((window for window in self.program.windows()
                                   if role_of(window) in ("dialog", "alert")
                                   and window.get_state_set().contains(Atspi.StateType.SHOWING)), None), "a dialog")

    def press_at(self, x, y, *more):
        self.program.tool("mousemove", str(x), str(y), *more)

    def main_window(self):
        return next(window for window in self.program.windows() if role_of(window) == "frame")

    def item(self, name):
        """An item of an open menu, whether it can be marked or not."""
        return until(lambda: self.program.named(name, "menu item") or self.program.named(name, "check menu item"), name)


class Boxes(Shell):
    def test_a_box_is_a_dialog_with_a_name_a_text_and_buttons_and_its_letter_answers(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        field = velmor.place(velmor.field("ΔQIc"))
        velmor.key("alt+F4")
        velmor.box("Desea abandonar")
        dialog = self.dialog()
        self.assertTrue(dialog.get_name())
        self.assertEqual(sorted(node.get_name().replace("&", "") for node in self.program.all()
                                if role_of(node) == "push button" and node.get_parent() == dialog), ["No", "Sí"])
        self.assertTrue(apart(velmor.place(dialog), field))
        velmor.key("n")
        velmor.gone("^¿?Desea abandonar")
        velmor.focused("ΔQIc")

    def test_the_window_manager_closes_a_box_as_escape_does(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("alt+F4")
        velmor.box("Desea abandonar")
        velmor.key("alt+F4")
        velmor.gone("^¿?Desea abandonar")
        velmor.focused("ΔQIc")


class Large(Shell):
    size = "3840x2160"

    def test_boxes_menus_and_tools_are_as_readable_as_the_sheet(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        field = velmor.place(velmor.field("ΔQIc"))[3]
        velmor.key("alt+v")
        item = velmor.place(self.item("^Horizontal$"))[3]
        velmor.key("Escape", "Escape")
        velmor.key("alt+F4")
        text = velmor.place(velmor.box("Desea abandonar"))[3]
        velmor.key("Escape")
        # A line of text in a box and of a menu is at least two thirds of a field, whose frame stands around its line.
        self.assertGreater(text, field * 0.55)
        self.assertGreater(item, field * 0.55)


class Palette(Shell):
    def strip(self):
        return self.program.see("Diseños posibles")

    def test_the_palette_is_a_strip_in_the_lower_edge_dragged_out_and_back_and_closed(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        main = velmor.place(self.main_window())
        strip = velmor.place(self.strip())
        self.assertTrue(inside(strip, main))
        self.assertEqual(strip[1] + strip[3], main[1] + main[3])
        grip = (strip[0] + 6, strip[1] + strip[3] // 2)
        self.press_at(*grip, "mousedown", "1")
        for part in (0.3, 0.7, 1.0):
            self.press_at(grip[0] + round(200 * part), grip[1] - round(300 * part))
        velmor.tool("mouseup", "1")
        out = until(lambda: (place := velmor.place(self.strip())) != strip and place, "the palette afloat")
        self.assertTrue(inside(out, main))
        self.press_at(out[0] + 6, out[1] + out[3] // 2, "mousedown", "1")
        for part in (0.3, 0.7, 1.0):
            self.press_at(out[0] + 6, out[1] + round((main[1] + main[3] - 3 - out[1]) * part))
        velmor.tool("mouseup", "1")
        until(lambda: velmor.place(self.strip()) == strip, "the palette in its strip")
        velmor.key("5")
        velmor.wait_value("ΔQIc", "5")
        # The palette's end is the program's: its button asks, and No leaves both.
        self.press_at(strip[0] + strip[2] - 12, strip[1] + 10, "click", "1")
        self.program.answer("Desea abandonar", "n")
        self.assertEqual(velmor.place(self.strip()), strip)
        velmor.focused("ΔQIc")


class Tools(Shell):
    def test_a_help_page_has_one_button_and_leaves_the_field_free(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        field = velmor.place(velmor.field("ΔQIc"))
        velmor.key("Menu")
        page = until(lambda: next((window for window in velmor.windows() if (window.get_name() or "").strip() == "Ayuda"),
                                  None), "the help page")
        self.assertTrue(apart(velmor.place(page), field))
        velmor.press(next(node for node in velmor.all()
                          if node.get_name() == "Cerrar" and role_of(node) == "push button"
                          and inside(velmor.place(node), velmor.place(page))))
        velmor.focused("ΔQIc")


    def test_a_help_page_that_goes_before_it_gets_the_keyboard_leaves_it_to_the_field(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("Menu")
        page = until(lambda: next((window for window in velmor.windows() if (window.get_name() or "").strip() == "Ayuda"),
                                  None), "the help page")
        # A press on a window asks for the keyboard, and the toolkit believes it to be there before it is.
        self.screen.tell_of_keyboard("^ *Ayuda *$")
        until(lambda: page.get_state_set().contains(Atspi.StateType.ACTIVE), "a page that believes it")
        velmor.key("Escape")
        velmor.focused("ΔQIc")
        velmor.type("7")
        velmor.wait_value("ΔQIc", "7")


class Menus(Shell):
    def editor(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.press(velmor.see("^Abrir la guía|^Open the guide", "push button"))
        editor = velmor.see("^Texto$|^Text$", "text")
        until(lambda: editor.get_state_set().contains(Atspi.StateType.FOCUSED), "the keyboard in the editor")

    def test_an_editors_menus_stand_in_the_one_bar_and_their_letters_open_them(self):
        velmor = self.program
        self.editor()
        self.assertEqual(len([node for node in velmor.all() if role_of(node) == "menu bar"
                              and node.get_state_set().contains(Atspi.StateType.SHOWING)]), 1)
        velmor.key("alt+a")
        velmor.see("^Imprimir", "menu item")
        velmor.see("^Salvar$", "menu item")  # and the main window's own below it
        velmor.key("Escape", "Escape")
        velmor.key("alt+f")
        velmor.see("^Color de texto|^Letra", "menu item")

    def test_the_window_menu_lists_the_children_and_their_keys_turn_to_them(self):
        velmor = self.program
        self.editor()
        velmor.key("alt+v")
        sheet = self.item("1 +Emisor")
        text = self.item("2 +")
        self.assertTrue(text.get_state_set().contains(Atspi.StateType.CHECKED))
        self.assertFalse(sheet.get_state_set().contains(Atspi.StateType.CHECKED))
        # In the sheet the bar has the main window's menus alone.
        velmor.key("1")
        velmor.gone("^Formato$")
        for key, editor in (("alt+2", True), ("alt+1", False), ("ctrl+Tab", True), ("ctrl+Tab", False)):
            velmor.key(key)
            if editor:
                velmor.see("^Formato$", "menu item")
            else:
                velmor.gone("^Formato$")

    def test_a_clone_of_a_maximised_sheet_is_maximised_and_the_frame_names_it(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        x, y, width, _ = velmor.place(next(sheet for sheet in velmor.sheets()))
        self.press_at(x + width // 2, y + 12, "click", "--repeat", "2", "1")
        until(lambda: "Emisor" in (self.main_window().get_name() or ""), "the sheet's name in the frame")
        velmor.press(velmor.see("^Abrir otro circuito igual", "push button"))
        until(lambda: len(velmor.sheets()) == 2, "a second sheet")
        until(lambda: "Emisor" in (self.main_window().get_name() or ""), "the clone's name in the frame")
        sizes = {velmor.place(sheet)[2:] for sheet in velmor.sheets()}
        self.assertEqual(len(sizes), 1)


class InEnglish(Shell):
    def test_the_one_bar_speaks_english_with_the_editor_too(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("ctrl+shift+i")
        velmor.see("^Archive$", "menu item")
        Menus.editor(self)
        velmor.key("alt+a")
        velmor.see("^Print", "menu item")
        velmor.key("Escape", "Escape")
        velmor.key("alt+w")
        self.item("^1 +")


def load_tests(loader, tests, pattern):
    suite = unittest.TestSuite()
    for case in (Boxes, Large, Palette, Tools, Menus, InEnglish):
        suite.addTests(loader.loadTestsFromTestCase(case))
    return suite


if __name__ == "__main__":
    unittest.main()
