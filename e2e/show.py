"""What ./run starts: Dorvalin for a person at this display, or, where there is no display, its main
job done on a virtual screen: show.py [DISPLAY]"""

import itertools
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
    """A calculation typed into the user's text, step by step, each with its picture."""
    numbers = itertools.count(1)

    def tell(what, name):
        stage.wait_until_still()
        stage.screenshot(f"run-{next(numbers)}-{name}")
        print(f"   {what}", flush=True)

    with Stage() as stage:
        # The welcome window would stand over the editor.
        stage.registry.set(KEY, "FirstStart", "NO")
        editor = stage.open_editor()
        stage.start_dorvalin()

        wheel = open_wheel(stage, *editor.middle)
        tell("The middle button, held over the editor, opened the wheel", "wheel")
        panel = wheel.choose("Rechner")
        tell(f"A click on \"Rechner\" opened its panel, {panel.width} x {panel.height}", "calculator")
        stage.keyboard.type("6*7")
        stage.keyboard.press("Return")
        tell("\"6*7\" and Enter were typed", "result")
        stage.keyboard.press("Return")
        editor.wait_for_text("42", seconds=10)
        tell("Enter sent the result to the editor", "arrived")

        right, bottom = SCREEN_SIZE
        stage.pointer.move_to(right - 30, bottom // 2)
        stage.pointer.move_to(right - 1, bottom // 2)
        stage.wait_for(lambda: find_column(stage) and find_panel(stage), "the sidebar opens", 15)
        tell("The pointer at the right edge opened the sidebar, with the last panel", "sidebar")

        print(f"In the editor arrived: {editor.text!r}")
        print(f"Screenshots: {SCREENSHOTS.relative_to(ROOT)}/run-*.png")
    return 0


if __name__ == "__main__":
    sys.exit(show_to_a_person(sys.argv[1]) if len(sys.argv) > 1 else show_the_main_job())
