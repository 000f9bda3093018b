"""Dorvalin as its user meets it: the program running on a stage, its wheel, sidebar and panels."""

import time

from stage import StageTest
from wheel import PROGRAM, find_panel, find_wheel, open_wheel

KEY = r"HKCU\Software\Tolvo\Dorvalin"
CALCULATOR = 3


class DorvalinTest(StageTest):
    """Starts with the text editor in front and all settings at their defaults."""

    def setUp(self):
        super().setUp()
        self.editor = self.stage.open_editor()
        self.stage.registry.delete(KEY)
        self.store("", FirstStart="NO", LastFunction=CALCULATOR)
        # The edge window then answers clicks alone.
        self.store(r"\Settings", RightBarMode=1)

    def store(self, subkey, **values):
        for name, value in values.items():
            self.stage.registry.set(KEY + subkey, name, value)

    def start(self, access=None, settings=None):
        """Starts the program with these settings and waits until it is resident."""
        self.store(r"\Access", **(access or {}))
        self.store(r"\Settings", **(settings or {}))
        self.program = self.stage.start_dorvalin()
        # The last thing that a start does is to put up the sidebar's edge window, one pixel wide.
        self.stage.wait_for(lambda: any(w.width == 1 for w in self.stage.windows(program=PROGRAM)),
                            "the program is resident", seconds=30)

    # What the user does

    def call_wheel(self, x, y, *buttons, active="Rechner"):
        """Holds the buttons (the middle one) at a point until the wheel stands with its panel."""
        return open_wheel(self.stage, x, y, active, buttons or ("middle",))

    def set_free(self):
        panel = find_panel(self.stage)
        # Free is the second button from the right in the row at the top.
        self.stage.pointer.click(panel.rect[2] - 30, panel.rect[1] + 11)
        self.stage.wait_for(lambda: find_wheel(self.stage) is None, "the wheel goes")
        self.stage.wait_until_still()
        return panel

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
        return panel.children(visible=True, class_name="Edit") if panel else []

    def term_field(self):
        return self.fields()[0]

    def result_field(self):
        return self.fields()[1]

    def expect_arrived(self, text):
        self.editor.wait_for_text(text, seconds=10)
        self.stage.wait_for(lambda: self.stage.foreground() == self.editor.window, "the editor has the focus")

    def expect_no_window(self):
        self.stage.wait_for(lambda: all(w.width == 1 for w in self.stage.windows(program=PROGRAM)),
                            "wheel and panel are gone")
