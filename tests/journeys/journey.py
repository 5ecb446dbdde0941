# SPDX-License-Identifier: MIT
"""A person at the real program: an X server and a window manager of its own, real keys and clicks, and what the screen
shows, read as assistive technology reads it. Needs a session bus (see run.sh)."""
import os
import re
import shutil
import subprocess
import tempfile
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

warnings.simplefilter("ignore", DeprecationWarning)

VELMOR = os.environ["VELMOR"]
PATIENCE = 15.0  # seconds; a machine under load is slow, never wrong
STEP = 0.02


def turn():
    """Lets the accessibility bus deliver what has happened."""
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass


def until(condition, what):
    """Waits for a condition and returns its value; fails when it does not come true in time."""
    end = time.monotonic() + PATIENCE
    while True:
        turn()
        try:
            value = condition()
        except GLib.Error:  # the tree changed under our hands
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("never came: " + what)
        time.sleep(STEP)


class Screen:
    """An X server with a window manager."""

    def __init__(self, size):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            self.display = ":" + answer.readline().strip()
        self.environment = dict(os.environ, DISPLAY=self.display)
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until(lambda: b"_NET_SUPPORTING_WM_CHECK(WINDOW)" in self.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "window manager")

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
                           QT_QPA_PLATFORMTHEME="none", LC_ALL="es_AR.UTF-8", **more)
        self.process = subprocess.Popen([VELMOR, *arguments], env=environment)
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
        return [self.root.get_child_at_index(i) for i in range(self.root.get_child_count())]

    def all(self):
        found = []

        def walk(node):
            for i in range(node.get_child_count()):
                child = node.get_child_at_index(i)
                if child is not None:
                    found.append(child)
                    walk(child)

        walk(self.root)
        return found

    def named(self, pattern, role=None):
        """What bears the name; of several the first that can be seen."""
        found = [node for node in self.all()
                 if re.search(pattern, node.get_name() or "") and (role is None or node.get_role_name() == role)]
        if len(found) > 1:
            found = [node for node in found if node.get_state_set().contains(Atspi.StateType.SHOWING)] or found
        return found[0] if found else None

    def see(self, pattern, role=None):
        return until(lambda: self.named(pattern, role), "%s %s" % (role or "anything", pattern))

    def gone(self, pattern):
        until(lambda: self.named(pattern) is None, "the end of " + pattern)

    def field(self, symbol):
        return self.see("^" + re.escape(symbol) + ",", "text")

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
        until(lambda: self.field(symbol).get_state_set().contains(Atspi.StateType.FOCUSED), "the focus in " + symbol)

    # what the person does

    def tool(self, *command):
        subprocess.run(("xdotool",) + command, env=self.screen.environment, check=True)

    def key(self, *keys):
        self.tool("key", "--clearmodifiers", *keys)

    def type(self, text):
        self.tool("type", "--delay", "5", text)

    def press(self, node, button="1"):
        x, y, width, height = self.place(node)
        self.tool("mousemove", str(x + width // 2), str(y + height // 2), "click", button)

    def drag(self, node, target):
        """Carries a thing with the left button held to the middle of another."""
        x, y, width, height = self.place(node)
        self.tool("mousemove", str(x + width // 2), str(y + height // 2), "mousedown", "1")
        to_x, to_y, to_width, to_height = self.place(target)
        for part in (0.2, 0.6, 1.0):
            self.tool("mousemove", str(round(x + width / 2 + part * (to_x + to_width / 2 - x - width / 2))),
                      str(round(y + height / 2 + part * (to_y + to_height / 2 - y - height / 2))))
        self.tool("mouseup", "1")

    def box(self, text):
        """Waits for a message box with that text and until it has the keyboard."""
        label = self.see(text, "label")
        until(lambda: any(node.get_state_set().contains(Atspi.StateType.FOCUSED) for node in self.all()
                          if node.get_role_name() == "push button"), "a button of the box")
        return label

    def fill(self, symbol, text, then):
        """Types into the field in hand, sees it there and goes on to the field `then`."""
        self.focused(symbol)
        self.type(text)
        self.wait_value(symbol, text)
        self.key("Return")
        self.focused(then)

    def ended(self):
        return until(lambda: self.process.poll() is not None, "the end of the program") and self.process.returncode

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.home, ignore_errors=True)
