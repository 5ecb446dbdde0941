# SPDX-License-Identifier: MIT
"""A person at the real program: an X server and a window manager of its own, real keys and clicks, and what the screen
shows, read as assistive technology reads it. Needs a session bus (see run.sh)."""
import ctypes
import os
import re
import shutil
import struct
import subprocess
import tempfile
import time
import unittest
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

warnings.simplefilter("ignore", DeprecationWarning)

VELMOR = os.environ["VELMOR"]
PATIENCE = 60.0  # seconds; a machine under load is slow, never wrong
STEP = 0.02


# A question that comes before a program can hear it is never answered: it is asked again, also of a young program.
Atspi.set_timeout(5000, 0)


def turn():
    """Lets the accessibility bus deliver what has happened."""
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass


def until(condition, what):
    """Waits for a condition and returns its value; fails when it does not come true in time. It is asked once more after that,
    since the answer may have been underway for long."""
    end = time.monotonic() + PATIENCE
    while True:
        late = time.monotonic() > end
        turn()
        try:
            value = condition()
        except GLib.Error:  # the tree changed under our hands
            value = None
        if value:
            return value
        if late:
            raise AssertionError("never came: " + what + "".join(program.seen() for program in Program.running))
        time.sleep(STEP)


def children(node):
    return [child for child in (node.get_child_at_index(i) for i in range(node.get_child_count())) if child is not None]


def has(node, state):
    return node.get_state_set().contains(state)


def role_of(node):
    """The name of its role; newer buses call a push button a button."""
    name = node.get_role_name()
    return "push button" if name == "button" else name


