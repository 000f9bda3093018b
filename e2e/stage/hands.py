"""The user's hands: pointer and keyboard events of the display itself, which no program can tell
from a person's."""

import contextlib
import os
import time

from .ground import SCREEN_SIZE, call

BUTTONS = {"left": 1, "middle": 2, "right": 3, "wheel up": 4, "wheel down": 5}

# Dragging begins only with moves that a hand could make: few, small, and with time between them.
DRAG_STEPS = 8
DRAG_PAUSE = 0.03

# Wine asks for Shift, AltGr and Ctrl when a program gets to a key, not as they were when it was struck.
# Let go earlier than that, they change the character; so a busy machine is typed on more slowly.
SHORTEST_KEY = 40
LONGEST_KEY = 400


def _milliseconds_a_key():
    processes_a_processor = os.getloadavg()[0] / os.cpu_count()
    return round(min(max(SHORTEST_KEY, SHORTEST_KEY * processes_a_processor), LONGEST_KEY))


class _Hand:
    def __init__(self, display):
        self._env = {**os.environ, "DISPLAY": display}

    def _do(self, *words):
        return call("xdotool", *words, env=self._env)


class Pointer(_Hand):
    """Buttons are "left", "middle", "right", "wheel up", "wheel down"."""

    def move_to(self, x, y):
        self._do("mousemove", x, y)

    def park(self):
        """Puts it where it covers nothing and touches nothing: pictures show the pointer too."""
        self.move_to(1, SCREEN_SIZE[1] - 1)

    def move_by(self, x, y):
        self._do("mousemove_relative", "--", x, y)

    def press(self, button="left"):
        self._do("mousedown", BUTTONS[button])

    def release(self, button="left"):
        self._do("mouseup", BUTTONS[button])

    @contextlib.contextmanager
    def holding(self, *buttons):
        for button in buttons:
            self.press(button)
        try:
            yield
        finally:
            for button in reversed(buttons):
                self.release(button)

    def click(self, x=None, y=None, button="left"):
        if x is not None:
            self.move_to(x, y)
        self._do("click", BUTTONS[button])

    def double_click(self, x=None, y=None):
        if x is not None:
            self.move_to(x, y)
        self._do("click", "--repeat", 2, "--delay", 60, BUTTONS["left"])

    def drag(self, start, end, button="left"):
        """From point to point; it rests on the way and at the end as a hand does."""
        self.move_to(*start)
        self.press(button)
        for step in range(1, DRAG_STEPS + 1):
            time.sleep(DRAG_PAUSE)
            self.move_to(*(a + (b - a) * step // DRAG_STEPS for a, b in zip(start, end)))
        time.sleep(0.1)
        self.move_by(1, 0)
        time.sleep(0.1)
        self.release(button)


class Keyboard(_Hand):
    """Keys go to the window that has them; names are those of X ("Return", "ctrl+v", "Scroll_Lock")."""

    def type(self, text):
        """Any text that a German keyboard has keys for; line ends press Return."""
        lines = text.split("\n")
        for number, line in enumerate(lines):
            if number:
                self.press("Return")
            if line:
                self._do("type", "--delay", _milliseconds_a_key(), "--", line)

    def press(self, *keys):
        self._do("key", "--delay", _milliseconds_a_key(), *keys)

    def hold(self, key):
        self._do("keydown", key)

    def release(self, key):
        self._do("keyup", key)
