# SPDX-License-Identifier: MIT
"""Journeys of a student: from the start to a finished design, boxes, several sheets, languages, a saved and printed text,
and the end. Expected values are worked by hand from the course's formulas."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest

from journey import Atspi, Journey, Program, has, role_of, until


class Design(Journey):
    def settings(self):
        with open(self.program.home + "/config/Velmor/Velmor.ini", encoding="utf-8") as file:
            return file.read()

    def test_a_student_designs_a_stage_with_the_keyboard_alone(self):
        velmor = self.program
        velmor.fill("ΔQIc", "10", "T")
        velmor.key("Return")
        velmor.focused("ΔVbe")
        velmor.key("Return")
        velmor.see(r"^1\.375, ")  # (75 - 20) x 0.0025 x 100 / 10 volts, with a point under a comma locale
        velmor.fill("QIc", "1", "Res")
        velmor.wait_value("Res", "1375")  # 1.375 V / 1 mA
        velmor.key("Return")
        velmor.fill("RLw", "10", "S")
        velmor.key("Return")
        velmor.fill("Vg", "5", "RL")
        velmor.wait_value("RL", "22")  # 10 x 6.875 / (10 - 6.875), with 5 x 1375 ohms in parallel
        velmor.key("Return")
        velmor.focused("fo")
        velmor.see(r"Rlac = 6\.875 K")
        velmor.key("Return")
        velmor.focused("Eopp")
        velmor.key("Return")
        velmor.focused("Es")
        # The supply that just suffices leaves too little for the transistor: two warnings, and back to Eopp.
        velmor.key("Return")
        velmor.answer("Aumentar", "Return")
        velmor.answer("Disminuya Eopp", "space")
        velmor.focused("Eopp")
        velmor.key("Return")
        velmor.fill("Es", "30", "β")
        velmor.see(r"Eq= 6\.625")  # 30 - 22 - 1.375
        velmor.key("Return")
        velmor.focused("Ic(max)")
        velmor.key("Return")
        velmor.focused("Vj")
        velmor.key("Return")
        velmor.focused("Rb2")
        velmor.see(r"Rb2= 13\.75 K")  # S x Res = 10 x 1375 ohms
        velmor.key("Return")
        velmor.answer("Debe colocar una cifra", "Escape")
        velmor.fill("Rb2", "13", "Rb1")
        velmor.type("170")
        velmor.wait_value("Rb1", "170")
        velmor.key("Return")
        velmor.see(r"Zin= ")
        self.leave("Desea abandonar", 1)
        self.assertIn("fCastIng=0", self.settings())

    def test_letters_signs_and_pasted_nonsense_do_no_harm(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.type("a-7/b,5+")
        velmor.wait_value("ΔQIc", "7.5")
        velmor.key("ctrl+a", "ctrl+c", "End", "ctrl+v")
        velmor.wait_value("ΔQIc", "7.57.5")
        velmor.key("Return")
        velmor.focused("T")
        velmor.wait_value("ΔQIc", "7.57")

    def test_the_mouse_opens_sheets_and_the_menu_tiles_them(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.press(velmor.see("^Abrir otro circuito igual", "push button"))
        until(lambda: len(velmor.sheets()) == 2, "a second sheet")
        velmor.press(velmor.see("^Emisor Común Realimentado por Corriente$", "push button"))
        until(lambda: len(velmor.sheets()) == 3, "a third sheet from the palette")
        velmor.key("alt+v")
        velmor.see("^Horizontal$", "menu item")
        velmor.key("v")
        boxes = until(lambda: self.apart(3), "three sheets side by side")
        self.assertLess(max(y for _, y, _, _ in boxes) - min(y for _, y, _, _ in boxes), 3)

    def apart(self, count):
        boxes = sorted(self.program.place(sheet) for sheet in self.program.sheets())
        side_by_side = all(a[0] + a[2] <= b[0] + 2 for a, b in zip(boxes, boxes[1:]))
        return boxes if len(boxes) == count and side_by_side else None

    def test_the_language_switches_at_run_time_and_for_the_next_start(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.speak(english=True)
        velmor.key("Return")
        velmor.focused("T")
        velmor.see(r"^T, .*[Tt]emperature")
        velmor.key("Escape")
        velmor.focused("ΔVbe")
        velmor.speak(english=False)
        self.leave("Desea abandonar", 1)

    def help(self, state):
        """The window of the help, in that state. A menu and a button bear its name too."""
        return [window for window in self.program.windows()
                if (window.get_name() or "").strip() == "Ayuda" and window.get_state_set().contains(state)]

    def test_help_by_key_leaves_the_keyboard_in_the_sheet_and_f6_walks_there(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.key("Menu")
        until(lambda: self.help(Atspi.StateType.SHOWING), "the help page")
        velmor.focused("ΔQIc")
        velmor.type("7")
        velmor.wait_value("ΔQIc", "7")
        until(lambda: not self.help(Atspi.StateType.SHOWING), "the end of the page")
        velmor.key("Menu")
        until(lambda: self.help(Atspi.StateType.SHOWING), "the page again")
        velmor.key("F6")
        until(lambda: self.help(Atspi.StateType.ACTIVE), "the keyboard in the page")
        velmor.key("Escape")
        velmor.focused("ΔQIc")
        velmor.key("ctrl+a", "5")
        velmor.wait_value("ΔQIc", "5")


class Pair(Journey):
    def open(self, first):
        """The pair alone on the desk."""
        velmor = self.program
        velmor.focused("ΔQIc")
        if first:
            velmor.key(first)
        velmor.key("ctrl+F4")
        velmor.answer("archivo ha cambiado|file has changed", "n")
        until(lambda: not velmor.sheets(), "an empty desk")
        velmor.key("alt+shift+F1")
        velmor.focused("ΔQIc")

    def design(self, language):
        velmor = self.program
        for field in ("T", "ΔVbe", "QIc", "RLw", "S", "Vg", "fo", "Eopp", "Ein", "β", "Ec(max)", "Ic(max)", "Vj", "-Ebias"):
            velmor.key("Return")
            velmor.focused(field)
        velmor.wait_value("-Ebias", "20.25")  # (90 - 20) x 2.75 mV x 100 / 1, and 1 V more
        velmor.key("Return")
        velmor.focused("Res")
        velmor.wait_value("Res", "20.25")  # 20.25 V / (2 x 0.5 mA)
        velmor.key("Return")
        velmor.focused("RL")
        velmor.wait_value("RL", "16")  # 16 x 8 / (16 - 8)
        velmor.picture("form3-half-" + language)
        velmor.key("Return")
        velmor.focused("+Es")
        velmor.type("24")
        velmor.key("Return")
        velmor.see(r"EQ1= 16 V")  # 24 V - 0.5 mA x 16 K

    def drag_and_measure(self, generator, sinusoid, first_input, output, page):
        velmor = self.program
        velmor.press(velmor.see(generator, "push button"))
        signal = velmor.see(sinusoid)
        velmor.drag(signal, velmor.see(first_input))
        velmor.press(velmor.see(output))
        velmor.see(page)
        velmor.key("ctrl+b")
        velmor.see("^ΔQIc,", "text")

    def read_the_meter(self, meter):
        velmor = self.program
        velmor.press(velmor.see(meter, "push button"))
        velmor.press(velmor.see("^DC", "radio button"))
        velmor.press(velmor.see("^V,", "push button"))
        velmor.press(velmor.see("-Ebias$", "push button"))
        velmor.see(r"^20\.25$")

    def test_a_sinusoid_is_dragged_the_pair_designed_the_meter_read_and_the_report_made(self):
        velmor = self.program
        self.open("")
        velmor.picture("form3-start-es")
        self.drag_and_measure("^generador", "^senoide A", "^entrada 1", "^Out 1", r"Out 1 = 10 V")
        velmor.press(velmor.field("ΔQIc"))
        velmor.focused("ΔQIc")
        self.design("es")
        self.read_the_meter("^multímetro")
        velmor.picture("form3-finished-es")
        velmor.press(velmor.see("^Elaborar el informe", "push button"))
        velmor.reads("Resultados del diseño de Diferencial Simple", "ERes: 19.65 V")

    def test_the_same_in_english(self):
        velmor = self.program
        self.open("ctrl+shift+i")
        velmor.picture("form3-start-en")
        self.drag_and_measure("^generator", "^sinusoid A", "^input 1", "^Out 1", r"Out 1 = 10 V")
        velmor.press(velmor.field("ΔQIc"))
        velmor.focused("ΔQIc")
        self.design("en")
        self.read_the_meter("^multimeter")
        velmor.picture("form3-finished-en")
        velmor.press(velmor.see("^Write the report", "push button"))
        velmor.reads("Results of the design of Differential Simple", "RL (kohm) = 16")


class Text(Journey):
    def test_a_guide_is_changed_saved_and_printed(self):
        velmor = self.program
        velmor.focused("ΔQIc")
        velmor.press(velmor.see("^Abrir la guía", "push button"))
        editor = velmor.see("^Texto$", "text")
        until(lambda: "GUÍA" in velmor.text(editor).upper(), "the guide's text")
        until(lambda: has(editor, Atspi.StateType.FOCUSED), "the keyboard in the editor")
        velmor.key("ctrl+Home")
        velmor.type("Mi trabajo")
        velmor.key("Return")
        until(lambda: velmor.text(editor).startswith("Mi trabajo\n"), "the typed line")
        path = velmor.home + "/informe.txt"
        velmor.save(path)
        with open(path, "rb") as file:
            self.assertTrue(file.read().decode("cp1252").startswith("Mi trabajo"))
        velmor.key("ctrl+p")
        until(lambda: any(role_of(node) == "push button" and has(node, Atspi.StateType.FOCUSED)
                          for node in velmor.all()), "the dialog for printing")
        velmor.key("Return")
        pdf = until(self.printed, "the printed file")
        text = until(lambda: subprocess.run(["pdftotext", "-layout", pdf, "-"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                            check=False).stdout.decode(), "the text of the print-out")
        self.assertIn("Mi trabajo", text)

    def printed(self):
        for folder, _, names in os.walk(self.program.home):
            for name in names:
                if name.endswith(".pdf"):
                    return os.path.join(folder, name)
        return None


class Enlarged(Journey):
    size = "2560x1440"
    more = {"QT_SCALE_FACTOR": "2"}

    def test_at_200_per_cent_keys_and_clicks_still_land(self):
        velmor = self.program
        velmor.fill("ΔQIc", "5", "T")
        velmor.key("Return")
        velmor.focused("ΔVbe")
        velmor.key("Return")
        velmor.focused("QIc")
        velmor.see(r"^2\.75, ")  # (75 - 20) x 0.0025 x 100 / 5 volts
        self.leave("Desea abandonar", 1)


class PoorFonts(Journey):
    def setUp(self):
        folder = subprocess.run(["fc-match", "-f", "%{file}", "DejaVu Sans"], stdout=subprocess.PIPE, check=True).stdout.decode()
        self.config = "/tmp/velmor-fonts-%d.conf" % os.getpid()
        with open(self.config, "w", encoding="utf-8") as file:
            file.write("<?xml version='1.0'?><!DOCTYPE fontconfig SYSTEM 'fonts.dtd'><fontconfig><dir>%s</dir>"
                       "<selectfont><rejectfont><glob>*</glob></rejectfont><acceptfont><glob>*DejaVuSans.ttf</glob>"
                       "</acceptfont></selectfont></fontconfig>" % os.path.dirname(folder))
        self.addCleanup(os.remove, self.config)
        self.more = {"FONTCONFIG_FILE": self.config}
        super().setUp()

    def test_with_one_typeface_on_the_machine_a_design_still_goes_on(self):
        self.program.fill("ΔQIc", "5", "T")
        self.program.key("Return")
        self.program.focused("ΔVbe")


class SecondProgram(Journey):
    def test_a_second_program_warns_and_goes_on(self):
        self.program.focused("ΔQIc")
        home = self.program.home
        again = Program(self.screen, XDG_RUNTIME_DIR=home)
        self.addCleanup(again.close)
        again.box("ya se esta ejecutando")
        again.key("Return")
        again.focused("ΔQIc")


class NamedFiles(Journey):
    def test_files_named_at_the_start_open_and_a_shared_ending_is_asked_about(self):
        self.program.close()
        folder = tempfile.mkdtemp(prefix="velmor-files-")
        self.addCleanup(shutil.rmtree, folder)
        for name, text in (("bajo.FVS", "7\r\n12\r\n"), ("nota.txt", "hola\r\n")):
            with open(folder + "/" + name, "w", encoding="utf-8", newline="") as file:
                file.write(text)
        velmor = Program(self.screen, arguments=[folder + "/nota.txt", folder + "/bajo.FVS"])
        self.addCleanup(velmor.close)
        velmor.see("puede ser de más de un circuito", "label")
        velmor.press(velmor.see("^Circuito Realimentado por Tensión Estable$", "push button"))
        velmor.see("^bajo$", "frame")
        velmor.see("^" + re.escape(folder) + "/nota.txt$", "frame")
        velmor.gone("puede ser de más de un circuito")


class KeptWork(Journey):
    def kept(self):
        """The texts of all that is kept."""
        texts = []
        for folder, _, files in os.walk(self.program.home + "/state/velmor"):
            for name in files:
                if name.endswith(".state"):
                    with open(folder + "/" + name, encoding="utf-8") as file:
                        texts.append(file.read())
        return texts

    def test_the_work_of_a_killed_program_is_offered_by_the_next_one(self):
        self.program.fill("ΔQIc", "5", "T")
        until(lambda: any('Text1.text "5"' in text for text in self.kept()), "the work on the disk")
        self.program.process.kill()
        self.program.process.wait()
        again = Program(self.screen, home=self.program.home)
        self.addCleanup(again.close)
        again.see(r"^1 diseño del \d+ de \w+, \d\d:\d\d sigue aquí$", "label")
        again.press(again.see("^Recuperar$", "push button"))
        until(lambda: not has(again.named("sigue aquí", "label"), Atspi.StateType.SHOWING),
              "the end of the line")
        until(lambda: any(again.text(node) == "5" for node in again.all()
                          if role_of(node) == "text" and (node.get_name() or "").startswith("ΔQIc,")),
              "the work as it stood")


if __name__ == "__main__":
    unittest.main()