class Screen:
    """An X server with a window manager."""

    def __init__(self, size):
        self.size = size
        read, write = os.pipe()
        self.server = subprocess.Popen(
            # No key repeats itself because a busy machine lets go of it late.
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset", "-r"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            self.display = ":" + answer.readline().strip()
        self.environment = dict(os.environ, DISPLAY=self.display)
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until(self.is_managed, "window manager")

    def is_managed(self):
        """The manager obeys. One that has only taken the screen does not give the keyboard to windows that appear meanwhile."""
        self.ask("xdotool", "set_num_desktops", "2")
        return b"= 2" in self.ask("xprop", "-root", "_NET_NUMBER_OF_DESKTOPS")

    def tell_of_keyboard(self, name):
        """The window with that name hears that it is in front, and is not: a window manager comes late to what was asked."""
        window = int(until(lambda: self.ask("xdotool", "search", "--onlyvisible", "--name", name).split(), name)[0])
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        display = ctypes.c_void_p(x11.XOpenDisplay(self.display.encode()))
        client_message = 33  # of X.h; the fields are those of XClientMessageEvent
        event = struct.pack("@iLiPLLi5l96x", client_message, 0, 1, display.value, window,
                            x11.XInternAtom(display, b"_NET_ACTIVE_WINDOW", 0), 32, 1, 0, 0, 0, 0)
        x11.XSendEvent(display, ctypes.c_ulong(window), 0, ctypes.c_long(0), event)
        x11.XCloseDisplay(display)

    def ask(self, *command):
        return subprocess.run(command, env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout

    def close(self):
        for process in (self.manager, self.server):
            # A server without clients may sleep over the signal that ends it: it is sent until it is heard.
            while process.poll() is None:
                process.terminate()
                try:
                    process.wait(0.1)
                except subprocess.TimeoutExpired:
                    pass


class Program:
    """The program on that screen, with a home of its own."""
    running = []

    def __init__(self, screen, **more):
        self.screen = screen
        self.home = more.pop("home", None) or tempfile.mkdtemp(prefix="velmor-journey-")
        os.chmod(self.home, 0o700)
        runtime = more.pop("XDG_RUNTIME_DIR", self.home)
        arguments = more.pop("arguments", [])
        environment = dict(screen.environment, HOME=self.home, XDG_RUNTIME_DIR=runtime,
                           XDG_CONFIG_HOME=self.home + "/config",
                           XDG_DATA_HOME=self.home + "/data", XDG_STATE_HOME=self.home + "/state",
                           QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                           QT_QPA_PLATFORMTHEME="none", LC_ALL="es_AR.UTF-8")
        environment.update(more)
        self.fields = {}
        self.last_in_hand = None
        self.process = subprocess.Popen([VELMOR, *arguments], env=environment)
        self.running.append(self)
        self.root = until(self.find_root, "the program on the accessibility bus")
        until(lambda: self.windows(), "the main window")

    def find_root(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            try:
                child = desktop.get_child_at_index(i)
                if child is not None and child.get_process_id() == self.process.pid:
                    return child
            except GLib.Error:  # the program of an earlier journey, gone but not forgotten
                continue
        return None

    # what the screen shows

    def windows(self):
        return children(self.root)

    def sheets(self):
        """The windows on the desk: sheets, editors, tools."""
        found = []

        def walk(node):
            for child in children(node):
                if role_of(child) == "frame":
                    found.append(child)
                elif role_of(child) in ("filler", "layered pane"):
                    walk(child)

        for window in self.windows():
            walk(window)
        return found

    def in_hand(self):
        """The window on the desk that has the keyboard, or had it before a tool came to the front."""
        sheets = self.sheets()
        self.last_in_hand = next((sheet for sheet in sheets if has(sheet, Atspi.StateType.FOCUSED)), self.last_in_hand)
        return self.last_in_hand if self.last_in_hand in sheets else None

    def all(self, root=None):
        found = []

        def walk(node):
            for child in children(node):
                found.append(child)
                walk(child)

        walk(root or self.root)
        return found

    def named(self, pattern, role=None):
        """What bears the name; of several what can be seen, the sheet in hand first."""
        found = []
        for root in (self.in_hand(), self.root):
            if root is None:
                continue
            found = [node for node in self.all(root)
                     if re.search(pattern, node.get_name() or "") and (role is None or role_of(node) == role)]
            showing = [node for node in found if has(node, Atspi.StateType.SHOWING)]
            if showing:
                return showing[0]
        return found[0] if found else None

    def showing(self, pattern, role=None):
        node = self.named(pattern, role)
        return node if node and has(node, Atspi.StateType.SHOWING) else None

    def see(self, pattern, role=None):
        return until(lambda: self.showing(pattern, role), "%s %s" % (role or "anything", pattern))

    def shows(self, pattern):
        """Waits for a text on the sheet in hand, whatever other sheets show."""
        def found():
            sheet = self.in_hand()
            return sheet and any(re.search(pattern, node.get_name() or "") and has(node, Atspi.StateType.SHOWING)
                                 for node in self.all(sheet))

        until(found, "on the sheet in hand " + pattern)

    def gone(self, pattern):
        until(lambda: self.named(pattern) is None, "the end of " + pattern)

    def field(self, symbol):
        """The field of the sheet in hand. To look through a sheet takes long, so what was found once is asked first."""
        node, sheet = self.fields.get(symbol, (None, None))
        try:
            if node and sheet and has(node, Atspi.StateType.SHOWING) and has(sheet, Atspi.StateType.FOCUSED):
                return node
        except GLib.Error:  # it is closed
            pass
        sheet = self.in_hand()
        self.fields = {node.get_name().split(",")[0]: (node, sheet) for node in reversed(self.all(sheet))
                       if role_of(node) == "text" and has(node, Atspi.StateType.SHOWING)}
        return self.fields[symbol][0] if symbol in self.fields else self.see("^" + re.escape(symbol) + ",", "text")

    @staticmethod
    def text(node):
        return Atspi.Text.get_text(node, 0, -1)

    @staticmethod
    def place(node):
        box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    def value(self, symbol):
        return self.text(self.field(symbol))

    def wait_value(self, symbol, text):
        until(lambda: self.value(symbol) == text, "%s = %s (last %r)" % (symbol, text, self.value(symbol)))

    def focused(self, symbol):
        until(lambda: has(self.field(symbol), Atspi.StateType.FOCUSED), "the focus in " + symbol)

    def has_keyboard(self):
        """The server sends keys to this program, and one of its windows knows itself in front."""
        return self.screen.ask("xdotool", "getwindowfocus", "getwindowpid").strip() == str(self.process.pid).encode() \
            and any(has(window, Atspi.StateType.ACTIVE) for window in self.windows())

    def seen(self):
        """What stands on the screen, for the one who asks why a journey failed."""
        self.picture("failed-%d" % os.getpid())
        lines = ["", "the keyboard is with: " + self.screen.ask("xdotool", "getwindowfocus", "getwindowname").decode().strip()]
        try:
            for node in self.all():
                states = [name for name in ("ACTIVE", "FOCUSED", "SHOWING") if has(node, getattr(Atspi.StateType, name))]
                role = role_of(node)
                if role in ("frame", "dialog", "alert") or "FOCUSED" in states:
                    text = " with " + repr(self.text(node)[:200]) if role == "text" else ""
                    lines.append("%s %r %s%s" % (role, node.get_name(), " ".join(states), text))
        except GLib.Error as error:
            lines.append("and then: " + str(error))
        return "\n  ".join(lines)

    # what the person does, who looks first where the keys will go and where a thing stands

    def tool(self, *command):
        subprocess.run(("xdotool",) + command, env=self.screen.environment, check=True)

    def key(self, *keys):
        until(self.has_keyboard, "the keyboard for " + " ".join(keys))
        self.tool("key", *keys)

    def type(self, text):
        until(self.has_keyboard, "the keyboard for " + text)
        self.tool("type", "--delay", "5", text)

    def at_rest(self, node):
        """The place of what can be seen and has ceased to move."""
        places = []

        def rests():
            places.append(self.place(node) if has(node, Atspi.StateType.SHOWING) else None)
            return places[-1] and places[-1][2] > 0 and places[-2:-1] == places[-1:] and places[-1]

        return until(rests, "a place to press")

    def press(self, node, button="1"):
        x, y, width, height = self.at_rest(node)
        self.tool("mousemove", str(x + width // 2), str(y + height // 2), "click", button)

    def drag(self, node, target):
        """Carries a thing with the left button held to the middle of another."""
        x, y, width, height = self.at_rest(node)
        self.tool("mousemove", str(x + width // 2), str(y + height // 2), "mousedown", "1")
        to_x, to_y, to_width, to_height = self.at_rest(target)
        for part in (0.2, 0.6, 1.0):
            self.tool("mousemove", str(round(x + width / 2 + part * (to_x + to_width / 2 - x - width / 2))),
                      str(round(y + height / 2 + part * (to_y + to_height / 2 - y - height / 2))))
        self.tool("mouseup", "1")

    def box(self, text):
        """Waits for a message box with that text and until it has the keyboard."""
        label = self.see(text, "label")
        until(lambda: any(has(node, Atspi.StateType.FOCUSED) for node in self.all(label.get_parent())
                          if role_of(node) == "push button"), "a button of the box")
        return label

    def fill(self, symbol, text, then):
        """Types into the field in hand, sees it there and goes on to the field `then`."""
        self.focused(symbol)
        self.type(text)
        self.wait_value(symbol, text)
        self.key("Return")
        self.focused(then)

    def design(self, *steps):
        """Goes through the chain with Enter. A step is the field that must have the keyboard, what is typed there ("" leaves
        what stands), the field that Enter leads to, and all that is seen then: a pattern of a text, or (field, its text)."""
        for symbol, typed, then, *seen in steps:
            self.focused(symbol)
            if typed:
                self.type(typed)
                self.wait_value(symbol, typed)
            self.key("Return")
            self.focused(then)
            for what in seen:
                if isinstance(what, str):
                    self.shows(what)
                else:
                    self.wait_value(*what)

    def answer(self, text, *keys):
        """Answers the message box that says so."""
        box = self.box(text)
        self.key(*keys)
        until(lambda: has(box, Atspi.StateType.DEFUNCT) or self.named(text, "label") is None, "the end of the box " + text)

    def speak(self, english):
        self.key("ctrl+shift+i" if english else "ctrl+shift+e")
        self.see("^Archive$" if english else "^Archivo$", "menu item")

    def choose(self, *items):
        """Clicks one menu item after the other. Newer toolkits take a pointer for a hand's only when it comes in steps, and close
        a menu on a click that none led up to."""
        for item in items:
            x, y, width, height = self.at_rest(self.see("^" + re.escape(item) + "$", "menu item"))
            for left in range(8, -1, -1):
                self.tool("mousemove", str(x + width // 2 - left), str(y + height // 2), "sleep", "0.01")
            self.tool("click", "1")

    def name_file(self, path):
        """Types a name into the dialog of files that opens, and sees the dialog go."""
        def opened():
            for window in self.windows():
                if role_of(window) == "dialog" and has(window, Atspi.StateType.ACTIVE):
                    for node in self.all(window):
                        if role_of(node) == "text" and has(node, Atspi.StateType.FOCUSED):
                            return window, node
            return None

        dialog, name = until(opened, "the keyboard in the dialog of files")
        self.type(path)
        until(lambda: self.text(name) == path, "the name " + path)
        self.key("Return")
        until(lambda: dialog not in self.windows(), "the end of the dialog of files")

    def save(self, path):
        """Saves the sheet in hand, which has no file yet."""
        self.key("ctrl+s")
        self.name_file(path)
        until(lambda: os.path.exists(path), path)

    def open_circuit(self, path, *items):
        """Opens a file in a new sheet, by the items of the menu of circuits."""
        self.key("ctrl+o")
        self.choose(*items)
        self.name_file(path)

    def turn_to(self, title):
        """Goes from window to window with the keyboard until that one is in hand."""
        for _ in self.sheets():
            before = until(self.in_hand, "a window in hand")
            if re.search(title, before.get_name()):
                return
            self.key("ctrl+Tab")
            until(lambda: self.in_hand() not in (None, before), "the next window")
        raise AssertionError("no window is called " + title)

    def reads(self, *texts):
        """Waits for an editor in hand with all these texts."""
        def missing():
            sheet = self.in_hand()
            editors = [node for node in self.all(sheet) if node.get_name() in ("Texto", "Text")] if sheet else []
            return [text for text in texts if not any(text in self.text(editor) for editor in editors)]

        until(lambda: not missing(), "an editor with all of " + " / ".join(texts))

    def picture(self, name):
        """The screen as it is, for people to look at, where VELMOR_PICTURES names a folder. A screen of another size than the
        usual one gives its pictures a name of their own."""
        folder = os.environ.get("VELMOR_PICTURES")
        if self.screen.size != Journey.size:
            name += "-" + self.screen.size
        if folder:
            self.screen.ask("import", "-silent", "-window", "root", "%s/%s.png" % (folder, name))

    def ended(self):
        return until(lambda: self.process.poll() is not None, "the end of the program") and self.process.returncode

    def close(self):
        if self in self.running:
            self.running.remove(self)
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.home, ignore_errors=True)


class Journey(unittest.TestCase):
    """The program as a new user finds it, on a screen of its own."""
    size = os.environ.get("VELMOR_SIZE", "1366x768")
    more = {}

    def setUp(self):
        self.screen = Screen(self.size)
        self.addCleanup(self.screen.close)
        self.program = Program(self.screen, **self.more)
        self.addCleanup(self.program.close)

    def leave(self, question, sheets):
        """Closes the main window: yes, end; no, keep none of the sheets."""
        self.program.key("alt+F4")
        self.program.answer(question, "Return")
        for _ in range(sheets):
            self.program.answer("archivo ha cambiado|file has changed", "n")
        self.assertEqual(self.program.ended(), 0)
