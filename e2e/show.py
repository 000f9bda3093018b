"""What ./run starts: Dorvalin for a person at this display, or, where there is no display, its main
job done on a virtual screen: show.py [DISPLAY]"""

import sys

from stage import Stage
from stage.ground import ROOT, SCREEN_SIZE, SCREENSHOTS
from wheel import find_column, find_panel, open_wheel

KEY = r"HKCU\Software\Tolvo\Dorvalin"


def show_to_a_person(display):
    with Stage(display) as stage:
        # The pointer is the person's: nothing here moves it.
        stage.start("notepad")
        dorvalin = stage.start_dorvalin()
        print("Dorvalin runs. Hold the middle button (or press Scroll Lock) over the editor to get the wheel;\n"
              "the icon's menu has the entry that quits. Ctrl+C here ends everything as well.", flush=True)
        return dorvalin.wait(seconds=None)


def show_the_main_job():
    with Stage() as stage:
        # The welcome window would stand over the editor.
        stage.registry.set(KEY, "FirstStart", "NO")
        editor = stage.open_editor()
        stage.start_dorvalin()
        steps = MainJob(stage, editor)
        steps.call_the_wheel()
        steps.open_the_calculator()
        steps.solve()
        steps.send()
        steps.reach_the_sidebar()
        print(f"In the editor arrived: {editor.text!r}")
        print(f"Screenshots: {SCREENSHOTS.relative_to(ROOT)}/run-*.png")
    return 0


class MainJob:
    """A calculation typed into the user's text, step by step, each with its picture."""

    def __init__(self, stage, editor):
        self.stage = stage
        self.editor = editor
        self.wheel = None
        self.count = 0

    def call_the_wheel(self):
        self.wheel = open_wheel(self.stage, *self.editor.middle)
        self._tell("The middle button, held over the editor, opened the wheel", "wheel")

    def open_the_calculator(self):
        panel = self.wheel.choose("Rechner")
        self._tell(f"A click on \"Rechner\" opened its panel, {panel.width} x {panel.height}", "calculator")

    def solve(self):
        self.stage.keyboard.type("6*7")
        self.stage.keyboard.press("Return")
        self.stage.wait_until_still()
        self._tell("\"6*7\" and Enter were typed", "result")

    def send(self):
        self.stage.keyboard.press("Return")
        self.editor.wait_for_text("42", seconds=10)
        self.stage.wait_until_still()
        self._tell("Enter sent the result to the editor", "arrived")

    def reach_the_sidebar(self):
        right, bottom = SCREEN_SIZE
        self.stage.pointer.move_to(right - 30, bottom // 2)
        self.stage.pointer.move_to(right - 1, bottom // 2)
        self.stage.wait_for(lambda: find_column(self.stage) and find_panel(self.stage), "the sidebar opens", 15)
        self.stage.wait_until_still()
        self._tell("The pointer at the right edge opened the sidebar, with the last panel", "sidebar")

    def _tell(self, what, name):
        self.count += 1
        self.stage.screenshot(f"run-{self.count}-{name}")
        print(f"   {what}", flush=True)


if __name__ == "__main__":
    sys.exit(show_to_a_person(sys.argv[1]) if len(sys.argv) > 1 else show_the_main_job())
