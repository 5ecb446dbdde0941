# SPDX-License-Identifier: MIT
"""A design that is told once and gone through in Spanish and in English: what the two say stands side by side."""
from journey import Atspi, has, role_of, until


def plain(text):
    """A text as it is read: one blank where there is room or a new line."""
    return " ".join(text.split())


class BothLanguages:
    """To be mixed into a journey. What is seen is a text that stands in both languages, a pair (Spanish, English), or a
    dictionary of fields and their texts; of texts it is enough to tell the beginning."""
    english = False
    key = first = None  # what opens the sheet, and its first field

    def test_in_spanish(self):
        self.begin()
        self.whole_design()

    def test_in_english(self):
        self.english = True
        self.begin()
        self.whole_design()

    def begin(self):
        """The sheet from the palette, beside the first one."""
        velmor = self.program
        velmor.focused("ΔQIc")
        if self.english:
            velmor.speak(english=True)
        velmor.key(self.key)
        until(lambda: len(velmor.sheets()) == 2, "the second sheet")
        velmor.focused(self.first)

    def say(self, what):
        return what if isinstance(what, str) else what[1 if self.english else 0]

    def picture(self, name):
        self.program.picture(name + ("-en" if self.english else "-es"))

    def in_the_other_language(self, part):
        """A part that the English journey goes through in Spanish: the language may be changed at any moment."""
        if not self.english:
            part()
            return
        self.english = False
        self.program.speak(english=False)
        part()
        self.english = True
        self.program.speak(english=True)

    def told(self, *wanted):
        """Waits until the sheet in hand shows all of these at once."""
        velmor = self.program
        texts = [plain(self.say(what)) for what in wanted if not isinstance(what, dict)]

        def missing():
            sheet = velmor.in_hand()
            shown = [plain(node.get_name() or "") for node in velmor.all(sheet) if has(node, Atspi.StateType.SHOWING)] if sheet else []
            return [text for text in texts if not any(one.startswith(text) for one in shown)]

        if texts:
            until(lambda: not missing(), "on the sheet in hand " + " / ".join(texts))
        for values in wanted:
            if isinstance(values, dict):
                for symbol, text in values.items():
                    velmor.wait_value(symbol, self.say(text))

    def go(self, *steps):
        """Through the chain with Enter: the field in hand, what is typed there, the field that Enter leads to, what is seen
        then."""
        for symbol, typed, then, *seen in steps:
            self.program.design((symbol, typed, then))
            self.told(*seen)

    def enter(self, symbol, typed):
        """Types over what stands in the field in hand, and does not go on from there, or nobody knows where."""
        velmor = self.program
        velmor.focused(symbol)
        velmor.key("ctrl+a")
        velmor.type(typed)
        velmor.wait_value(symbol, typed)
        velmor.key("Return")

    def warned(self, symbol, typed, title, text, *keys):
        """A figure that the sheet has something to say about."""
        self.enter(symbol, typed)
        self.answer(title, text, *keys)

    def answer(self, title, text, *keys):
        """Answers the message box of that title that says so."""
        velmor = self.program
        title, text = plain(self.say(title)), plain(self.say(text))

        def asked():
            return next((box for box in velmor.windows() if role_of(box) == "dialog" and plain(box.get_name()) == title and
                         any(plain(node.get_name() or "") == text for node in velmor.all(box))), None)

        box = until(asked, "the box %s: %s" % (title, text))
        until(lambda: any(has(node, Atspi.StateType.FOCUSED) for node in velmor.all(box)), "a button of the box")
        velmor.key(*(keys or ("Return",)))
        until(lambda: box not in velmor.windows(), "the end of the box " + text)

    def step_back(self, symbol, then, *before):
        """Another thought about the last field, and the first one after all."""
        velmor = self.program
        velmor.key("alt+BackSpace")
        velmor.focused(symbol)
        self.told(*before)
        velmor.key("ctrl+y")
        velmor.focused(then)

    def page(self, key, *texts):
        """A page that a key shows: it says all of these."""
        velmor = self.program
        velmor.key(key)
        wanted = [self.say(text) for text in texts]
        until(lambda: any(all(text in velmor.text(node) for text in wanted)
                          for node in velmor.all() if role_of(node) == "text"), "a page with " + " / ".join(wanted))

    def leaf(self, *texts):
        """The leaf of analysis says all of these."""
        velmor = self.program
        wanted = [plain(self.say(text)) for text in texts]
        until(lambda: any(all(text in plain(node.get_name() or "") for text in wanted) and has(node, Atspi.StateType.SHOWING)
                          for node in velmor.all() if role_of(node) == "label"), "a leaf with " + " / ".join(wanted))

    def no_leaf(self, text):
        """The leaf that said so is put away."""
        velmor = self.program
        until(lambda: not any(text in (node.get_name() or "") and has(node, Atspi.StateType.SHOWING) for node in velmor.all()),
              "the end of the leaf with " + text)

    def keep(self, name, group, item, *seen):
        """Saves the design and opens its file in a sheet of its own. Where group and item bear one name, the first item is
        meant."""
        velmor = self.program
        path = "%s/%s" % (velmor.home, self.say(name))
        velmor.save(path)
        velmor.key("ctrl+o")
        velmor.choose(self.say(group))
        if item:
            velmor.choose(self.say(item))
        else:
            velmor.key("Down", "Return")
        velmor.name_file(path)
        stem = self.say(name).split(".")[0]
        until(lambda: velmor.in_hand() and velmor.in_hand().get_name() == stem, "the sheet of the file")
        self.told(*seen)

    def report(self, *texts):
        """The report of the sheet in hand; the sheet is in hand again afterwards."""
        velmor = self.program
        sheet = velmor.in_hand().get_name()
        velmor.key("ctrl+r")
        velmor.reads(*(self.say(text) for text in texts))
        velmor.turn_to("^" + sheet + "$")

    def guide(self, *texts):
        velmor = self.program
        sheet = velmor.in_hand().get_name()
        velmor.key("ctrl+g")
        velmor.reads(*(self.say(text) for text in texts))
        velmor.turn_to("^" + sheet + "$")
