"""Dorvalin as its user meets it: the program running on a stage, its wheel, sidebar and panels."""

import contextlib
import time

from stage import StageTest
from wheel import BUBBLES, PROGRAM, Wheel, find_column, find_panel, find_wheel

KEY = r"HKCU\Software\Tolvo\Dorvalin"
CALCULATOR = 3
HOLD = 15  # seconds after which a held gesture counts as not recognised on a busy machine

DEFAULTS = {"FirstStart": "NO", "LastFunction": CALCULATOR}
# The edge window then answers clicks alone.
SETTINGS = {"RightBarMode": 1}


class DorvalinTest(StageTest):
    """Starts with the text editor in front and all settings at their defaults."""

    def setUp(self):
        super().setUp()
        self.editor = self.stage.open_editor()
        for key in ("", r"\Access", r"\Settings", r"\DontShowAgain"):
            with contextlib.suppress(AssertionError):
                for name in self.stage.registry.values(KEY + key):
                    self.stage.registry.delete(KEY + key, name)
        self.store("", **DEFAULTS)
        self.store(r"\Settings", **SETTINGS)

    def store(self, subkey, **values):
        for name, value in values.items():
            self.stage.registry.set(KEY + subkey, name, value)

    def start(self, access=None, settings=None):
        """Starts the program with these settings and waits until it is resident."""
        self.store(r"\Access", **(access or {}))
        self.store(r"\Settings", **(settings or {}))
        self.program = self.stage.start_dorvalin()
        # The last thing that a start does is to put up the edge window.
        self.stage.wait_for(self.edge, "the program is resident", seconds=30)

    # What the user does

    @contextlib.contextmanager
    def holding(self, *buttons):
        for button in buttons:
            self.stage.pointer.press(button)
        try:
            yield
        finally:
            for button in reversed(buttons):
                self.stage.pointer.release(button)

    def call_wheel(self, x, y, *buttons, active="Rechner"):
        """Holds the buttons (the middle one) at a point until the wheel stands with its panel."""
        self.stage.pointer.move_to(x, y)
        with self.holding(*(buttons or ("middle",))):
            self.stage.wait_for(lambda: find_wheel(self.stage), "the wheel opens under the held button", HOLD)
        return self.opened_wheel(active)

    def opened_wheel(self, active="Rechner"):
        self.stage.wait_for(lambda: self.stage.foreground() == find_panel(self.stage) is not None,
                            "the panel of the last function has the keys")
        self.stage.wait_until_still()
        return Wheel(self.stage, find_wheel(self.stage), active)

    def calculate(self, term):
        """Types a term, has it solved, and sends the result."""
        self.stage.keyboard.type(term)
        self.stage.keyboard.press("Return")
        self.stage.wait_for(lambda: self.fields() and self.result_field().text, "the result line shows a result")
        self.stage.keyboard.press("Return")

    @staticmethod
    def pause(seconds):
        """For what must not happen there is nothing to wait for."""
        time.sleep(seconds)

    # What the user sees

    def fields(self):
        panel = find_panel(self.stage)
        return [c for c in panel.children(visible=True) if c.class_name == "Edit"] if panel else []

    def term_field(self):
        return self.fields()[0]

    def result_field(self):
        return self.fields()[1]

    def edge(self):
        """The sidebar's edge window, one pixel wide, or None."""
        return next((w for w in self.stage.windows(program=PROGRAM) if w.width == 1), None)

    def column(self):
        return find_column(self.stage)

    def expect_arrived(self, text):
        self.editor.wait_for_text(text, seconds=10)
        self.stage.wait_for(lambda: self.stage.foreground() == self.editor.window, "the editor has the focus")

    def expect_no_window(self):
        self.stage.wait_for(lambda: all(w.width == 1 for w in self.stage.windows(program=PROGRAM)),
                            "wheel and panel are gone")


def bubble_of_column(column, caption, active):
    """The middle of a bubble of the sidebar's column, on the screen."""
    left, top = column.rect[:2]
    return left + (16 if caption == active else 26), top + 40 * BUBBLES.index(caption) + 16
