"""A person's hands and eyes for the running program: keys and clicks from outside the process, what is on the screen,
and the tree of widgets that assistive technology sees. Nothing here knows the program's inside.

Places are pixels of the screen, from its upper left corner."""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as missing:
    print(f"skipped: {missing}")
    sys.exit(77)

PATIENCE = float(os.environ.get("LUMIVEX_PATIENCE", 20))  # seconds, for what takes a fraction of one
State = Atspi.StateType
Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)  # always ask the program


def wait(question, what):
    """The first true answer, asked again and again."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            if answer := question():
                return answer
        except GLib.Error:  # a widget went away while it was asked
            pass
        time.sleep(0.03)
    raise AssertionError(f"waited in vain for {what}")


class Screen:
    """What is to be seen at one moment."""

    def __init__(self):
        self.width, self.height = map(int, xdotool("getdisplaygeometry").split())
        self.pixels = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "rgb:-"],
                                     capture_output=True, check=True).stdout

    def at(self, x, y):
        start = 3 * (int(y) * self.width + int(x))
        return tuple(self.pixels[start:start + 3])

    def part(self, area):
        """The bytes of (left, top, width, height)."""
        left, top, width, height = area
        return b"".join(self.pixels[3 * (y * self.width + left):3 * (y * self.width + left + width)]
                        for y in range(top, top + height))


def xdotool(*words):
    return subprocess.run(["xdotool", *map(str, words)], capture_output=True, check=True, text=True).stdout


def keys(*combinations):
    xdotool("key", *combinations)


def type_text(text):
    xdotool("type", "--delay", 2, text)


def press_at(x, y, button=1):
    xdotool("mousemove", int(x), int(y), "click", button)


def drag(start, end, steps=5):
    """From place to place with the left button, by way of some between."""
    words = ["mousemove", *map(int, start), "mousedown", 1]
    for i in range(1, steps + 1):
        words += ["mousemove", *(int(a + (b - a) * i / steps) for a, b in zip(start, end))]
    xdotool(*words, "mouseup", 1)


class Widget:
    """A node of the accessible tree."""

    def __init__(self, node):
        self.node = node

    @property
    def name(self):
        return self.node.get_name() or ""

    @property
    def role(self):
        return self.node.get_role_name()

    def has(self, *states):
        have = self.node.get_state_set()
        return all(have.contains(state) for state in states)

    @property
    def area(self):
        e = self.node.get_extents(Atspi.CoordType.SCREEN)
        return e.x, e.y, e.width, e.height

    @property
    def center(self):
        x, y, width, height = self.area
        return x + width // 2, y + height // 2

    @property
    def value(self):
        return Atspi.Value.get_current_value(self.node)

    @property
    def text(self):
        return Atspi.Text.get_text(self.node, 0, Atspi.Text.get_character_count(self.node))

    def children(self):
        for i in range(self.node.get_child_count()):
            if child := self.node.get_child_at_index(i):
                yield Widget(child)

    def everything(self, but=()):
        """This and all below it that is to be seen, but nothing inside those roles."""
        yield self
        if but and self.role in but:
            return
        for child in self.children():
            if child.has(State.SHOWING):
                yield from child.everything(but)

    def click(self):
        press_at(*self.center)

    def __str__(self):
        return f"{self.role} “{self.name}” {self.area}"


class Program:
    """The program in a run of its own, with the settings in `home`."""

    def __init__(self, home, *arguments):
        self.process = subprocess.Popen(
            [os.environ["LUMIVEX"], *map(str, arguments)], cwd=home,
            env=os.environ | {f"XDG_{kind}_HOME": f"{home}/{kind.lower()}" for kind in
                              ("CONFIG", "DATA", "CACHE", "STATE")}
            | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "HOME": str(home), "QT_QPA_PLATFORM": "xcb"})
        self.node = wait(self._application, "the program to appear")
        self.window = self.find("frame", "Lumivex|.* – Lumivex|.*")
        wait(lambda: xdotool("search", "--onlyvisible", "--pid", self.process.pid, "--name", "."), "its window")
        wait(lambda: self.window.has(State.ACTIVE), "its window to have the keyboard")
        self.settled()

    def _application(self):
        assert self.process.poll() is None, f"the program ended with status {self.process.returncode}"
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and child.get_process_id() == self.process.pid and child.get_child_count():
                return child
        return None

    def windows(self):
        return [w for w in Widget(self.node).children() if w.has(State.SHOWING)]

    def seen(self, role, name=".*", inside=None):
        """All that is to be seen with that role and a name of that pattern."""
        tops = [inside] if inside else self.windows()
        but = () if "item" in role or "cell" in role else ("tree", "menu bar")  # long, and not looked for
        return [w for top in tops for w in top.everything(but) if w.role == role and re.fullmatch(name, w.name)]

    def find(self, role, name=".*", inside=None):
        """The first of those, as soon as there is one."""
        return wait(lambda: self.seen(role, name, inside), f"{role} “{name}”")[0]

    def press(self, name, role="push button", inside=None):
        """Clicks a button when it can be clicked."""
        button = self.find(role, name, inside)
        wait(lambda: button.has(State.ENABLED), f"“{name}” to be enabled")
        button.click()

    def focused(self):
        return next((w for top in self.windows() for w in top.everything() if w.has(State.FOCUSED)), None)

    def dialog(self, name=".*"):
        """The window above the main window, when the keyboard is its."""
        def found():
            return next((w for w in self.windows() if w.role in ("dialog", "alert", "file chooser")
                         and re.fullmatch(name, w.name) and w.has(State.ACTIVE)), None)
        return wait(found, f"dialog “{name}”")

    def dialog_is_gone(self):
        wait(lambda: self.window.has(State.ACTIVE), "the main window to have the keyboard again")

    def picture(self):
        """The view of the picture."""
        return self.find("canvas")

    def settled(self, area=None):
        """The screen when nothing in the window moves any more."""
        area = area or self.window.area
        last = [None]

        def still():
            screen = Screen()
            before, last[0] = last[0], screen.part(area)
            return screen if before == last[0] else None
        return wait(still, "the screen to settle")

    def changes(self, before, area):
        """The screen when that area looks otherwise than `before`, and has settled."""
        look = before.part(area)
        wait(lambda: Screen().part(area) != look, "the picture to change")
        return self.settled(area)

    def pick(self, filter_name):
        """Chooses a filter through the search field."""
        keys("ctrl+f")
        wait(lambda: self.find("text", "Search filters").has(State.FOCUSED), "the search field")
        type_text(filter_name)
        wait(lambda: self.find("text", "Search filters").text == filter_name, "the text to arrive")
        keys("Return")

    def quit(self):
        keys("ctrl+q")
        assert self.process.wait(PATIENCE) == 0

    def end(self):
        if self.process.poll() is None:
            self.process.terminate()
            self.process.wait(PATIENCE)


class ProductTest(unittest.TestCase):
    """Starts the program anew for each test, in a home of its own."""

    @classmethod
    def setUpClass(cls):
        cls.manager = subprocess.Popen(["openbox", "--sm-disable"], stderr=subprocess.DEVNULL)
        cls.addClassCleanup(cls.manager.wait)
        cls.addClassCleanup(cls.manager.terminate)
        wait(lambda: subprocess.run(["xdotool", "get_desktop"], capture_output=True).returncode == 0,
             "the window manager")

    def setUp(self):
        self.home = Path(tempfile.mkdtemp(prefix="lumivex-product."))
        self.addCleanup(shutil.rmtree, self.home, ignore_errors=True)

    def start(self, *arguments):
        program = Program(self.home, *arguments)
        self.addCleanup(program.end)
        return program


class PictureOfFailure(unittest.TextTestResult):
    """Leaves a picture of the screen where a test failed."""

    def look(self, test):
        name = os.path.join(os.environ.get("LUMIVEX_LOOK", tempfile.gettempdir()), f"{test.id()}.png")
        subprocess.run(["import", "-silent", "-window", "root", name], check=False)
        print(f"the screen then: {name}", file=sys.stderr)

    def addFailure(self, test, error):
        self.look(test)
        super().addFailure(test, error)

    def addError(self, test, error):
        self.look(test)
        super().addError(test, error)


def main():
    unittest.main(verbosity=2, testRunner=unittest.TextTestRunner(resultclass=PictureOfFailure, verbosity=2))
