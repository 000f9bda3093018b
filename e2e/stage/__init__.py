"""A virtual screen with Wine on it, on which a test acts like a person would.

    from stage import Stage

    with Stage() as stage:                              # a fresh Windows, German, 1024 x 768
        editor = stage.open_editor()                    # Wine's text editor, ready for typing
        stage.keyboard.type("größer als 5 €")
        assert editor.text == "größer als 5 €"

        stage.registry.set(r"HKCU\\Software\\Tolvo\\Dorvalin", "WaitBeforeSend", 50)
        dorvalin = stage.start_dorvalin()               # the program as it is shipped
        stage.pointer.move_to(*editor.middle)
        with stage.pointer.holding("middle"):           # real events of the display
            wheel = stage.wait_for_window(program="Dorvalin.exe")
        stage.screenshot("wheel")                       # build/screenshots/wheel.png
        stage.pointer.click(*wheel.middle)
        stage.wait_for(lambda: stage.foreground() == editor.window, "the editor gets the keys back")

What a stage offers (each class says more):

    open_editor(text=""), open_rich_editor(), open_word_processor()
                                              targets: a rich text control of another process is one
    start(program, *args), start_dorvalin()   any program; a Program has wait(), exit_code, output(), kill()
    windows(**wanted), wait_for_window()      visible top-level windows, the top one first; Window has
                                              title, class_name, program, rect, middle, enabled, text,
                                              selection, children(**wanted)
    foreground(), focus()                     the window and the control that get the keys, or None
    message_box()                             the one that is open, or None: its title, text and buttons
    pointer                                   move_to, move_by, press, release, holding, click,
                                              double_click, drag, park (pictures show the pointer too)
    keyboard                                  type(text), press("ctrl+v"), hold and release
    clipboard                                 text (read and write), rich_text
    registry                                  get, set, delete
    scroll_lock()                             whether Windows holds it for switched on
    picture(), screenshot(name), pixel(x, y)  what the screen shows
    path(r"C:\\a\\b.txt")                       the same file as this side sees it
    wait_for(condition, what, seconds=5)      its value as soon as it is true; StageError names `what` otherwise

Everything is in pixels of the screen. Nothing waits a counted time for something that can be asked for.
Tests derive from StageTest: one stage a class, programs closed after each test, a picture of every failure.
From the shell: `python3 -m stage COMMAND...` in this folder's parent runs a command with a stage around it.
"""

from .case import StageTest
from .ground import StageError
from .stage import Stage

__all__ = ["Stage", "StageError", "StageTest"]
