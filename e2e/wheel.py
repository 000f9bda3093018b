"""The function wheel as a user finds it on the screen: eight bubbles around a middle."""

import math

from stage.ground import SCREEN_SIZE

BUBBLES = ("Menü", "Zeichen", "Rechner", "Farben", "Datum/Zeit", "Dateien", "Schnelltext", "Merrowe-Ablage")
SIDE = 120  # pixels of the wheel's window, which is a square
RADIUS = 43
COLUMN = (47, 312)  # pixels of the sidebar's window
PROGRAM = "Dorvalin.exe"
HOLD = 15  # seconds after which a held gesture counts as not recognised on a busy machine


class Wheel:
    """An open wheel. The active bubble points to the panel: downwards in the screen's upper half."""

    def __init__(self, stage, window, active):
        self.stage = stage
        self.window = window
        self.active = active

    def bubble(self, caption):
        """The middle of a bubble, on the screen."""
        steps = BUBBLES.index(caption) - BUBBLES.index(self.active)
        x, y = self.window.middle
        points_up = y > SCREEN_SIZE[1] // 2
        angle = math.radians(45 * steps + (270 if points_up else 90))
        return round(x + RADIUS * math.cos(angle)), round(y + RADIUS * math.sin(angle))

    def choose(self, caption):
        """Clicks a bubble and waits until its panel stands there with the keys; gives the panel's window."""
        before = find_panel(self.stage)
        self.stage.pointer.click(*self.bubble(caption))
        panel = self.stage.wait_for(lambda: _new_panel(self.stage, before), f"the panel of {caption} opens")
        self.active = caption
        self.stage.wait_until_still()
        return panel


def open_wheel(stage, x, y, active="Zeichen", buttons=("middle",)):
    """Holds the buttons at a point until the wheel stands with its panel; `active` is the last function."""
    stage.pointer.move_to(x, y)
    with stage.pointer.holding(*buttons):
        stage.wait_for(lambda: find_wheel(stage), "the wheel opens under the held button", HOLD)
    return opened_wheel(stage, active)


def opened_wheel(stage, active):
    stage.wait_for(lambda: stage.foreground() == find_panel(stage) is not None,
                   "the panel of the last function has the keys")
    stage.wait_until_still()
    return Wheel(stage, find_wheel(stage), active)


def find_wheel(stage):
    """The wheel's window, or None."""
    return next((w for w in stage.windows(program=PROGRAM) if _is_wheel(w)), None)


def find_column(stage):
    """The sidebar's column of bubbles, or None."""
    return next((w for w in stage.windows(program=PROGRAM) if (w.width, w.height) == COLUMN), None)


def bubble_of_column(column, caption, active):
    """The middle of a bubble of the sidebar's column, on the screen."""
    left, top = column.rect[:2]
    return left + (16 if caption == active else 26), top + 40 * BUBBLES.index(caption) + 16


def find_panel(stage):
    """The window of the open panel, or None."""
    return next((w for w in stage.windows(program=PROGRAM) if not _is_wheel(w) and w.width > SIDE), None)


def _new_panel(stage, before):
    panel = find_panel(stage)
    return panel if panel and panel != before and stage.foreground() == panel else None


def _is_wheel(window):
    return (window.width, window.height) == (SIDE, SIDE)
